#pragma once

#include <functional>

#include "platform/forms/control.h"

namespace platform::inline forms {

// One of several choices: of the options in one container exactly one is selected. Space, arrows,
// the mouse and its access key select it.
class OptionButton : public Control {
 public:
  using Control::Control;

  // When it becomes the selected one, also by the program; not when it was already.
  void onClick(std::function<void()> handler) { clicked_ = std::move(handler); }
  [[nodiscard]] bool isSelected() const;
  void select();

  [[nodiscard]] bool hasCaption() const override { return true; }
  [[nodiscard]] QString caption() const override { return caption_; }
  void setCaption(const QString& caption) override;
  [[nodiscard]] QChar accessKey() const override;
  void access() override;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  QString caption_;
  std::function<void()> clicked_;
};

}  // namespace platform::inline forms
