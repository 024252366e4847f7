#include "platform/flash/shape.h"

namespace platform::flash {

namespace {

// So far on the way, 0 to 1, from one colour to another.
QRgb mixed(QRgb from, QRgb to, double way) {
  const auto channel = [way](int begin, int end) {
    return static_cast<int>(begin + way * (end - begin) + 0.5);
  };
  return qRgba(channel(qRed(from), qRed(to)), channel(qGreen(from), qGreen(to)),
               channel(qBlue(from), qBlue(to)), channel(qAlpha(from), qAlpha(to)));
}

}  // namespace

std::vector<QRgb> Gradient::table() const {
  constexpr int kRatios = 256;
  std::vector<QRgb> colors(kRatios, stops.empty() ? 0 : stops.front().color);
  std::size_t next = 0;
  for (int ratio = 0; ratio < kRatios && !stops.empty(); ++ratio) {
    while (next < stops.size() && stops[next].ratio <= ratio) {
      ++next;
    }
    if (next == stops.size()) {
      colors[std::size_t(ratio)] = stops.back().color;
    } else if (next > 0) {
      const Stop& last = stops[next - 1];
      const double way = double(ratio - last.ratio) / (stops[next].ratio - last.ratio);
      colors[std::size_t(ratio)] = mixed(last.color, stops[next].color, way);
    }
  }
  return colors;
}

}  // namespace platform::flash
