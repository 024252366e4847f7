#pragma once

#include "platform/flash/allowance.h"
#include "platform/flash/byte_reader.h"
#include "platform/flash/shape.h"

namespace platform::flash {

// The versions of the DefineShape tag. Each can do what those before it can: 2 changes of the
// styles and more than 255 of them, 3 transparent colours, 4 lines with caps of their own (which
// are drawn round all the same) and lines painted with a fill.
enum class ShapeVersion { One = 1, Two, Three, Four };

// Reads the part of a DefineShape tag that comes after the number and the bounds.
[[nodiscard]] Shape readShape(ByteReader& bytes, ShapeVersion version, Allowance& allowance);

// Reads the drawing of one glyph, which has no styles: what its fill covers.
[[nodiscard]] Outline readGlyph(ByteReader& bytes, Allowance& allowance);

}  // namespace platform::flash
