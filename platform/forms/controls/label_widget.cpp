#include "platform/forms/controls/label_widget.h"

#include <QEvent>
#include <QPainter>
#include <cmath>

#include "platform/forms/colors.h"
#include "platform/forms/controls/color_mix.h"
#include "platform/forms/focus_ring.h"

namespace platform::inline forms {

namespace {

// The light is warm, and an edge in the dark of the pictures' outlines says it where colours do
// not.
constexpr double kEdgeWidth = 3;
constexpr double kBorder = 1;

}  // namespace

LabelWidget::LabelWidget(QWidget* parent, Align align, bool border, bool mnemonic)
    : QLabel(parent), align_(align), border_(border), mnemonic_(mnemonic) {
  setTextFormat(Qt::PlainText);
}

void LabelWidget::setWords(const QString& words) {
  setText(words);
  captionChanged();
}

void LabelWidget::setColors(QColor ink, std::optional<QColor> ground, QColor behind) {
  ink_ = ink;
  ground_ = ground;
  behind_ = behind;
  setAttribute(Qt::WA_OpaquePaintEvent, ground.has_value());
  update();
}

void LabelWidget::setGlow(double strength) {
  if (glow_ == strength) return;
  glow_ = strength;
  update();
}

void LabelWidget::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  captionChanged();
}

void LabelWidget::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) captionChanged();
}

// Words at the side of a coloured ground keep clear of its edge.
QRect LabelWidget::room() const {
  const int margin = border_ ? markPixels(*this, kBorder) + 1 : 0;
  const int side = ground_ && align_ != Align::Centre ? margin + font().pixelSize() / 3 : margin;
  return rect().adjusted(side, margin, -side, -margin);
}

void LabelWidget::layOut(const QFont& letters, QSize room) {
  if (laidText_ == text() && laidFont_ == letters && laidRoom_ == room) return;
  laidText_ = text();
  laidFont_ = letters;
  laidRoom_ = room;
  block_.set(laidText_, letters, room, align_, mnemonic_);
}

int LabelWidget::fittedCaption() {
  layOut(font(), room().size());
  return block_.pixelSize();
}

// It fades by way of white: straight from the light to a blue ground it would turn green.
QColor LabelWidget::litGround() const {
  const QColor ground = ground_.value_or(behind_);
  return glow_ > 0.5 ? mixed(Qt::white, colors::kGlow, glow_ * 2 - 1)
                     : mixed(ground, Qt::white, glow_ * 2);
}

void LabelWidget::paintGlow(QPainter& painter) const {
  painter.fillRect(rect(), litGround());
  painter.setOpacity(glow_);
  paintBorder(painter, rect(), markPixels(*this, kEdgeWidth), colors::kInk);
  painter.setOpacity(1);
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (ground_) painter.fillRect(rect(), *ground_);
  if (border_ && width() > 1) paintBorder(painter, rect(), markPixels(*this, kBorder), Qt::black);
  if (glow_ > 0) paintGlow(painter);
  QFont letters = font();
  letters.setPixelSize(sharedSize(letters.pixelSize()));
  layOut(letters, room().size());
  block_.paint(painter, room(), ink_, litGround());
}

}  // namespace platform::inline forms
