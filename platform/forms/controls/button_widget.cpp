#include "platform/forms/controls/button_widget.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <utility>

#include "platform/forms/accessible.h"
#include "platform/forms/colors.h"
#include "platform/forms/controls/button_face.h"
#include "platform/forms/focus_ring.h"
#include "platform/forms/keys/key_codes.h"
#include "platform/forms/pictures.h"
#include "platform/forms/press_event.h"

namespace platform::inline forms {

namespace {

constexpr double kSunk = 0.09;           // of the shorter side, on each
constexpr double kDisabledInk = 0.45;    // of plain buttons
constexpr double kTriedInk = 0.55;       // of an answer tried in vain
constexpr double kOverlap = 15.0 / 615;  // of a cell's side, under its neighbours

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
  block_.set(caption_, font(), rooms(0).text.size(), Align::Centre, true);
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

void ButtonWidget::setColors(QColor ink, std::optional<QColor> ground) {
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
  if (isEnter(event->key())) {
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
  if (isEnter(event->key())) setHeld(false);
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

// How far a button that lies flat is smaller than its place, on each side.
double ButtonWidget::flatBy() const {
  return stands() || cell_ ? 0 : std::min(width(), height()) * kSunk;
}

// The picture stands beside the words on a wide button and above them on a square one. On one that
// lies flat, too, both keep clear of the edge.
ButtonWidget::Rooms ButtonWidget::rooms(double flat) const {
  const double margin = std::max(3.0, std::min(width(), height()) * 0.08);
  const double inset = flat > 0 ? flat + margin * 0.75 : margin;
  const double between = flat > 0 ? margin / 2 : margin;
  const QRectF inner = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
  if (picture_.isEmpty()) return {{}, inner.toRect()};
  if (withoutMnemonic(caption_).trimmed().isEmpty()) return {inner, {}};
  if (width() > height() * 1.5) {
    const double wide =
        std::min(inner.height() * pictures_.proportions(picture_), inner.width() * 0.45);
    const QRectF picture(inner.left(), inner.top(), wide, inner.height());
    return {picture, inner.adjusted(wide + between, 0, 0, 0).toRect()};
  }
  const double side = inner.height() * 0.58;
  return {QRectF(inner.left(), inner.top(), inner.width(), side),
          inner.adjusted(0, side + margin / 2, 0, 0).toRect()};
}

// A button that can be pressed stands up; one that cannot lies flat and small in its place, which
// tells it without colour. A cell keeps its size: a table stays a table.
QRectF ButtonWidget::body() const {
  const double edge = buttonEdge(*this) / 2 + flatBy();
  const double down = cell_ ? 0 : buttonSinking(*this, isHeld());
  return QRectF(rect()).adjusted(edge, edge + down, -edge, -edge);
}

QPainterPath ButtonWidget::outline(double inset) const {
  const QRectF body = this->body().adjusted(inset, inset, -inset, -inset);
  QPainterPath path;
  if (cell_ && !roundCorner_) {
    path.addRect(body);
    return path;
  }
  path = buttonOutline(*this, this->body(), inset);
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

ButtonFace ButtonWidget::face() const {
  return {.color = ground_.value_or(colors::kFace),
          .stands = stands(),
          .strong = stands() || cell_,
          .pointed = isPointed(),
          .litEdge = !cell_,
          .held = isHeld()};
}

void ButtonWidget::paintFace(QPainter& painter) const {
  paintButtonFace(painter, *this, face(), outline(), outline(buttonEdge(*this)));
}

// Cells lie over one another by a strip; the ring of one stays inside of what all leave it.
void ButtonWidget::paintFocus(QPainter& painter) const {
  const double inset = cell_ ? std::ceil(std::max(width(), height()) * kOverlap) + 1 : 0;
  paintFocusRing(painter, *this, cell_ ? 0 : buttonCorner(*this), inset);
}

// What a coloured button says stays readable when the button is spent; pictures fade, and so does
// all of a plain one.
void ButtonWidget::paintContent(QPainter& painter) {
  const Rooms room = rooms(flatBy());
  painter.save();
  painter.translate(0, buttonSinking(*this, isHeld()));
  if (!isEnabled()) painter.setOpacity(kDisabledInk);
  if (!picture_.isEmpty()) pictures_.paint(painter, picture_, room.picture);
  if (ground_) painter.setOpacity(mark_ == AnswerMark::Wrong ? kTriedInk : 1);
  QFont letters = font();
  letters.setPixelSize(sharedSize(letters.pixelSize()));
  block_.set(caption_, letters, room.text.size(), Align::Centre, true);
  block_.paint(painter, room.text, ink_, buttonColor(face()));
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

}  // namespace platform::inline forms
