#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

namespace platform::inline forms {

// The widget of a picture box: a group in the accessibility tree.
class PanelWidget final : public QWidget {
  Q_OBJECT

 public:
  PanelWidget(QWidget* parent, bool border);

  void setGround(const QColor& ground);
  // Shows a picture stretched to `where`; a null one shows nothing.
  void setPicture(const QImage& picture, const QRect& where);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool border_;
  QColor ground_ = Qt::white;
  QImage picture_;
  QRect where_;
};

}  // namespace platform::inline forms
