#include "platform/flash/hit_test.h"

#include <algorithm>

#include "platform/flash/stage.h"

namespace platform::flash {

namespace {

// The events that make a clip a kind of button.
constexpr std::uint32_t buttonEvents = static_cast<std::uint32_t>(ClipEvent::Press) |
                                       static_cast<std::uint32_t>(ClipEvent::Release) |
                                       static_cast<std::uint32_t>(ClipEvent::ReleaseOutside) |
                                       static_cast<std::uint32_t>(ClipEvent::RollOver) |
                                       static_cast<std::uint32_t>(ClipEvent::RollOut) |
                                       static_cast<std::uint32_t>(ClipEvent::DragOver) |
                                       static_cast<std::uint32_t>(ClipEvent::DragOut);

// One search for one point; it finds nothing where the budget does not do.
class Search {
 public:
  explicit Search(const Stage& stage) : stage_(stage) {}

  Container* interactiveIn(const Container& container, QPointF point);

 private:
  static QPointF into(const QTransform& matrix, QPointF point, bool& possible) {
    return matrix.inverted(&possible).map(point);
  }
  bool covers(const Instance& instance, QPointF point);
  bool covers(const Container& container, QPointF point);
  bool covers(const Character& character, QPointF point);
  bool covers(const Shape& shape, QPointF point);
  bool covers(const Text& text, QPointF point);
  bool hits(const ButtonInstance& button, QPointF point);
  bool isMaskedOut(const Container& container, const Instance& child, QPointF point);
  bool isEnabled(const Container& container) const {
    const Value enabled = container.variables.value(QStringLiteral("enabled"), Value(true));
    return toBoolean(enabled, stage_.movie().version);
  }
  // To look at so many things.
  [[nodiscard]] bool spend(std::size_t things = 1) const {
    constexpr std::int64_t thingWork = 60;
    return stage_.budget().spend(thingWork * static_cast<std::int64_t>(things));
  }
  // To follow the whole of an outline.
  [[nodiscard]] bool spend(const Outline& outline) const {
    constexpr std::int64_t segmentWork = 10;
    constexpr std::int64_t curveWork = 640;
    return stage_.budget().spend(segmentWork *
                                     static_cast<std::int64_t>(outline.segments().size()) +
                                 curveWork * static_cast<std::int64_t>(outline.curves()));
  }

  const Stage& stage_;
};

bool Search::covers(const Shape& shape, QPointF point) {
  return std::any_of(shape.parts.begin(), shape.parts.end(), [&](const ShapePart& part) {
    if (!spend() || !part.bounds.contains(point) || !spend(part.outline)) {
      return false;
    }
    return part.isLine ? part.outline.touches(point, part.lineWidth / 2.0)
                       : part.outline.contains(point);
  });
}

bool Search::covers(const Text& text, QPointF point) {
  bool possible = false;
  const QPointF inText = into(text.matrix, point, possible);
  return possible && std::any_of(text.glyphs.begin(), text.glyphs.end(), [&](const Text::Glyph& g) {
           bool flat = false;
           const QPointF inGlyph = into(g.matrix, inText, flat);
           return flat && spend() && g.bounds.contains(inGlyph) && spend(*g.outline) &&
                  g.outline->contains(inGlyph);
         });
}

// What a character covers that is not on the stage, as the hit state of a button is never: of a
// sprite the first frame.
bool Search::covers(const Character& character, QPointF point) {
  if (const auto* shape = character.as<Shape>()) {
    return covers(*shape, point);
  }
  if (const auto* text = character.as<Text>()) {
    return covers(*text, point);
  }
  const auto* sprite = character.as<Sprite>();
  if (sprite == nullptr) {
    return false;
  }
  for (const Command& command : sprite->timeline.frames.front().commands) {
    const auto* placed = std::get_if<PlaceCommand>(&command);
    const Character* inner =
        placed == nullptr ? nullptr : stage_.movie().character(placed->character);
    bool possible = false;
    if (inner != nullptr && spend() &&
        covers(*inner, into(placed->matrix.value_or(QTransform()), point, possible)) && possible) {
      return true;
    }
  }
  return false;
}

bool Search::hits(const ButtonInstance& button, QPointF point) {
  const auto& records = button.button.records;
  return std::any_of(records.begin(), records.end(), [&](const ButtonRecord& record) {
    if ((record.states & static_cast<unsigned>(ButtonState::HitTest)) == 0 || !spend()) {
      return false;
    }
    const Character* character = stage_.movie().character(record.character);
    bool possible = false;
    const QPointF inner = into(record.matrix, point, possible);
    return possible && character != nullptr && covers(*character, inner);
  });
}

// point: in the coordinates of the parent.
bool Search::covers(const Instance& instance, QPointF point) {
  bool possible = false;
  const QPointF inner = into(instance.matrix, point, possible);
  if (!possible || !spend()) {
    return false;
  }
  const Container* container = asContainer(&instance);
  return container != nullptr ? covers(*container, inner) : covers(*instance.character, inner);
}

bool Search::covers(const Container& container, QPointF point) {
  return std::any_of(container.children.begin(), container.children.end(), [&](const auto& entry) {
    const Instance& child = *entry.second;
    return child.visible && child.clipDepth == 0 && covers(child, point) &&
           !isMaskedOut(container, child, point);
  });
}

bool Search::isMaskedOut(const Container& container, const Instance& child, QPointF point) {
  for (const auto& [depth, mask] : container.children) {
    if (depth >= child.depth) {
      break;
    }
    if (spend() && mask->clipDepth >= child.depth && !covers(*mask, point)) {
      return true;
    }
  }
  return false;
}

Container* Search::interactiveIn(const Container& container, QPointF point) {
  for (auto at = container.children.rbegin(); at != container.children.rend(); ++at) {
    Container* child = asContainer(at->second.get());
    if (child == nullptr || !child->visible || child->clipDepth != 0 || !spend()) {
      continue;
    }
    bool possible = false;
    const QPointF inner = into(child->matrix, point, possible);
    if (!possible) {
      continue;
    }
    Container* found = nullptr;
    if (child->kind == Instance::Kind::Button) {
      if (isEnabled(*child) && hits(static_cast<const ButtonInstance&>(*child), inner)) {
        found = child;
      }
    } else if (stage_.listens(*child, buttonEvents)) {
      // It takes the mouse as a whole: buttons inside it get nothing.
      if (isEnabled(*child) && covers(*child, inner)) {
        found = child;
      }
    } else {
      found = interactiveIn(*child, inner);
    }
    if (found != nullptr && !isMaskedOut(container, *child, point)) {
      return found;
    }
  }
  return nullptr;
}

}  // namespace

Container* interactiveAt(const Stage& stage, QPointF point) {
  const Clip& root = stage.root();
  bool possible = false;
  const QPointF inner = root.matrix.inverted(&possible).map(point);
  return root.visible && possible ? Search(stage).interactiveIn(root, inner) : nullptr;
}

}  // namespace platform::flash
