#include "platform/forms/keys/key_codes.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace platform::inline forms {

int keyCodeOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return kKeyEnter;
    case Qt::Key_Backspace:
      return kKeyBackspace;
    case Qt::Key_Escape:
      return kKeyEscape;
    default:
      return event.key() < 0x80 ? event.key() : 0;
  }
}

QChar characterOf(const QKeyEvent& event) {
  constexpr int kLastCharacter = 0xFFFF;
  const QString text = event.text();
  if (!text.isEmpty() && text[0].isPrint()) return text[0];
  return event.key() <= kLastCharacter ? QChar(event.key()) : QChar();
}

bool isEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
         key == Qt::Key_AltGr || key == Qt::Key_Meta;
}

bool mayRepeat(const QKeyEvent& event) {
  if (qobject_cast<QLineEdit*>(QApplication::focusWidget()) == nullptr) return false;
  switch (event.key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Left:
    case Qt::Key_Right:
      return true;
    default:
      return event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
  }
}

}  // namespace platform::inline forms
