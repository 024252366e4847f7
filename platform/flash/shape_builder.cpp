#include "platform/flash/shape_builder.h"

#include <algorithm>
#include <utility>

#include "platform/flash/movie_error.h"
#include "platform/flash/units.h"

namespace platform::flash {

ShapeBuilder::Point ShapeBuilder::checked(std::int64_t x, std::int64_t y) {
  if (x < -kFarthestTwip || x > kFarthestTwip || y < -kFarthestTwip || y > kFarthestTwip) {
    throw MovieError("an edge leads too far away", 0);
  }
  return {static_cast<std::int32_t>(x), static_cast<std::int32_t>(y)};
}

void ShapeBuilder::newStyles(std::vector<Paint> fills, std::vector<LineStyle> lines) {
  endLayer();
  allowance_.spend((fills.size() + lines.size()) * (sizeof(LineStyle) + sizeof(Edges)));
  fills_ = std::move(fills);
  lines_ = std::move(lines);
  fillEdges_.assign(fills_.size(), {});
  lineEdges_.assign(lines_.size(), {});
  fill0_ = 0;
  fill1_ = 0;
  line_ = 0;
}

void ShapeBuilder::moveTo(std::int64_t x, std::int64_t y) {
  at_ = checked(x, y);
}

void ShapeBuilder::lineBy(std::int64_t dx, std::int64_t dy) {
  const Point to = checked(at_.x + dx, at_.y + dy);
  add({at_, {}, to, false});
}

void ShapeBuilder::curveBy(std::int64_t controlDx, std::int64_t controlDy, std::int64_t dx,
                           std::int64_t dy) {
  const Point control = checked(at_.x + controlDx, at_.y + controlDy);
  const Point to = checked(control.x + dx, control.y + dy);
  add({at_, control, to, true});
}

void ShapeBuilder::add(const Edge& edge) {
  at_ = edge.to;
  const auto keep = [&](std::vector<Edges>& lists, std::uint32_t index, const Edge& kept) {
    if (index >= 1 && index <= lists.size()) {
      allowance_.spend(sizeof(Edge) + sizeof(Outline::Segment));
      lists[index - 1].push_back(kept);
    }
  };
  // The same fill on both sides makes no border.
  if (fill0_ != fill1_) {
    keep(fillEdges_, fill0_, edge.reversed());
    keep(fillEdges_, fill1_, edge);
  }
  keep(lineEdges_, line_, edge);
}

// Edges by the point that they start from, to be taken one by one. They are sorted: a table could
// be made slow by a file that knows how it works.
class ShapeBuilder::EdgesByStart {
 public:
  static constexpr std::size_t kNone = SIZE_MAX;

  explicit EdgesByStart(const Edges& edges) : heads_(edges.size()), used_(edges.size(), false) {
    starts_.reserve(edges.size());
    for (std::size_t i = 0; i < edges.size(); ++i) {
      starts_.push_back({key(edges[i].from), static_cast<std::uint32_t>(i)});
      heads_[i] = static_cast<std::uint32_t>(i);
    }
    std::sort(starts_.begin(), starts_.end());
  }

  [[nodiscard]] bool isUsed(std::size_t edge) const { return used_[edge]; }
  void use(std::size_t edge) { used_[edge] = true; }
  // An edge from there that is not used yet, or none.
  std::size_t from(Point point) {
    const std::uint64_t sought = key(point);
    const auto first = std::lower_bound(starts_.begin(), starts_.end(), Start{sought, 0});
    if (first == starts_.end() || first->key != sought) {
      return kNone;
    }
    std::uint32_t& head = heads_[static_cast<std::size_t>(first - starts_.begin())];
    while (head < starts_.size() && starts_[head].key == sought && used_[starts_[head].edge]) {
      ++head;
    }
    return head < starts_.size() && starts_[head].key == sought ? starts_[head].edge : kNone;
  }

 private:
  static std::uint64_t key(Point point) {
    return (std::uint64_t(std::uint32_t(point.x)) << 32U) | std::uint32_t(point.y);
  }

  struct Start {
    std::uint64_t key;
    std::uint32_t edge;

    auto operator<=>(const Start&) const = default;
  };
  std::vector<Start> starts_;
  // For the first edge of each point, the first of them that may not yet be used, by its place.
  std::vector<std::uint32_t> heads_;
  std::vector<bool> used_;
};

void ShapeBuilder::append(Outline& outline, const Edge& edge) {
  const QPointF to(edge.to.x, edge.to.y);
  if (edge.curved) {
    outline.curveTo(QPointF(edge.control.x, edge.control.y), to);
  } else {
    outline.lineTo(to);
  }
}

// Joins edges end to start into closed contours. A contour that finds no further edge is closed by
// a straight line, so that an odd file fills something instead of leaking to the border.
Outline ShapeBuilder::linked(const Edges& edges) {
  EdgesByStart byStart(edges);
  Outline outline;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    if (byStart.isUsed(i)) {
      continue;
    }
    const Point start = edges[i].from;
    outline.moveTo(QPointF(start.x, start.y));
    Point end = start;
    for (std::size_t at = i; at != EdgesByStart::kNone;) {
      byStart.use(at);
      append(outline, edges[at]);
      end = edges[at].to;
      at = end == start ? EdgesByStart::kNone : byStart.from(end);
    }
    if (!(end == start)) {
      outline.lineTo(QPointF(start.x, start.y));
    }
  }
  return outline;
}

Outline ShapeBuilder::inOrder(const Edges& edges) {
  Outline outline;
  const Edge* last = nullptr;
  for (const Edge& edge : edges) {
    if (last == nullptr || !(last->to == edge.from)) {
      outline.moveTo(QPointF(edge.from.x, edge.from.y));
    }
    append(outline, edge);
    last = &edge;
  }
  return outline;
}

void ShapeBuilder::endLayer() {
  for (std::size_t i = 0; i < fills_.size(); ++i) {
    if (fillEdges_[i].empty() || fills_[i].kind == Paint::Kind::Nothing) {
      continue;
    }
    ShapePart part{linked(fillEdges_[i]), std::move(fills_[i]), false, 0, {}};
    part.bounds = part.outline.bounds();
    shape_.parts.push_back(std::move(part));
  }
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (lineEdges_[i].empty() || lines_[i].paint.kind == Paint::Kind::Nothing) {
      continue;
    }
    ShapePart part{inOrder(lineEdges_[i]), std::move(lines_[i].paint), true, lines_[i].width, {}};
    const double half = part.lineWidth / 2.0;
    part.bounds = part.outline.bounds().adjusted(-half, -half, half, half);
    shape_.parts.push_back(std::move(part));
  }
  fills_.clear();
  lines_.clear();
  fillEdges_.clear();
  lineEdges_.clear();
}

Shape ShapeBuilder::take() {
  endLayer();
  return std::move(shape_);
}

}  // namespace platform::flash
