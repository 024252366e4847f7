#pragma once

#include <optional>
#include <vector>

#include "tools/swf/percorso.h"

namespace somme::swf {

// One colour of a gradient and where it lies, from 0 (first end, or centre) to 1 (other end, or
// rim).
struct Fermata {
  double dove = 0;
  Colore colore;
};

// What fills a closed path: one colour, or colours that run into each other along a line or from
// a centre outwards. Beyond its ends a gradient goes on with its last colour.
class Riempimento {
 public:
  enum class Tipo : std::uint8_t { Tinta = 0x00, Lineare = 0x10, Radiale = 0x12 };

  [[nodiscard]] static Riempimento tinta(Colore colore);
  [[nodiscard]] static Riempimento lineare(Punto da, Punto a, std::vector<Fermata> fermate);
  [[nodiscard]] static Riempimento radiale(Punto centro, double raggioX, double raggioY,
                                           std::vector<Fermata> fermate);

  // Throws std::length_error for a gradient without colours or with more than the format's eight.
  void scrivi(ScrittoreByte& byte) const;

 private:
  Tipo tipo_ = Tipo::Tinta;
  std::vector<Fermata> fermate_;  // a plain colour is one stop
  Matrice matrice_;               // from the format's gradient square, in twips, to the shape
};

// A line's width in pixels, which grows with whatever scales the shape, and its colour. Ends and
// corners are round.
struct Penna {
  double spessore = 1;
  Colore colore;
};

// A still picture made of layers, each painted over the ones before.
class Forma {
 public:
  // A filled path, with its edge drawn as well where there is a pen.
  Forma& dipingi(const Percorso& percorso, const Riempimento& riempimento,
                 std::optional<Penna> orlo = {});
  // A line that encloses nothing.
  Forma& traccia(const Percorso& percorso, const Penna& penna);

  // The picture with the width of its lines.
  [[nodiscard]] Rettangolo ingombro() const;
  // The body of a DefineShape3 tag without its number. Throws std::length_error for a shape
  // without layers, std::out_of_range for one with an edge of more than 3,276 pixels.
  [[nodiscard]] std::vector<std::uint8_t> byte() const;

 private:
  struct Strato {
    Percorso percorso;
    std::optional<Riempimento> riempimento;
    std::optional<Penna> penna;
  };

  static void scriviStili(ScrittoreByte& byte, const Strato& strato);
  static void scriviPercorso(ScrittoreByte& byte, const Strato& strato);

  std::vector<Strato> strati_;
};

}  // namespace somme::swf
