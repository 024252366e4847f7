#pragma once

#include <cstdint>
#include <vector>

#include "platform/flash/allowance.h"
#include "platform/flash/shape.h"

namespace platform::flash {

// Makes outlines of the edges of a shape. The format knows no outlines: each edge says which fill
// lies on its either side and which line runs along it, so that two fills share the edge between
// them, and the edges of one fill may come in any order and direction.
class ShapeBuilder {
 public:
  explicit ShapeBuilder(Allowance& allowance) : allowance_(allowance) {}

  // Ends what was drawn with the styles so far and begins a layer above it.
  void newStyles(std::vector<Paint> fills, std::vector<LineStyle> lines);
  // The styles of the edges from here, counted from 1 in their lists; 0 is none, and so is a number
  // outside the list. Seen along the edge, fill0 lies on the left, fill1 on the right.
  void setFill0(std::uint32_t index) { fill0_ = index; }
  void setFill1(std::uint32_t index) { fill1_ = index; }
  void setLine(std::uint32_t index) { line_ = index; }

  // Positions in twips. They throw MovieError far outside of anything that can be drawn.
  void moveTo(std::int64_t x, std::int64_t y);
  void lineBy(std::int64_t dx, std::int64_t dy);
  void curveBy(std::int64_t controlDx, std::int64_t controlDy, std::int64_t dx, std::int64_t dy);

  // Ends the last layer and gives the whole.
  [[nodiscard]] Shape take();

 private:
  struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const Point&) const = default;
  };
  // One edge as seen with its fill on the right, or in the direction that it was drawn in.
  struct Edge {
    Point from, control, to;
    bool curved = false;

    [[nodiscard]] Edge reversed() const { return {to, control, from, curved}; }
  };
  using Edges = std::vector<Edge>;

  static Point checked(std::int64_t x, std::int64_t y);
  void add(const Edge& edge);
  void endLayer();
  class EdgesByStart;
  static void append(Outline& outline, const Edge& edge);
  static Outline linked(const Edges& edges);
  static Outline inOrder(const Edges& edges);

  Allowance& allowance_;
  std::vector<Paint> fills_;
  std::vector<LineStyle> lines_;
  std::vector<Edges> fillEdges_;  // for each fill of the layer
  std::vector<Edges> lineEdges_;
  std::uint32_t fill0_ = 0;
  std::uint32_t fill1_ = 0;
  std::uint32_t line_ = 0;
  Point at_;
  Shape shape_;
};

}  // namespace platform::flash
