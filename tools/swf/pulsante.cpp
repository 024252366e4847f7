#include "tools/swf/pulsante.h"

#include <stdexcept>

namespace somme::swf {
namespace {

// The condition "let go inside", in the low of the two bytes of conditions.
constexpr std::uint32_t kDaPremutoAPuntato = 0x0008;

}  // namespace

Pulsante& Pulsante::mostra(unsigned stati, int profondita, Carattere che, const Posa& posa) {
  if (stati == 0 || stati > 0x0F) throw std::invalid_argument("a button record without a state");
  aspetti_.u8(stati);
  aspetti_.u16(che.numero);
  aspetti_.u16(static_cast<std::uint32_t>(profondita));
  scrivi(aspetti_, posa.matrice.value_or(Matrice{}));
  scrivi(aspetti_, posa.colore.value_or(TrasformaColore{}));
  return *this;
}

Pulsante& Pulsante::alRilascio(const Azioni& azioni) {
  azioni_ = azioni.byte();
  return *this;
}

std::vector<std::uint8_t> Pulsante::byte() const {
  ScrittoreByte byte;
  byte.u8(0);  // a plain button, not an item of a menu that opens under a held mouse
  // The distance from this field itself to the actions: its own size, the records, their end.
  const auto distanza = static_cast<std::uint32_t>(2 + aspetti_.byte().size() + 1);
  byte.u16(azioni_.empty() ? 0 : distanza);
  byte.aggiungi(aspetti_.byte());
  byte.u8(0);
  if (!azioni_.empty()) {
    byte.u16(0);  // no further condition follows
    byte.u16(kDaPremutoAPuntato);
    byte.aggiungi(azioni_);
    byte.u8(0);
  }
  return byte.byte();
}

}  // namespace somme::swf
