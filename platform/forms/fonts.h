#pragma once

#include <QFont>
#include <QRect>
#include <functional>

#include "platform/forms/design.h"

class QWidget;

namespace platform::inline forms {

// Takes the fonts that lie in a folder (.ttf files) beside those that are installed; none where
// there is no such folder.
void addFontsIn(const QString& folder);

// The font of a design row, its size in logical pixels. Tahoma and Arial where they are installed;
// else Andika, a face made for young readers, and Liberation Sans, which has Arial's widths.
[[nodiscard]] QFont fontOf(const FontSpec& spec, double pixels);

// The same for a font that is given by its name. pixels: at least 1.
[[nodiscard]] QFont fontNamed(const QString& name, double pixels, bool bold);

// The size of what is written beside the forms, in menus and boxes, in pixels: it grows with the
// window as the forms do. height: of the window or page, in pixels. smallest: never less than this.
[[nodiscard]] double pixelsBeside(int height, double smallest);
// The same for a window over this one, which may stand over others itself; null: over none.
[[nodiscard]] double pixelsOver(const QWidget* window, double smallest);

// How far the ink of any word that the program can show reaches above and below the base line, in
// pixels: accents on capitals and descenders. It is less than the font's own line height, which in
// faces for beginners is very generous.
struct Ink {
  double above = 0;
  double below = 0;
  [[nodiscard]] double height() const { return above + below; }
};
[[nodiscard]] Ink inkOf(const QFont& font);

// Where a line of text stands in a room, whatever shows it: the ink that its font can show lies in
// the middle from top to bottom. The height of the base line, in pixels.
[[nodiscard]] int baseLineIn(const QRect& room, const QFont& font);

// The largest whole pixel size from `smallest` to `wanted` in which a text fits; `smallest` where
// it fits in none. fits: asked for a size; what fits in one size fits in every smaller one. It is
// asked a few times only, since measuring in a new size loads the font anew: a form that was laid
// out in a window of a few pixels may want letters of thousands.
[[nodiscard]] int largestThatFits(int wanted, int smallest, const std::function<bool(int)>& fits);

}  // namespace platform::inline forms
