#include "tools/swf/azioni.h"

#include <bit>
#include <stdexcept>
#include <string>

namespace somme::swf {
namespace {

constexpr std::uint8_t kVaiAFotogramma = 0x81;
constexpr std::uint8_t kIndirizzo = 0x83;
constexpr std::uint8_t kBersaglio = 0x8B;
constexpr std::uint8_t kSpingi = 0x96;
constexpr std::uint8_t kIndirizzoCalcolato = 0x9A;

// What a pushed value is.
enum class TipoValore : std::uint8_t { Testo = 0, Frazione = 1, Intero = 7 };

}  // namespace

Azioni& Azioni::semplice(std::uint8_t codice) {
  byte_.u8(codice);
  return *this;
}

Azioni& Azioni::conDati(std::uint8_t codice, const ScrittoreByte& dati) {
  if (dati.byte().size() > 0xFFFF) throw std::out_of_range("an action with too much data");
  byte_.u8(codice);
  byte_.u16(static_cast<std::uint32_t>(dati.byte().size()));
  byte_.aggiungi(dati.byte());
  return *this;
}

Azioni& Azioni::spingi(std::string_view testo) {
  ScrittoreByte dati;
  dati.u8(static_cast<std::uint32_t>(TipoValore::Testo));
  dati.testo(testo);
  return conDati(kSpingi, dati);
}

Azioni& Azioni::spingi(int numero) {
  ScrittoreByte dati;
  dati.u8(static_cast<std::uint32_t>(TipoValore::Intero));
  dati.u32(static_cast<std::uint32_t>(numero));
  return conDati(kSpingi, dati);
}

Azioni& Azioni::spingi(double numero) {
  ScrittoreByte dati;
  dati.u8(static_cast<std::uint32_t>(TipoValore::Frazione));
  dati.u32(std::bit_cast<std::uint32_t>(static_cast<float>(numero)));
  return conDati(kSpingi, dati);
}

Azioni& Azioni::vaiAFotogramma(int fotogramma) {
  ScrittoreByte dati;
  dati.u16(static_cast<std::uint32_t>(fotogramma - 1));
  return conDati(kVaiAFotogramma, dati);
}

Azioni& Azioni::bersaglio(std::string_view clip) {
  ScrittoreByte dati;
  dati.testo(clip);
  return conDati(kBersaglio, dati);
}

Azioni::Segno Azioni::nuovoSegno() {
  segni_.push_back(-1);
  return Segno(segni_.size() - 1);
}

Azioni& Azioni::segna(Segno segno) {
  segni_.at(segno.numero_) = static_cast<std::ptrdiff_t>(byte_.byte().size());
  return *this;
}

Azioni& Azioni::salto(std::uint8_t codice, Segno segno) {
  ScrittoreByte dati;
  dati.u16(0);
  conDati(codice, dati);
  salti_.push_back({byte_.byte().size() - 2, segno.numero_});
  return *this;
}

Azioni& Azioni::comando(std::string_view comando, std::string_view argomenti) {
  ScrittoreByte dati;
  dati.testo("FSCommand:" + std::string(comando));
  dati.testo(argomenti);
  return conDati(kIndirizzo, dati);
}

Azioni& Azioni::comandoCalcolato() {
  ScrittoreByte dati;
  dati.u8(0);
  return conDati(kIndirizzoCalcolato, dati);
}

std::vector<std::uint8_t> Azioni::byte() const {
  std::vector<std::uint8_t> byte = byte_.byte();
  for (const auto& salto : salti_) {
    const std::ptrdiff_t meta = segni_.at(salto.segno);
    if (meta < 0) throw std::logic_error("a jump to a mark that was never placed");
    const std::ptrdiff_t distanza = meta - static_cast<std::ptrdiff_t>(salto.dove + 2);
    if (distanza < -0x8000 || distanza > 0x7FFF) throw std::out_of_range("a jump too far");
    byte[salto.dove] = static_cast<std::uint8_t>(distanza);
    byte[salto.dove + 1] = static_cast<std::uint8_t>(distanza >> 8);
  }
  return byte;
}

}  // namespace somme::swf
