#pragma once

#include <QByteArrayView>

namespace somme::inline ingresso {

// A cell of the touch surface, as a report names it.
struct CellaToccata {
  int colonna = 0;
  int riga = 0;
};

// What HelpiKeys says, one message after the other. A message is whatever has arrived by the time
// that it is read: "OK", or a report of three characters, the column and the row of the touch on
// top of 64 and a state. There is no length and no end in it, so that of two reports that come
// together only the first counts.
class SegnaliHelpiKeys {
 public:
  // Not a state of the connection but a flip: every "OK" inverts it. The "OK" that answers a form's
  // second activation clears it, and reports are dropped until one more comes: kept
  // (docs/oddities.md).
  bool HelpiKeysConnesso = false;

  enum class Tipo {
    Nulla,   // dropped
    Pronta,  // an "OK" that has set the flip
    Tocco,
  };
  struct Segnale {
    Tipo tipo = Tipo::Nulla;
    CellaToccata cella;
  };
  // Throws RunTimeError(InvalidCall) for a report of less than two characters, which has no row.
  [[nodiscard]] Segnale Leggi(QByteArrayView messaggio);
};

}  // namespace somme::inline ingresso
