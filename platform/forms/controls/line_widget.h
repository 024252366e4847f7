#pragma once

#include <QColor>
#include <QWidget>

namespace platform::inline forms {

// The widget of a line: just large enough for it.
class LineWidget final : public QWidget {
  Q_OBJECT

 public:
  explicit LineWidget(QWidget* parent);

  // from, to: pixels in the parent, the middle of the line's ends. thickness: pixels.
  void setEnds(QPoint from, QPoint to, int thickness);
  void setInk(const QColor& ink);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPoint from_;  // in the widget
  QPoint to_;
  int thickness_ = 1;
  QColor ink_ = Qt::black;
};

}  // namespace platform::inline forms
