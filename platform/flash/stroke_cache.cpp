#include "platform/flash/stroke_cache.h"

#include <QPainterPathStroker>
#include <QPolygonF>
#include <QTransform>
#include <algorithm>

namespace platform::flash {

namespace {

constexpr std::size_t mostSegments = 200'000;

// Qt follows curves to half a unit; in this unit that is a quarter of a pixel at the very most.
constexpr double fineness = 2;
// The widest line in such units: rounder corners than those no picture shows.
constexpr double finest = 8192;

Outline strokeOf(const StrokeCache::Key& key) {
  QPainterPathStroker stroker;
  stroker.setWidth(key.width);
  stroker.setCapStyle(Qt::RoundCap);
  stroker.setJoinStyle(Qt::RoundJoin);
  const double unit = std::min(key.scale * fineness, finest / key.width);
  QPainterPath line = key.line->toPainterPath();
  if (key.before != std::array<double, 4>{}) {
    const auto& [m11, m12, m21, m22] = key.before;
    line = QTransform(m11, m12, m21, m22, 0, 0).map(line);
  }
  const QPainterPath surface = stroker.createStroke(line);
  Outline outline;
  for (const QPolygonF& polygon : surface.toSubpathPolygons(QTransform::fromScale(unit, unit))) {
    if (polygon.isEmpty()) {
      continue;
    }
    outline.moveTo(polygon.front() / unit);
    for (qsizetype i = 1; i < polygon.size(); ++i) {
      outline.lineTo(polygon[i] / unit);
    }
    outline.lineTo(polygon.front() / unit);
  }
  return outline;
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
  if (segments_ > mostSegments) {
    clear();
  }
}

void StrokeCache::clear() {
  strokes_.clear();
  segments_ = 0;
}

}  // namespace platform::flash
