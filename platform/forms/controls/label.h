#pragma once

#include <optional>

#include "platform/forms/control.h"
#include "platform/forms/controls/movement.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

class CaptionSize;

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
  // Lights up once for half a second: its words have changed and are to be seen.
  void glow();
  // The words are set in letters no larger than those of others; shared must outlive the label.
  void shareCaptionSize(CaptionSize& shared);
  void setVisible(bool visible) override;
  void formGone() override { glowing_.finish(); }
  [[nodiscard]] int layer() const override { return 0; }
  // Of a label whose row says that it has one; it leads to the next control of the design.
  [[nodiscard]] QChar accessKey() const override;
  void access() override;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  void showGlow(double part);

  std::optional<QString> spokenName_;
  Movement glowing_{[this](double part) { showGlow(part); }};
  CaptionSize* captionSize_ = nullptr;
};

}  // namespace platform::inline forms
