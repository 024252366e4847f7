#pragma once

#include <QString>

namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline stampa {

class ImmagineDiStampa;
class StampanteInUso;

// Where an image goes on the sheet, in whole millimetres from its left and upper edge.
struct PostoSulFoglio {
  qint32 sinistra = 0;
  qint32 alto = 0;
  qint32 larghezza = 0;
  qint32 altezza = 0;
};

// Whether nothing is cut off at the right and at the bottom; the sheet in whole millimetres.
[[nodiscard]] bool StaSulFoglio(const PostoSulFoglio& posto, qint32 larghezza, qint32 altezza);

// Prints the image on one page, stretched to its place. A print larger than the sheet, and whatever
// the printer refuses, is told in a message box; nothing is left of a print that failed.
void EseguiStampa(Ambiente& ambiente, const StampanteInUso& stampante,
                  const ImmagineDiStampa& immagine, const PostoSulFoglio& posto,
                  const QString& titolo);

}  // namespace somme::inline stampa
