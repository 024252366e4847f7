#include "platform/forms/menu_bar.h"

#include <QAction>
#include <QMenu>
#include <algorithm>

#include "platform/forms/fonts.h"
#include "platform/forms/text_block.h"

namespace platform {

namespace {

// The size of a menu's writing, of the page's height and in pixels.
constexpr double kShare = 0.021;
constexpr double kSmallest = 15;
constexpr double kLargest = 48;

}  // namespace

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent) {
  setNativeMenuBar(false);
}

void MenuBar::scaleTo(int pageHeight) {
  const double pixels = std::clamp(pageHeight * kShare, kSmallest, kLargest);
  const QFont scaled = fontOf({}, pixels);
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

}  // namespace platform
