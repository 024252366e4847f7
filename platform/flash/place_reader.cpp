#include "platform/flash/definitions.h"
#include "platform/flash/structures.h"

namespace platform::flash {

namespace {

// Reads handlers up to the zero flags that end them. From version 6 the flags have four bytes.
std::vector<ClipHandler> readClipActions(ByteReader& body, const ReadContext& context) {
  constexpr std::uint32_t keyPress = 1U << 17U;
  const bool wide = context.movie.version >= 6;
  const auto readFlags = [&] { return wide ? body.u32() : std::uint32_t(body.u16()); };
  std::vector<ClipHandler> handlers;
  body.skip(2);
  (void)readFlags();  // all events together
  for (std::uint32_t flags = readFlags(); flags != 0; flags = readFlags()) {
    ByteReader record(body.bytes(body.u32()));
    if (wide && (flags & keyPress) != 0) {
      record.skip(1);
    }
    context.allowance.spend(sizeof(ClipHandler));
    handlers.push_back({flags, record.rest()});
  }
  return handlers;
}

}  // namespace

PlaceCommand readPlaceObject(ByteReader& body) {
  PlaceCommand command;
  command.character = body.u16();
  command.depth = body.u16();
  command.matrix = readMatrix(body);
  if (!body.atEnd()) {
    command.color = readColorTransform(body, false);
  }
  return command;
}

namespace {

// What a later kind of place holds.
constexpr unsigned hasMove = 1;
constexpr unsigned hasCharacter = 2;
constexpr unsigned hasMatrix = 4;
constexpr unsigned hasColor = 8;
constexpr unsigned hasRatio = 16;
constexpr unsigned hasName = 32;
constexpr unsigned hasClipDepth = 64;
constexpr unsigned hasActions = 128;
constexpr unsigned hasFilters = 0x100;
constexpr unsigned hasBlendMode = 0x200;
constexpr unsigned hasCacheFlag = 0x400;
constexpr unsigned hasClassName = 0x800;

PlaceCommand::Mode modeOf(unsigned flags) {
  if ((flags & hasCharacter) == 0) return PlaceCommand::Mode::Move;
  return (flags & hasMove) == 0 ? PlaceCommand::Mode::Place : PlaceCommand::Mode::Replace;
}

}  // namespace

PlaceCommand readPlaceObject2(ByteReader& body, bool third, const ReadContext& context) {
  const unsigned flags = third ? body.u16() : body.u8();
  const auto has = [flags](unsigned what) { return (flags & what) != 0; };
  PlaceCommand command;
  command.mode = modeOf(flags);
  command.depth = body.u16();
  if (has(hasClassName)) (void)body.string();
  if (has(hasCharacter)) command.character = body.u16();
  if (has(hasMatrix)) command.matrix = readMatrix(body);
  if (has(hasColor)) command.color = readColorTransform(body, true);
  if (has(hasRatio)) body.skip(2);
  if (has(hasName)) {
    const QByteArrayView name = body.string();
    context.allowance.spend(2 * static_cast<std::size_t>(name.size()));
    command.name = context.movie.decoded(name);
  }
  if (has(hasClipDepth)) command.clipDepth = body.u16();
  if (has(hasFilters)) return command;  // they are not drawn, and what follows them is not found
  body.skip((has(hasBlendMode) ? 1U : 0U) + (has(hasCacheFlag) ? 1U : 0U));
  if (has(hasActions)) command.handlers = readClipActions(body, context);
  return command;
}

}  // namespace platform::flash
