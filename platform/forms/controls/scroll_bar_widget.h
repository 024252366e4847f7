#pragma once

#include <QSlider>
#include <functional>

namespace platform::inline forms {

// The widget of a scroll bar. A QSlider for its keys, its wheel and what assistive technology knows
// of it; painted and worked by mouse in its own way, with parts as large as its place allows.
class ScrollBarWidget final : public QSlider {
  Q_OBJECT

 public:
  // unit: what one of the value is to assistive technology. mayAct: whether what that enters acts
  // now.
  ScrollBarWidget(QWidget* parent, double unit, std::function<bool()> mayAct);

  [[nodiscard]] double unit() const { return unit_; }
  // A value that assistive technology enters.
  void enter(int value) {
    if (mayAct_()) setValue(value);
  }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  [[nodiscard]] QRect lessArrow() const;
  [[nodiscard]] QRect moreArrow() const;
  [[nodiscard]] QRect way() const;
  [[nodiscard]] QRect thumb() const;
  // The value whose thumb begins at x.
  [[nodiscard]] int valueAt(int x) const;
  [[nodiscard]] double corner() const;
  void paintArrow(QPainter& painter, const QRect& place, bool towardsMore) const;
  void paintThumb(QPainter& painter) const;
  void letGo();

  double unit_;
  std::function<bool()> mayAct_;
  static constexpr int kNoGrip = -1;
  int grip_ = kNoGrip;  // where the thumb is held, pixels from its left edge
};

}  // namespace platform::inline forms
