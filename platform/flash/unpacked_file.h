#pragma once

#include <QRectF>
#include <cstdint>
#include <vector>

#include "platform/flash/allowance.h"
#include "platform/flash/byte_reader.h"

namespace platform::flash {

// The outermost layer of a movie's file: the header, and everything uncompressed.
struct UnpackedFile {
  int version = 0;
  bool compressed = false;
  QRectF stage;  // twips
  double frameRate = 0;
  int frameCount = 0;
  // The first eight bytes of the file and, uncompressed, what follows; cut where the file's own
  // length, a limit or the allowance ends it, or where a damaged stream breaks off.
  std::vector<std::uint8_t> bytes;
  std::size_t tagsBegin = 0;
};

// Throws MovieError when the bytes are no movie: another signature, a header that breaks off, a
// stage without area or larger than limits::stageEdge.
[[nodiscard]] UnpackedFile unpackFile(Bytes file, Allowance& allowance);

}  // namespace platform::flash
