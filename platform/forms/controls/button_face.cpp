#include "platform/forms/controls/button_face.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/forms/colors.h"
#include "platform/forms/controls/color_mix.h"
#include "platform/forms/focus_ring.h"

namespace platform::inline forms {

namespace {

// Pixels where the window is not large.
constexpr double kCorner = 6;
constexpr double kEdge = 1;
constexpr double kLight = 3;  // of the raised edge, above
constexpr double kShade = 4;  // and below

constexpr double kPointedEdgeWidth = 2;
constexpr double kHeldDeep = 2;  // that it sinks

// Below the mouse a face is so much nearer to white: a pale one more, that it is seen, a strong one
// less, that it keeps its colour.
constexpr double kLitPale = 0.5;
constexpr double kLitStrong = 0.22;
constexpr int kPale = 200;      // the lightness from which a face is pale
constexpr double kHeld = 0.06;  // of the way to black: words on it stay as readable

QPen outlineOf(const QWidget& button, const ButtonFace& face) {
  if (face.pointed && face.litEdge) return {colors::kInk, kPointedEdgeWidth * markScale(button)};
  return {face.strong ? colors::kEdge : colors::kSoftEdge, buttonEdge(button)};
}

}  // namespace

double buttonCorner(const QWidget& button) {
  return kCorner * markScale(button);
}

double buttonEdge(const QWidget& button) {
  return markPixels(button, kEdge);
}

QColor buttonColor(const ButtonFace& face) {
  if (face.held) return mixed(face.color, Qt::black, kHeld);
  if (!face.pointed) return face.color;
  return mixed(face.color, Qt::white, face.color.lightness() >= kPale ? kLitPale : kLitStrong);
}

double buttonSinking(const QWidget& button, bool held) {
  return held ? std::round(kHeldDeep * markScale(button)) : 0;
}

QPainterPath buttonOutline(const QWidget& button, const QRectF& body, double inset) {
  const double corner = std::max(0.0, buttonCorner(button) - inset);
  QPainterPath path;
  path.addRoundedRect(body.adjusted(inset, inset, -inset, -inset), corner, corner);
  return path;
}

void paintButtonFace(QPainter& painter, const QWidget& button, const ButtonFace& face,
                     const QPainterPath& outline, const QPainterPath& inside) {
  painter.setPen(outlineOf(button, face));
  painter.setBrush(buttonColor(face));
  painter.drawPath(outline);
  if (!face.stands) return;
  // A raised edge: light above, shade below. What is held has sunk below its edge.
  const int wide = button.width();
  const int light = markPixels(button, kLight);
  const int shade = markPixels(button, kShade);
  painter.save();
  painter.setClipPath(inside);
  if (face.held) {
    painter.fillRect(QRectF(0, outline.boundingRect().top(), wide, light), colors::kShadeHeld);
  } else {
    painter.fillRect(QRect(0, 0, wide, light), colors::kLightAbove);
    painter.fillRect(QRect(0, button.height() - shade, wide, shade), colors::kShadeBelow);
  }
  painter.restore();
}

}  // namespace platform::inline forms
