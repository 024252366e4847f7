#include "platform/forms/menu_bar.h"

#include <QAction>
#include <QMenu>

#include "platform/forms/fonts.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

constexpr double kSmallest = 15;  // pixels

}  // namespace

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent) {
  setNativeMenuBar(false);
}

void MenuBar::scaleTo(int pageHeight) {
  const QFont scaled = fontOf({}, pixelsBeside(pageHeight, kSmallest));
  if (scaled == font()) return;
  setFont(scaled);
  const QList<QMenu*> menus = findChildren<QMenu*>() + parentWidget()->findChildren<QMenu*>();
  for (QMenu* menu : menus) menu->setFont(scaled);
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

}  // namespace platform::inline forms
