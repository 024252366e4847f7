#include "platform/forms/keys/key_codes.h"

#include <QKeyEvent>

namespace platform {

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

}  // namespace platform
