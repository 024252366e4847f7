#include "platform/flash/edge_set.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace platform::flash {

namespace {

constexpr double kEdgeFlatness = 0.1;  // pixels

// Nanoseconds for an edge: to gather and cover, and to sort where many lie in disorder.
constexpr std::int64_t kEdgeWork = 30;
constexpr std::int64_t kSortWork = 100;

constexpr double kFarthestSeen = 1e8;  // pixels; nothing beyond is seen
constexpr int kPlaces = 32;            // behind the point of Across
constexpr Across kOnePixel = Across(1) << kPlaces;

// Where the sample of each row of samples lies in its pixel, in sixteenths and a half: the numbers
// 0 to 15 with their bits turned round, so that neighbouring rows lie far apart.
constexpr std::array<unsigned, kSamples> kColumns = [] {
  std::array<unsigned, kSamples> all{};
  for (unsigned i = 0; i < kSamples; ++i) {
    all[i] = ((i & 1U) << 3U) | ((i & 2U) << 1U) | ((i & 4U) >> 1U) | (i >> 3U);
  }
  return all;
}();

constexpr std::array<Across, kSamples> kOffsets = [] {
  std::array<Across, kSamples> all{};
  for (std::size_t i = 0; i < kSamples; ++i) {
    all[i] = (2 * Across(kColumns[i]) + 1) * kOnePixel / (Across{2} * kSamples);
  }
  return all;
}();

constexpr std::array<std::uint32_t, kSamples> kOffsetsInPixel = [] {
  std::array<std::uint32_t, kSamples> all{};
  for (std::size_t i = 0; i < kSamples; ++i) {
    all[i] = static_cast<std::uint32_t>(kOffsets[i]);
  }
  return all;
}();

// For each number of columns, the samples that lie behind that many.
constexpr std::array<SampleMask, kSamples + 1> behind = [] {
  std::array<SampleMask, kSamples + 1> all{};
  for (unsigned first = 0; first <= kSamples; ++first) {
    for (unsigned i = 0; i < kSamples; ++i) {
      all[first] |= static_cast<SampleMask>(kColumns[i] >= first ? 1U << i : 0U);
    }
  }
  return all;
}();

Across across(double pixels) {
  return static_cast<Across>(std::clamp(pixels, -kFarthestSeen, kFarthestSeen) * double(kOnePixel));
}

}  // namespace

void RowCoverage::cross(int first, int end, Across x, Across slope) {
  const std::int64_t pixel = x >> kPlaces;
  const unsigned rows = (1U << unsigned(end)) - (1U << unsigned(first));
  if (slope == 0) {
    // How many columns lie to the left of x.
    const Across rest = x & (kOnePixel - 1);
    const auto left = static_cast<std::size_t>((rest * kSamples + kOnePixel / 2 - 1) >> kPlaces);
    toggle(pixel, behind[left] & rows);
    toggle(pixel + 1, ~unsigned(behind[left]) & rows);
    return;
  }
  if ((x + slope * (end - first - 1)) >> kPlaces == pixel) {
    // Within one pixel, 32 bits do, and all sixteen rows at once take no longer than a few.
    const auto step = static_cast<std::uint32_t>(slope);
    const std::uint32_t begin = static_cast<std::uint32_t>(x) - step * std::uint32_t(first);
    unsigned mask = 0;
    for (std::uint32_t row = 0; row < kSamples; ++row) {
      mask |= begin + step * row <= kOffsetsInPixel[row] ? 1U << row : 0U;
    }
    toggle(pixel, mask & rows);
    toggle(pixel + 1, ~mask & rows);
    return;
  }
  for (int row = first; row < end; ++row, x += slope) {
    // The first pixel whose sample in this row lies at x or to the right of it.
    toggle((x - kOffsets[std::size_t(row)] + kOnePixel - 1) >> kPlaces, 1U << unsigned(row));
  }
}

void EdgeSet::addLine(QPointF from, QPointF to) {
  const int direction = from.y() <= to.y() ? 1 : -1;
  if (direction < 0) {
    std::swap(from, to);
  }
  // Rows of samples run through the middle of their stripes.
  const auto subrow = [&](double y) {
    return static_cast<int>(std::ceil(std::clamp(y * kSamples - 0.5, -1.0, double(lastSubrow_))));
  };
  const int top = std::max(0, subrow(from.y()));
  const int bottom = subrow(to.y());
  if (top >= bottom) {
    return;
  }
  const double slope = (to.x() - from.x()) / (to.y() - from.y());
  const double x = from.x() + slope * ((top + 0.5) / kSamples - from.y());
  edges_.push_back({across(x), across(slope / kSamples), top, bottom, direction});
  firstSubrow_ = std::min(firstSubrow_, top);
  endSubrow_ = std::max(endSubrow_, bottom);
}

