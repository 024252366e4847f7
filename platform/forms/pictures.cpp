#include "platform/forms/pictures.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace platform {

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
  if (!drawing.isValid() || area.isEmpty()) return;
  const QSizeF own = drawing.viewBoxF().size();
  if (own.isEmpty()) return;
  QRectF target(QPointF(), own.scaled(area.size(), Qt::KeepAspectRatio));
  target.moveCenter(area.center());
  drawing.render(&painter, target);
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
