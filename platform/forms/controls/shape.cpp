#include "platform/forms/controls/shape.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <optional>

#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

class ShapeWidget final : public QWidget {
 public:
  explicit ShapeWidget(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

  void setEdge(int pixels) {
    edge_ = pixels;
    update();
  }

  void setColors(const QColor& ink, std::optional<QColor> ground) {
    ink_ = ink;
    ground_ = ground;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    if (ground_) painter.fillRect(rect(), *ground_);
    painter.setPen(QPen(ink_, edge_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const double half = edge_ / 2.0;
    painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
  }

 private:
  int edge_ = 1;
  QColor ink_;
  std::optional<QColor> ground_;
};

}  // namespace

QWidget* Shape::create(QWidget* parent) {
  return new ShapeWidget(parent);
}

int Shape::edge() const {
  const double grown = scale().grown();
  return std::max(look().borderWidth, qRound(look().borderWidth * grown));
}

void Shape::applyScale() {
  placeChanged();
  applyLook();
}

void Shape::placeChanged() {
  const int outside = edge() / 2;
  widget()->setGeometry(
      scale().pixels(designPlace()).adjusted(-outside, -outside, outside, outside));
  static_cast<ShapeWidget*>(widget())->setEdge(edge());
}

void Shape::applyLook() {
  static_cast<ShapeWidget*>(widget())->setColors(
      toColor(foreColor()), look().back ? std::optional(toColor(backColor())) : std::nullopt);
}

}  // namespace platform::inline forms
