#pragma once

#include <QWidget>

#include "platform/forms/controls/image.h"

namespace platform::inline forms {

class Pictures;

// The widget of an image: a graphic in the accessibility tree.
class ImageWidget final : public QWidget {
  Q_OBJECT

 public:
  ImageWidget(QWidget* parent, Pictures& pictures, QString name)
      : QWidget(parent), pictures_(pictures), name_(std::move(name)) {}

  // part: of the way, 0 to 1; at 1 the picture stands as ever.
  void setPop(Pop how, double part);
  // share: of the shorter side, free on each side.
  void setMargin(double share);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QRectF area() const;
  void paintBurst(QPainter& painter) const;
  void paintShake(QPainter& painter) const;

  Pictures& pictures_;
  QString name_;
  Pop how_ = Pop::Burst;
  double part_ = 1;
  double margin_ = 0;
};

}  // namespace platform::inline forms
