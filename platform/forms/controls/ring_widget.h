#pragma once

#include <QWidget>

namespace platform::inline forms {

// A thick ring round one thing among several, which tells it from the others without colour: dark,
// with a light edge on either side, so that it stands out on a ground of any colour. It lies over
// its surroundings and lets the mouse through.
class RingWidget final : public QWidget {
  Q_OBJECT

 public:
  explicit RingWidget(QWidget* parent);

  // How far the ring round something of this side reaches out of it, in pixels.
  [[nodiscard]] static int reach(int side);
  // Puts the ring round an area of the parent; it reaches into the area, too.
  void surround(const QRect& area);
  // Puts the ring round a sibling while that has the focus, wherever it goes.
  void follow(QWidget& sibling);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int thickness_ = 0;  // of the dark ring, in pixels
};

}  // namespace platform::inline forms
