#pragma once

#include <QRectF>

class QPainter;

namespace platform::inline forms {

// What became of a button that was an answer.
enum class AnswerMark { None, Right, Wrong };

// Draws a tick or a cross, white on a dark disc, into the upper right corner of a button's face:
// what a colour says is said without it, too. Nothing for None.
void paintAnswerMark(QPainter& painter, const QRectF& face, AnswerMark mark);

}  // namespace platform::inline forms
