#include <QPainter>
#include <QStyleOptionFrame>
#include <algorithm>
#include <cmath>

#include "platform/forms/colors.h"
#include "platform/forms/controls/text_box_widget.h"
#include "platform/forms/focus_ring.h"
#include "platform/forms/fonts.h"
#include "platform/forms/pictures.h"
#include "platform/forms/text_block.h"

// How a text box looks: its letters and where they stand, its cursor, its edge.
namespace platform::inline forms {

namespace {

constexpr int kSmallest = 9;           // pixels of a font
constexpr int kSideMargin = 6;         // pixels, so that text keeps clear of the focus ring
constexpr double kWidthsOfOthers = 6;  // pixels beside the text that the line edit keeps for itself
constexpr int kBesideCursor = 5;     // how far the line edit's cursor rectangle reaches to its left
constexpr double kCaretWidth = 3;    // pixels
constexpr double kSeen = 3;          // contrast of marks, WCAG 1.4.11
constexpr double kEdgeInset = 7;     // pixels, inside of the focus ring
constexpr double kOpenerSide = 0.5;  // of the box's height
constexpr double kOpenerShare = 0.2;  // of its width, at most
constexpr double kOpenerGap = 0.2;    // of its own side, to the edge and to the text

}  // namespace

void TextBoxWidget::setLook(const QFont& font, Align align, const QColor& ink,
                            const QColor& ground) {
  font_ = font;
  ink_ = ink;
  ground_ = ground;
  const Qt::Alignment across = align == Align::Centre  ? Qt::AlignHCenter
                               : align == Align::Right ? Qt::AlignRight
                                                       : Qt::AlignLeft;
  setAlignment(across | Qt::AlignVCenter);
  QPalette colors = palette();
  colors.setColor(QPalette::Base, ground);
  colors.setColor(QPalette::Text, ink);
  if (colors != palette()) setPalette(colors);
  fitFont();
  update();
}

void TextBoxWidget::setBorder(bool border) {
  border_ = border;
  update();
}

void TextBoxWidget::setOpener(const QString& picture) {
  if (opener_ == picture) return;
  opener_ = picture;
  takePointer();
  fitFont();
  update();
}

void TextBoxWidget::enterEvent(QEnterEvent* event) {
  takePointer();
  QLineEdit::enterEvent(event);
}

// Over a closed box the system's arrow becomes a hand; the program's own pointer is one already.
void TextBoxWidget::takePointer() {
  const bool stillHand = hand_ && cursor().shape() == Qt::PointingHandCursor;
  if (stillHand && ownPointer_) setCursor(*ownPointer_);
  if (stillHand && !ownPointer_) unsetCursor();
  hand_ = isClosed() && cursor().shape() == Qt::ArrowCursor;
  if (!hand_) return;
  ownPointer_ = testAttribute(Qt::WA_SetCursor) ? std::optional(cursor()) : std::nullopt;
  setCursor(Qt::PointingHandCursor);
}

// At the right end, clear of ring and edge.
QRectF TextBoxWidget::openerPlace() const {
  const double side = std::min(height() * kOpenerSide, width() * kOpenerShare);
  const double gap = kEdgeInset * markScale(*this) + side * kOpenerGap;
  return {width() - gap - side, (height() - side) / 2, side, side};
}

void TextBoxWidget::fitFont() {
  const QRectF opener = openerPlace();
  const double taken = isClosed() ? width() - opener.left() + opener.width() * kOpenerGap
                                  : kSideMargin + kWidthsOfOthers / 2;
  const double across = width() - 2 * taken;
  const int down = height() - int(kFocusRingWidth * markScale(*this));
  QFont fitted = font_;
  const auto fits = [&](int pixels) {
    fitted.setPixelSize(pixels);
    return QFontMetricsF(fitted).horizontalAdvance(text_) <= across &&
           inkOf(fitted).height() <= down;
  };
  fitted.setPixelSize(largestThatFits(font_.pixelSize(), kSmallest, fits));
  if (fitted != this->font()) setFont(fitted);
  standOnLine();
}

// The line edit puts the height of its font's lines into the middle; here the ink stands there, as
// in labels, so that what is typed and what is written beside it stand on one line.
void TextBoxWidget::standOnLine() {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  const QFontMetrics metrics(font());
  const int usual = room.top() + (room.height() - metrics.height() + 1) / 2 + metrics.ascent();
  const int down = baseLineIn(rect(), font()) - usual;
  // It centres in what these leave: a negative one makes it larger, so that nothing is cut off.
  setTextMargins(kSideMargin, std::min(0, 2 * down), kSideMargin, std::min(0, -2 * down));
}

void TextBoxWidget::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  fitFont();
}

