#pragma once

#include <QColor>
#include <QPainterPath>

class QPainter;
class QWidget;

namespace platform::inline forms {

// How the face of a button looks, on forms and in boxes alike.
struct ButtonFace {
  QColor color;
  bool stands = true;    // looks as if it could be pressed: it has a raised edge
  bool strong = true;    // its outline is dark
  bool pointed = false;  // the mouse is over it and could press it
  bool litEdge = true;   // its outline shows that, too
  bool held = false;     // it is pressed and has sunk
};

// The radius of a button's corners, and the width of its outline, in pixels of its window.
[[nodiscard]] double buttonCorner(const QWidget& button);
[[nodiscard]] double buttonEdge(const QWidget& button);

// The colour of a face as it is lit, or held.
[[nodiscard]] QColor buttonColor(const ButtonFace& face);
// How far a button sinks, in pixels; 0 where it is not held.
[[nodiscard]] double buttonSinking(const QWidget& button, bool held);

// A rectangle with a button's corners. inset: how far inside of it the path lies, in pixels.
[[nodiscard]] QPainterPath buttonOutline(const QWidget& button, const QRectF& body,
                                         double inset = 0);

// Paints a face. outline: runs in the middle of the line that is drawn; inside: what the line
// leaves.
void paintButtonFace(QPainter& painter, const QWidget& button, const ButtonFace& face,
                     const QPainterPath& outline, const QPainterPath& inside);

}  // namespace platform::inline forms
