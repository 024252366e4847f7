#include "platform/flash/unpacked_file.h"

#include <zlib.h>

#include <algorithm>

#include "platform/flash/limits.h"
#include "platform/flash/movie_error.h"
#include "platform/flash/structures.h"
#include "platform/flash/units.h"

namespace platform::flash {

namespace {

constexpr std::size_t kPlainHeader = 8;

// Owns the state of one inflation.
class Inflater {
 public:
  explicit Inflater(Allowance& allowance) : allowance_(allowance) {
    valid_ = inflateInit(&stream_) == Z_OK;
  }
  ~Inflater() {
    if (valid_) {
      inflateEnd(&stream_);
    }
  }
  Inflater(const Inflater&) = delete;
  Inflater& operator=(const Inflater&) = delete;

  // Appends what packed holds to out, which grows by no more than most bytes. A stream that is
  // damaged, breaks off or takes too long gives what came before.
  void append(Bytes packed, std::vector<std::uint8_t>& out, std::size_t most) {
    try {
      while (valid_ && !ended_ && most > 0 && (!packed.empty() || stream_.avail_in > 0)) {
        most -= step(packed, out, most);
      }
    } catch (const MovieError&) {
      // As much as the allowance was good for; the reader finds it spent.
    }
  }

 private:
  // Takes a little of what is packed, which may hold nothing but the descriptions of codes, and
  // appends what comes of it. Gives the number of those bytes.
  std::size_t step(Bytes& packed, std::vector<std::uint8_t>& out, std::size_t most) {
    constexpr std::size_t kMostIn = std::size_t{4} * 1024;
    constexpr std::size_t kMostOut = std::size_t{64} * 1024;
    constexpr std::int64_t kWorkPerByteIn = 10;
    constexpr std::int64_t kWorkPerByteOut = 3;
    if (stream_.avail_in == 0) {
      const Bytes part = packed.first(std::min(kMostIn, packed.size()));
      packed = packed.subspan(part.size());
      allowance_.work(kWorkPerByteIn, part.size());
      stream_.next_in = const_cast<Bytef*>(part.data());  // zlib only reads it
      stream_.avail_in = static_cast<uInt>(part.size());
    }
    const std::size_t begin = out.size();
    const std::size_t room = std::min(kMostOut, most);
    out.resize(begin + room);
    stream_.next_out = out.data() + begin;
    stream_.avail_out = static_cast<uInt>(room);
    ended_ = inflate(&stream_, Z_NO_FLUSH) != Z_OK;
    const std::size_t got = room - stream_.avail_out;
    out.resize(begin + got);
    allowance_.work(kWorkPerByteOut, got);
    return got;
  }

  Allowance& allowance_;
  z_stream stream_{};
  bool valid_ = false;
  bool ended_ = false;
};

}  // namespace

UnpackedFile unpackFile(Bytes file, Allowance& allowance) {
  ByteReader reader(file);
  UnpackedFile opened;
  const Bytes signature = reader.bytes(3);
  opened.compressed = signature[0] == 'C';
  if ((signature[0] != 'F' && signature[0] != 'C') || signature[1] != 'W' || signature[2] != 'S') {
    throw MovieError("the signature is not that of a movie", 0);
  }
  opened.version = reader.u8();
  const std::size_t length =
      std::clamp<std::size_t>(reader.u32(), kPlainHeader, limits::kMovieBytes);

  const Bytes body = reader.rest();
  // Whatever the file claims: pages that are never written take no memory, growing piecemeal does.
  opened.bytes.reserve(opened.compressed ? length : std::min(length, file.size()));
  opened.bytes.assign(file.begin(), file.begin() + kPlainHeader);
  if (opened.compressed) {
    Inflater(allowance).append(body, opened.bytes, length - kPlainHeader);
  } else {
    const Bytes used = body.first(std::min(body.size(), length - kPlainHeader));
    opened.bytes.insert(opened.bytes.end(), used.begin(), used.end());
  }

  ByteReader header(opened.bytes);
  header.seek(kPlainHeader);
  opened.stage = readRect(header);
  opened.frameRate = header.u16() / 256.0;
  opened.frameCount = header.u16();
  opened.tagsBegin = header.position();
  const double edge = std::max(opened.stage.width(), opened.stage.height());
  if (opened.stage.isEmpty() || Twips(edge) > kPixel * limits::kStageEdge) {
    throw MovieError("the stage has no usable size", kPlainHeader);
  }
  return opened;
}

}  // namespace platform::flash
