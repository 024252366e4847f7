#include "platform/forms/controls/button_widget.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <utility>

#include "platform/forms/accessible.h"
#include "platform/forms/controls/color_mix.h"
#include "platform/forms/focus_ring.h"
#include "platform/forms/pictures.h"
#include "platform/forms/press_event.h"

namespace platform {

namespace {

constexpr QColor kPlainFace(238, 240, 244);
constexpr double kCorner = 6;
constexpr double kSunk = 0.09;           // of the shorter side, on each
constexpr double kDisabledInk = 0.45;    // of plain buttons
constexpr double kTriedInk = 0.55;       // of an answer tried in vain
constexpr double kOverlap = 15.0 / 615;  // of a cell's side, under its neighbours
constexpr QColor kPointedEdge(24, 33, 59);
constexpr double kPointedEdgeWidth = 2;
// Below the mouse a face is so much nearer to white: a pale one more, that it is seen, a strong one
// less, that it keeps its colour.
constexpr double kLitPale = 0.5;
constexpr double kLitStrong = 0.22;
constexpr int kPale = 200;       // the lightness from which a face is pale
constexpr double kHeld = 0.06;   // of the way to black: words on it stay as readable
constexpr double kHeldDeep = 2;  // pixels that it sinks where the window is not large

bool isEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

ButtonWidget::ButtonWidget(QWidget* parent, Pictures& pictures, std::function<void()> clicked)
    : QAbstractButton(parent), pictures_(pictures), clicked_(std::move(clicked)) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

void ButtonWidget::setCaption(const QString& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  captionChanged();
  update();
}

int ButtonWidget::fittedCaption() {
  block_.set(caption_, font(), rooms().text.size(), Align::Centre, true);
  return block_.pixelSize();
}

void ButtonWidget::resizeEvent(QResizeEvent* event) {
  QAbstractButton::resizeEvent(event);
  captionChanged();
}

void ButtonWidget::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange) {
    if (isEnabled()) mark_ = AnswerMark::None;
    if (StatesToldLater::holds()) {
      stateUntold_ = !stateUntold_;
      letGo();
      update();
      return;
    }
    stateUntold_ = false;
  }
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::FontChange) captionChanged();
}

void ButtonWidget::setColours(QColor ink, std::optional<QColor> ground) {
  ink_ = ink;
  ground_ = ground;
  update();
}

void ButtonWidget::setMark(AnswerMark mark) {
  mark_ = mark;
  update();
}

void ButtonWidget::setCell(std::optional<Qt::Corner> corner) {
  cell_ = true;
  roundCorner_ = corner;
  update();
}

bool ButtonWidget::event(QEvent* event) {
  if (event->type() != pressEvent()) return QAbstractButton::event(event);
  clicked_();
  return true;
}

void ButtonWidget::setHeld(bool held) {
  if (held == held_) return;
  held_ = held;
  update();
}

void ButtonWidget::letGo() {
  if (isDown()) setDown(false);
  setHeld(false);
}

void ButtonWidget::keyPressEvent(QKeyEvent* event) {
  // A command has no release.
  const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (isEnter(*event)) {
    // Until the release; the click may be the end of this button.
    setHeld(true);
    clicked_();
  } else if (event->key() == Qt::Key_Space && !command) {
    setDown(true);
  } else {
    // Not QAbstractButton's: its arrow keys move among buttons, which no form asks for.
    QWidget::keyPressEvent(event);
  }
}

// Space acts where its release arrives, also when the focus came here after the press.
void ButtonWidget::keyReleaseEvent(QKeyEvent* event) {
  if (isEnter(*event)) setHeld(false);
  if (event->key() != Qt::Key_Space) {
    QWidget::keyReleaseEvent(event);
    return;
  }
  setDown(false);
  clicked_();
}

void ButtonWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) setDown(true);
}

void ButtonWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !isDown()) return;
  setDown(false);
  if (rect().contains(event->position().toPoint())) clicked_();
}

void ButtonWidget::focusInEvent(QFocusEvent* event) {
  if (std::exchange(stateUntold_, false)) {
    QAccessible::State changed;
    changed.disabled = true;
    QAccessibleStateChangeEvent told(this, changed);
    QAccessible::updateAccessibility(&told);
  }
  QAbstractButton::focusInEvent(event);
}

void ButtonWidget::focusOutEvent(QFocusEvent* event) {
  letGo();
  QAbstractButton::focusOutEvent(event);
}

