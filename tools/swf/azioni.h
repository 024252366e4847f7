#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "tools/swf/scrittore_byte.h"

namespace somme::swf {

// Properties of a clip by the numbers that actions and the host use.
enum class Proprieta : std::uint8_t { X = 0, Y = 1, Opacita = 6, Visibile = 7 };

// A block of actions in the making: each call adds one step for the player's stack machine.
//
// Values are pushed first and used by what follows, as in
//
//     azioni.spingi("da1").spingi(Proprieta::Visibile).leggiProprieta().saltaSe(gia);
class Azioni {
 public:
  // A place in the block that jumps can name before it is known.
  class Segno {
    friend class Azioni;
    explicit Segno(std::size_t numero) : numero_(numero) {}
    std::size_t numero_;
  };

  Azioni& spingi(std::string_view testo);
  Azioni& spingi(const char* testo) { return spingi(std::string_view(testo)); }
  Azioni& spingi(int numero);
  // Kept as a 32-bit float: seven digits.
  Azioni& spingi(double numero);
  Azioni& spingi(Proprieta proprieta) { return spingi(static_cast<int>(proprieta)); }

  Azioni& riproduci() { return semplice(0x06); }
  Azioni& ferma() { return semplice(0x07); }
  // Frames count from 1 here; the frame is shown and the clip stops there.
  Azioni& vaiAFotogramma(int fotogramma);
  // What follows acts on the timeline of that clip; "" comes back to the block's own.
  Azioni& bersaglio(std::string_view clip);

  Azioni& leggiVariabile() { return semplice(0x1C); }   // name → value
  Azioni& scriviVariabile() { return semplice(0x1D); }  // name, value →
  Azioni& leggiProprieta() { return semplice(0x22); }   // clip, property → value
  Azioni& scriviProprieta() { return semplice(0x23); }  // clip, property, value →
  Azioni& leggiMembro() { return semplice(0x4E); }      // object, name → value
  Azioni& somma() { return semplice(0x0A); }            // number, number → sum
  Azioni& moltiplica() { return semplice(0x0C); }       // number, number → product
  Azioni& unisciTesti() { return semplice(0x21); }      // text, text → both in a row
  Azioni& nega() { return semplice(0x12); }             // condition → its opposite

  [[nodiscard]] Segno nuovoSegno();
  // The place of the mark is here.
  Azioni& segna(Segno segno);
  Azioni& salta(Segno segno) { return salto(0x99, segno); }
  Azioni& saltaSe(Segno segno) { return salto(0x9D, segno); }  // condition →

  // Raises the host's FSCommand event with these words.
  Azioni& comando(std::string_view comando, std::string_view argomenti);
  // The same with the words from the stack: "FSCommand:" and the command in one text, arguments →
  Azioni& comandoCalcolato();

  // The block without the zero that ends it. Throws std::logic_error where a mark was never placed
  // and std::out_of_range where a jump is too far.
  [[nodiscard]] std::vector<std::uint8_t> byte() const;

 private:
  struct Salto {
    std::size_t dove;  // of the jump's two bytes of distance
    std::size_t segno;
  };

  Azioni& semplice(std::uint8_t codice);
  Azioni& conDati(std::uint8_t codice, const ScrittoreByte& dati);
  Azioni& salto(std::uint8_t codice, Segno segno);

  ScrittoreByte byte_;
  std::vector<Salto> salti_;
  std::vector<std::ptrdiff_t> segni_;  // place of each mark, -1 while unknown
};

}  // namespace somme::swf
