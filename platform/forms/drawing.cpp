#include "platform/forms/drawing.h"

#include <QDataStream>
#include <QPainter>

namespace platform::inline forms {

namespace {

constexpr quint32 kMark = 0x44524157;  // at the beginning of a file

void settle(QDataStream& stream) {
  stream.setVersion(QDataStream::Qt_6_4);
}

constexpr int kBeyond = 2;  // pixels: lines reach over their box

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

// A picture is played by calls that do not change it, but are not marked so.
void Drawing::paint(QPainter& painter, const QRectF& target, const QString& part) const {
  const auto found = parts_.find(part);
  const bool isWhole = part.isEmpty();
  if (!isWhole && found == parts_.end()) return;
  const QRectF from = isWhole ? box_ : found->second.bounds;
  if (from.isEmpty() || target.isEmpty()) return;
  painter.save();
  painter.translate(target.topLeft());
  painter.scale(target.width() / from.width(), target.height() / from.height());
  painter.translate(-from.topLeft());
  QPicture(isWhole ? whole_ : found->second.picture).play(&painter);
  painter.restore();
}

DrawnPixels Drawing::inPixels(const QRectF& target, const QString& part) const {
  const QRect covered = target.toAlignedRect().adjusted(-kBeyond, -kBeyond, kBeyond, kBeyond);
  QImage image(covered.size(), QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return {};
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-covered.topLeft());
  paint(painter, target, part);
  return {image, covered.topLeft()};
}

}  // namespace platform::inline forms
