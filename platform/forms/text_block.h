#pragma once

#include <QFont>
#include <QString>
#include <QTextLayout>
#include <memory>

#include "platform/forms/design.h"

class QPainter;

namespace platform::inline forms {

// A caption set into a rectangle: in the design's size where it fits, wrapped where that helps,
// smaller where it must be, never cut. Painted with an outline where the colours alone would be
// too faint to read.
class TextBlock {
 public:
  // text: "&" marks the access key when `mnemonic` is set and is taken literally otherwise.
  void set(const QString& text, const QFont& font, QSize room, Align align, bool mnemonic);

  // area: of the size given as room. The text stands in its middle from top to bottom.
  void paint(QPainter& painter, const QRect& area, const QColor& ink, const QColor& ground);

  // The pixel size that the text was given, at most that of the font.
  [[nodiscard]] int pixelSize() const { return font_.pixelSize(); }
  [[nodiscard]] QSizeF size() const { return {width_, height_}; }

 private:
  void fit();
  [[nodiscard]] bool layOut();

  QString text_;
  int mnemonic_ = -1;  // where the underlined character stands
  QFont wanted_;
  QFont font_;
  QSize room_;
  bool outlined_ = false;
  double margin_ = 0;  // what the outline takes at each side
  Align align_ = Align::Left;
  std::unique_ptr<QTextLayout> layout_;  // only for more than one line
  double width_ = 0;
  double height_ = 0;
  double lineHeight_ = 0;
  double above_ = 0;
};

// Paints one line of text from the left end of its base line; with an outline where ink and ground
// alone would be too faint to read.
void paintReadable(QPainter& painter, QPointF baseLine, const QFont& font, const QString& text,
                   const QColor& ink, const QColor& ground);
// Whether text of this ink needs the outline on this ground.
[[nodiscard]] bool isFaint(const QColor& ink, const QColor& ground);
// The width of that outline in pixels, half of it outside of the glyphs.
[[nodiscard]] double outlineOf(const QFont& font);

// The ratio of two colours' luminance, 1 to 21 (WCAG 2, contrast ratio).
[[nodiscard]] double contrast(const QColor& a, const QColor& b);
// Black or white, whichever stands out more.
[[nodiscard]] QColor readableOn(const QColor& ground);
[[nodiscard]] QColor toColor(Rgb rgb);

// A caption without the mark of its access key, as it is spoken.
[[nodiscard]] QString withoutMnemonic(const QString& caption);
// The access key of a caption, upper case; null where it has none.
[[nodiscard]] QChar accessKeyOf(const QString& caption);

}  // namespace platform::inline forms
