#include "platform/flash/scene.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "platform/flash/bounds.h"
#include "platform/flash/limits.h"
#include "platform/flash/stage.h"

namespace platform::flash {

namespace {

// Nanoseconds for one instance, part or glyph.
constexpr std::int64_t kThingWork = 100;

class Builder {
 public:
  explicit Builder(Budget& budget) : budget_(budget) {}
  void add(const Instance& instance, const QTransform& outer, const ColorTransform& outerColor,
           int mask);
  Scene scene;

 private:
  void addChildren(const Container& container, const QTransform& matrix,
                   const ColorTransform& color, int mask);
  void addShape(const Instance& instance, const Shape& shape, const QTransform& matrix,
                const ColorTransform& color, int mask);
  void addText(const Instance& instance, const Text& text, const QTransform& matrix,
               const ColorTransform& color, int mask);
  void addMaskParts(const Instance& instance, const QTransform& outer, SceneMask& mask);
  // Whether one thing more can be looked at. A scene that is full ends the step.
  [[nodiscard]] bool goesOn() {
    if (scene.items.size() + maskParts_ >= std::size_t(limits::kSceneItems)) budget_.exhaust();
    return budget_.spend(kThingWork);
  }

  Budget& budget_;
  std::size_t maskParts_ = 0;
};

void Builder::addShape(const Instance& instance, const Shape& shape, const QTransform& matrix,
                       const ColorTransform& color, int mask) {
  for (std::size_t i = 0; i < shape.parts.size() && goesOn(); ++i) {
    const ShapePart& part = shape.parts[i];
    SceneItem item;
    item.instance = instance.id;
    item.part = static_cast<std::uint32_t>(i);
    item.outline = &part.outline;
    item.isLine = part.isLine;
    item.lineWidth = part.lineWidth;
    item.matrix = matrix;
    if (part.paint.kind == Paint::Kind::Gradient) {
      item.gradient = &part.paint.gradient;
      item.gradientColor = color;
    } else {
      item.color = color.apply(part.paint.color);
      if (qAlpha(item.color) == 0) {
        continue;
      }
    }
    item.bounds = part.isLine ? boundsOfLine(part, matrix) : matrix.mapRect(part.bounds);
    item.mask = mask;
    scene.items.push_back(item);
  }
}

void Builder::addText(const Instance& instance, const Text& text, const QTransform& matrix,
                      const ColorTransform& color, int mask) {
  for (std::size_t i = 0; i < text.glyphs.size() && goesOn(); ++i) {
    const Text::Glyph& glyph = text.glyphs[i];
    SceneItem item;
    item.instance = instance.id;
    item.part = static_cast<std::uint32_t>(i);
    item.outline = glyph.outline;
    item.matrix = glyph.matrix * text.matrix * matrix;
    item.color = color.apply(glyph.color);
    item.bounds = item.matrix.mapRect(glyph.bounds);
    item.mask = mask;
    if (qAlpha(item.color) != 0) {
      scene.items.push_back(item);
    }
  }
}

// A mask counts with all its surface, whatever its colours; its lines do not count.
void Builder::addMaskParts(const Instance& instance, const QTransform& outer, SceneMask& mask) {
  const QTransform matrix = instance.matrix * outer;
  const auto add = [&](const Outline& outline, const QTransform& place) {
    mask.parts.push_back({&outline, place});
    ++maskParts_;
  };
  if (const Container* container = asContainer(&instance)) {
    for (const auto& [depth, child] : container->children) {
      if (child->visible && goesOn()) {
        addMaskParts(*child, matrix, mask);
      }
    }
  } else if (const auto* shape = instance.character->as<Shape>()) {
    for (std::size_t i = 0; i < shape->parts.size() && goesOn(); ++i) {
      if (const ShapePart& part = shape->parts[i]; !part.isLine) {
        add(part.outline, matrix);
      }
    }
  } else if (const auto* text = instance.character->as<Text>()) {
    for (std::size_t i = 0; i < text->glyphs.size() && goesOn(); ++i) {
      const Text::Glyph& glyph = text->glyphs[i];
      add(*glyph.outline, glyph.matrix * text->matrix * matrix);
    }
  }
}

void Builder::addChildren(const Container& container, const QTransform& matrix,
                          const ColorTransform& color, int mask) {
  // The masks in force, the innermost last, with the depth up to which each one reaches.
  struct Open {
    int upTo;
    int mask;
  };
  std::vector<Open> open;
  for (const auto& [depth, child] : container.children) {
    while (!open.empty() && open.back().upTo < depth) {
      open.pop_back();
    }
    const int inner = open.empty() ? mask : open.back().mask;
    if (child->clipDepth == 0) {
      add(*child, matrix, color, inner);
      continue;
    }
    SceneMask added;
    added.instance = child->id;
    added.outer = inner;
    addMaskParts(*child, matrix, added);
    scene.masks.push_back(std::move(added));
    open.push_back({child->clipDepth, static_cast<int>(scene.masks.size()) - 1});
  }
}

void Builder::add(const Instance& instance, const QTransform& outer,
                  const ColorTransform& outerColor, int mask) {
  if (!instance.visible || !goesOn()) {
    return;
  }
  const QTransform matrix = instance.matrix * outer;
  const ColorTransform color = outerColor.after(instance.color);
  if (const Container* container = asContainer(&instance)) {
    addChildren(*container, matrix, color, mask);
  } else if (const auto* shape = instance.character->as<Shape>()) {
    addShape(instance, *shape, matrix, color, mask);
  } else if (const auto* text = instance.character->as<Text>()) {
    addText(instance, *text, matrix, color, mask);
  }
}

std::uint64_t keyOf(const SceneItem& item) {
  return (std::uint64_t(item.instance) << 32U) | item.part;
}

// For each mask of a scene where it was in the scene before; none where it has changed.
constexpr int kNoMask = -2;
std::vector<int> masksBefore(const Scene& before, const Scene& after) {
  std::vector<std::pair<std::uint32_t, int>> old;
  for (std::size_t i = 0; i < before.masks.size(); ++i) {
    old.emplace_back(before.masks[i].instance, static_cast<int>(i));
  }
  std::sort(old.begin(), old.end());
  std::vector<int> same(after.masks.size(), kNoMask);
  for (std::size_t i = 0; i < after.masks.size(); ++i) {
    const SceneMask& mask = after.masks[i];
    const auto found = std::lower_bound(old.begin(), old.end(), std::pair(mask.instance, 0));
    if (found == old.end() || found->first != mask.instance) {
      continue;
    }
    // A mask comes behind those around it.
    const SceneMask& there = before.masks[std::size_t(found->second)];
    const int outer = mask.outer < 0 ? mask.outer : same[std::size_t(mask.outer)];
    if (outer == there.outer && mask.parts == there.parts) {
      same[i] = found->second;
    }
  }
  return same;
}

bool looksTheSame(const SceneItem& left, const SceneItem& right) {
  return left.outline == right.outline && left.color == right.color &&
         left.gradient == right.gradient && left.gradientColor == right.gradientColor &&
         left.matrix == right.matrix;
}

}  // namespace

Scene sceneOf(const Stage& stage) {
  Builder builder(stage.budget());
  builder.add(stage.root(), QTransform(), ColorTransform(), -1);
  builder.scene.isWhole = !stage.budget().isSpent();
  return std::move(builder.scene);
}

std::vector<QRectF> differences(const Scene& before, const Scene& after) {
  // Sorted: a table could be made slow by a file that knows how it works.
  std::vector<std::pair<std::uint64_t, std::size_t>> positions;
  positions.reserve(before.items.size());
  for (std::size_t i = 0; i < before.items.size(); ++i) {
    positions.emplace_back(keyOf(before.items[i]), i);
  }
  std::sort(positions.begin(), positions.end());
  const std::vector<int> masks = masksBefore(before, after);
  std::vector<bool> met(before.items.size(), false);
  std::vector<QRectF> changed;
  std::size_t next = 0;  // where things would stand if none had changed places
  for (const SceneItem& item : after.items) {
    const std::pair sought(keyOf(item), std::size_t(0));
    const auto found = std::lower_bound(positions.begin(), positions.end(), sought);
    if (found == positions.end() || found->first != sought.first) {
      changed.push_back(item.bounds);
      continue;
    }
    const SceneItem& old = before.items[found->second];
    met[found->second] = true;
    const bool inOrder = found->second >= next;
    const int mask = item.mask < 0 ? item.mask : masks[std::size_t(item.mask)];
    if (!inOrder || mask != old.mask || !looksTheSame(old, item)) {
      changed.push_back(old.bounds);
      changed.push_back(item.bounds);
    }
    next = inOrder ? found->second + 1 : next;
  }
  for (std::size_t i = 0; i < before.items.size(); ++i) {
    if (!met[i]) {
      changed.push_back(before.items[i].bounds);
    }
  }
  return changed;
}

}  // namespace platform::flash
