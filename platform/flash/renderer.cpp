#include "platform/flash/renderer.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "platform/flash/edge_set.h"
#include "platform/flash/limits.h"
#include "platform/flash/pixel_source.h"
#include "platform/flash/row_painter.h"

namespace platform::flash {

namespace {

// A line may be drawn wider than it is, by up to a pixel.
constexpr double margin = 2;  // pixels

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
  Painting(const Scene& scene, const QTransform& toPixels, StrokeCache& strokes, QImage& image)
      : scene_(scene),
        toPixels_(toPixels),
        strokes_(strokes),
        image_(image),
        coverage_(image.width()),
        painter_(image.width()) {}

  void gather();
  void paint();

 private:
  void gatherItem(const SceneItem& item);
  void gatherMasks();
  // Each adds to the edges, and is false where nothing is to be painted of them at all.
  bool addOutline(EdgeSet& edges, const Outline& outline, const QTransform& matrix);
  bool addStroke(EdgeSet& edges, const StrokeCache::Key& key, const QTransform& matrix);
  bool addLine(EdgeSet& edges, const SceneItem& item, const QTransform& matrix);
  void paintSurface(Surface& surface, int row);
  void useMask(int mask, int row);
  bool spendRow(std::size_t work) {
    rowWorkLeft_ -= static_cast<std::int64_t>(work);
    return rowWorkLeft_ > 0;
  }

