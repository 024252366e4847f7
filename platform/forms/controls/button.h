#pragma once

#include <functional>
#include <optional>

#include "platform/forms/control.h"
#include "platform/forms/controls/answer_mark.h"

namespace platform::inline forms {

class ButtonWidget;
class CaptionSize;

// A button with a caption, a picture, or both, plain or on a colour. It is clicked by Enter at the
// press, by Space at the release, by its access key at the press, by assistive technology, and by
// the mouse at the release inside: at once, and only while it is enabled and shown.
class Button : public Control {
 public:
  using Control::Control;

  void onClick(std::function<void()> handler) { clicked_ = std::move(handler); }
  // Acts as a press of the button does.
  void click();
  // Whether a press could act: enabled, on the screen, not below a covering panel, and no other
  // form on its way to the screen.
  [[nodiscard]] bool isLive() const;

  [[nodiscard]] bool hasCaption() const override { return true; }
  [[nodiscard]] QString caption() const override { return caption_; }
  void setCaption(const QString& caption) override;
  // What assistive technology calls the button while it has neither words nor a tool tip.
  void setSpokenName(const QString& name);
  // The caption is set in letters no larger than those of others; shared must live while the form
  // does, or be let go first.
  void shareCaptionSize(CaptionSize& shared);
  // From here on the button only shows something: it never takes the focus and offers no press.
  void makeForShow();
  // From here on a ring surrounds the button while it has the focus, as it does the lit key of a
  // scanning keyboard: what a switch would press.
  void ringAsScanned();
  // Shows the button sunk, as while it is held down, for one that something else presses.
  void showHeld(bool held);
  // Shows what became of the button as an answer, until it is enabled again. One that was right
  // stands as before though it is disabled; what one tried in vain says is pale.
  void markAnswer(AnswerMark mark);
  // From here on the button is a cell of a table: square and flush with its neighbours, enabled or
  // not. corner: the corner of the table that it is, which is round; none for the cells between.
  void makeCell(std::optional<Qt::Corner> corner);
  [[nodiscard]] QChar accessKey() const override;
  void access() override { click(); }
  void keysLetGo() override;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  QString caption_;
  QString spokenName_;
  std::function<void()> clicked_;
  CaptionSize* captionSize_ = nullptr;
  bool ringed_ = false;
};

}  // namespace platform::inline forms
