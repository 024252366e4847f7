#pragma once

#include <QColor>

// The colours that the ground itself paints with; those of a form stand in its design. What is
// plain black or white has Qt's names.
namespace platform::inline forms::colors {

// The parts of controls.
inline constexpr QColor kInk(24, 33, 59);  // signs, and edges that shall be seen at once
inline constexpr QColor kEdge(70, 70, 70);
inline constexpr QColor kBorder(110, 110, 110);
inline constexpr QColor kSoftEdge(150, 150, 150);
inline constexpr QColor kFace(238, 240, 244);
inline constexpr QColor kFaceHeld(200, 205, 215);
inline constexpr QColor kGroove(250, 250, 250);
inline constexpr QColor kThumb(74, 151, 245);
inline constexpr QColor kCaret(47, 127, 230);
inline constexpr QColor kFocusRing(10, 20, 90);
inline constexpr QColor kGlow(255, 212, 59);  // of a label that changed

// Over a button's face along its edges.
inline constexpr QColor kLightAbove(255, 255, 255, 150);
inline constexpr QColor kShadeBelow(0, 0, 0, 55);
inline constexpr QColor kShadeHeld(0, 0, 0, 70);

// What Qt paints by itself.
inline constexpr QColor kPaletteBase(240, 240, 240);
inline constexpr QColor kPaper(245, 245, 245);
inline constexpr QColor kToolTip(255, 255, 225);
inline constexpr QColor kSelection(10, 60, 150);

inline constexpr QColor kYellow(255, 255, 0);
// The ground of a form with a gradient, from white to yellow. band: 0 to 255.
[[nodiscard]] constexpr QColor gradient(int band) {
  return {255, 255, 255 - band};
}

}  // namespace platform::inline forms::colors
