#include "platform/forms/text_block.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "platform/forms/fonts.h"

namespace platform::inline forms {

namespace {

constexpr int kSmallest = 6;           // pixels
constexpr double kReadable = 4.5;      // contrast of text, WCAG 1.4.3
constexpr double kLineGap = 0.25;      // between the ink of two lines, of the pixel size
constexpr double kNextSmaller = 0.92;  // of a size that does not fit
constexpr qsizetype kLong = 1000;      // characters of a text that is not set in every size in turn

double luminance(const QColor& color) {
  const auto linear = [](double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

struct Mnemonic {
  QString text;
  int at = -1;
};

Mnemonic readMnemonic(const QString& caption) {
  Mnemonic result;
  result.text.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && i + 1 < caption.size()) {
      ++i;
      if (caption[i] != u'&' && result.at < 0) result.at = static_cast<int>(result.text.size());
    }
    result.text += caption[i];
  }
  return result;
}

// Whether a text may go into the room in letters of this size, by its length alone: a size that
// surely is too large is not tried, since to set tens of thousands of letters takes a while.
// length: on one line, in pixel sizes.
bool mayFit(double length, int pixels, QSize room) {
  constexpr double kSurely = 0.7;  // letters are rounded to pixels, small ones the most
  constexpr double kNarrow = 0.8;  // no two lines are closer, in pixel sizes
  if (pixels <= kSmallest) return true;
  const double lines = 1 + room.height() / (kNarrow * pixels);
  return kSurely * length * pixels <= lines * room.width();
}

// The text with its line ends, where no line begins with a number: "up to / 10" reads as two
// things. As long as the text.
QString forLines(QString text) {
  text.replace(u'\n', QChar::LineSeparator);
  for (qsizetype i = 1; i < text.size(); ++i) {
    if (text[i - 1] == u' ' && text[i].isDigit()) text[i - 1] = QChar::Nbsp;
  }
  return text;
}

// The height that the letters of a text of several lines can take. Room for accents over capitals
// is left only where there are some: else lines of small letters would be set far apart.
Ink inkOfLines(const QString& text, const QFont& font) {
  const bool tall = std::any_of(text.begin(), text.end(), [](QChar letter) {
    return letter.unicode() > 0x7F && !letter.isLower();
  });
  if (tall) return inkOf(font);
  const QRectF ink = QFontMetricsF(font).tightBoundingRect(QStringLiteral("bdfklàñöü(|gjpqyç"));
  return {-ink.top(), ink.bottom()};
}

}  // namespace

double contrast(const QColor& a, const QColor& b) {
  const double la = luminance(a);
  const double lb = luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor readableOn(const QColor& ground) {
  return contrast(ground, Qt::black) >= contrast(ground, Qt::white) ? Qt::black : Qt::white;
}

bool isFaint(const QColor& ink, const QColor& ground) {
  return contrast(ink, ground) < kReadable;
}

double outlineOf(const QFont& font) {
  return std::max(2.0, font.pixelSize() / 9.0);
}

void paintReadable(QPainter& painter, QPointF baseLine, const QFont& font, const QString& text,
                   const QColor& ink, const QColor& ground) {
  if (!isFaint(ink, ground)) {
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(baseLine, text);
    return;
  }
  QPainterPath path;
  path.addText(baseLine, font, text);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.strokePath(
      path, QPen(readableOn(ground), outlineOf(font), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(path, ink);
  painter.restore();
}

QColor toColor(Rgb rgb) {
  return {rgb.red, rgb.green, rgb.blue};
}

QString withoutMnemonic(const QString& caption) {
  return readMnemonic(caption).text;
}

QChar accessKeyOf(const QString& caption) {
  const Mnemonic mnemonic = readMnemonic(caption);
  return mnemonic.at < 0 ? QChar() : mnemonic.text[mnemonic.at].toUpper();
}

void TextBlock::set(const QString& text, const QFont& font, QSize room, Align align,
                    bool mnemonic) {
  Mnemonic read = mnemonic ? readMnemonic(text) : Mnemonic{text, -1};
  text_ = std::move(read.text);
  mnemonic_ = read.at;
  wanted_ = font;
  room_ = room;
  align_ = align;
  fit();
}

void TextBlock::fit() {
  font_ = wanted_;
  layout_.reset();
  width_ = height_ = 0;
  if (text_.trimmed().isEmpty() || room_.isEmpty()) return;
  const bool isLong = text_.size() >= kLong;
  const double length =
      isLong ? QFontMetricsF(wanted_).horizontalAdvance(text_) / wanted_.pixelSize() : 0;
  while (!(mayFit(length, font_.pixelSize(), room_) && layOut()) && font_.pixelSize() > kSmallest) {
    font_.setPixelSize(std::max(
        kSmallest, std::min(font_.pixelSize() - 1, int(font_.pixelSize() * kNextSmaller))));
  }
}

// Lays the text out in the present size; false when it is larger than the room.
bool TextBlock::layOut() {
  const QFontMetricsF metrics(font_);
  margin_ = outlined_ ? outlineOf(font_) / 2 : 0;
  const double widest = room_.width() - 2 * margin_;
  const double highest = room_.height() - 2 * margin_;
  Ink ink = inkOf(font_);
  above_ = ink.above;
  layout_.reset();
  width_ = metrics.horizontalAdvance(text_);
  height_ = ink.height();
  if (width_ <= widest && !text_.contains(u'\n')) return height_ <= highest;

  ink = inkOfLines(text_, font_);
  above_ = ink.above;
  lineHeight_ = ink.height() + font_.pixelSize() * kLineGap;
  layout_ = std::make_unique<QTextLayout>(forLines(text_), font_);
  QTextOption option;
  option.setWrapMode(QTextOption::WordWrap);
  layout_->setTextOption(option);
  layout_->beginLayout();
  width_ = 0;
  int count = 0;
  // What lies a line below the room is not seen.
  while (count * lineHeight_ <= highest + lineHeight_) {
    QTextLine line = layout_->createLine();
    if (!line.isValid()) break;
    line.setLineWidth(widest);
    width_ = std::max(width_, line.naturalTextWidth());
    ++count;
  }
  layout_->endLayout();
  height_ = count * lineHeight_ - font_.pixelSize() * kLineGap;
  return width_ <= widest && height_ <= highest;
}

void TextBlock::paint(QPainter& painter, const QRect& area, const QColor& ink,
                      const QColor& ground) {
  if (height_ <= 0) return;
  const bool faint = isFaint(ink, ground);
  // To draw round the letters of a very long text takes minutes; it is set in black or white.
  const bool outlined = faint && text_.size() < kLong;
  const QColor letters = faint && !outlined ? readableOn(ground) : ink;
  if (outlined != outlined_) {
    outlined_ = outlined;
    fit();
  }
  const QFontMetricsF metrics(font_);
  double baseLine =
      layout_ ? area.top() + (area.height() - height_) / 2 + above_ : baseLineIn(area, font_);
  const int lines = layout_ ? layout_->lineCount() : 1;
  for (int i = 0; i < lines; ++i, baseLine += lineHeight_) {
    int first = 0;
    QString part = text_;
    if (layout_) {
      const QTextLine line = layout_->lineAt(i);
      first = line.textStart();
      part = text_.mid(first, line.textLength());
      while (part.endsWith(u' ') || part.endsWith(u'\n')) part.chop(1);
    }
    const double width = metrics.horizontalAdvance(part);
    double left = area.left() + margin_;
    if (align_ == Align::Centre) left = area.left() + (area.width() - width) / 2;
    if (align_ == Align::Right) left = area.left() + area.width() - margin_ - width;
    paintReadable(painter, QPointF(left, baseLine), font_, part, letters, ground);
    if (mnemonic_ >= first && mnemonic_ < first + part.size()) {
      const double from = left + metrics.horizontalAdvance(part.left(mnemonic_ - first));
      const double to = left + metrics.horizontalAdvance(part.left(mnemonic_ - first + 1));
      painter.fillRect(QRectF(from, baseLine + metrics.underlinePos(), to - from,
                              std::max(1.0, metrics.lineWidth())),
                       faint ? readableOn(ground) : ink);
    }
  }
}

}  // namespace platform::inline forms
