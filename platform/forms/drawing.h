#pragma once

#include <QImage>
#include <QPicture>
#include <QPoint>
#include <QRectF>
#include <QString>
#include <map>

class QPainter;

namespace platform::inline forms {

// What a drawing is on a device, and where: its upper left pixel.
struct DrawnPixels {
  QImage image;
  QPoint at;
};

// A vector drawing as it was once drawn: strokes and fills, to be repeated at any size, and those
// of its parts that have names. What it was drawn from need not be there any more.
class Drawing {
 public:
  // box: what of the plane the drawing shows, in its own units.
  void setWhole(const QRectF& box, const QPicture& whole);
  // bounds: where the part lies, in the drawing's units. part: as it is drawn in its place.
  void addPart(const QString& name, const QRectF& bounds, const QPicture& part);

  // As it lies in a file. An empty drawing comes out of bytes that are none.
  [[nodiscard]] QByteArray toBytes() const;
  [[nodiscard]] static Drawing fromBytes(const QByteArray& bytes);

  // Whether it shows anything at all.
  [[nodiscard]] bool isEmpty() const { return box_.isEmpty(); }
  [[nodiscard]] QRectF box() const { return box_; }
  [[nodiscard]] bool hasPart(const QString& name) const { return parts_.contains(name); }
  // An empty rectangle for a part that it does not have.
  [[nodiscard]] QRectF boundsOf(const QString& name) const;

  // Draws the box, or what a part covers, so that it fills the target; nothing for a part that it
  // does not have. Strokes set opacities of their own, in the place of the painter's: what fades
  // is drawn from its pixels.
  void paint(QPainter& painter, const QRectF& target, const QString& part = {}) const;
  // The same with smooth edges, for a target in pixels.
  [[nodiscard]] DrawnPixels inPixels(const QRectF& target, const QString& part = {}) const;

 private:
  struct Part {
    QRectF bounds;
    QPicture picture;
  };

  QRectF box_;
  QPicture whole_;
  std::map<QString, Part> parts_;
};

}  // namespace platform::inline forms