// The colours are settled, and some are too faint on their ground: the letters are set again with
// an outline, over those that the line edit has painted. While something is selected or composed
// it stays as the line edit paints it.
void TextBoxWidget::paintFaintText() {
  if (!isFaint(ink_, ground_) || text_.isEmpty() || hasSelectedText() || composing_) return;
  const QFontMetricsF metrics(font());
  const QRect cursor = cursorRect();
  const double left =
      cursor.left() + kBesideCursor - metrics.horizontalAdvance(text_.left(cursorPosition()));
  QPainter painter(this);
  painter.setClipRect(rect().adjusted(kSideMargin / 2, 0, -kSideMargin / 2, 0));
  paintReadable(painter, QPointF(left, cursor.top() + metrics.ascent()), font(), text_, ink_,
                ground_);
}

// As tall as a digit and in the blue of the pictures: a line from edge to edge would part the box
// in two. Behind the last of outlined digits it keeps clear of the outline.
void TextBoxWidget::paintCaret() {
  if (!caret_.isSeen()) return;
  const bool behindOutline =
      isFaint(ink_, ground_) && !text_.isEmpty() && cursorPosition() == text_.size();
  const QRectF digit = QFontMetricsF(font()).tightBoundingRect(QStringLiteral("8"));
  const double wide = std::round(kCaretWidth * markScale(*this));
  const double clear = behindOutline ? std::ceil(outlineOf(font())) : 0;
  const QRectF caret(cursorRect().left() + kBesideCursor + clear,
                     std::round(baseLineIn(rect(), font()) + digit.top()), wide,
                     std::round(digit.height()));
  QPainter painter(this);
  painter.fillRect(
      caret, contrast(colors::kCaret, ground_) >= kSeen ? colors::kCaret : readableOn(ground_));
}

// A closed box has a broken edge, and what opens it at its right end.
void TextBoxWidget::paintEdge() {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing, isClosed());
  const double scale = markScale(*this);
  if (hasFocus()) {
    paintFocusRing(painter, *this, 0);
  } else if (border_ && !isClosed()) {
    paintBorder(painter, rect(), markPixels(*this, 1), colors::kEdge);
  }
  if (!isClosed()) return;
  const double inset = (hasFocus() ? kEdgeInset : 1) * scale;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colors::kEdge, 2 * scale, Qt::DashLine, Qt::FlatCap));
  painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
  pictures_.paint(painter, opener_, openerPlace());
}

QRect TextBoxWidget::placeOf(int character) const {
  const QFontMetricsF metrics(font());
  const QRect cursor = cursorRect();
  const double left = cursor.left() + kBesideCursor +
                      metrics.horizontalAdvance(text().left(character)) -
                      metrics.horizontalAdvance(text().left(cursorPosition()));
  const double across = metrics.horizontalAdvance(text().mid(character, 1));
  return QRectF(left, cursor.top(), across, cursor.height()).toRect();
}

void TextBoxWidget::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  paintFaintText();
  paintCaret();
  paintEdge();
}

}  // namespace platform::inline forms
