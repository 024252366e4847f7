#include "platform/forms/desktop_motion.h"

#include <QApplication>
#include <QStyle>

#include "platform/forms/linux/desktop_settings.h"

namespace platform::inline forms {

bool DesktopMotion::isWanted() {
  if (QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) <= 0) return false;
  return numberIn(desktopSettings(), QByteArrayLiteral("Gtk/EnableAnimations")).value_or(1) != 0;
}

}  // namespace platform::inline forms
