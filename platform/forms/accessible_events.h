#pragma once

#include <functional>

class QAccessibleEvent;

namespace platform {

// From here on assistive technology gets fewer events than the toolkit makes, so that no sea of
// them drowns what is to be heard: where the focus is once an event has been handled, not the
// places that it passed; of what is not on the screen that it comes and goes, and its name; of a
// locked box its text, not its cursor; and of a silent label nothing of that.
// pass: where the events go; to the desktop without it.
void installAccessibleEvents(std::function<void(QAccessibleEvent& event)> pass = {});

// What becomes of an event; the toolkit calls it once somebody listens.
void hearAccessibleEvent(QAccessibleEvent* event);

}  // namespace platform
