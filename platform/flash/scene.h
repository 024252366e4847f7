#pragma once

#include <QRectF>
#include <QTransform>
#include <cstdint>
#include <vector>

#include "platform/flash/color_transform.h"
#include "platform/flash/instance.h"

namespace platform::flash {

class Stage;

// One part of a shape, or one glyph, as it stands on the stage. Outlines and gradients are borrowed
// from the movie.
struct SceneItem {
  // Which part of which instance: the same in two scenes when it is the same thing.
  std::uint32_t instance = 0;
  std::uint32_t part = 0;

  const Outline* outline = nullptr;
  bool isLine = false;
  int lineWidth = 0;  // twips, before the matrix
  QTransform matrix;  // to twips of the stage
  QRgb color = 0;     // where there is no gradient
  const Gradient* gradient = nullptr;
  ColorTransform gradientColor;
  // What it covers, without masks: twips of the stage.
  QRectF bounds;
  // The mask that it stands behind, as an index into Scene::masks; -1: none.
  int mask = -1;
};

// What a mask lets through: all its outlines together, and that only where the outer mask does.
struct SceneMask {
  std::uint32_t instance = 0;  // which is the mask

  struct Part {
    const Outline* outline;
    QTransform matrix;

    bool operator==(const Part&) const = default;
  };

  std::vector<Part> parts;
  int outer = -1;
};

// A picture of the stage as a list of things to paint, from the back to the front. It knows no
// pixels; whoever keeps it keeps the movie.
struct Scene {
  std::vector<SceneItem> items;
  std::vector<SceneMask> masks;
  bool isWhole = true;
};

// All that is visible now; where that is more than limits::sceneItems or than the budget does for,
// a part of it.
[[nodiscard]] Scene sceneOf(const Stage& stage);

// The places, in twips of the stage, where the two scenes differ. Takes about as long as making
// them.
[[nodiscard]] std::vector<QRectF> differences(const Scene& before, const Scene& after);

}  // namespace platform::flash
