#pragma once

#include <QPointF>

#include "platform/flash/instance.h"

namespace platform::flash {

class Stage;

// The button, or the clip with handlers as of a button, that the mouse at that point (twips of the
// stage) works on: the frontmost one that is visible and enabled. What has no handlers lets the
// mouse through, also where it lies in front.
[[nodiscard]] Container* interactiveAt(const Stage& stage, QPointF point);

}  // namespace platform::flash
