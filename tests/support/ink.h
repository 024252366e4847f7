#pragma once

#include <QImage>
#include <QRect>
#include <algorithm>
#include <span>

namespace prova {

// The least rectangle that holds every pixel for which inked(QRgb) is true; empty without any.
// picture: of Format_RGB32.
template <class Inked>
QRect inkIn(const QImage& picture, const Inked& inked) {
  QRect ink;
  for (int y = 0; y < picture.height(); ++y) {
    // From both ends: what lies between the first ink of a line and its last is not looked at.
    const std::span<const QRgb> row(reinterpret_cast<const QRgb*>(picture.constScanLine(y)),
                                    std::size_t(picture.width()));
    const auto first = std::find_if(row.begin(), row.end(), inked);
    if (first == row.end()) continue;
    const auto last = std::find_if(row.rbegin(), row.rend(), inked);
    ink |= QRect(QPoint(int(first - row.begin()), y), QPoint(int(row.rend() - last) - 1, y));
  }
  return ink;
}

}  // namespace prova
