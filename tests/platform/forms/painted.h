#pragma once

#include <QEvent>
#include <QWidget>

namespace trial {

// Counts how often a widget is painted.
class Painted final : public QObject {
 public:
  explicit Painted(QWidget& widget) : QObject(&widget) { widget.installEventFilter(this); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++times;
    return false;
  }

  int times = 0;
};

}  // namespace trial
