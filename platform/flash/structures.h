#pragma once

#include <QRectF>
#include <QRgb>
#include <QTransform>

#include "platform/flash/byte_reader.h"
#include "platform/flash/color_transform.h"

namespace platform::flash {

// The small structures that many tags hold. Each begins on a whole byte and takes whole bytes.

// Twips. Not normalised: a file may give a right edge left of the left one.
[[nodiscard]] QRectF readRect(ByteReader& bytes);
// Offsets in twips, factors plain.
[[nodiscard]] QTransform readMatrix(ByteReader& bytes);
// withAlpha: whether the fourth channel is stored.
[[nodiscard]] ColorTransform readColorTransform(ByteReader& bytes, bool withAlpha);
// Three bytes, or four with alpha.
[[nodiscard]] QRgb readColor(ByteReader& bytes, bool withAlpha);

}  // namespace platform::flash
