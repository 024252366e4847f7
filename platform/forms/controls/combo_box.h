#pragma once

#include <QStringList>
#include <functional>

#include "platform/forms/control.h"

namespace platform::inline forms {

// A drop-down list: one of its lines is chosen, nothing can be typed. Arrows choose, Space and
// Alt+Down open the list.
class ComboBox : public Control {
 public:
  using Control::Control;

  // When another line is chosen, also by the program.
  void onClick(std::function<void()> handler) { clicked_ = std::move(handler); }
  // Fills the list anew; nothing of it is chosen then.
  void setItems(const QStringList& items);
  [[nodiscard]] QStringList items() const;
  // The chosen line; empty where there is none.
  [[nodiscard]] QString text() const;
  [[nodiscard]] int listIndex() const;  // -1: nothing chosen
  void setListIndex(int index);
  // Chooses the line with this text; nothing happens where there is none.
  void choose(const QString& text);

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  std::function<void()> clicked_;
  int chosen_ = -1;
  bool choosing_ = false;  // the program chooses
};

}  // namespace platform::inline forms
