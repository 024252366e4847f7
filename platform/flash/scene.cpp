#include "platform/flash/scene.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/flash/limits.h"
#include "platform/flash/stage.h"

namespace platform::flash {

namespace {

class Builder {
 public:
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
  [[nodiscard]] bool isFull() const {
    return scene.items.size() + maskParts_ >= std::size_t(limits::sceneItems);
  }

  std::size_t maskParts_ = 0;
};

void Builder::addShape(const Instance& instance, const Shape& shape, const QTransform& matrix,
                       const ColorTransform& color, int mask) {
  for (std::size_t i = 0; i < shape.parts.size() && !isFull(); ++i) {
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
    item.bounds = matrix.mapRect(part.bounds);
    item.mask = mask;
    scene.items.push_back(item);
  }
}

void Builder::addText(const Instance& instance, const Text& text, const QTransform& matrix,
                      const ColorTransform& color, int mask) {
  for (std::size_t i = 0; i < text.glyphs.size() && !isFull(); ++i) {
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
    if (!isFull()) {
      mask.parts.push_back({&outline, place});
      ++maskParts_;
    }
  };
  if (const Container* container = asContainer(&instance)) {
    for (const auto& [depth, child] : container->children) {
      if (child->visible) {
        addMaskParts(*child, matrix, mask);
      }
    }
  } else if (const auto* shape = instance.character->as<Shape>()) {
    for (const ShapePart& part : shape->parts) {
      if (!part.isLine) {
        add(part.outline, matrix);
      }
    }
  } else if (const auto* text = instance.character->as<Text>()) {
    for (const Text::Glyph& glyph : text->glyphs) {
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
    added.outer = inner;
    addMaskParts(*child, matrix, added);
    scene.masks.push_back(std::move(added));
    open.push_back({child->clipDepth, static_cast<int>(scene.masks.size()) - 1});
  }
}

void Builder::add(const Instance& instance, const QTransform& outer,
                  const ColorTransform& outerColor, int mask) {
  if (!instance.visible || isFull()) {
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

bool sameMask(const Scene& before, int maskBefore, const Scene& after, int maskAfter) {
  while (maskBefore >= 0 && maskAfter >= 0) {
    const SceneMask& left = before.masks[std::size_t(maskBefore)];
    const SceneMask& right = after.masks[std::size_t(maskAfter)];
    if (left.parts != right.parts) {
      return false;
    }
    maskBefore = left.outer;
    maskAfter = right.outer;
  }
  return maskBefore == maskAfter;
}

bool looksTheSame(const Scene& before, const SceneItem& left, const Scene& after,
                  const SceneItem& right) {
  return left.outline == right.outline && left.color == right.color &&
         left.gradient == right.gradient && left.gradientColor == right.gradientColor &&
         left.matrix == right.matrix && sameMask(before, left.mask, after, right.mask);
}

}  // namespace

Scene sceneOf(const Stage& stage) {
  Builder builder;
  builder.add(stage.root(), QTransform(), ColorTransform(), -1);
  return std::move(builder.scene);
}

std::vector<QRectF> differences(const Scene& before, const Scene& after) {
  std::unordered_map<std::uint64_t, std::size_t> positions;
  for (std::size_t i = 0; i < before.items.size(); ++i) {
    positions.emplace(keyOf(before.items[i]), i);
  }
  std::vector<bool> met(before.items.size(), false);
  std::vector<QRectF> changed;
  std::size_t next = 0;  // where things would stand if none had changed places
  for (const SceneItem& item : after.items) {
    const auto found = positions.find(keyOf(item));
    if (found == positions.end()) {
      changed.push_back(item.bounds);
      continue;
    }
    const SceneItem& old = before.items[found->second];
    met[found->second] = true;
    const bool inOrder = found->second >= next;
    if (!inOrder || !looksTheSame(before, old, after, item)) {
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
