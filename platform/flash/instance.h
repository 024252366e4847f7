#pragma once

#include <QHash>
#include <QString>
#include <QTransform>
#include <cstdint>
#include <map>
#include <memory>

#include "platform/flash/color_transform.h"
#include "platform/flash/movie.h"
#include "platform/flash/value.h"

namespace platform::flash {

struct Container;

// One thing on the stage: a character of the movie, placed. Plain data; who changes it and by which
// rules is told by Stage and by the functions of timeline.h and properties.h.
struct Instance {
  enum class Kind { Graphic, Clip, Button };

  Instance(Kind itsKind, std::uint32_t itsId, const Character* itsCharacter)
      : kind(itsKind), id(itsId), character(itsCharacter) {}
  virtual ~Instance() = default;
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  const Kind kind;
  // Rises in the order in which things come onto the stage; never used twice.
  const std::uint32_t id;
  // Null for the root only.
  const Character* const character;
  Container* parent = nullptr;
  int depth = 0;
  int clipDepth = 0;  // above 0: a mask for the depths above its own up to this one
  QString name;
  QTransform matrix;
  ColorTransform color;
  bool visible = true;
  // A script or the host has moved it or changed its alpha: the timeline leaves it alone.
  bool steered = false;
  bool removed = false;
  // The command of the parent's timeline that placed it, or the record of the parent's button: two
  // frames show the same thing on a depth when the same command placed it.
  int placeFrame = 0;
  int placeIndex = 0;
};

// Something that holds others, from the back (the lowest depth) to the front.
struct Container : Instance {
  using Instance::Instance;

  std::map<int, std::unique_ptr<Instance>> children;
  // What scripts have stored in it, by folded name (Movie::folded).
  QHash<QString, Value> variables;
};

struct Clip final : Container {
  Clip(std::uint32_t itsId, const Character* itsCharacter, const Timeline& itsTimeline)
      : Container(Kind::Clip, itsId, itsCharacter), timeline(itsTimeline) {}

  const Timeline& timeline;
  int frame = 0;  // from 0
  bool playing = true;
  const std::vector<ClipHandler>* handlers = nullptr;  // of the command that placed it
};

struct ButtonInstance final : Container {
  ButtonInstance(std::uint32_t itsId, const Character* itsCharacter, const Button& itsButton)
      : Container(Kind::Button, itsId, itsCharacter), button(itsButton) {}

  const Button& button;
  ButtonState state = ButtonState::Up;
};

[[nodiscard]] inline Clip* asClip(Instance* instance) {
  return instance != nullptr && instance->kind == Instance::Kind::Clip
             ? static_cast<Clip*>(instance)
             : nullptr;
}
[[nodiscard]] inline const Clip* asClip(const Instance* instance) {
  return asClip(const_cast<Instance*>(instance));
}
[[nodiscard]] inline Container* asContainer(Instance* instance) {
  return instance != nullptr && instance->kind != Instance::Kind::Graphic
             ? static_cast<Container*>(instance)
             : nullptr;
}
[[nodiscard]] inline const Container* asContainer(const Instance* instance) {
  return asContainer(const_cast<Instance*>(instance));
}

}  // namespace platform::flash
