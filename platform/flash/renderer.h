#pragma once

#include <QImage>
#include <QTransform>

#include "platform/flash/budget.h"
#include "platform/flash/scene.h"
#include "platform/flash/stroke_cache.h"

namespace platform::flash {

// Makes pictures of scenes, each within bounds (limits::painting). It keeps what it has learned of
// the lines of one movie; clear() before the first picture of another one.
class Renderer {
 public:
  explicit Renderer(Budget::Clock clock = Budget::processorTime) : budget_(std::move(clock)) {}

  // Paints the scene over background, into the whole image. toPixels: from twips of the stage to
  // pixels of the image; what lies outside of it is left out. image: Format_ARGB32_Premultiplied or
  // Format_RGB32. False where the scene takes too much and is painted in part.
  bool paint(const Scene& scene, const QTransform& toPixels, QRgb background, QImage& image);
  void clear() { strokes_.clear(); }

 private:
  Budget budget_;
  StrokeCache strokes_;
};

}  // namespace platform::flash
