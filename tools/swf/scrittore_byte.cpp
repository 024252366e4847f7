#include "tools/swf/scrittore_byte.h"

#include <bit>
#include <stdexcept>

namespace somme::swf {

void ScrittoreByte::u8(std::uint32_t valore) {
  allinea();
  byte_.push_back(static_cast<std::uint8_t>(valore));
}

void ScrittoreByte::u16(std::uint32_t valore) {
  u8(valore);
  u8(valore >> 8);
}

void ScrittoreByte::u32(std::uint32_t valore) {
  u16(valore);
  u16(valore >> 16);
}

void ScrittoreByte::testo(std::string_view testo) {
  if (testo.find('\0') != std::string_view::npos) {
    throw std::invalid_argument("a text of a movie ends at its first zero");
  }
  allinea();
  byte_.insert(byte_.end(), testo.begin(), testo.end());
  u8(0);
}

void ScrittoreByte::aggiungi(std::span<const std::uint8_t> byte) {
  allinea();
  byte_.insert(byte_.end(), byte.begin(), byte.end());
}

void ScrittoreByte::bit(std::uint32_t valore, int quanti) {
  for (int i = quanti - 1; i >= 0; --i) {
    if (liberi_ == 0) {
      byte_.push_back(0);
      liberi_ = 8;
    }
    --liberi_;
    byte_.back() |= static_cast<std::uint8_t>(((valore >> i) & 1U) << liberi_);
  }
}

void ScrittoreByte::bitConSegno(std::int32_t valore, int quanti) {
  if (bitOccorrenti(valore) > quanti) {
    throw std::out_of_range("a number does not fit its bit field");
  }
  bit(static_cast<std::uint32_t>(valore), quanti);
}

void ScrittoreByte::allinea() {
  liberi_ = 0;
}

int ScrittoreByte::bitOccorrenti(std::int32_t valore) {
  if (valore == 0) return 0;
  const auto grandezza = static_cast<std::uint32_t>(valore < 0 ? ~valore : valore);
  return bitSenzaSegno(grandezza) + 1;
}

int ScrittoreByte::bitSenzaSegno(std::uint32_t valore) {
  return static_cast<int>(std::bit_width(valore));
}

}  // namespace somme::swf
