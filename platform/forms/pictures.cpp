#include "platform/forms/pictures.h"

#include <QFile>
#include <QPaintDevice>
#include <QPainter>
#include <QTransform>

#include "platform/forms/drawing_place.h"

namespace platform::inline forms {

namespace {

// Whether a painter only moves what it paints: what grows or shrinks is another picture each time,
// and soon gone.
bool isAtRest(const QPainter& painter, const QTransform& onDevice) {
  const qreal ratio = painter.device()->devicePixelRatioF();
  return onDevice.type() <= QTransform::TxScale && qFuzzyCompare(onDevice.m11(), ratio) &&
         qFuzzyCompare(onDevice.m22(), ratio);
}

}  // namespace

Pictures::Pictures(QString folder) : folder_(std::move(folder)), held_(kHeldBytes) {}

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
  show(painter, name, {}, placeIn(drawing(name), area));
}

// From its pixels, which are held from the second time on that it stands so.
void Pictures::show(QPainter& painter, const QString& name, const QString& part,
                    const QRectF& place) {
  if (place.isEmpty()) return;
  const QTransform onDevice = painter.deviceTransform();
  if (!isAtRest(painter, onDevice)) {
    drawing(name).paint(painter, place, part);
    return;
  }
  const QRectF there = onDevice.mapRect(place);
  const QPoint pixel(qFloor(there.left()), qFloor(there.top()));
  const QRectF within = there.translated(-pixel);
  const Stand stand{name, part, within.left(), within.top(), within.width(), within.height()};
  const DrawnPixels* known = held_[stand];
  const bool isHeld = known != nullptr && !known->image.isNull();
  const DrawnPixels drawn = isHeld ? *known : drawing(name).inPixels(within, part);
  painter.save();
  painter.resetTransform();
  const QTransform back = painter.deviceTransform().inverted();
  const QRectF onto(QPointF(drawn.at + pixel), QSizeF(drawn.image.size()));
  painter.drawImage(back.mapRect(onto), drawn.image);
  painter.restore();
  if (isHeld) return;
  const bool isSecond = known != nullptr;
  constexpr qsizetype kWithout = sizeof(Stand) + sizeof(DrawnPixels);
  held_.insert(stand, new DrawnPixels(isSecond ? drawn : DrawnPixels{}),
               isSecond ? drawn.image.sizeInBytes() : kWithout);
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
  show(painter, name, part, placeOf(drawn, part, area));
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
