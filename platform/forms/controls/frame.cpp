#include "platform/forms/controls/frame.h"

#include <QGroupBox>
#include <QPainter>

#include "platform/forms/colors.h"
#include "platform/forms/focus_ring.h"
#include "platform/forms/fonts.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

constexpr int kIndent = 9;      // of the caption, pixels
constexpr double kFaint = 0.5;  // its outlines are still seen, 3:1

// A QGroupBox for what assistive technology knows of it; the line and the caption are our own, so
// that the controls inside keep their places.
class FrameWidget final : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  void setCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption.trimmed());
    update();
  }
  void setPicture(const QImage& picture, const QRect& where) {
    picture_ = picture;
    where_ = where;
    update();
  }
  void setGround(const QColor& ground) {
    ground_ = ground;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), ground_);
    paintPicture(painter);
    const Ink ink = inkOf(font());
    const int down = int(ink.height() / 2) + 1;
    paintBorder(painter, rect().adjusted(0, down, 0, 0), markPixels(*this, 1), colors::kBorder);
    if (caption_.isEmpty()) return;
    const int most = width() - 2 * kIndent;
    block_.set(caption_, font(), {most, int(ink.height()) + 3}, Align::Left, false);
    const int words = std::min(most, int(block_.size().width()) + 1);
    const QRect room(kIndent, 0, words, int(ink.height()) + 3);
    painter.fillRect(room.adjusted(-3, 0, 3, 0), ground_);
    block_.paint(painter, room, Qt::black, ground_);
  }

 private:
  void paintPicture(QPainter& painter) const {
    if (picture_.isNull()) return;
    painter.setOpacity(kFaint);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(where_), picture_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.setOpacity(1);
  }

  QString caption_;
  QColor ground_ = Qt::white;
  QImage picture_;
  QRect where_;
  TextBlock block_;
};

FrameWidget* frameOf(QWidget* widget) {
  return static_cast<FrameWidget*>(widget);
}

}  // namespace

QWidget* Frame::create(QWidget* parent) {
  return new FrameWidget(parent);
}

void Frame::applyLook() {
  widget()->setFont(fontOf(fontSpec(), fontPixels()));
  frameOf(widget())->setGround(toColor(look().back ? backColor() : home().design().back));
}

void Frame::setPicture(const QImage& picture, const QRect& pixels) {
  if (widget() != nullptr) frameOf(widget())->setPicture(picture, pixels);
}

void Frame::setCaption(const QString& caption) {
  caption_ = caption;
  if (widget() != nullptr) frameOf(widget())->setCaption(caption);
}

}  // namespace platform::inline forms
