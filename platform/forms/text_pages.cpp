#include "platform/forms/text_pages.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <optional>

namespace platform::inline forms {

namespace {

// A paragraph is laid out in pieces of this many characters, so that one that runs over many pages
// is not laid out whole for each of them.
constexpr qsizetype kPiece = 4000;
// Of a unit: what rounding may add to the height of a page full of lines.
constexpr double kRounding = 0.01;

struct Paragraph {
  qsizetype end;   // of its characters
  qsizetype next;  // behind its line end
};

Paragraph paragraphAt(const QString& text, qsizetype from) {
  qsizetype end = from;
  while (end < text.size() && text[end] != u'\n' && text[end] != u'\r') ++end;
  qsizetype next = std::min(end + 1, text.size());
  if (next < text.size() && text[end] == u'\r' && text[next] == u'\n') ++next;
  return {end, next};
}

// The area as it fills up from the top.
class Column {
 public:
  Column(QPainter* painter, const QRectF& area) : painter_(painter), area_(area), y_(area.top()) {}

  [[nodiscard]] double width() const { return std::max(1.0, area_.width()); }

  // False when there is no room left.
  bool take(const QTextLine& line) {
    const double height = std::ceil(line.height());
    if (!empty_ && y_ + height > area_.bottom() + kRounding) return false;
    if (painter_ != nullptr) line.draw(painter_, QPointF(area_.left(), y_));
    y_ += height;
    empty_ = false;
    return true;
  }

 private:
  QPainter* painter_;
  QRectF area_;
  double y_;
  bool empty_ = true;
};

// Sets the characters of one paragraph; the first that found no room, or nothing when all did.
std::optional<qsizetype> setParagraph(Column& column, const QString& text, const QFont& font,
                                      qsizetype from, qsizetype end) {
  do {
    const bool cut = end - from > kPiece;
    QTextLayout layout(text.mid(from, cut ? kPiece : end - from), font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(column.width());
    }
    layout.endLayout();
    // The last line of a cut piece goes on in the next one.
    const int lines = cut ? std::max(1, layout.lineCount() - 1) : layout.lineCount();
    qsizetype set = 0;
    for (int i = 0; i < lines; ++i) {
      const QTextLine line = layout.lineAt(i);
      if (!column.take(line)) return from + line.textStart();
      set = line.textStart() + line.textLength();
    }
    from += set;
  } while (from < end);
  return std::nullopt;
}

}  // namespace

qsizetype setTextInto(QPainter* painter, const QString& text, const QFont& font, const QColor& ink,
                      const QRectF& area, qsizetype from) {
  Column column(painter, area);
  if (painter != nullptr) painter->setPen(ink);
  while (from < text.size()) {
    const Paragraph paragraph = paragraphAt(text, from);
    if (const auto rest = setParagraph(column, text, font, from, paragraph.end)) return *rest;
    from = paragraph.next;
  }
  return text.size();
}

}  // namespace platform::inline forms
