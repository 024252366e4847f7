#pragma once

#include <QCoreApplication>
#include <QEvent>

namespace prova {

// The desktop's session ends: what the toolkit makes of the word of the session's manager.
inline void endSession() {
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &quit);
}

}  // namespace prova
