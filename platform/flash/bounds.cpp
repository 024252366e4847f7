#include "platform/flash/bounds.h"

#include <cmath>

namespace platform::flash {

namespace {

QRectF ownBounds(const Instance& instance, Budget& budget) {
  constexpr std::int64_t kThingWork = 50;
  QRectF all;
  if (const Container* container = asContainer(&instance)) {
    for (const auto& [depth, child] : container->children) {
      if (!budget.spend(kThingWork)) {
        break;
      }
      all = all.united(boundsInParent(*child, budget));
    }
  } else if (const auto* shape = instance.character->as<Shape>()) {
    budget.spend(kThingWork * std::int64_t(shape->parts.size()));
    for (const ShapePart& part : shape->parts) {
      all = all.united(part.bounds);
    }
  } else if (const auto* text = instance.character->as<Text>()) {
    budget.spend(2 * kThingWork * std::int64_t(text->glyphs.size()));
    for (const Text::Glyph& glyph : text->glyphs) {
      all = all.united((glyph.matrix * text->matrix).mapRect(glyph.bounds));
    }
  }
  return all;
}

}  // namespace

double halfWidthOfLine(const ShapePart& line, const QTransform& matrix) {
  return line.lineWidth / 2.0 * std::sqrt(std::abs(matrix.determinant()));
}

QRectF boundsOfLine(const ShapePart& line, const QTransform& matrix) {
  const double half = line.lineWidth / 2.0;
  const double drawn = halfWidthOfLine(line, matrix);
  return matrix.mapRect(line.bounds.adjusted(half, half, -half, -half))
      .adjusted(-drawn, -drawn, drawn, drawn);
}

QRectF boundsInParent(const Instance& instance, Budget& budget) {
  return instance.matrix.mapRect(ownBounds(instance, budget));
}

}  // namespace platform::flash
