#include "platform/forms/appearance.h"

#include <QApplication>
#include <QPalette>

#include "platform/forms/accessible.h"
#include "platform/forms/colors.h"
#include "platform/forms/fonts.h"
#include "platform/forms/house_style.h"

namespace platform::inline forms {

namespace {

constexpr double kMenuPixels = 16;

// A role that is left out takes the desktop's colour, dark or in high contrast as that may be.
QPalette lightPalette() {
  QPalette palette(colors::kPaletteBase);
  palette.setColor(QPalette::Window, colors::kPaper);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, colors::kPaper);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Button, colors::kFace);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::ToolTipBase, colors::kToolTip);
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::Highlight, colors::kSelection);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, colors::kSelection);
  palette.setColor(QPalette::LinkVisited, colors::kSelection);
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
