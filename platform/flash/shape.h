#pragma once

#include <QRectF>
#include <QRgb>
#include <QTransform>
#include <array>
#include <vector>

#include "platform/flash/outline.h"

namespace platform::flash {

// Colours along a line or around a point. The gradient's own square runs from -16384 to 16384 both
// ways; the matrix takes it to the shape. Linear: from the left to the right of the square; radial:
// from its centre to its inscribed circle. Outside, the end colours go on.
struct Gradient {
  struct Stop {
    int ratio;  // 0 to 255
    QRgb color;

    bool operator==(const Stop&) const = default;
  };

  bool radial = false;
  QTransform matrix;
  std::vector<Stop> stops;  // by rising ratio

  // The colours at the ratios 0 to 255; between two stops in proportion.
  [[nodiscard]] std::vector<QRgb> table() const;
};

struct Paint {
  // Nothing: no paint at all, also what a bitmap fill becomes.
  enum class Kind { Nothing, Solid, Gradient };

  Kind kind = Kind::Nothing;
  QRgb color = 0;
  Gradient gradient;
};

struct LineStyle {
  int width = 0;  // twips
  Paint paint;
};

// One fill, or one line, of a shape.
struct ShapePart {
  Outline outline;
  Paint paint;
  bool isLine = false;
  int lineWidth = 0;  // twips
  // What the part covers, half the width of a line included.
  QRectF bounds;
};

// A drawing. Its parts are painted in this order: later ones cover earlier ones. The fills between
// two changes of the styles do not overlap unless the file is odd.
struct Shape {
  std::vector<ShapePart> parts;
};

}  // namespace platform::flash
