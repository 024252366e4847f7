#pragma once

#include <QString>

namespace platform::inline forms {

// The drawings of message boxes, by their names in a folder of pictures; without a folder boxes
// have those of the toolkit.
struct BoxDrawings {
  QString folder;
  QString information;
  QString critical;
};

// The look of the program, the same on every desktop: light, in its own style and letters.
void applyAppearance(const BoxDrawings& drawings = {});

}  // namespace platform::inline forms
