#pragma once

#include <QEvent>

class QWidget;

namespace platform {

// A press by assistive technology. It is posted to the widget that it is meant for, as an event, so
// that it passes the guard in front of the windows as a click does, and finds the widget as it is
// by then.
[[nodiscard]] QEvent::Type pressEvent();

void postPress(QWidget& widget);

}  // namespace platform
