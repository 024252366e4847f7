#include "platform/forms/controls/picture_box.h"

#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

#include "platform/forms/form.h"
#include "platform/forms/text_block.h"

namespace platform {

namespace {

class PanelWidget final : public QWidget {
 public:
  PanelWidget(QWidget* parent, bool border) : QWidget(parent), border_(border) {
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  void setGround(const QColor& ground) {
    ground_ = ground;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.fillRect(event->rect(), ground_);
    if (!border_) return;
    painter.setPen(QColor(110, 110, 110));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  bool border_;
  QColor ground_ = Qt::white;
};

}  // namespace

QWidget* PictureBox::create(QWidget* parent) {
  return new PanelWidget(parent, look().border);
}

void PictureBox::applyLook() {
  auto* panel = static_cast<PanelWidget*>(widget());
  panel->setGround(toColor(backColor()));
  panel->setAccessibleName(toolTip());
}

void PictureBox::cover() {
  form().cover(*this);
}

void PictureBox::setVisible(bool visible) {
  Control::setVisible(visible);
  if (!visible) form().uncover(*this);
}

}  // namespace platform
