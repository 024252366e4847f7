#pragma once

#include <vector>

#include "tools/swf/forma.h"
#include "tools/swf/linea_tempo.h"
#include "tools/swf/pulsante.h"

namespace somme::swf {

// A whole movie: its stage, the characters it has defined and the scene that plays them; and how
// all that becomes the bytes of a file.
class Filmato {
 public:
  struct Palco {
    double larghezza = 0;  // pixels
    double altezza = 0;
    double fotogrammiAlSecondo = 25;
    Colore sfondo{255, 255, 255};
  };

  explicit Filmato(const Palco& palco) : palco_(palco) {}

  // Defines a character. Whatever it places must have been defined before.
  Carattere definisci(const Forma& forma);
  Carattere definisci(const Pulsante& pulsante);
  // A clip, with a timeline of its own.
  Carattere definisci(const LineaTempo& clip);

  [[nodiscard]] LineaTempo& scena() { return scena_; }

  enum class Compressione { Nessuna, Zlib };
  // The file. The same movie gives the same bytes. Throws std::length_error for a scene without
  // frames and std::runtime_error where the compressor fails.
  [[nodiscard]] std::vector<std::uint8_t> byte(
      Compressione compressione = Compressione::Zlib) const;

 private:
  Carattere aggiungi(Etichetta etichetta, std::span<const std::uint8_t> corpo);

  Palco palco_;
  ScrittoreByte definizioni_;
  std::uint16_t ultimo_ = 0;
  LineaTempo scena_;
};

}  // namespace somme::swf
