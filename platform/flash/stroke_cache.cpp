#include "platform/flash/stroke_cache.h"

#include <QPainterPathStroker>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/flash/limits.h"

namespace platform::flash {

namespace {

constexpr std::size_t kMostSegments = 200'000;

constexpr double kFlatness = 0.125;  // pixels
// The widest line in pixels: rounder corners than those no picture shows.
constexpr double kWidest = 4096;

// The surface in straight pieces; it breaks off where no picture could take it.
class Straightened {
 public:
  // finest: the pixels of a unit of the surface.
  explicit Straightened(double finest) : finest_(finest) {}

  Outline of(const QPainterPath& surface) {
    for (int i = 0; i < surface.elementCount() && !isFull(); ++i) {
      const QPointF to = surface.elementAt(i);
      switch (surface.elementAt(i).type) {
        case QPainterPath::MoveToElement:
          close();
          outline_.moveTo(begin_ = from_ = to);
          break;
        case QPainterPath::CurveToElement:
          curveTo(to, surface.elementAt(i + 1), surface.elementAt(i + 2));
          i += 2;
          break;
        default:
          lineTo(to);
          break;
      }
    }
    close();
    return std::move(outline_);
  }

 private:
  [[nodiscard]] bool isFull() const { return outline_.segments().size() > limits::kFrameSegments; }
  void lineTo(QPointF to) { outline_.lineTo(from_ = to); }
  void close() {
    if (from_ != begin_) lineTo(begin_);
  }
  void curveTo(QPointF first, QPointF second, QPointF to) {
    constexpr double kMostPieces = 64;
    // The nth part of a cubic deviates from its chord by three quarters of its bend over n squared.
    const QPointF begin = from_;
    const QPointF bendBefore = begin - 2 * first + second;
    const QPointF bendAfter = first - 2 * second + to;
    const double bend = std::max(std::hypot(bendBefore.x(), bendBefore.y()),
                                 std::hypot(bendAfter.x(), bendAfter.y()));
    const int pieces = static_cast<int>(
        std::clamp(std::ceil(std::sqrt(0.75 * bend * finest_ / kFlatness)), 1.0, kMostPieces));
    for (int i = 1; i < pieces; ++i) {
      const double t = double(i) / pieces;
      const double u = 1 - t;
      lineTo(u * u * u * begin + 3 * u * u * t * first + 3 * u * t * t * second + t * t * t * to);
    }
    lineTo(to);
  }

  double finest_;
  Outline outline_;
  QPointF begin_;
  QPointF from_;
};

Outline strokeOf(const StrokeCache::Key& key) {
  QPainterPathStroker stroker;
  stroker.setWidth(key.width);
  stroker.setCapStyle(Qt::RoundCap);
  stroker.setJoinStyle(Qt::RoundJoin);
  QPainterPath line = key.line->toPainterPath();
  if (key.before != std::array<double, 4>{}) {
    const auto& [m11, m12, m21, m22] = key.before;
    line = QTransform(m11, m12, m21, m22, 0, 0).map(line);
  }
  return Straightened(std::min(key.scale, kWidest / key.width)).of(stroker.createStroke(line));
}

}  // namespace

const Outline& StrokeCache::stroke(const Key& key) {
  const auto [place, isNew] = strokes_.try_emplace(key);
  if (isNew) {
    place->second = strokeOf(key);
    segments_ += place->second.segments().size();
  }
  return place->second;
}

void StrokeCache::trim() {
  if (segments_ > kMostSegments) {
    clear();
  }
}

void StrokeCache::clear() {
  strokes_.clear();
  segments_ = 0;
}

}  // namespace platform::flash
