#pragma once

#include <QHash>
#include <QRectF>
#include <QRgb>
#include <QString>
#include <QTransform>
#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <variant>
#include <vector>

#include "platform/flash/byte_reader.h"
#include "platform/flash/color_transform.h"
#include "platform/flash/movie_error.h"
#include "platform/flash/shape.h"

namespace platform::flash {

// What a movie's file says, read once and never changed. Actions stay bytes, inside the movie's own
// copy of the file; the interpreter reads them as it goes.

using CharacterId = std::uint16_t;
using ActionBlock = Bytes;

// The events of a placed sprite, as the bits that the format gives them.
enum class ClipEvent : std::uint32_t {
  Load = 1U << 0U,
  EnterFrame = 1U << 1U,
  Unload = 1U << 2U,
  MouseMove = 1U << 3U,
  MouseDown = 1U << 4U,
  MouseUp = 1U << 5U,
  Initialize = 1U << 9U,
  Press = 1U << 10U,
  Release = 1U << 11U,
  ReleaseOutside = 1U << 12U,
  RollOver = 1U << 13U,
  RollOut = 1U << 14U,
  DragOver = 1U << 15U,
  DragOut = 1U << 16U,
  Construct = 1U << 18U,
};

struct ClipHandler {
  std::uint32_t events = 0;  // bits of ClipEvent
  ActionBlock actions;

  [[nodiscard]] bool takes(ClipEvent event) const {
    return (events & static_cast<std::uint32_t>(event)) != 0;
  }
};

// Puts a character on a depth, or changes what is there. What is empty was not in the tag.
struct PlaceCommand {
  enum class Mode { Place, Move, Replace };

  Mode mode = Mode::Place;
  int depth = 0;
  CharacterId character = 0;  // for Place and Replace
  std::optional<QTransform> matrix;
  std::optional<ColorTransform> color;
  std::optional<QString> name;
  std::optional<int> clipDepth;
  std::vector<ClipHandler> handlers;
};

struct RemoveCommand {
  int depth = 0;
};

struct DoActionCommand {
  ActionBlock actions;
};

// Runs once for its sprite, before anything else of the frame.
struct InitActionCommand {
  CharacterId sprite = 0;
  ActionBlock actions;
};

using Command = std::variant<PlaceCommand, RemoveCommand, DoActionCommand, InitActionCommand>;

struct Frame {
  std::vector<Command> commands;  // in the order of the tags
};

struct Timeline {
  std::vector<Frame> frames;   // at least one
  QHash<QString, int> labels;  // to the frame, from 0

  [[nodiscard]] int frameCount() const { return static_cast<int>(frames.size()); }
};

struct Font {
  // Outlines of the glyphs in units of the em square; the fill is what the text's colour paints.
  std::vector<Outline> glyphs;
  double unitsPerEm = 1024;
};

// Glyphs that stand where they stand; the movie is kept alive by whoever keeps the text.
struct Text {
  struct Glyph {
    const Outline* outline;
    QTransform matrix;  // from the em square to the text
    QRgb color;
    QRectF bounds;  // of the outline
  };

  QTransform matrix;
  std::vector<Glyph> glyphs;
};

struct Sprite {
  Timeline timeline;
};

enum class ButtonState : std::uint8_t { Up = 1, Over = 2, Down = 4, HitTest = 8 };

struct ButtonRecord {
  std::uint8_t states = 0;  // bits of ButtonState
  CharacterId character = 0;
  int depth = 0;
  QTransform matrix;
  ColorTransform color;
};

// The transitions between states of the mouse, as the bits that the format gives them.
enum class ButtonEvent : std::uint16_t {
  RollOver = 1U << 0U,
  RollOut = 1U << 1U,
  Press = 1U << 2U,
  Release = 1U << 3U,
  DragOut = 1U << 4U,
  DragOver = 1U << 5U,
  ReleaseOutside = 1U << 6U,
  MenuDragOver = 1U << 7U,
  MenuDragOut = 1U << 8U,
};

struct ButtonHandler {
  std::uint16_t events = 0;  // bits of ButtonEvent
  ActionBlock actions;
};

struct Button {
  std::vector<ButtonRecord> records;
  std::vector<ButtonHandler> handlers;
  // Pressed, the mouse may leave and press another such button, as in a menu.
  bool trackAsMenu = false;
};

struct Character {
  std::variant<Shape, Text, Font, Sprite, Button> content;
  // How many sprites or buttons lie one within the other, this one included.
  int nesting = 0;

  template <typename Content>
  [[nodiscard]] const Content* as() const {
    return std::get_if<Content>(&content);
  }
};

struct Movie {
  int version = 0;
  bool compressed = false;
  QRectF stage;  // twips
  double frameRate = 0;
  int announcedFrames = 0;
  QRgb background = qRgb(255, 255, 255);
  Timeline timeline;
  std::unordered_map<CharacterId, Character> characters;
  // Reading it took too much, and ended where it stood.
  bool cutOff = false;
  // What could not be read and was left out; no more than limits::faults.
  std::vector<MovieError> faults;
  // The uncompressed file, into which the action blocks point.
  std::vector<std::uint8_t> bytes;

  // Null for a number that nothing was defined for.
  [[nodiscard]] const Character* character(CharacterId id) const {
    const auto found = characters.find(id);
    return found == characters.end() ? nullptr : &found->second;
  }
  // Up to version 6 names and labels are the same in capitals and small letters.
  [[nodiscard]] QString folded(const QString& name) const {
    return version <= 6 ? name.toLower() : name;
  }
  // Texts of the file: UTF-8 from version 6, one byte a character before.
  [[nodiscard]] QString decoded(QByteArrayView text) const {
    return version >= 6 ? QString::fromUtf8(text) : QString::fromLatin1(text);
  }
};

}  // namespace platform::flash
