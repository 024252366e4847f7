#include "platform/flash/renderer.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "platform/flash/edge_set.h"
#include "platform/flash/limits.h"
#include "platform/flash/pixel_source.h"
#include "platform/flash/row_painter.h"

namespace platform::flash {

namespace {

// A line may be drawn wider than it is, by up to a pixel.
constexpr double kMargin = 2;  // pixels

// Nanoseconds, and bytes.
constexpr std::int64_t kItemWork = 200;
constexpr std::int64_t kGradientWork = 4000;
constexpr std::int64_t kPieceWork = 30;     // of an outline, with sorting it in
constexpr std::int64_t kStrokeWork = 100;   // a piece of a line that has to be made
constexpr std::int64_t kSurfaceWork = 40;   // in one row
constexpr std::int64_t kPartWork = 25;      // a pixel covered in part
constexpr std::int64_t kMaskPixelWork = 4;  // a pixel that a mask is worked out for
constexpr std::size_t kItemMemory = 400;
constexpr std::size_t kGradientMemory = 1100;
constexpr std::size_t kPieceMemory = 40;

struct Surface {
  EdgeSet edges;
  PixelSource source;
  int mask;
};

bool isFinite(const QTransform& m) {
  return std::isfinite(m.m11()) && std::isfinite(m.m12()) && std::isfinite(m.m21()) &&
         std::isfinite(m.m22()) && std::isfinite(m.dx()) && std::isfinite(m.dy());
}

// By how much a matrix stretches lengths, in the direction of the most and of the least.
struct Stretch {
  double most, least;
};

Stretch stretchOf(const QTransform& m) {
  const double squares =
      m.m11() * m.m11() + m.m12() * m.m12() + m.m21() * m.m21() + m.m22() * m.m22();
  const double area = std::abs(m.determinant());
  const double most =
      std::sqrt((squares + std::sqrt(std::max(0.0, squares * squares - 4 * area * area))) / 2);
  return {most, most > 0 ? area / most : 0};
}

// One picture in the making: first the surfaces are gathered, then painted row by row.
class Painting {
 public:
  Painting(const Scene& scene, const QTransform& toPixels, StrokeCache& strokes, Budget& budget,
           QImage& image)
      : scene_(scene),
        toPixels_(toPixels),
        strokes_(strokes),
        budget_(budget),
        image_(image),
        coverage_(image.width()),
        painter_(image.width()) {}

  void gather();
  void paint();
  // Whether everything was.
  [[nodiscard]] bool isWhole() const { return segmentsLeft_ > 0 && !budget_.isSpent(); }

 private:
  void gatherItem(const SceneItem& item);
  void gatherMasks();
  // Each adds to the edges, and is false where nothing is to be painted of them at all.
  bool addOutline(EdgeSet& edges, const Outline& outline, const QTransform& matrix);
  bool addStroke(EdgeSet& edges, const StrokeCache::Key& key, const QTransform& matrix);
  bool addLine(EdgeSet& edges, const SceneItem& item, const QTransform& matrix);
  void paintSurface(Surface& surface, int row);
  void useMask(int mask, int row);
  void paintRow(int row);
  void paintBehindMask(int begin, int end, SampleMask mask, const PixelSource& source);
  // Takes the pieces of an outline off what a picture may have of them.
  bool spendSegments(std::size_t count) {
    const bool fits = count <= segmentsLeft_;
    segmentsLeft_ -= std::min(segmentsLeft_, count);
    return fits;
  }

