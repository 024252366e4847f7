#pragma once

#include <functional>

class QAccessibleEvent;

namespace platform::inline forms {

// From here on assistive technology gets fewer events than the toolkit makes, so that no sea of
// them drowns what is to be heard: where the focus is once an event has been handled, not the
// places that it passed; of what is not on the screen that it comes and goes, and its name; of a
// locked box its text, not its cursor; and of a silent label nothing of that.
// pass: where the events go; to the desktop without it.
void installAccessibleEvents(std::function<void(QAccessibleEvent& event)> pass = {});

// What becomes of an event; the toolkit calls it once somebody listens.
void hearAccessibleEvent(QAccessibleEvent* event);

// While one lives, what is written into boxes is not told: for what a sentence tells
// (Form::announce), which would be heard twice.
class WritingNotTold {
 public:
  WritingNotTold();
  ~WritingNotTold();
  WritingNotTold(const WritingNotTold&) = delete;
  WritingNotTold& operator=(const WritingNotTold&) = delete;
};

// While one lives, what comes and goes tells it when the last one ends, and what has come and gone
// again, or gone and come, does not tell it at all: for boxes that take each other's place while an
// answer is judged.
class ComingsToldTogether {
 public:
  ComingsToldTogether();
  ~ComingsToldTogether();
  ComingsToldTogether(const ComingsToldTogether&) = delete;
  ComingsToldTogether& operator=(const ComingsToldTogether&) = delete;
};

}  // namespace platform::inline forms
