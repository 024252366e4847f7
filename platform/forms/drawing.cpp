#include "platform/forms/drawing.h"

#include <QDataStream>
#include <QImage>
#include <QPainter>
#include <QTransform>

namespace platform::inline forms {

namespace {

constexpr quint32 kMark = 0x44524157;  // at the beginning of a file

void settle(QDataStream& stream) {
  stream.setVersion(QDataStream::Qt_6_4);
}

// A picture is played by calls that do not change it, but are not marked so.
void playSolid(QPainter& painter, const QPicture& picture, const QRectF& from, const QRectF& to) {
  painter.save();
  painter.translate(to.topLeft());
  painter.scale(to.width() / from.width(), to.height() / from.height());
  painter.translate(-from.topLeft());
  QPicture(picture).play(&painter);
  painter.restore();
}

// What was recorded sets opacities of its own, in the place of the painter's: a drawing that fades
// is made solid first, in the device's own pixels, and fades as one.
void playFaded(QPainter& painter, const QPicture& picture, const QRectF& from, const QRectF& to) {
  constexpr int kBeyond = 2;  // pixels: lines reach over their box
  const QTransform onDevice = painter.deviceTransform();
  const QRect covered =
      onDevice.mapRect(to).toAlignedRect().adjusted(-kBeyond, -kBeyond, kBeyond, kBeyond);
  QImage solid(covered.size(), QImage::Format_ARGB32_Premultiplied);
  if (solid.isNull()) return;
  solid.fill(Qt::transparent);
  {
    QPainter layer(&solid);
    layer.setRenderHints(painter.renderHints());
    layer.translate(-covered.topLeft());
    layer.setTransform(onDevice, true);
    playSolid(layer, picture, from, to);
  }
  painter.save();
  painter.resetTransform();
  painter.drawImage(painter.deviceTransform().inverted().mapRect(QRectF(covered)), solid);
  painter.restore();
}

void play(QPainter& painter, const QPicture& picture, const QRectF& from, const QRectF& to) {
  if (from.isEmpty() || to.isEmpty()) return;
  const auto how = painter.opacity() < 1 ? playFaded : playSolid;
  how(painter, picture, from, to);
}

}  // namespace

void Drawing::setWhole(const QRectF& box, const QPicture& whole) {
  box_ = box;
  whole_ = whole;
}

void Drawing::addPart(const QString& name, const QRectF& bounds, const QPicture& part) {
  parts_[name] = {bounds, part};
}

QByteArray Drawing::toBytes() const {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  settle(stream);
  stream << kMark << box_ << whole_ << quint32(parts_.size());
  for (const auto& [name, part] : parts_) stream << name << part.bounds << part.picture;
  return bytes;
}

Drawing Drawing::fromBytes(const QByteArray& bytes) {
  QDataStream stream(bytes);
  settle(stream);
  quint32 mark = 0;
  stream >> mark;
  if (mark != kMark) return {};
  Drawing drawing;
  quint32 count = 0;
  stream >> drawing.box_ >> drawing.whole_ >> count;
  for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
    QString name;
    Part part;
    stream >> name >> part.bounds >> part.picture;
    drawing.parts_[name] = part;
  }
  return stream.status() == QDataStream::Ok ? drawing : Drawing();
}

QRectF Drawing::boundsOf(const QString& name) const {
  const auto found = parts_.find(name);
  return found == parts_.end() ? QRectF() : found->second.bounds;
}

void Drawing::paint(QPainter& painter, const QRectF& target) const {
  play(painter, whole_, box_, target);
}

void Drawing::paintPart(QPainter& painter, const QString& name, const QRectF& target) const {
  const auto found = parts_.find(name);
  if (found != parts_.end()) play(painter, found->second.picture, found->second.bounds, target);
}

}  // namespace platform::inline forms
