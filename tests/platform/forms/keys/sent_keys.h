#pragma once

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

// Keys as a desktop with a clock of its own sends them.
namespace trial {

// A key event at the window with a time of the test's own; no events run between two of them.
inline void send(QWindow* window, bool press, Qt::Key key, quint64 stamp, bool flagged = false,
                 Qt::KeyboardModifiers with = {}, const QString& text = {}) {
  QKeyEvent event(press ? QEvent::KeyPress : QEvent::KeyRelease, key, with, text, flagged);
  event.setTimestamp(stamp);
  QCoreApplication::sendEvent(window, &event);
}

}  // namespace trial
