#include "platform/forms/controls/image_widget.h"

#include <QPainter>

#include "platform/forms/pictures.h"

namespace platform {

void ImageWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  pictures_.paint(painter, name_, rect());
}

}  // namespace platform
