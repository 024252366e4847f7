#pragma once

#include <QAbstractSlider>
#include <functional>
#include <memory>

#include "platform/base/time_source.h"

namespace platform::inline forms {

// The widget of a spinner: two arrows side by side, each as high as the box that they work on. To
// assistive technology it is something with a value.
class UpDownWidget final : public QAbstractSlider {
  Q_OBJECT

 public:
  struct Hooks {
    std::function<void(int by)> step;       // +1 or -1, again and again while an arrow is held
    std::function<void(int value)> moveTo;  // from assistive technology
  };
  UpDownWidget(QWidget* parent, TimeSource& time, Hooks hooks);
  ~UpDownWidget() override;

  void setLimits(int lowest, int highest);
  // Tells the value that the box has now.
  void show(int value);
  using QWidget::show;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void sliderChange(SliderChange change) override;

 private:
  void paintArrow(QPainter& painter, const QRect& room, bool up) const;
  void letGo();
  void repeat();

  Hooks hooks_;
  std::unique_ptr<Ticker> ticker_;
  int held_ = 0;  // +1 or -1 while an arrow is held
  bool telling_ = false;
};

}  // namespace platform::inline forms
