#include "platform/forms/drawing_place.h"

namespace platform::inline forms {

QRectF placeIn(const Drawing& drawing, const QRectF& area) {
  if (drawing.isEmpty() || area.isEmpty()) return {};
  const QSizeF own = drawing.box().size();
  QRectF place(QPointF(), own.scaled(area.size(), Qt::KeepAspectRatio));
  place.moveCenter(area.center());
  return place;
}

QRectF placeOf(const Drawing& drawing, const QString& part, const QRectF& area) {
  const QRectF whole = placeIn(drawing, area);
  if (whole.isEmpty() || !drawing.hasPart(part)) return {};
  const QRectF box = drawing.box();
  const QRectF own = drawing.boundsOf(part);
  const double scale = whole.width() / box.width();
  return {whole.topLeft() + (own.topLeft() - box.topLeft()) * scale, own.size() * scale};
}

}  // namespace platform::inline forms
