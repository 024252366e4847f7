#include "platform/forms/controls/panel_widget.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/forms/colors.h"
#include "platform/forms/focus_ring.h"

namespace platform::inline forms {

PanelWidget::PanelWidget(QWidget* parent, bool border) : QWidget(parent), border_(border) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PanelWidget::setGround(const QColor& ground) {
  ground_ = ground;
  update();
}

void PanelWidget::setPicture(const QImage& picture, const QRect& where) {
  picture_ = picture;
  where_ = where;
  update();
}

void PanelWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), ground_);
  if (!picture_.isNull()) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(where_), picture_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  }
  if (border_) paintBorder(painter, rect(), markPixels(*this, 1), colors::kBorder);
}

}  // namespace platform::inline forms
