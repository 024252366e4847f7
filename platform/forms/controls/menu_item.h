#pragma once

#include <QKeySequence>
#include <QPointer>
#include <functional>

#include "platform/forms/control.h"

class QAction;
class QMenu;

namespace platform::inline forms {

// An item of a form's menu: on the menu bar, or in the menu of the item that its row names as its
// container. Its check mark is set by the form alone, never by the click itself.
class MenuItem : public Control {
 public:
  using Control::Control;
  ~MenuItem() override;

  void onClick(std::function<void()> handler) { clicked_ = std::move(handler); }
  void click();

  [[nodiscard]] bool isChecked() const { return checked_; }
  void setChecked(bool checked);
  [[nodiscard]] const QKeySequence& shortcut() const { return shortcut_; }
  [[nodiscard]] QAction* action() const { return action_; }

  [[nodiscard]] bool hasCaption() const override { return true; }
  [[nodiscard]] QString caption() const override { return caption_; }
  void setCaption(const QString& caption) override;
  void setVisible(bool visible) override;
  void setEnabled(bool enabled) override;
  [[nodiscard]] QWidget* container() const override;
  [[nodiscard]] QWidget* surroundings() const override;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;

 private:
  QPointer<QAction> action_;
  mutable QPointer<QMenu> menu_;  // made when a first item is put into it
  bool inMenu_ = false;
  bool checked_ = false;
  QString caption_;
  QKeySequence shortcut_;
  std::function<void()> clicked_;
};

}  // namespace platform::inline forms
