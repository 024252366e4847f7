#pragma once

#include <QRgb>
#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/flash/edge_set.h"
#include "platform/flash/pixel_source.h"

namespace platform::flash {

// Paints surfaces over one another in one row of pixels. Pixels that are covered in part keep the
// colours of their samples until the row is done: two surfaces that meet within a pixel share its
// samples, and nothing of what lies below shines through between them.
class RowPainter {
 public:
  explicit RowPainter(int width)
      : places_(static_cast<std::size_t>(width), kNone), colors_(static_cast<std::size_t>(width)) {}

  // pixels: the row of the picture, premultiplied, already filled with what lies below everything.
  void begin(std::span<QRgb> pixels, int y) {
    pixels_ = pixels;
    y_ = y;
  }
  void paint(int begin, int end, SampleMask mask, const PixelSource& source);
  // Makes pixels of the samples.
  void finish();

 private:
  using Samples = std::array<QRgb, kSamples>;
  static constexpr int kNone = -1;

  // A pixel of which a part has another colour. As long as one surface alone has painted on it, two
  // colours and a mask say all.
  struct Entry {
    int x;
    SampleMask mask;
    QRgb below;   // where the mask has no sample
    QRgb above;   // where it has
    int samples;  // the place of its samples, where two colours do not do; else none
  };

  // Lets go of entries that have been painted over whole since.
  void compact();
  void paintWhole(int begin, int end, const PixelSource& source);
  void paintPart(int x, SampleMask mask, QRgb color);
  void paintMore(Entry& entry, SampleMask mask, QRgb color);

  std::span<QRgb> pixels_;
  int y_ = 0;
  std::vector<int> places_;  // for each pixel that has an entry, where it is
  std::vector<Entry> entries_;
  // The pixels that may have one.
  int firstEntry_ = INT32_MAX;
  int lastEntry_ = -1;
  std::vector<Samples> samples_;
  std::vector<QRgb> colors_;  // of a gradient, for the pixels being painted
};

}  // namespace platform::flash
