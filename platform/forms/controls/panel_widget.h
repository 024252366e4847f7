#pragma once

#include <QColor>
#include <QWidget>

namespace platform {

// The widget of a picture box: a group in the accessibility tree.
class PanelWidget final : public QWidget {
  Q_OBJECT

 public:
  PanelWidget(QWidget* parent, bool border);

  void setGround(const QColor& ground);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool border_;
  QColor ground_ = Qt::white;
};

}  // namespace platform