  const Scene& scene_;
  const QTransform& toPixels_;
  StrokeCache& strokes_;
  Budget& budget_;
  QImage& image_;
  RowCoverage coverage_;
  RowPainter painter_;
  std::vector<Surface> surfaces_;  // from the back to the front
  struct Mask {
    std::vector<EdgeSet> parts;
    int atRow = -1;
  };
  std::vector<Mask> masks_;
  // What the mask in use lets through of the row.
  std::vector<SampleMask> through_;
  std::vector<SampleMask> throughOne_;
  int maskInUse_ = -1;
  std::size_t segmentsLeft_ = limits::kFrameSegments;
  std::vector<std::size_t> inWork_;  // the surfaces in the present row
  std::int64_t pixelWork_ = 0;       // done and not yet charged
};

bool Painting::addOutline(EdgeSet& edges, const Outline& outline, const QTransform& matrix) {
  // A curve may take several pieces, but each segment takes one at least.
  const std::size_t segments = outline.segments().size();
  if (segments > segmentsLeft_) {
    segmentsLeft_ = 0;
    return false;
  }
  const std::size_t used = std::max(edges.add(outline, matrix, segmentsLeft_), segments);
  const std::size_t kept = std::min(used, segmentsLeft_);
  budget_.hold(kPieceMemory * kept);
  return budget_.spend(kPieceWork * static_cast<std::int64_t>(used)) && spendSegments(used);
}

bool Painting::addStroke(EdgeSet& edges, const StrokeCache::Key& key, const QTransform& matrix) {
  if (!strokes_.holds(key)) {
    // Round corners take some times the root of their radius in pixels.
    constexpr double kWidestRadius = 4096;
    const double radius = std::min(key.width * key.scale / 2, kWidestRadius);
    const auto pieces = static_cast<std::size_t>(8 + 4 * std::sqrt(radius));
    // The two sides of a curve are more curves than one.
    const std::size_t needed = (key.line->segments().size() + key.line->curves()) * pieces;
    if (needed > segmentsLeft_ || !budget_.spend(kStrokeWork * static_cast<std::int64_t>(needed)) ||
        !budget_.hold(kPieceMemory * needed)) {
      segmentsLeft_ = 0;
      return false;
    }
    segmentsLeft_ -= needed;
  }
  return addOutline(edges, strokes_.stroke(key), matrix);
}

// As wide in all directions, whatever the matrix does to what the line follows, and never thinner
// than a pixel, lest the line fall between the samples.
bool Painting::addLine(EdgeSet& edges, const SceneItem& item, const QTransform& matrix) {
  constexpr double kEven = 1.01;
  const double scale = std::sqrt(std::abs(matrix.determinant()));
  const Stretch stretch = stretchOf(matrix);
  if (!(stretch.most > 0)) {
    return false;
  }
  const double pixels = std::max(item.lineWidth * scale, 1.0);
  if (stretch.most <= kEven * stretch.least) {
    return addStroke(edges, {item.outline, pixels / scale, scale}, matrix);
  }
  return addStroke(
      edges, {item.outline, pixels, 1, {matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22()}},
      QTransform::fromTranslate(matrix.dx(), matrix.dy()));
}

void Painting::gatherItem(const SceneItem& item) {
  if (!budget_.spend(kItemWork)) {
    return;
  }
  const QTransform matrix = item.matrix * toPixels_;
  const QRectF place =
      toPixels_.mapRect(item.bounds).adjusted(-kMargin, -kMargin, kMargin, kMargin);
  if (!isFinite(matrix) || !place.intersects(QRectF(image_.rect()))) {
    return;
  }
  EdgeSet edges(item.isLine ? EdgeSet::Rule::Winding : EdgeSet::Rule::EvenOdd, image_.height());
  if (!(item.isLine ? addLine(edges, item, matrix) : addOutline(edges, *item.outline, matrix))) {
    return;
  }
  edges.prepare();
  if (edges.firstRow() < edges.endRow()) {
    budget_.hold(kItemMemory);
    if (item.gradient != nullptr) {
      budget_.spend(kGradientWork);
      budget_.hold(kGradientMemory);
    }
    surfaces_.push_back({std::move(edges),
                         item.gradient == nullptr
                             ? PixelSource(item.color)
                             : PixelSource(*item.gradient, item.gradientColor, matrix),
                         item.mask});
  }
}

void Painting::gatherMasks() {
  for (const SceneMask& mask : scene_.masks) {
    Mask& made = masks_.emplace_back();
    for (const SceneMask::Part& part : mask.parts) {
      if (!budget_.spend(kItemWork) || !budget_.hold(kItemMemory)) {
        return;
      }
      const QTransform matrix = part.matrix * toPixels_;
      EdgeSet edges(EdgeSet::Rule::EvenOdd, image_.height());
      if (isFinite(matrix) && addOutline(edges, *part.outline, matrix)) {
        edges.prepare();
        made.parts.push_back(std::move(edges));
      }
    }
  }
}

void Painting::gather() {
  gatherMasks();
  for (const SceneItem& item : scene_.items) {
    gatherItem(item);
  }
}

// Works out what the mask and those around it let through of the row.
void Painting::useMask(int mask, int row) {
  if (mask == maskInUse_) {
    return;
  }
  maskInUse_ = mask;
  const auto width = std::size_t(image_.width());
  through_.assign(width, kAllSamples);
  for (int at = mask; at >= 0; at = scene_.masks[std::size_t(at)].outer) {
    Mask& used = masks_[std::size_t(at)];
    throughOne_.assign(width, 0);
    for (EdgeSet& part : used.parts) {
      if (!budget_.spend(kSurfaceWork)) {
        return;
      }
      if (row < part.firstRow() || row >= part.endRow()) {
        continue;
      }
      if (used.atRow != row) {
        part.goTo(row);
      }
      part.cover(coverage_, budget_);
      coverage_.take([&](int begin, int end, SampleMask covered) {
        pixelWork_ += end - begin;
        for (int x = begin; x < end; ++x) {
          throughOne_[std::size_t(x)] |= covered;
        }
      });
    }
    used.atRow = row;
    for (std::size_t x = 0; x < width; ++x) {
      through_[x] &= throughOne_[x];
    }
    if (!budget_.spend(kMaskPixelWork * image_.width() + std::exchange(pixelWork_, 0))) {
      return;
    }
  }
}

// In stretches of which the mask lets the same through.
void Painting::paintBehindMask(int begin, int end, SampleMask mask, const PixelSource& source) {
  while (begin < end) {
    const auto seen = static_cast<SampleMask>(mask & through_[std::size_t(begin)]);
    int next = begin + 1;
    while (next < end && (mask & through_[std::size_t(next)]) == seen) {
      ++next;
    }
    if (seen != 0) {
      painter_.paint(begin, next, seen, source);
    }
    pixelWork_ += seen == 0             ? next - begin
                  : seen == kAllSamples ? (next - begin) * source.workPerPixel()
                                        : (next - begin) * kPartWork;
    begin = next;
  }
}

void Painting::paintSurface(Surface& surface, int row) {
  surface.edges.goTo(row);
  if (!budget_.spend(kSurfaceWork)) {
    return;
  }
  if (surface.mask >= 0) {
    useMask(surface.mask, row);
  }
  if (budget_.isSpent()) {
    return;
  }
  surface.edges.cover(coverage_, budget_);
  const std::int64_t wholeWork = surface.source.workPerPixel();
  coverage_.take([&](int begin, int end, SampleMask mask) {
    if (surface.mask >= 0) {
      paintBehindMask(begin, end, mask, surface.source);
      return;
    }
    painter_.paint(begin, end, mask, surface.source);
    pixelWork_ += (end - begin) * (mask == kAllSamples ? wholeWork : kPartWork);
  });
  budget_.spend(std::exchange(pixelWork_, 0));
}

void Painting::paintRow(int row) {
  maskInUse_ = -1;
  painter_.begin({reinterpret_cast<QRgb*>(image_.scanLine(row)), std::size_t(image_.width())}, row);
  for (const std::size_t i : inWork_) {
    if (budget_.isSpent()) {
      break;
    }
    paintSurface(surfaces_[i], row);
  }
  painter_.finish();
}

void Painting::paint() {
  // The surfaces by the row in which they begin; those in work are in the order of painting.
  std::vector<std::size_t> byBegin(surfaces_.size());
  for (std::size_t i = 0; i < byBegin.size(); ++i) {
    byBegin[i] = i;
  }
  std::stable_sort(byBegin.begin(), byBegin.end(), [&](std::size_t left, std::size_t right) {
    return surfaces_[left].edges.firstRow() < surfaces_[right].edges.firstRow();
  });
  std::size_t next = 0;
  for (int row = 0; row < image_.height() && !budget_.isSpent(); ++row) {
    std::erase_if(inWork_, [&](std::size_t i) { return surfaces_[i].edges.endRow() <= row; });
    const auto old = static_cast<std::ptrdiff_t>(inWork_.size());
    for (; next < byBegin.size() && surfaces_[byBegin[next]].edges.firstRow() <= row; ++next) {
      inWork_.push_back(byBegin[next]);
    }
    std::inplace_merge(inWork_.begin(), inWork_.begin() + old, inWork_.end());
    paintRow(row);
  }
}

}  // namespace

bool Renderer::paint(const Scene& scene, const QTransform& toPixels, QRgb background,
                     QImage& image) {
  image.fill(background | 0xFF000000U);
  if (image.isNull() || !isFinite(toPixels)) {
    return true;
  }
  budget_.begin(limits::kPainting);
  strokes_.trim();
  Painting painting(scene, toPixels, strokes_, budget_, image);
  painting.gather();
  painting.paint();
  return painting.isWhole();
}

}  // namespace platform::flash