std::size_t EdgeSet::add(const Outline& outline, const QTransform& matrix, std::size_t most) {
  const double m11 = matrix.m11();
  const double m12 = matrix.m12();
  const double m21 = matrix.m21();
  const double m22 = matrix.m22();
  const double dx = matrix.dx();
  const double dy = matrix.dy();
  // Affine, and called for every piece of every picture.
  const auto map = [=](QPointF p) {
    return QPointF(m11 * p.x() + m21 * p.y() + dx, m12 * p.x() + m22 * p.y() + dy);
  };
  const double scale = std::max(std::hypot(m11, m12), std::hypot(m21, m22));
  std::size_t pieces = 0;
  flatten(outline, scale, kEdgeFlatness, [&](QPointF from, QPointF to) {
    if (++pieces <= most) {
      addLine(map(from), map(to));
    }
  });
  return pieces;
}

void EdgeSet::prepare() {
  std::sort(edges_.begin(), edges_.end(),
            [](const Edge& left, const Edge& right) { return left.top < right.top; });
  firstSubrow_ = std::min(firstSubrow_, endSubrow_);
}

void EdgeSet::goTo(int row) {
  row_ = row;
  const int first = row * kSamples;
  std::erase_if(active_, [first](const Edge* edge) { return edge->bottom <= first; });
  for (; next_ < edges_.size() && edges_[next_].top < first + kSamples; ++next_) {
    if (edges_[next_].bottom > first) {
      active_.push_back(&edges_[next_]);
    }
  }
}

int EdgeSet::gatherLive(int subrow, Budget& budget) {
  int end = (row_ + 1) * kSamples;
  live_.clear();
  for (const Edge* edge : active_) {
    if (edge->top > subrow) {
      end = std::min(end, edge->top);
    } else if (edge->bottom > subrow) {
      end = std::min(end, edge->bottom);
      live_.push_back({edge->at(subrow), edge});
    }
  }
  sortLive(budget);
  if (live_.size() == active_.size()) {
    // In order for the rows that follow.
    std::transform(live_.begin(), live_.end(), active_.begin(),
                   [](const Crossing& crossing) { return crossing.edge; });
  }
  return end;
}

void EdgeSet::sortLive(Budget& budget) {
  // The edges in work are nearly in order, so they are put in one by one; but not for longer than
  // sorting takes.
  std::size_t moves = 8 * live_.size();
  for (std::size_t i = 1; i < live_.size(); ++i) {
    const Crossing crossing = live_[i];
    std::size_t at = i;
    for (; at > 0 && crossing.x < live_[at - 1].x; --at) {
      live_[at] = live_[at - 1];
    }
    live_[at] = crossing;
    if (i - at > moves) {
      budget.spend(kSortWork * static_cast<std::int64_t>(live_.size()));
      std::stable_sort(live_.begin(), live_.end(), [](const Crossing& left, const Crossing& right) {
        return left.x < right.x;
      });
      return;
    }
    moves -= i - at;
  }
}

bool EdgeSet::keepOrder(int subrow) const {
  return std::is_sorted(live_.begin(), live_.end(),
                        [subrow](const Crossing& left, const Crossing& right) {
                          return left.edge->at(subrow) < right.edge->at(subrow);
                        });
}

void EdgeSet::coverLive(RowCoverage& coverage, int subrow, int end) const {
  const int first = row_ * kSamples;
  int winding = 0;
  for (const auto& [x, edge] : live_) {
    const int after = windingAfter(winding, edge->direction);
    if ((winding == 0) != (after == 0)) {
      coverage.cross(subrow - first, end - first, x, edge->slope);
    }
    winding = after;
  }
}

void EdgeSet::cover(RowCoverage& coverage, Budget& budget) {
  const int end = (row_ + 1) * kSamples;
  for (int subrow = row_ * kSamples; subrow < end;) {
    if (!budget.spend(kEdgeWork * static_cast<std::int64_t>(active_.size()))) {
      return;
    }
    const int next = gatherLive(subrow, budget);
    if (keepOrder(next - 1)) {
      coverLive(coverage, subrow, next);
      subrow = next;
    } else {
      coverLive(coverage, subrow, subrow + 1);
      ++subrow;
    }
  }
}

}  // namespace platform::flash
