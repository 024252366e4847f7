#include "platform/forms/capture.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>

#include "platform/forms/focus_ring.h"

namespace platform::inline forms {

QImage capture(QWidget& widget, int longest, bool withChildren) {
  const int side = std::max(widget.width(), widget.height());
  if (widget.width() <= 0 || widget.height() <= 0) return {};
  // A whole number of pixels for each of the screen's, so that edges stay where they are.
  const int ratio = std::max(1, (longest + side - 1) / side);
  QImage picture(widget.size() * ratio, QImage::Format_RGB32);
  if (picture.isNull()) return {};
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::white);
  const WithoutFocusRings bare;
  QPainter painter(&picture);
  widget.render(&painter, {}, {},
                withChildren ? QWidget::DrawWindowBackground | QWidget::DrawChildren
                             : QWidget::RenderFlags(QWidget::DrawWindowBackground));
  painter.end();
  picture.setDevicePixelRatio(1);
  return picture;
}

}  // namespace platform::inline forms
