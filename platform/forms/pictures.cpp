#include "platform/forms/pictures.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace platform {

namespace {

// Where a drawing stands in an area: in its own proportions, as large as fits, in the middle. Empty
// for a drawing or an area that shows nothing.
QRectF placeIn(const QSvgRenderer& drawing, const QRectF& area) {
  if (!drawing.isValid() || area.isEmpty()) return {};
  const QSizeF own = drawing.viewBoxF().size();
  if (own.isEmpty()) return {};
  QRectF place(QPointF(), own.scaled(area.size(), Qt::KeepAspectRatio));
  place.moveCenter(area.center());
  return place;
}

// The same for one of its elements, which is in no group that is moved or turned.
QRectF placeOf(const QSvgRenderer& drawing, const QString& element, const QRectF& area) {
  const QRectF whole = placeIn(drawing, area);
  if (whole.isEmpty() || !drawing.elementExists(element)) return {};
  const QRectF box = drawing.viewBoxF();
  const QRectF own = drawing.boundsOnElement(element);
  const double scale = whole.width() / box.width();
  return {whole.topLeft() + (own.topLeft() - box.topLeft()) * scale, own.size() * scale};
}

}  // namespace

Pictures::Pictures(QString folder) : folder_(std::move(folder)) {}

Pictures::~Pictures() = default;

QSvgRenderer& Pictures::renderer(const QString& name) {
  std::unique_ptr<QSvgRenderer>& known = renderers_[name];
  if (!known) {
    known = std::make_unique<QSvgRenderer>();
    const QString path = QStringLiteral("%1/%2.svg").arg(folder_, name);
    if (QFile::exists(path)) known->load(path);
  }
  return *known;
}

void Pictures::paint(QPainter& painter, const QString& name, const QRectF& area) {
  QSvgRenderer& drawing = renderer(name);
  const QRectF target = placeIn(drawing, area);
  if (!target.isEmpty()) drawing.render(&painter, target);
}

std::vector<QString> Pictures::parts(const QString& name) {
  const QSvgRenderer& drawing = renderer(name);
  std::vector<QString> found;
  while (true) {
    const QString next = QStringLiteral("parte%1").arg(found.size() + 1);
    if (!drawing.isValid() || !drawing.elementExists(next)) return found;
    found.push_back(next);
  }
}

void Pictures::paintPart(QPainter& painter, const QString& name, const QString& part,
                         const QRectF& area) {
  QSvgRenderer& drawing = renderer(name);
  const QRectF target = placeOf(drawing, part, area);
  if (!target.isEmpty()) drawing.render(&painter, part, target);
}

QPointF Pictures::middleOf(const QString& name, const QString& part, const QRectF& area) {
  return placeOf(renderer(name), part, area).center();
}

double Pictures::proportions(const QString& name) {
  const QSizeF own = renderer(name).viewBoxF().size();
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
  QSvgRenderer& drawing = renderer(name);
  const QString tip = QStringLiteral("punta");
  if (!drawing.isValid() || !drawing.elementExists(tip)) return {};
  const QPointF spot = drawing.boundsOnElement(tip).center();
  const QSizeF own = drawing.viewBoxF().size();
  return {qRound(spot.x() * size.width() / own.width()),
          qRound(spot.y() * size.height() / own.height())};
}

}  // namespace platform
