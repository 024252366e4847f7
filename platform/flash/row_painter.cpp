#include "platform/flash/row_painter.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "platform/flash/sample_colors.h"

namespace platform::flash {

void RowPainter::paintPart(int x, SampleMask mask, QRgb color) {
  int& place = places_[std::size_t(x)];
  if (place != kNone) {
    paintMore(entries_[std::size_t(place)], mask, color);
    return;
  }
  constexpr std::size_t kMostStale = 4;  // for each pixel
  if (entries_.size() > kMostStale * places_.size()) {
    compact();
  }
  place = static_cast<int>(entries_.size());
  firstEntry_ = std::min(firstEntry_, x);
  lastEntry_ = std::max(lastEntry_, x);
  const QRgb below = pixels_[std::size_t(x)];
  entries_.push_back({x, mask, below, over(color, below), kNone});
}

void RowPainter::compact() {
  std::vector<Entry> entries;
  std::vector<Samples> kept;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    Entry entry = entries_[i];
    int& place = places_[std::size_t(entry.x)];
    if (place != static_cast<int>(i)) {
      continue;
    }
    if (entry.samples != kNone) {
      kept.push_back(samples_[std::size_t(entry.samples)]);
      entry.samples = static_cast<int>(kept.size()) - 1;
    }
    entries.push_back(entry);
  }
  for (std::size_t i = 0; i < entries.size(); ++i) {
    places_[std::size_t(entries[i].x)] = static_cast<int>(i);
  }
  entries_ = std::move(entries);
  samples_ = std::move(kept);
}

void RowPainter::paintMore(Entry& entry, SampleMask mask, QRgb color) {
  if (entry.samples == kNone) {
    if (mask == entry.mask) {
      entry.above = over(color, entry.above);
      return;
    }
    entry.samples = static_cast<int>(samples_.size());
    Samples& fresh = samples_.emplace_back();
    for (unsigned i = 0; i < fresh.size(); ++i) {
      fresh[i] = ((unsigned(entry.mask) >> i) & 1U) != 0 ? entry.above : entry.below;
    }
  }
  Samples& colors = samples_[std::size_t(entry.samples)];
  for (unsigned left = mask; left != 0; left &= left - 1) {
    QRgb& sample = colors[std::size_t(std::countr_zero(left))];
    sample = over(color, sample);
  }
}

void RowPainter::paintWhole(int begin, int end, const PixelSource& source) {
  const auto count = static_cast<std::size_t>(end - begin);
  if (source.isOpaque()) {
    source.fill(pixels_.subspan(std::size_t(begin), count), begin, y_);
    if (begin <= lastEntry_ && end > firstEntry_) {
      std::fill(places_.begin() + std::max(begin, firstEntry_),
                places_.begin() + std::min(end, lastEntry_ + 1), kNone);
    }
    return;
  }
  source.fill(std::span(colors_).first(count), begin, y_);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t x = static_cast<std::size_t>(begin) + i;
    if (places_[x] == kNone) {
      pixels_[x] = over(colors_[i], pixels_[x]);
    } else {
      paintPart(static_cast<int>(x), kAllSamples, colors_[i]);
    }
  }
}

void RowPainter::paint(int begin, int end, SampleMask mask, const PixelSource& source) {
  if (mask == kAllSamples) {
    paintWhole(begin, end, source);
    return;
  }
  if (source.isSolid()) {
    for (int x = begin; x < end; ++x) {
      paintPart(x, mask, source.color());
    }
    return;
  }
  const auto count = static_cast<std::size_t>(end - begin);
  source.fill(std::span(colors_).first(count), begin, y_);
  for (std::size_t i = 0; i < count; ++i) {
    paintPart(begin + static_cast<int>(i), mask, colors_[i]);
  }
}

void RowPainter::finish() {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const Entry& entry = entries_[i];
    int& place = places_[std::size_t(entry.x)];
    // Others have been painted over whole since.
    if (place == static_cast<int>(i)) {
      pixels_[std::size_t(entry.x)] = entry.samples != kNone
                                          ? average(samples_[std::size_t(entry.samples)])
                                          : mixed(entry.above, entry.below, samplesIn(entry.mask));
      place = kNone;
    }
  }
  entries_.clear();
  firstEntry_ = INT32_MAX;
  lastEntry_ = -1;
  samples_.clear();
}

}  // namespace platform::flash
