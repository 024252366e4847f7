#pragma once

#include <QTransform>
#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/flash/budget.h"
#include "platform/flash/outline.h"

namespace platform::flash {

// A pixel is looked at in sixteen places, its samples: one in each of sixteen rows of samples, at
// sixteen different distances from its left edge. A mask tells which of them something covers.
using SampleMask = std::uint16_t;
inline constexpr int kSamples = 16;
inline constexpr SampleMask kAllSamples = 0xFFFF;

// A position across a row, in pixels with 32 binary places behind the point: exact enough to follow
// an edge over any picture by adding.
using Across = std::int64_t;

// How much of each pixel of one row is covered, as it comes from sixteen rows of samples: changes
// of the mask from pixel to pixel, cheap to note and to read where nothing changes for long.
class RowCoverage {
 public:
  // width: pixels.
  explicit RowCoverage(int width)
      : width_(width),
        changes_(static_cast<std::size_t>(width) + 1, 0),
        touched_(static_cast<std::size_t>(width) / 64 + 1, 0) {}

  // A border crosses the rows of samples (0 to 15) from first up to, not including, end, the first
  // one at x and each further one by slope later: what lies on its right changes from covered to
  // not covered or back. Borders come in pairs.
  void cross(int first, int end, Across x, Across slope);

  // Calls run(begin, end, mask) for each stretch of pixels with the same mask, from the left to the
  // right, leaving out what is not covered, and is empty afterwards.
  template <typename Run>
  void take(Run run);

 private:
  // x: any pixel; what lies beside the row counts as at its ends.
  void toggle(std::int64_t x, unsigned bits) {
    const auto at = static_cast<std::size_t>(std::clamp<std::int64_t>(x, 0, width_));
    changes_[at] ^= static_cast<SampleMask>(bits);
    const std::size_t word = at / 64;
    touched_[word] |= std::uint64_t(1) << (at % 64U);
    firstWord_ = std::min(firstWord_, word);
    endWord_ = std::max(endWord_, word + 1);
  }

  int width_;
  std::vector<SampleMask> changes_;
  std::vector<std::uint64_t> touched_;
  // The words that may hold something.
  std::size_t firstWord_ = SIZE_MAX;
  std::size_t endWord_ = 0;
};

// The borders of one surface in pixels, ready to be worked off row by row from the top.
class EdgeSet {
 public:
  enum class Rule { EvenOdd, Winding };

  EdgeSet(Rule rule, int rows) : rule_(rule), lastSubrow_(rows * kSamples) {}

  // Adds an outline that the matrix takes to pixels. Returns how many straight pieces it takes;
  // where they are more than most, those beyond are missing, and the set is good for nothing.
  std::size_t add(const Outline& outline, const QTransform& matrix, std::size_t most);
  // Call once, after all add() and before the rows.
  void prepare();

  // The rows of pixels that it touches: from the first up to, not including, the other.
  [[nodiscard]] int firstRow() const { return firstSubrow_ / kSamples; }
  [[nodiscard]] int endRow() const { return (endSubrow_ + kSamples - 1) / kSamples; }

  // Goes on to a row, which must not lie above the last one.
  void goTo(int row);
  // Covers what the surface covers of the present row; of its upper part where the budget does not
  // do. May be called again.
  void cover(RowCoverage& coverage, Budget& budget);

 private:
  struct Edge {
    Across x;      // where it crosses the row of samples top
    Across slope;  // from one row of samples to the next
    int top;       // rows of samples: from here
    int bottom;    // to here, not included
    int direction;

    [[nodiscard]] Across at(int subrow) const { return x + slope * (subrow - top); }
  };
  void addLine(QPointF from, QPointF to);
  // The winding behind a border, from the one before it.
  [[nodiscard]] int windingAfter(int winding, int direction) const {
    return rule_ == Rule::EvenOdd ? 1 - winding : winding + direction;
  }
  // Gathers the edges that cross a row of samples, from the left to the right. Returns the row of
  // samples from which on others do.
  int gatherLive(int subrow, Budget& budget);
  void sortLive(Budget& budget);
  // Whether the live edges keep their order down to that row of samples.
  [[nodiscard]] bool keepOrder(int subrow) const;
  // Covers the rows of samples from the one that the live edges were gathered for.
  void coverLive(RowCoverage& coverage, int subrow, int end) const;

  Rule rule_;
  int lastSubrow_;
  int firstSubrow_ = INT32_MAX;
  int endSubrow_ = 0;
  int row_ = 0;
  std::vector<Edge> edges_;
  std::size_t next_ = 0;
  std::vector<const Edge*> active_;
  // An edge and where it crosses the row of samples in work.
  struct Crossing {
    Across x;
    const Edge* edge;
  };
  std::vector<Crossing> live_;
};

template <typename Run>
void RowCoverage::take(Run run) {
  SampleMask mask = 0;
  int begin = 0;
  for (std::size_t word = firstWord_; word < endWord_; ++word) {
    while (touched_[word] != 0) {
      const int x = static_cast<int>(word * 64) + std::countr_zero(touched_[word]);
      touched_[word] &= touched_[word] - 1;
      const SampleMask change = std::exchange(changes_[std::size_t(x)], 0);
      if (change == 0) {
        continue;
      }
      if (mask != 0) {
        run(begin, x, mask);
      }
      mask ^= change;
      begin = x;
    }
  }
  firstWord_ = SIZE_MAX;
  endWord_ = 0;
}

}  // namespace platform::flash
