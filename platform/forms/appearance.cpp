#include "platform/forms/appearance.h"

#include <QApplication>
#include <QPalette>

#include "platform/forms/accessible.h"
#include "platform/forms/fonts.h"
#include "platform/forms/house_style.h"

namespace platform::inline forms {

namespace {

constexpr double kMenuPixels = 16;

// A role that is left out takes the desktop's colour, dark or in high contrast as that may be.
QPalette lightPalette() {
  QPalette palette(QColor(240, 240, 240));
  palette.setColor(QPalette::Window, QColor(245, 245, 245));
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(245, 245, 245));
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Button, QColor(238, 240, 244));
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::Highlight, QColor(10, 60, 150));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(10, 60, 150));
  palette.setColor(QPalette::LinkVisited, QColor(10, 60, 150));
  return palette;
}

}  // namespace

void applyAppearance(const BoxDrawings& drawings) {
  QApplication::setStyle(new HouseStyle(drawings));
  QApplication::setPalette(lightPalette());
  QApplication::setFont(fontOf({}, kMenuPixels));
  installAccessibility();
}

}  // namespace platform::inline forms
