#include "platform/forms/pictures.h"

#include <QFile>
#include <QPainter>

namespace platform::inline forms {

namespace {

// Where a drawing stands in an area: in its own proportions, as large as fits, in the middle. Empty
// for a drawing or an area that shows nothing.
QRectF placeIn(const Drawing& drawing, const QRectF& area) {
  if (drawing.isEmpty() || area.isEmpty()) return {};
  const QSizeF own = drawing.box().size();
  QRectF place(QPointF(), own.scaled(area.size(), Qt::KeepAspectRatio));
  place.moveCenter(area.center());
  return place;
}

// The same for one of its parts.
QRectF placeOf(const Drawing& drawing, const QString& part, const QRectF& area) {
  const QRectF whole = placeIn(drawing, area);
  if (whole.isEmpty() || !drawing.hasPart(part)) return {};
  const QRectF box = drawing.box();
  const QRectF own = drawing.boundsOf(part);
  const double scale = whole.width() / box.width();
  return {whole.topLeft() + (own.topLeft() - box.topLeft()) * scale, own.size() * scale};
}

}  // namespace

Pictures::Pictures(QString folder) : folder_(std::move(folder)) {}

Pictures::~Pictures() = default;

const Drawing& Pictures::drawing(const QString& name) {
  const auto [known, isNew] = drawings_.try_emplace(name);
  if (isNew) {
    QFile file(QStringLiteral("%1/%2.drawing").arg(folder_, name));
    if (file.open(QIODevice::ReadOnly)) known->second = Drawing::fromBytes(file.readAll());
  }
  return known->second;
}

void Pictures::paint(QPainter& painter, const QString& name, const QRectF& area) {
  const Drawing& drawn = drawing(name);
  drawn.paint(painter, placeIn(drawn, area));
}

std::vector<QString> Pictures::parts(const QString& name) {
  const Drawing& drawn = drawing(name);
  std::vector<QString> found;
  while (true) {
    const QString next = QStringLiteral("parte%1").arg(found.size() + 1);
    if (!drawn.hasPart(next)) return found;
    found.push_back(next);
  }
}

void Pictures::paintPart(QPainter& painter, const QString& name, const QString& part,
                         const QRectF& area) {
  const Drawing& drawn = drawing(name);
  drawn.paintPart(painter, part, placeOf(drawn, part, area));
}

QPointF Pictures::middleOf(const QString& name, const QString& part, const QRectF& area) {
  return placeOf(drawing(name), part, area).center();
}

double Pictures::proportions(const QString& name) {
  const QSizeF own = drawing(name).box().size();
  return own.isEmpty() ? 1 : own.width() / own.height();
}

QPixmap Pictures::pixmap(const QString& name, QSize size, qreal devicePixelRatio) {
  QPixmap image(size * devicePixelRatio);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  paint(painter, name, QRectF(QPointF(), QSizeF(size)));
  return image;
}

QIcon Pictures::icon(const QString& name) {
  QIcon& icon = icons_[name];
  if (icon.isNull()) {
    for (const int side : {16, 32, 64}) icon.addPixmap(pixmap(name, {side, side}, 1));
  }
  return icon;
}

QPoint Pictures::hotSpot(const QString& name, QSize size) {
  const Drawing& drawn = drawing(name);
  const QString tip = QStringLiteral("punta");
  if (drawn.isEmpty() || !drawn.hasPart(tip)) return {};
  const QPointF spot = drawn.boundsOf(tip).center();
  const QSizeF own = drawn.box().size();
  return {qRound(spot.x() * size.width() / own.width()),
          qRound(spot.y() * size.height() / own.height())};
}

}  // namespace platform::inline forms
