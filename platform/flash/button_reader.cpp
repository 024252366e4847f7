#include <algorithm>

#include "platform/flash/definitions.h"
#include "platform/flash/limits.h"
#include "platform/flash/structures.h"

namespace platform::flash {

namespace {

constexpr unsigned kStateBits = 0x0F;
constexpr unsigned kFilterBit = 0x10;
constexpr unsigned kBlendBit = 0x20;

void keep(Button& button, const ButtonRecord& record, const ReadContext& context) {
  const Character* character = context.movie.character(record.character);
  if (character != nullptr && character->nesting < limits::kNesting) {
    context.allowance.spend(sizeof record);
    button.records.push_back(record);
  }
}

// Reads records up to the zero byte that ends them.
void readRecords(ByteReader& body, bool second, Button& button, const ReadContext& context) {
  for (unsigned flags = body.u8(); flags != 0; flags = body.u8()) {
    ButtonRecord record;
    record.states = static_cast<std::uint8_t>(flags & kStateBits);
    record.character = body.u16();
    record.depth = body.u16();
    record.matrix = readMatrix(body);
    if (second) {
      record.color = readColorTransform(body, true);
    }
    keep(button, record, context);
    if (second && (flags & kFilterBit) != 0) {
      // Filters are not drawn, and their lengths are many; the records after them are given up.
      return;
    }
    if (second && (flags & kBlendBit) != 0) {
      body.skip(1);
    }
  }
}

}  // namespace

Button readButton(ByteReader& body, const ReadContext& context) {
  Button button;
  readRecords(body, false, button, context);
  button.handlers.push_back({static_cast<std::uint16_t>(ButtonEvent::Release), body.rest()});
  return button;
}

Button readButton2(ByteReader& body, const ReadContext& context) {
  Button button;
  button.trackAsMenu = (body.u8() & 1U) != 0;
  const std::size_t offsetAt = body.position();
  std::size_t offset = body.u16();
  readRecords(body, true, button, context);
  if (offset == 0) {
    return button;
  }
  body.seek(offsetAt + offset);
  while (offset != 0) {
    offset = body.u16();  // to the next handler, from here; 0 in the last one
    ByteReader handler(offset == 0 ? body.rest()
                                   : body.bytes(std::max<std::size_t>(offset, 2) - 2));
    context.allowance.spend(sizeof(ButtonHandler));
    const std::uint16_t events = handler.u16();
    button.handlers.push_back({events, handler.rest()});
  }
  return button;
}

}  // namespace platform::flash
