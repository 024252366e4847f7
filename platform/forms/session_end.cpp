#include "platform/forms/session_end.h"

#include <QCoreApplication>
#include <QEvent>

#include "platform/forms/runtime.h"

namespace platform::inline forms {

SessionEnd::SessionEnd(Runtime& runtime) : runtime_(runtime) {
  QCoreApplication::instance()->installEventFilter(this);
}

// As when the window is closed: the form on the screen is unloaded, also out of a wait.
bool SessionEnd::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Quit || watched != QCoreApplication::instance()) return false;
  event->accept();
  runtime_.forms().closeCurrent();
  runtime_.endProcess(0);
  return true;
}

}  // namespace platform::inline forms
