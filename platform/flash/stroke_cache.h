#pragma once

#include <array>
#include <compare>
#include <map>

#include "platform/flash/outline.h"

namespace platform::flash {

// The surfaces of lines, with round ends and corners. Making one takes long, so they are kept for
// the next picture.
class StrokeCache {
 public:
  struct Key {
    const Outline* line;
    double width;  // twips, at which the line is to be drawn
    double scale;  // pixels for each twip: how finely the surface has to follow curves
    // A matrix (m11, m12, m21, m22) that the line goes through before it gets its width, and what
    // the surface is told in; all zeros for none.
    std::array<double, 4> before = {};

    auto operator<=>(const Key&) const = default;
  };

  // The surface, in twips where nothing comes before; to be filled by the winding rule.
  [[nodiscard]] const Outline& stroke(const Key& key);
  // Whether the next stroke() of this line is quick.
  [[nodiscard]] bool holds(const Key& key) const { return strokes_.contains(key); }
  // To be called between pictures: forgets everything when it has become too much.
  void trim();
  void clear();

 private:
  std::map<Key, Outline> strokes_;
  std::size_t segments_ = 0;
};

}  // namespace platform::flash
