#pragma once

#include <QWidget>

namespace platform {

class Pictures;

// The widget of an image: a graphic in the accessibility tree.
class ImageWidget final : public QWidget {
  Q_OBJECT

 public:
  ImageWidget(QWidget* parent, Pictures& pictures, QString name)
      : QWidget(parent), pictures_(pictures), name_(std::move(name)) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Pictures& pictures_;
  QString name_;
};

}  // namespace platform
