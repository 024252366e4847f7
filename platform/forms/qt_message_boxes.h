#pragma once

#include <functional>

#include "platform/base/message_boxes.h"

class QWidget;

namespace platform::inline forms {

// The words on the buttons, in the language of the moment.
struct ButtonWords {
  QString ok;
  QString yes;
  QString no;
};

// Message boxes in windows over the main one. A yes/no box is left only by one of its buttons.
class QtMessageBoxes final : public MessageBoxes {
 public:
  // words: asked at each box. parent: the window that boxes stand over; null before there is one.
  QtMessageBoxes(std::function<ButtonWords()> words, std::function<QWidget*()> parent)
      : words_(std::move(words)), parent_(std::move(parent)) {}

  BoxAnswer show(const MessageBox& box) override;

 private:
  std::function<ButtonWords()> words_;
  std::function<QWidget*()> parent_;
};

}  // namespace platform::inline forms
