#pragma once

#include <QCache>
#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <QString>
#include <map>
#include <vector>

#include "platform/forms/drawing.h"

class QPainter;

namespace platform::inline forms {

// The program's drawings, by name: the files of one folder, read at their first use and drawn sharp
// at any size. A missing one draws nothing. The pixels of what is painted in one place again are
// held: a form that is shown again shows the same. What is painted once, as on the form that the
// program begins with, takes no room.
class Pictures {
 public:
  // folder: where the files "name.drawing" lie; a folder of the disk or of Qt's resources.
  explicit Pictures(QString folder);
  ~Pictures();

  // Draws the picture into the area in its own proportions, as large as fits, in the middle.
  void paint(QPainter& painter, const QString& name, const QRectF& area);
  // Its width over its height; 1 for a missing one.
  [[nodiscard]] double proportions(const QString& name);
  // The parts of a drawing that is put together of some ("parte1", "parte2", ...), in their
  // order; empty for a drawing in one piece.
  [[nodiscard]] std::vector<QString> parts(const QString& name);
  // Draws one part as `paint` draws it within the whole.
  void paintPart(QPainter& painter, const QString& name, const QString& part, const QRectF& area);
  // The middle of a part that is drawn so.
  [[nodiscard]] QPointF middleOf(const QString& name, const QString& part, const QRectF& area);
  // The picture, its size in logical pixels.
  [[nodiscard]] QPixmap pixmap(const QString& name, QSize size, qreal devicePixelRatio);
  // The picture as the icon of a window, in the sizes that desktops ask for. The same each time:
  // the desktop's own copies of it would else pile up with every form.
  [[nodiscard]] QIcon icon(const QString& name);
  // For pointers: the drawing's part "punta" marks the hot spot; (0, 0) without one.
  [[nodiscard]] QPoint hotSpot(const QString& name, QSize size);

  // The room that pixels take now, in bytes, and the most that they ever take.
  [[nodiscard]] qsizetype heldBytes() const { return held_.totalCost(); }
  static constexpr qsizetype kHeldBytes = 16'000'000;

 private:
  // How a drawing stands on its pixels: its part, or all of it, and its place from the pixel in
  // which its upper left corner lies.
  struct Stand {
    QString name;
    QString part;
    double left;
    double top;
    double width;
    double height;
    bool operator==(const Stand&) const = default;
    friend std::size_t qHash(const Stand& s, std::size_t seed) {
      return qHashMulti(seed, s.name, s.part, s.left, s.top, s.width, s.height);
    }
  };

  [[nodiscard]] const Drawing& drawing(const QString& name);
  void show(QPainter& painter, const QString& name, const QString& part, const QRectF& place);

  QString folder_;
  std::map<QString, Drawing> drawings_;
  std::map<QString, QIcon> icons_;
  // The latest ones, by their bytes; without pixels what has been painted once.
  QCache<Stand, DrawnPixels> held_;
};

}  // namespace platform::inline forms
