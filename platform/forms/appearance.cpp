#include "platform/forms/appearance.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "platform/forms/accessible.h"
#include "platform/forms/fonts.h"

namespace platform {

namespace {

constexpr double kMenuPixels = 16;

// Between the words of two menus, of the size of their letters; Fusion itself leaves a fixed part
// of it round each.
constexpr double kBetweenMenus = 1.2;
constexpr int kRoundMenu = 12;  // pixels

// Fusion, without a text cursor of its own, and with menus that keep apart whatever their size.
class Style final : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStringLiteral("Fusion")) {}

  [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                const QWidget* widget) const override {
    // Text boxes paint their own.
    if (metric == PM_TextCursorWidth) return 0;
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    if (metric == PM_MenuBarItemSpacing && widget != nullptr) {
      return std::max(usual, int(widget->font().pixelSize() * kBetweenMenus) - kRoundMenu);
    }
    return usual;
  }
};

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
  return palette;
}

}  // namespace

void applyAppearance() {
  QApplication::setStyle(new Style);
  QApplication::setPalette(lightPalette());
  QApplication::setFont(fontOf({}, kMenuPixels));
  installAccessibility();
}

}  // namespace platform
