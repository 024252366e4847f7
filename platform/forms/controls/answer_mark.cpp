#include "platform/forms/controls/answer_mark.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <initializer_list>

#include "platform/forms/colors.h"

namespace platform::inline forms {

namespace {

constexpr double kShare = 0.36;   // of the face's shorter side
constexpr double kSmallest = 13;  // pixels
constexpr double kStroke = 0.16;  // of the disc's diameter
constexpr double kGap = 0.04;     // from the face's edges, of its shorter side

// Points of a disc from -1 to 1.
using Points = std::initializer_list<QPointF>;

void paintLine(QPainter& painter, const QRectF& disc, Points points) {
  QPolygonF line;
  for (const QPointF& point : points) line << disc.center() + point * (disc.width() / 2);
  painter.drawPolyline(line);
}

}  // namespace

void paintAnswerMark(QPainter& painter, const QRectF& face, AnswerMark mark) {
  if (mark == AnswerMark::None) return;
  const double side = std::min(face.width(), face.height());
  const double across = std::max(kSmallest, side * kShare);
  const double gap = std::max(2.0, side * kGap);
  const QRectF disc(face.right() - gap - across, face.top() + gap, across, across);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors::kInk);
  painter.drawEllipse(disc);
  painter.setPen(QPen(Qt::white, across * kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  if (mark == AnswerMark::Right) {
    paintLine(painter, disc, {{-0.48, 0.02}, {-0.12, 0.4}, {0.5, -0.36}});
  } else {
    paintLine(painter, disc, {{-0.38, -0.38}, {0.38, 0.38}});
    paintLine(painter, disc, {{-0.38, 0.38}, {0.38, -0.38}});
  }
  painter.restore();
}

}  // namespace platform::inline forms
