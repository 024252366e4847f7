#pragma once

#include <QImage>
#include <QTransform>

#include "platform/flash/scene.h"
#include "platform/flash/stroke_cache.h"

namespace platform::flash {

// Makes pictures of scenes. It keeps what it has learned of the lines of one movie; clear() before
// the first picture of another one.
class Renderer {
 public:
  // Paints the scene over background, into the whole image. toPixels: from twips of the stage to
  // pixels of the image; what lies outside of it is left out. image: Format_ARGB32_Premultiplied or
  // Format_RGB32. A scene that takes too long (limits.h) is painted in part.
  void paint(const Scene& scene, const QTransform& toPixels, QRgb background, QImage& image);
  void clear() { strokes_.clear(); }

 private:
  StrokeCache strokes_;
};

}  // namespace platform::flash
