#pragma once

#include <optional>

#include "platform/forms/control.h"
#include "platform/forms/text_block.h"

class QLabel;

namespace platform {

// A text on the form: with a ground of its own or transparent, with or without a border. The text
// wraps or takes a smaller size rather than be cut.
class Label : public Control {
 public:
  using Control::Control;

  [[nodiscard]] bool hasCaption() const override { return true; }
  [[nodiscard]] QString caption() const override;
  void setCaption(const QString& caption) override;
  // What assistive technology reads in place of the caption, from now on. Empty for a label that is
  // not there for it, because another speaks for both.
  void setSpokenName(const QString& name);
  [[nodiscard]] int layer() const override { return 0; }
  // Of a label whose row says that it has one; it leads to the next control of the design.
  [[nodiscard]] QChar accessKey() const override;
  void access() override;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  std::optional<QString> spokenName_;
};

}  // namespace platform
