#include "platform/forms/menu_bar.h"

#include <QAction>

#include "platform/forms/text_block.h"

namespace platform {

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent) {
  setNativeMenuBar(false);
}

bool MenuBar::accessKey(QChar key) {
  const QList<QAction*> items = actions();
  for (QAction* item : items) {
    if (!item->isVisible() || !item->isEnabled() || accessKeyOf(item->text()) != key) continue;
    if (item->menu() != nullptr) {
      setActiveAction(item);
    } else {
      item->trigger();
    }
    return true;
  }
  return false;
}

}  // namespace platform
