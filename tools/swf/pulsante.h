#pragma once

#include <vector>

#include "tools/swf/linea_tempo.h"

namespace somme::swf {

// A thing to click: what it shows while it is left alone, pointed at and pressed, where it feels
// the mouse, and what happens when the mouse is let go over it.
class Pulsante {
 public:
  // States, to be joined with |. `Sensibile` is never drawn: its shapes are where the mouse is
  // felt.
  enum Stato : std::uint8_t { Fermo = 0x01, Puntato = 0x02, Premuto = 0x04, Sensibile = 0x08 };

  // The character is part of these states. Throws std::invalid_argument for none.
  Pulsante& mostra(unsigned stati, int profondita, Carattere che, const Posa& posa = {});
  Pulsante& alRilascio(const Azioni& azioni);

  // The body of a DefineButton2 tag without its number.
  [[nodiscard]] std::vector<std::uint8_t> byte() const;

 private:
  ScrittoreByte aspetti_;
  std::vector<std::uint8_t> azioni_;
};

}  // namespace somme::swf
