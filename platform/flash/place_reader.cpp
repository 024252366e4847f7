#include "platform/flash/definitions.h"
#include "platform/flash/structures.h"

namespace platform::flash {

namespace {

// Reads handlers up to the zero flags that end them. From version 6 the flags have four bytes.
std::vector<ClipHandler> readClipActions(ByteReader& body, const ReadContext& context) {
  constexpr std::uint32_t kKeyPress = 1U << 17U;
  const bool wide = context.movie.version >= 6;
  const auto readFlags = [&] { return wide ? body.u32() : std::uint32_t(body.u16()); };
  std::vector<ClipHandler> handlers;
  body.skip(2);
  (void)readFlags();  // all events together
  for (std::uint32_t flags = readFlags(); flags != 0; flags = readFlags()) {
    ByteReader record(body.bytes(body.u32()));
    if (wide && (flags & kKeyPress) != 0) {
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
constexpr unsigned kHasMove = 1;
constexpr unsigned kHasCharacter = 2;
constexpr unsigned kHasMatrix = 4;
constexpr unsigned kHasColor = 8;
constexpr unsigned kHasRatio = 16;
constexpr unsigned kHasName = 32;
constexpr unsigned kHasClipDepth = 64;
constexpr unsigned kHasActions = 128;
constexpr unsigned kHasFilters = 0x100;
constexpr unsigned kHasBlendMode = 0x200;
constexpr unsigned kHasCacheFlag = 0x400;
constexpr unsigned kHasClassName = 0x800;

PlaceCommand::Mode modeOf(unsigned flags) {
  if ((flags & kHasCharacter) == 0) return PlaceCommand::Mode::Move;
  return (flags & kHasMove) == 0 ? PlaceCommand::Mode::Place : PlaceCommand::Mode::Replace;
}

}  // namespace

PlaceCommand readPlaceObject2(ByteReader& body, bool third, const ReadContext& context) {
  const unsigned flags = third ? body.u16() : body.u8();
  const auto has = [flags](unsigned what) { return (flags & what) != 0; };
  PlaceCommand command;
  command.mode = modeOf(flags);
  command.depth = body.u16();
  if (has(kHasClassName)) (void)body.string();
  if (has(kHasCharacter)) command.character = body.u16();
  if (has(kHasMatrix)) command.matrix = readMatrix(body);
  if (has(kHasColor)) command.color = readColorTransform(body, true);
  if (has(kHasRatio)) body.skip(2);
  if (has(kHasName)) {
    const QByteArrayView name = body.string();
    context.allowance.spend(2 * static_cast<std::size_t>(name.size()));
    command.name = context.movie.decoded(name);
  }
  if (has(kHasClipDepth)) command.clipDepth = body.u16();
  if (has(kHasFilters)) return command;  // they are not drawn, and what follows them is not found
  body.skip((has(kHasBlendMode) ? 1U : 0U) + (has(kHasCacheFlag) ? 1U : 0U));
  if (has(kHasActions)) command.handlers = readClipActions(body, context);
  return command;
}

}  // namespace platform::flash