  const Scene& scene_;
  const QTransform& toPixels_;
  StrokeCache& strokes_;
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
  std::size_t segmentsLeft_ = limits::frameSegments;
  std::int64_t rowWorkLeft_ = 0;
  std::int64_t rowPixelsLeft_ = 0;
};

bool Painting::addOutline(EdgeSet& edges, const Outline& outline, const QTransform& matrix) {
  // A curve may take several pieces, but each segment takes one at least.
  if (outline.segments().size() > segmentsLeft_) {
    segmentsLeft_ = 0;
    return false;
  }
  const std::size_t used =
      std::max(edges.add(outline, matrix, segmentsLeft_), outline.segments().size());
  const bool fits = used <= segmentsLeft_;
  segmentsLeft_ -= std::min(segmentsLeft_, used);
  return fits;
}

bool Painting::addStroke(EdgeSet& edges, const StrokeCache::Key& key, const QTransform& matrix) {
  if (!strokes_.holds(key)) {
    // Round corners take some times the root of their radius in pixels.
    constexpr double widestRadius = 4096;
    const double radius = std::min(key.width * key.scale / 2, widestRadius);
    const auto pieces = static_cast<std::size_t>(8 + 4 * std::sqrt(radius));
    // The two sides of a curve are more curves than one.
    const auto& segments = key.line->segments();
    const auto curves = std::count_if(segments.begin(), segments.end(), [](const auto& segment) {
      return segment.kind == Outline::Segment::Kind::Curve;
    });
    const std::size_t needed = (segments.size() + static_cast<std::size_t>(curves)) * pieces;
    if (needed > segmentsLeft_) {
      return false;
    }
    segmentsLeft_ -= needed;
  }
  return addOutline(edges, strokes_.stroke(key), matrix);
}

// Never thinner than about a pixel, lest the line fall between the samples.
bool Painting::addLine(EdgeSet& edges, const SceneItem& item, const QTransform& matrix) {
  constexpr double thinEnough = 0.9;  // pixels
  const double area = matrix.determinant();
  const double scale = std::sqrt(std::abs(area));
  const Stretch stretch = stretchOf(matrix);
  if (!(stretch.most > 0)) {
    return false;
  }
  const double width = std::max<double>(item.lineWidth, 1 / scale);
  if (scale > 0 && width * stretch.least >= thinEnough) {
    return addStroke(edges, {item.outline, width, scale}, matrix);
  }
  // Squeezed one way: what the line covers, and a pixel along it. Both turn the same way round,
  // also where the matrix is a mirror, so that one does not take away from the other.
  if (scale > 0 && item.lineWidth * stretch.most > 1 &&
      !addStroke(edges, {item.outline, double(item.lineWidth), stretch.most}, matrix)) {
    return false;
  }
  const QTransform mirror = QTransform::fromScale(area < 0 ? -1 : 1, 1);
  const QTransform before = matrix * mirror;
  return addStroke(edges,
                   {item.outline, 1, 1, {before.m11(), before.m12(), before.m21(), before.m22()}},
                   mirror * QTransform::fromTranslate(matrix.dx(), matrix.dy()));
}

void Painting::gatherItem(const SceneItem& item) {
  const QTransform matrix = item.matrix * toPixels_;
  const QRectF place = toPixels_.mapRect(item.bounds).adjusted(-margin, -margin, margin, margin);
  if (!isFinite(matrix) || !place.intersects(QRectF(image_.rect()))) {
    return;
  }
  EdgeSet edges(item.isLine ? EdgeSet::Rule::Winding : EdgeSet::Rule::EvenOdd, image_.height());
  if (!(item.isLine ? addLine(edges, item, matrix) : addOutline(edges, *item.outline, matrix))) {
    return;
  }
  edges.prepare();
  if (edges.firstRow() < edges.endRow()) {
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
  through_.assign(std::size_t(image_.width()), allSamples);
  for (int at = mask; at >= 0; at = scene_.masks[std::size_t(at)].outer) {
    Mask& used = masks_[std::size_t(at)];
    throughOne_.assign(std::size_t(image_.width()), 0);
    spendRow(throughOne_.size() / samples);
    for (EdgeSet& part : used.parts) {
      if (used.atRow != row) {
        part.goTo(row);
      }
      if (spendRow(part.work())) {
        part.cover(coverage_);
      }
      coverage_.take([&](int begin, int end, SampleMask covered) {
        for (int x = begin; x < end; ++x) {
          throughOne_[std::size_t(x)] |= covered;
        }
      });
    }
    used.atRow = row;
    for (std::size_t x = 0; x < through_.size(); ++x) {
      through_[x] &= throughOne_[x];
    }
  }
}

void Painting::paintSurface(Surface& surface, int row) {
  surface.edges.goTo(row);
  if (!spendRow(surface.edges.work() + 1) || rowPixelsLeft_ <= 0) {
    return;
  }
  if (surface.mask >= 0) {
    useMask(surface.mask, row);
  }
  surface.edges.cover(coverage_);
  coverage_.take([&](int begin, int end, SampleMask mask) {
    rowPixelsLeft_ -= end - begin;
    if (surface.mask < 0) {
      painter_.paint(begin, end, mask, surface.source);
      return;
    }
    for (int x = begin; x < end; ++x) {
      if (const SampleMask seen = mask & through_[std::size_t(x)]) {
        painter_.paint(x, x + 1, seen, surface.source);
      }
    }
  });
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
  std::vector<std::size_t> inWork;
  for (int row = 0; row < image_.height(); ++row) {
    std::erase_if(inWork, [&](std::size_t i) { return surfaces_[i].edges.endRow() <= row; });
    for (; next < byBegin.size() && surfaces_[byBegin[next]].edges.firstRow() <= row; ++next) {
      inWork.insert(std::lower_bound(inWork.begin(), inWork.end(), byBegin[next]), byBegin[next]);
    }
    rowWorkLeft_ = limits::rowSteps;
    rowPixelsLeft_ = std::int64_t(limits::rowLayers) * image_.width();
    maskInUse_ = -1;
    painter_.begin({reinterpret_cast<QRgb*>(image_.scanLine(row)), std::size_t(image_.width())},
                   row);
    for (const std::size_t i : inWork) {
      paintSurface(surfaces_[i], row);
    }
    painter_.finish();
  }
}

}  // namespace

void Renderer::paint(const Scene& scene, const QTransform& toPixels, QRgb background,
                     QImage& image) {
  image.fill(background | 0xFF000000U);
  if (image.isNull() || !isFinite(toPixels)) {
    return;
  }
  strokes_.trim();
  Painting painting(scene, toPixels, strokes_, image);
  painting.gather();
  painting.paint();
}

}  // namespace platform::flash
