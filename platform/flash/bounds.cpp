#include "platform/flash/bounds.h"

namespace platform::flash {

namespace {

QRectF ownBounds(const Instance& instance) {
  QRectF all;
  if (const Container* container = asContainer(&instance)) {
    for (const auto& [depth, child] : container->children) {
      all = all.united(boundsInParent(*child));
    }
  } else if (const auto* shape = instance.character->as<Shape>()) {
    for (const ShapePart& part : shape->parts) {
      all = all.united(part.bounds);
    }
  } else if (const auto* text = instance.character->as<Text>()) {
    for (const Text::Glyph& glyph : text->glyphs) {
      all = all.united((glyph.matrix * text->matrix).mapRect(glyph.bounds));
    }
  }
  return all;
}

}  // namespace

QRectF boundsInParent(const Instance& instance) {
  return instance.matrix.mapRect(ownBounds(instance));
}

}  // namespace platform::flash
