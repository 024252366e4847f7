#pragma once

#include <QImage>
#include <QStringList>
#include <utility>

#include "hand_made.h"
#include "platform/flash/player.h"
#include "platform/flash/renderer.h"

// Movies in their course.
namespace running {

// A running movie that keeps what it was told: "command" or "command args".
struct Running {
  explicit Running(const QByteArray& tags, int version = 6, unsigned frames = 1)
      : player(hand_made::movie(hand_made::file(tags, version, 100, 100, frames)),
               [this](const QString& command, const QString& args) {
                 told << (args.isEmpty() ? command : command + u' ' + args);
               }) {}

  QStringList take() { return std::exchange(told, {}); }
  QRgb colorAt(int x, int y) {
    QImage image(100, 100, QImage::Format_RGB32);
    platform::flash::Renderer().paint(player.scene(), QTransform::fromScale(0.05, 0.05), 0xFFFFFFFF,
                                      image);
    return image.pixel(x, y);
  }
  void click(QPointF point) {
    player.mouseMove(point);
    player.mousePress(point);
    player.mouseRelease(point);
  }

  QStringList told;
  platform::flash::Player player;
};

inline QStringList words(const char* text) {
  return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

}  // namespace running
