#pragma once

#include <functional>

#include "platform/forms/control.h"

namespace platform::inline forms {

// A box that is ticked or not. Space, the mouse and its access key change it.
class CheckBox : public Control {
 public:
  using Control::Control;

  // After each change, also by the program.
  void onClick(std::function<void()> handler) { clicked_ = std::move(handler); }
  [[nodiscard]] bool isChecked() const;
  void setChecked(bool checked);

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
