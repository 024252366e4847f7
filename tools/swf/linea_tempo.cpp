#include "tools/swf/linea_tempo.h"

#include <stdexcept>

namespace somme::swf {
namespace {

constexpr std::size_t kTestaLunga = 0x3F;  // bodies from this size on have a 32-bit length

std::uint32_t controllata(int profondita) {
  if (profondita < 1 || profondita > 0xFFFF) throw std::out_of_range("a depth out of range");
  return static_cast<std::uint32_t>(profondita);
}

}  // namespace

void scriviEtichetta(ScrittoreByte& byte, Etichetta etichetta,
                     std::span<const std::uint8_t> corpo) {
  const auto codice = static_cast<std::uint32_t>(etichetta) << 6;
  if (corpo.size() < kTestaLunga) {
    byte.u16(codice | static_cast<std::uint32_t>(corpo.size()));
  } else {
    byte.u16(codice | kTestaLunga);
    byte.u32(static_cast<std::uint32_t>(corpo.size()));
  }
  byte.aggiungi(corpo);
}

LineaTempo& LineaTempo::poni(int profondita, Carattere che, const Posa& posa) {
  scriviPosa(profondita, false, che, posa);
  return *this;
}

LineaTempo& LineaTempo::muovi(int profondita, const Posa& posa) {
  scriviPosa(profondita, true, {}, posa);
  return *this;
}

void LineaTempo::scriviPosa(int profondita, bool muove, std::optional<Carattere> che,
                            const Posa& posa) {
  ScrittoreByte corpo;
  corpo.u8((posa.nome.empty() ? 0U : 0x20U) | (posa.colore ? 0x08U : 0U) |
           (posa.matrice ? 0x04U : 0U) | (che ? 0x02U : 0U) | (muove ? 0x01U : 0U));
  corpo.u16(controllata(profondita));
  if (che) corpo.u16(che->numero);
  if (posa.matrice) scrivi(corpo, *posa.matrice);
  if (posa.colore) scrivi(corpo, *posa.colore);
  if (!posa.nome.empty()) corpo.testo(posa.nome);
  scriviEtichetta(byte_, Etichetta::PoniOggetto2, corpo.byte());
}

LineaTempo& LineaTempo::togli(int profondita) {
  ScrittoreByte corpo;
  corpo.u16(controllata(profondita));
  scriviEtichetta(byte_, Etichetta::TogliOggetto2, corpo.byte());
  return *this;
}

LineaTempo& LineaTempo::esegui(const Azioni& azioni) {
  ScrittoreByte corpo;
  corpo.aggiungi(azioni.byte());
  corpo.u8(0);
  scriviEtichetta(byte_, Etichetta::EseguiAzioni, corpo.byte());
  return *this;
}

LineaTempo& LineaTempo::nomina(std::string_view nomeFotogramma) {
  ScrittoreByte corpo;
  corpo.testo(nomeFotogramma);
  scriviEtichetta(byte_, Etichetta::NomeFotogramma, corpo.byte());
  return *this;
}

LineaTempo& LineaTempo::mostra(int volte) {
  for (int i = 0; i < volte; ++i) scriviEtichetta(byte_, Etichetta::MostraFotogramma, {});
  finiti_ += volte;
  return *this;
}

}  // namespace somme::swf
