#pragma once

#include <cstdint>

#include "platform/flash/allowance.h"
#include "platform/flash/byte_reader.h"
#include "platform/flash/movie.h"

namespace platform::flash {

// The codes of the tags that a board is made of. All others are skipped.
enum class TagCode : std::uint16_t {
  End = 0,
  ShowFrame = 1,
  DefineShape = 2,
  PlaceObject = 4,
  RemoveObject = 5,
  DefineButton = 7,
  SetBackgroundColor = 9,
  DefineFont = 10,
  DefineText = 11,
  DoAction = 12,
  DefineShape2 = 22,
  DefineButtonCxform = 23,
  PlaceObject2 = 26,
  RemoveObject2 = 28,
  DefineShape3 = 32,
  DefineText2 = 33,
  DefineButton2 = 34,
  DefineSprite = 39,
  FrameLabel = 43,
  DefineFont2 = 48,
  DoInitAction = 59,
  PlaceObject3 = 70,
  DefineFont3 = 75,
  DefineShape4 = 83,
};

// What the readers of single tags share: the movie as far as it is known, and what it may yet cost.
// Each of them takes the body of one tag; what is left over in a body is ignored.
struct ReadContext {
  const Movie& movie;
  Allowance& allowance;
};

// Buttons (button_reader.cpp). Records whose character is not yet defined are left out, so that
// nothing can hold itself.
[[nodiscard]] Button readButton(ByteReader& body, const ReadContext& context);
[[nodiscard]] Button readButton2(ByteReader& body, const ReadContext& context);

// Text and fonts (text_reader.cpp). The fonts of a text must have been defined.
[[nodiscard]] Font readFont(ByteReader& body, Allowance& allowance);
[[nodiscard]] Font readFont2(ByteReader& body, double unitsPerEm, Allowance& allowance);
[[nodiscard]] Text readText(ByteReader& body, bool withAlpha, const ReadContext& context);

// Placing (place_reader.cpp).
[[nodiscard]] PlaceCommand readPlaceObject(ByteReader& body);
// third: the tag is PlaceObject3, whose filters and blend modes are left out.
[[nodiscard]] PlaceCommand readPlaceObject2(ByteReader& body, bool third,
                                            const ReadContext& context);

}  // namespace platform::flash
