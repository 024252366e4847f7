#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace platform::inline forms {

// Sets as much of a text into an area as goes there: line by line, wrapped between words and inside
// of one only where it is longer than a line. Line ends are CR LF, LF or CR. The time that it takes
// goes by what it sets, not by what follows.
//
// painter: null to measure only. area, and the pixels of the font: in the painter's own units.
// from: where to begin; at a page break, what the page before gave. Returns the position of the
// next character, which is the length of the text when all of it has been set. At least one line is
// set, also in an area that has no room for it, so that whoever goes on page by page comes to an
// end.
[[nodiscard]] qsizetype setTextInto(QPainter* painter, const QString& text, const QFont& font,
                                    const QColor& ink, const QRectF& area, qsizetype from);

}  // namespace platform::inline forms
