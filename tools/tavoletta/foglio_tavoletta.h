#pragma once

#include <QWidget>

#include "tools/tavoletta/fogli.h"

namespace somme::tavoletta {

// The sheet on the touch surface: the grid, the keys on it, and where it was touched last. A press
// of the mouse is a touch; every cell can be touched, also between the keys.
class FoglioTavoletta final : public QWidget {
  Q_OBJECT

 public:
  explicit FoglioTavoletta(QWidget* parent = nullptr);

  void Mostra(const Foglio& foglio);
  [[nodiscard]] QSize sizeHint() const override { return {720, 520}; }
  // The cell under a point, column and row from 1; the nearest one for a point outside.
  [[nodiscard]] QPoint Cella(QPointF punto) const;
  // The middle of a place.
  [[nodiscard]] QPoint Centro(int posto) const;

 Q_SIGNALS:
  void toccata(int colonna, int riga);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;

 private:
  [[nodiscard]] QRectF Area(const Zona& zona) const;
  void DisegnaTasto(QPainter& pittore, int posto) const;

  const Foglio* foglio_ = kFogli.data();
  QPoint toccata_;  // the cell under the finger, or null
};

}  // namespace somme::tavoletta
