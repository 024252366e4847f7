#pragma once

#include <QImage>

class QWidget;

namespace platform::inline forms {

// A picture of a widget as it is shown, without focus rings, in more pixels than the screen has.
// Layout and proportions stay those of the screen.
//
// longest: how many pixels the longer side gets at least. withChildren: with what stands on the
// widget. Null for a widget without an area, and where there is no memory for the picture.
[[nodiscard]] QImage capture(QWidget& widget, int longest, bool withChildren);

}  // namespace platform::inline forms
