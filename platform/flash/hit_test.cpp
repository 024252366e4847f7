#include "platform/flash/hit_test.h"

#include <algorithm>

#include "platform/flash/bounds.h"
#include "platform/flash/stage.h"

namespace platform::flash {

namespace {

// The events that make a clip a kind of button.
constexpr std::uint32_t kButtonEvents = static_cast<std::uint32_t>(ClipEvent::Press) |
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

  // A point in the coordinates of something on the stage.
  struct Aim {
    QPointF point;
    QPointF onStage;     // the same, in twips of the stage
    QTransform toStage;  // from these coordinates
  };

  Container* interactiveIn(const Container& container, const Aim& aim);
  // In the coordinates of what stands there by the matrix.
  static Aim into(const QTransform& matrix, const Aim& aim, bool& possible) {
    return {matrix.inverted(&possible).map(aim.point), aim.onStage, matrix * aim.toStage};
  }

 private:
  bool covers(const Instance& instance, const Aim& aim);
  bool covers(const Container& container, const Aim& aim);
  bool covers(const Character& character, const Aim& aim);
  bool covers(const Shape& shape, const Aim& aim);
  bool covers(const Text& text, const Aim& aim);
  bool hits(const ButtonInstance& button, const Aim& aim);
  bool isMaskedOut(const Container& container, const Instance& child, const Aim& aim);
  bool isEnabled(const Container& container) const {
    const Value enabled = container.variables.value(QStringLiteral("enabled"), Value(true));
    return toBoolean(enabled, stage_.movie().version);
  }
  // Pays for a look at `things` things.
  [[nodiscard]] bool spend(std::size_t things = 1) const {
    constexpr std::int64_t kThingWork = 60;
    return stage_.budget().spend(kThingWork * static_cast<std::int64_t>(things));
  }
  // To follow the whole of an outline.
  [[nodiscard]] bool spend(const Outline& outline) const {
    constexpr std::int64_t kSegmentWork = 10;
    constexpr std::int64_t kCurveWork = 640;
    return stage_.budget().spend(kSegmentWork *
                                     static_cast<std::int64_t>(outline.segments().size()) +
                                 kCurveWork * static_cast<std::int64_t>(outline.curves()));
  }

  const Stage& stage_;
};

bool Search::covers(const Shape& shape, const Aim& aim) {
  return std::any_of(shape.parts.begin(), shape.parts.end(), [&](const ShapePart& part) {
    if (!spend()) {
      return false;
    }
    if (part.isLine) {
      return boundsOfLine(part, aim.toStage).contains(aim.onStage) && spend(part.outline) &&
             part.outline.touches(aim.onStage, halfWidthOfLine(part, aim.toStage), aim.toStage);
    }
    return part.bounds.contains(aim.point) && spend(part.outline) &&
           part.outline.contains(aim.point);
  });
}

bool Search::covers(const Text& text, const Aim& aim) {
  bool possible = false;
  const Aim inText = into(text.matrix, aim, possible);
  return possible && std::any_of(text.glyphs.begin(), text.glyphs.end(), [&](const Text::Glyph& g) {
           bool flat = false;
           const Aim inGlyph = into(g.matrix, inText, flat);
           return flat && spend() && g.bounds.contains(inGlyph.point) && spend(*g.outline) &&
                  g.outline->contains(inGlyph.point);
         });
}

// What a character covers that is not on the stage, as the hit state of a button is never: of a
// sprite the first frame.
bool Search::covers(const Character& character, const Aim& aim) {
  if (const auto* shape = character.as<Shape>()) {
    return covers(*shape, aim);
  }
  if (const auto* text = character.as<Text>()) {
    return covers(*text, aim);
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
        covers(*inner, into(placed->matrix.value_or(QTransform()), aim, possible)) && possible) {
      return true;
    }
  }
  return false;
}

bool Search::hits(const ButtonInstance& button, const Aim& aim) {
  const auto& records = button.button.records;
  return std::any_of(records.begin(), records.end(), [&](const ButtonRecord& record) {
    if ((record.states & static_cast<unsigned>(ButtonState::HitTest)) == 0 || !spend()) {
      return false;
    }
    const Character* character = stage_.movie().character(record.character);
    bool possible = false;
    const Aim inner = into(record.matrix, aim, possible);
    return possible && character != nullptr && covers(*character, inner);
  });
}

// aim: in the coordinates of the parent.
bool Search::covers(const Instance& instance, const Aim& aim) {
  bool possible = false;
  const Aim inner = into(instance.matrix, aim, possible);
  if (!possible || !spend()) {
    return false;
  }
  const Container* container = asContainer(&instance);
  return container != nullptr ? covers(*container, inner) : covers(*instance.character, inner);
}

bool Search::covers(const Container& container, const Aim& aim) {
  return std::any_of(container.children.begin(), container.children.end(), [&](const auto& entry) {
    const Instance& child = *entry.second;
    return child.visible && child.clipDepth == 0 && covers(child, aim) &&
           !isMaskedOut(container, child, aim);
  });
}

bool Search::isMaskedOut(const Container& container, const Instance& child, const Aim& aim) {
  for (const auto& [depth, mask] : container.children) {
    if (depth >= child.depth) {
      break;
    }
    if (spend() && mask->clipDepth >= child.depth && !covers(*mask, aim)) {
      return true;
    }
  }
  return false;
}

Container* Search::interactiveIn(const Container& container, const Aim& aim) {
  for (auto at = container.children.rbegin(); at != container.children.rend(); ++at) {
    Container* child = asContainer(at->second.get());
    if (child == nullptr || !child->visible || child->clipDepth != 0 || !spend()) {
      continue;
    }
    bool possible = false;
    const Aim inner = into(child->matrix, aim, possible);
    if (!possible) {
      continue;
    }
    Container* found = nullptr;
    if (child->kind == Instance::Kind::Button) {
      if (isEnabled(*child) && hits(static_cast<const ButtonInstance&>(*child), inner)) {
        found = child;
      }
    } else if (stage_.listens(*child, kButtonEvents)) {
      // It takes the mouse as a whole: buttons inside it get nothing.
      if (isEnabled(*child) && covers(*child, inner)) {
        found = child;
      }
    } else {
      found = interactiveIn(*child, inner);
    }
    if (found != nullptr && !isMaskedOut(container, *child, aim)) {
      return found;
    }
  }
  return nullptr;
}

}  // namespace

Container* interactiveAt(const Stage& stage, QPointF point) {
  const Clip& root = stage.root();
  bool possible = false;
  const Search::Aim aim = Search::into(root.matrix, {point, point, {}}, possible);
  return root.visible && possible ? Search(stage).interactiveIn(root, aim) : nullptr;
}

}  // namespace platform::flash
