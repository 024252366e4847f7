#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/swf/azioni.h"
#include "tools/swf/geometria.h"

namespace somme::swf {

// The numbers of the format's tags that the writer uses.
enum class Etichetta : std::uint16_t {
  Fine = 0,
  MostraFotogramma = 1,
  ColoreSfondo = 9,
  EseguiAzioni = 12,
  PoniOggetto2 = 26,
  TogliOggetto2 = 28,
  DefinisciForma3 = 32,
  DefinisciPulsante2 = 34,
  DefinisciClip = 39,
  NomeFotogramma = 43,
};

// A tag's head and body.
void scriviEtichetta(ScrittoreByte& byte, Etichetta etichetta, std::span<const std::uint8_t> corpo);

// Something that a movie has defined and that timelines can place, any number of times.
struct Carattere {
  std::uint16_t numero = 0;
};

// How a thing is placed: what is left out stays as it is, or at first as the thing was drawn.
struct Posa {
  std::optional<Matrice> matrice = {};
  std::optional<TrasformaColore> colore = {};
  std::string nome = {};  // by which host and actions know this one
};

// A sequence of frames: the scene itself or the inside of a clip. What is put down stays from
// frame to frame until it is taken away. Depths tell what covers what: the greater is in front.
class LineaTempo {
 public:
  LineaTempo& poni(int profondita, Carattere che, const Posa& posa = {});
  // Changes what stands at that depth.
  LineaTempo& muovi(int profondita, const Posa& posa);
  LineaTempo& togli(int profondita);
  // Runs when this frame is reached.
  LineaTempo& esegui(const Azioni& azioni);
  LineaTempo& nomina(std::string_view nomeFotogramma);
  // Ends the frame; the next calls speak of the next one.
  LineaTempo& mostra(int volte = 1);

  // The number, from 1, of the frame now in the making.
  [[nodiscard]] int fotogramma() const { return finiti_ + 1; }
  // How many frames are done.
  [[nodiscard]] int finiti() const { return finiti_; }
  // The tags, without the one that ends the sequence.
  [[nodiscard]] const std::vector<std::uint8_t>& byte() const { return byte_.byte(); }

 private:
  void scriviPosa(int profondita, bool muove, std::optional<Carattere> che, const Posa& posa);

  ScrittoreByte byte_;
  int finiti_ = 0;
};

}  // namespace somme::swf
