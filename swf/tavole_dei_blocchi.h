#pragma once

#include "tools/swf/filmato.h"

namespace somme::filmati {

// The boards of the blocks. Every clip is visible when a movie is loaded, and the form hides what
// it does not want, but for the flats of the joined board, which it never hides: they begin hidden.
// The forms number blocks from 1.

// An addend of tens and units: "da1" to "da9" and "u1" to "u9", at rest.
[[nodiscard]] swf::Filmato dau();

// An addend of hundreds, tens and units: also "h1" to "h9", at rest.
[[nodiscard]] swf::Filmato hdau();

// Both addends of tens and units together: "da1" to "da9", "u1" to "u19". From frame 2 on ten
// units become a long; the word is "cambio".
[[nodiscard]] swf::Filmato unione();

// Both addends with hundreds together: "h1" to "h9", "da1" to "da19", "u1" to "u19". From frame 2
// on ten units become a long, "cambiouda"; from frame 51 on ten longs a flat, "cambiodah".
[[nodiscard]] swf::Filmato unionehdau();

}  // namespace somme::filmati
