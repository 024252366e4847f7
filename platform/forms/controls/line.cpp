#include "platform/forms/controls/line.h"

#include <algorithm>

#include "platform/forms/controls/line_widget.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

QWidget* Line::create(QWidget* parent) {
  return new LineWidget(parent);
}

void Line::applyScale() {
  placeChanged();
  applyLook();
}

// The ends are taken to pixels one by one, as the edges of all controls are, so that a line at the
// edge of a bar stays there.
void Line::placeChanged() {
  const TwipsRect& place = designPlace();
  const QPoint from = scale().pixels({place.left, place.top, 0, 0}).topLeft();
  const QPoint to =
      scale().pixels({place.left + place.width, place.top + place.height, 0, 0}).topLeft();
  const double grown = scale().grown();
  static_cast<LineWidget*>(widget())->setEnds(
      from, to, std::max(look().borderWidth, qRound(look().borderWidth * grown)));
}

void Line::applyLook() {
  auto* line = static_cast<LineWidget*>(widget());
  line->setInk(toColor(foreColor()));
  if (line->accessibleName() != toolTip()) line->setAccessibleName(toolTip());
}

}  // namespace platform::inline forms
