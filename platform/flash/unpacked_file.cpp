#include "platform/flash/unpacked_file.h"

#include <zlib.h>

#include <algorithm>

#include "platform/flash/limits.h"
#include "platform/flash/movie_error.h"
#include "platform/flash/structures.h"

namespace platform::flash {

namespace {

constexpr std::size_t plainHeader = 8;
constexpr double twipsPerPixel = 20;

// Owns the state of one inflation.
class Inflater {
 public:
  Inflater() { valid_ = inflateInit(&stream_) == Z_OK; }
  ~Inflater() {
    if (valid_) {
      inflateEnd(&stream_);
    }
  }
  Inflater(const Inflater&) = delete;
  Inflater& operator=(const Inflater&) = delete;

  // Appends what packed holds to out, which grows by no more than most bytes. A stream that is
  // damaged or breaks off gives what came before.
  void append(Bytes packed, std::vector<std::uint8_t>& out, std::size_t most) {
    constexpr std::size_t step = 64U * 1024U;
    stream_.next_in = const_cast<Bytef*>(packed.data());  // zlib only reads it
    stream_.avail_in = static_cast<uInt>(packed.size());
    int status = valid_ ? Z_OK : Z_MEM_ERROR;
    while (status == Z_OK && most > 0) {
      const std::size_t begin = out.size();
      const std::size_t room = std::min(step, most);
      out.resize(begin + room);
      stream_.next_out = out.data() + begin;
      stream_.avail_out = static_cast<uInt>(room);
      status = inflate(&stream_, Z_NO_FLUSH);
      const std::size_t got = room - stream_.avail_out;
      out.resize(begin + got);
      most -= got;
      if (got == 0 && stream_.avail_in == 0) {
        break;
      }
    }
  }

 private:
  z_stream stream_{};
  bool valid_ = false;
};

}  // namespace

UnpackedFile unpackFile(Bytes file) {
  ByteReader reader(file);
  UnpackedFile opened;
  const Bytes signature = reader.bytes(3);
  opened.compressed = signature[0] == 'C';
  if ((signature[0] != 'F' && signature[0] != 'C') || signature[1] != 'W' || signature[2] != 'S') {
    throw MovieError("the signature is not that of a movie", 0);
  }
  opened.version = reader.u8();
  const std::size_t length = std::clamp<std::size_t>(reader.u32(), plainHeader, limits::movieBytes);

  const Bytes body = reader.rest();
  // Whatever the file claims: pages that are never written take no memory, growing piecemeal does.
  opened.bytes.reserve(opened.compressed ? length : std::min(length, file.size()));
  opened.bytes.assign(file.begin(), file.begin() + plainHeader);
  if (opened.compressed) {
    Inflater().append(body, opened.bytes, length - plainHeader);
  } else {
    const Bytes used = body.first(std::min(body.size(), length - plainHeader));
    opened.bytes.insert(opened.bytes.end(), used.begin(), used.end());
  }

  ByteReader header(opened.bytes);
  header.seek(plainHeader);
  opened.stage = readRect(header);
  opened.frameRate = header.u16() / 256.0;
  opened.frameCount = header.u16();
  opened.tagsBegin = header.position();
  const double edge = std::max(opened.stage.width(), opened.stage.height());
  if (opened.stage.isEmpty() || edge > limits::stageEdge * twipsPerPixel) {
    throw MovieError("the stage has no usable size", plainHeader);
  }
  return opened;
}

}  // namespace platform::flash
