#pragma once

#include <QProxyStyle>
#include <memory>

#include "platform/forms/appearance.h"

class QStyleOptionButton;
class QStyleOptionComboBox;

namespace platform::inline forms {

class Pictures;

// Fusion, with the hand of the forms: buttons, options, ticks and lists look the same on forms and
// in boxes and grow with their window, message boxes bear the program's own drawings. It has no
// text cursor, since text boxes paint their own, and menus that keep apart whatever their size.
class HouseStyle final : public QProxyStyle {
  Q_OBJECT

 public:
  explicit HouseStyle(BoxDrawings drawings);
  ~HouseStyle() override;

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;

 private:
  BoxDrawings drawings_;
  std::unique_ptr<Pictures> pictures_;  // null where there are no drawings
};

}  // namespace platform::inline forms
