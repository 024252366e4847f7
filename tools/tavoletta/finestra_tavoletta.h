#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "tools/tavoletta/foglio_tavoletta.h"
#include "tools/tavoletta/tavoletta.h"

namespace somme::tavoletta {

// The stand-in's window: a choice of sheets, the sheet, and in words what the program on the other
// end is doing.
class FinestraTavoletta final : public QWidget {
  Q_OBJECT

 public:
  explicit FinestraTavoletta(Tavoletta& tavoletta);

  // Listens; where the port is taken the window says so and takes no touches.
  void Apri(quint16 porta);

  [[nodiscard]] QComboBox& Scelta() { return scelta_; }
  [[nodiscard]] FoglioTavoletta& Foglio() { return foglio_; }
  [[nodiscard]] QPushButton& InviaOk() { return ok_; }
  [[nodiscard]] QString Racconto() const { return stato_.text(); }

 private:
  void Disponi();
  void Aggiorna();
  void Toccata(int colonna, int riga);

  Tavoletta& tavoletta_;
  QComboBox scelta_;
  FoglioTavoletta foglio_;
  QLabel stato_;
  QLabel tocco_;
  QPushButton ok_;
};

}  // namespace somme::tavoletta
