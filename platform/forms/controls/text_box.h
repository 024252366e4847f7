#pragma once

#include <functional>

#include "platform/forms/control.h"

namespace platform::inline forms {

// A box for one line of text. Its length limit and its key filter hold for everything that the user
// enters, whatever the way: typing, pasting, dropping, an input method; not for what the program
// sets. A locked box takes the focus and has key events, but its text stays. Text that is too wide
// takes a smaller font.
class TextBox : public Control {
 public:
  using Control::Control;

  // Before each character that the user enters, and for Backspace (8), Enter (13) and Esc (27): the
  // handler may change the code; 0 drops the character. Enter never becomes text.
  void onKeyPress(std::function<void(int& keyAscii)> handler) { keyPress_ = std::move(handler); }
  // At the release of a key, with its code (see keys/key_codes.h).
  void onKeyUp(std::function<void(int keyCode)> handler) { keyUp_ = std::move(handler); }
  // After each change of the text, also by the program.
  void onChange(std::function<void()> handler) { changed_ = std::move(handler); }
  void onClick(std::function<void()> handler) { clicked_ = std::move(handler); }

  [[nodiscard]] QString text() const;
  void setText(const QString& text);
  // What is selected: where it begins, and how many characters it has; without a selection where
  // the cursor stands, and 0.
  [[nodiscard]] int selStart() const;
  [[nodiscard]] int selLength() const;
  // In characters; 0 is no limit.
  [[nodiscard]] int maxLength() const;
  void setMaxLength(int characters);
  [[nodiscard]] bool isLocked() const;
  void setLocked(bool locked);
  // A locked box that can be opened again is shown as closed, with the picture of what opens it at
  // its end; "" for one that is not.
  void setOpener(const QString& picture);
  [[nodiscard]] QString opener() const;
  [[nodiscard]] Align alignment() const { return align_; }
  void setAlignment(Align align);
  // The family; the one of the design while none was set.
  [[nodiscard]] QString fontName() const;
  void setFontName(const QString& name);
  // Tells on-screen keyboards that the box takes digits alone.
  void askForDigits();

 protected:
  // The caption of the design row is the text at the start.
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  std::function<void(int&)> keyPress_;
  std::function<void(int)> keyUp_;
  std::function<void()> changed_;
  std::function<void()> clicked_;
  Align align_ = Align::Left;
  QString fontName_;
};

}  // namespace platform::inline forms