// The picture stands beside the words on a wide button and above them on a square one.
ButtonWidget::Rooms ButtonWidget::rooms() const {
  const double margin = std::max(3.0, std::min(width(), height()) * 0.08);
  const QRectF inner = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
  if (picture_.isEmpty()) return {{}, inner.toRect()};
  if (withoutMnemonic(caption_).trimmed().isEmpty()) return {inner, {}};
  if (width() > height() * 1.5) {
    const double wide =
        std::min(inner.height() * pictures_.proportions(picture_), inner.width() * 0.45);
    const QRectF picture(inner.left(), inner.top(), wide, inner.height());
    return {picture, inner.adjusted(wide + margin, 0, 0, 0).toRect()};
  }
  const double side = inner.height() * 0.58;
  return {QRectF(inner.left(), inner.top(), inner.width(), side),
          inner.adjusted(0, side + margin / 2, 0, 0).toRect()};
}

double ButtonWidget::sinking() const {
  return isHeld() ? std::round(kHeldDeep * markScale(*this)) : 0;
}

QColor ButtonWidget::face() const {
  const QColor face = ground_.value_or(kPlainFace);
  if (isHeld()) return mixed(face, Qt::black, kHeld);
  if (!isPointed()) return face;
  return mixed(face, Qt::white, face.lightness() >= kPale ? kLitPale : kLitStrong);
}

// A button that can be pressed stands up; one that cannot lies flat and small in its place, which
// tells it without colour. A cell keeps its size: a table stays a table.
QRectF ButtonWidget::body() const {
  const double sunk = stands() || cell_ ? 0 : std::min(width(), height()) * kSunk;
  const double edge = 0.5 + sunk;
  return QRectF(rect()).adjusted(edge, edge + (cell_ ? 0 : sinking()), -edge, -edge);
}

QPainterPath ButtonWidget::outlineOf(const QRectF& body, double corner) const {
  QPainterPath path;
  if (cell_ && !roundCorner_) {
    path.addRect(body);
    return path;
  }
  path.addRoundedRect(body, corner, corner);
  if (!cell_) return path;
  // All corners are filled up but the table's own.
  QPainterPath square;
  const double w = body.width() / 2;
  const double h = body.height() / 2;
  const auto fill = [&](Qt::Corner which, double x, double y) {
    if (roundCorner_ != which) square.addRect({body.left() + x, body.top() + y, w, h});
  };
  fill(Qt::TopLeftCorner, 0, 0);
  fill(Qt::TopRightCorner, w, 0);
  fill(Qt::BottomLeftCorner, 0, h);
  fill(Qt::BottomRightCorner, w, h);
  return path.united(square).simplified();
}

QPen ButtonWidget::edge() const {
  if (isPointed() && !cell_) return {kPointedEdge, kPointedEdgeWidth * markScale(*this)};
  return {stands() || cell_ ? QColor(70, 70, 70) : QColor(150, 150, 150), 1};
}

void ButtonWidget::paintFace(QPainter& painter) const {
  const QRectF body = this->body();
  painter.setPen(edge());
  painter.setBrush(face());
  painter.drawPath(outlineOf(body, kCorner));
  if (!stands()) return;
  // A raised edge: light above, shade below. What is held has sunk below its edge.
  painter.save();
  painter.setClipPath(outlineOf(body.adjusted(1, 1, -1, -1), kCorner - 1));
  if (isHeld()) {
    painter.fillRect(QRectF(0, body.top(), width(), 3), QColor(0, 0, 0, 70));
  } else {
    painter.fillRect(QRectF(0, 0, width(), 3), QColor(255, 255, 255, 150));
    painter.fillRect(QRectF(0, height() - 4, width(), 4), QColor(0, 0, 0, 55));
  }
  painter.restore();
}

// Cells lie over one another by a strip; the ring of one stays inside of what all leave it.
void ButtonWidget::paintFocus(QPainter& painter) const {
  const double inset = cell_ ? std::ceil(std::max(width(), height()) * kOverlap) + 1 : 0;
  paintFocusRing(painter, *this, cell_ ? 0 : kCorner, inset);
}

// What a coloured button says stays readable when the button is spent; pictures fade, and so does
// all of a plain one.
void ButtonWidget::paintContent(QPainter& painter) {
  const Rooms room = rooms();
  painter.save();
  painter.translate(0, sinking());
  if (!isEnabled()) painter.setOpacity(kDisabledInk);
  if (!picture_.isEmpty()) pictures_.paint(painter, picture_, room.picture);
  if (ground_) painter.setOpacity(mark_ == AnswerMark::Wrong ? kTriedInk : 1);
  QFont letters = font();
  letters.setPixelSize(sharedSize(letters.pixelSize()));
  block_.set(caption_, letters, room.text.size(), Align::Centre, true);
  block_.paint(painter, room.text, ink_, face());
  painter.restore();
}

void ButtonWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintFace(painter);
  if (hasFocus()) paintFocus(painter);
  paintContent(painter);
  paintAnswerMark(painter, body(), mark_);
}

}  // namespace platform
