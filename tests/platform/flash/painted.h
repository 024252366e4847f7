#pragma once

#include <QImage>
#include <QTest>
#include <cmath>

#include "hand_made.h"
#include "platform/flash/player.h"
#include "platform/flash/renderer.h"

// Movies as pictures, and what the tests of painting put into them.
namespace painted {

using namespace hand_made;
using platform::flash::Player;
using platform::flash::Renderer;

inline constexpr QRgb kWhite = 0xFFFFFFFF;

// The stage of a movie at a scale, 1 being its own size.
inline QImage picture(const Player& player, double scale = 1) {
  const QRectF stage = player.movie().stage;
  QImage image(QSizeF(stage.size() * scale / 20).toSize(), QImage::Format_RGB32);
  Renderer().paint(player.scene(), QTransform::fromScale(scale / 20, scale / 20),
                   player.movie().background, image);
  return image;
}

inline QImage picture(const QByteArray& tags, double scale = 1, int version = 6) {
  return picture(Player(movie(file(tags, version, 20, 20)), [](auto&&...) {}), scale);
}

// Channel by channel, by no more than allowed.
inline bool isNear(QRgb actual, QRgb expected, int allowed = 2) {
  return std::abs(qRed(actual) - qRed(expected)) <= allowed &&
         std::abs(qGreen(actual) - qGreen(expected)) <= allowed &&
         std::abs(qBlue(actual) - qBlue(expected)) <= allowed;
}

#define COMPARE_COLOR(image, x, y, expected)      \
  QVERIFY2(isNear((image).pixel(x, y), expected), \
           qPrintable(QString::number((image).pixel(x, y), 16)))

// A DefineShape of version 3 (tag 32) or below: styles as bytes, records as bits.
inline QByteArray shape(unsigned code, const QByteArray& styles, const Bits& records) {
  return tag(code, u16(1) + rect(0, 400, 0, 400) + styles + records.bytes());
}

inline QByteArray shown(const QByteArray& definition) {
  return definition + place(1, 1) + showFrame();
}

inline QByteArray solid(unsigned rgb) {
  return u8(0) + u8(rgb >> 16U) + u8((rgb >> 8U) & 255U) + u8(rgb & 255U);
}

// An edge of the given distance.
inline Bits& edge(Bits& bits, int dx, int dy) {
  return bits.raw("1 1 1111 1").number(17, dx).number(17, dy);
}

// Choose styles (two bits each for both fills, one for the line) and move.
inline Bits& begin(Bits& bits, int fill0, int fill1, int line, int x, int y) {
  return bits.raw("0 01111 10001")
      .number(17, x)
      .number(17, y)
      .number(2, fill0)
      .number(2, fill1)
      .number(1, line);
}

// A gradient square laid over the 20 pixels of the stage: 400 twips are 32768 units.
inline QByteArray gradientMatrix() {
  // Scales of 400 / 32768 as 16.16 in 12 bits: 800; shifted by half the stage.
  return Bits()
      .raw("1 01100")
      .number(12, 800)
      .number(12, 800)
      .raw("0 01010")
      .number(10, 200)
      .number(10, 200)
      .bytes();
}

}  // namespace painted
