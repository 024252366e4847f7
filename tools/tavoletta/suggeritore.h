#pragma once

#include <QString>
#include <functional>

#include "tools/tavoletta/fogli.h"
#include "tools/tavoletta/tavoletta.h"

namespace somme::tavoletta {

// Works the stand-in by lines of text, without a window, and tells line by line what happens:
// "collegata", "staccata", "ricevuto 02#REQ-TOUCH", "mandato 42 42 31".
//
//   foglio cifre|blocchi|abaco   which sheet the keys are of (the first at the start)
//   tasto 3                      touches the middle of a place of the sheet
//   segno u → da                 touches the key that bears these words
//   cella 2 22 [stato]           touches a cell: column, row, third character
//   ok                           sends an "OK" of its own accord
//   byte 4F 4B                   sends any bytes in one go
//   taci, parla                  leaves requests unanswered; answers them again
//   stacca                       ends the connection
//   fine                         ends everything
class Suggeritore {
 public:
  // racconta: gets each line that tells what happens. fine: the script is over.
  Suggeritore(Tavoletta& tavoletta, const std::function<void(const QString& riga)>& racconta,
              std::function<void()> fine);

  // Does one line; false where it makes no sense, and then nothing is done.
  [[nodiscard]] bool Esegui(const QString& riga);

 private:
  [[nodiscard]] bool Scegli(const QString& nome);
  [[nodiscard]] bool Tasto(const QStringList& parole);
  [[nodiscard]] bool Segno(const QStringList& parole);
  [[nodiscard]] bool Cella(const QStringList& parole);
  [[nodiscard]] bool Byte(const QStringList& parole);

  // Touches the middle of a place of the sheet, from 1.
  void Tocca(int posto);

  Tavoletta& tavoletta_;
  std::function<void()> fine_;
  const Foglio* foglio_ = kFogli.data();
};

}  // namespace somme::tavoletta
