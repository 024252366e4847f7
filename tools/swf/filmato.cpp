#include "tools/swf/filmato.h"

#include <zlib.h>

#include <cmath>
#include <stdexcept>

namespace somme::swf {
namespace {

// The first version whose buttons and clips are all that the boards ask for, with identifiers that
// ignore case; every player since knows it.
constexpr std::uint8_t kVersione = 6;
constexpr std::size_t kTesta = 8;  // bytes before the part that can be compressed

std::vector<std::uint8_t> compressi(const std::vector<std::uint8_t>& byte) {
  uLongf misura = compressBound(static_cast<uLong>(byte.size()));
  std::vector<std::uint8_t> esito(misura);
  if (compress2(esito.data(), &misura, byte.data(), static_cast<uLong>(byte.size()),
                Z_BEST_COMPRESSION) != Z_OK) {
    throw std::runtime_error("the movie could not be compressed");
  }
  esito.resize(misura);
  return esito;
}

}  // namespace

Carattere Filmato::aggiungi(Etichetta etichetta, std::span<const std::uint8_t> corpo) {
  if (ultimo_ == 0xFFFF) throw std::length_error("more characters than a movie can number");
  ++ultimo_;
  ScrittoreByte intero;
  intero.u16(ultimo_);
  intero.aggiungi(corpo);
  scriviEtichetta(definizioni_, etichetta, intero.byte());
  return {ultimo_};
}

Carattere Filmato::definisci(const Forma& forma) {
  return aggiungi(Etichetta::DefinisciForma3, forma.byte());
}

Carattere Filmato::definisci(const Pulsante& pulsante) {
  return aggiungi(Etichetta::DefinisciPulsante2, pulsante.byte());
}

Carattere Filmato::definisci(const LineaTempo& clip) {
  if (clip.finiti() < 1 || clip.finiti() > 0xFFFF) {
    throw std::length_error("a clip has at least one frame");
  }
  ScrittoreByte corpo;
  corpo.u16(static_cast<std::uint32_t>(clip.finiti()));
  corpo.aggiungi(clip.byte());
  scriviEtichetta(corpo, Etichetta::Fine, {});
  return aggiungi(Etichetta::DefinisciClip, corpo.byte());
}

std::vector<std::uint8_t> Filmato::byte(Compressione compressione) const {
  if (scena_.finiti() < 1 || scena_.finiti() > 0xFFFF) {
    throw std::length_error("a scene has at least one frame");
  }
  ScrittoreByte dentro;
  scrivi(dentro, Rettangolo{0, 0, palco_.larghezza, palco_.altezza});
  dentro.u16(static_cast<std::uint32_t>(std::lround(palco_.fotogrammiAlSecondo * 256)));
  dentro.u16(static_cast<std::uint32_t>(scena_.finiti()));
  ScrittoreByte sfondo;
  scriviRgb(sfondo, palco_.sfondo);
  scriviEtichetta(dentro, Etichetta::ColoreSfondo, sfondo.byte());
  dentro.aggiungi(definizioni_.byte());
  dentro.aggiungi(scena_.byte());
  scriviEtichetta(dentro, Etichetta::Fine, {});

  const bool comprime = compressione == Compressione::Zlib;
  ScrittoreByte file;
  file.u8(comprime ? 'C' : 'F');
  file.u8('W');
  file.u8('S');
  file.u8(kVersione);
  file.u32(static_cast<std::uint32_t>(kTesta + dentro.byte().size()));
  file.aggiungi(comprime ? compressi(dentro.byte()) : dentro.byte());
  return file.byte();
}

}  // namespace somme::swf
