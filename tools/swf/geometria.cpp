#include "tools/swf/geometria.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace somme::swf {
namespace {

// A number with 16 binary places, as matrices hold their factors.
std::int32_t virgolaFissa(double valore) {
  if (!(std::abs(valore) < 1 << 14)) throw std::out_of_range("a factor no movie can hold");
  return static_cast<std::int32_t>(std::lround(valore * 65536.0));
}

template <std::size_t N>
int bitPerTutti(const std::array<std::int32_t, N>& valori) {
  int bit = 0;
  for (const auto valore : valori) bit = std::max(bit, ScrittoreByte::bitOccorrenti(valore));
  return bit;
}

// How many bits each number of a group takes, in a field that has a width of its own.
void scriviMisura(ScrittoreByte& byte, int bit, int bitDellaMisura) {
  if (bit >= 1 << bitDellaMisura) throw std::out_of_range("a number no movie can hold");
  byte.bit(static_cast<std::uint32_t>(bit), bitDellaMisura);
}

template <std::size_t N>
void scriviCampi(ScrittoreByte& byte, int bitDellaMisura,
                 const std::array<std::int32_t, N>& valori) {
  const int bit = std::max(1, bitPerTutti(valori));
  scriviMisura(byte, bit, bitDellaMisura);
  for (const auto valore : valori) byte.bitConSegno(valore, bit);
}

void scriviCoppia(ScrittoreByte& byte, double primo, double secondo, double neutro) {
  const bool presente = primo != neutro || secondo != neutro;
  byte.bit(presente ? 1 : 0, 1);
  if (presente) scriviCampi(byte, 5, std::array{virgolaFissa(primo), virgolaFissa(secondo)});
}

}  // namespace

std::int32_t twip(double pixel) {
  const double valore = std::round(pixel * kTwipPerPixel);
  if (!(std::abs(valore) < (1 << 24))) throw std::out_of_range("a length no movie can hold");
  return static_cast<std::int32_t>(valore);
}

TrasformaColore velato(double quanto) {
  return {.opacita = {.per = static_cast<int>(std::lround(256 * quanto))}};
}

TrasformaColore schiarito(double quanto) {
  const TrasformaColore::Canale canale{.per = static_cast<int>(std::lround(256 * (1 - quanto))),
                                       .piu = static_cast<int>(std::lround(255 * quanto))};
  return {.rosso = canale, .verde = canale, .blu = canale, .opacita = {}};
}

void scrivi(ScrittoreByte& byte, const Rettangolo& r) {
  byte.allinea();
  scriviCampi(byte, 5,
              std::array{twip(r.sinistra), twip(r.sinistra + r.larghezza), twip(r.alto),
                         twip(r.alto + r.altezza)});
  byte.allinea();
}

void scrivi(ScrittoreByte& byte, const Matrice& m) {
  byte.allinea();
  scriviCoppia(byte, m.a, m.d, 1);
  scriviCoppia(byte, m.b, m.c, 0);
  scriviCampi(byte, 5, std::array{twip(m.tx), twip(m.ty)});
  byte.allinea();
}

void scrivi(ScrittoreByte& byte, const TrasformaColore& t) {
  const std::array<std::int32_t, 4> per{t.rosso.per, t.verde.per, t.blu.per, t.opacita.per};
  const std::array<std::int32_t, 4> piu{t.rosso.piu, t.verde.piu, t.blu.piu, t.opacita.piu};
  const bool conPer = std::ranges::any_of(per, [](auto v) { return v != 256; });
  const bool conPiu = std::ranges::any_of(piu, [](auto v) { return v != 0; });
  const int bit = std::max(conPer ? bitPerTutti(per) : 0, conPiu ? bitPerTutti(piu) : 0);
  byte.allinea();
  byte.bit(conPiu ? 1 : 0, 1);
  byte.bit(conPer ? 1 : 0, 1);
  scriviMisura(byte, bit, 4);
  if (conPer) {
    for (const auto valore : per) byte.bitConSegno(valore, bit);
  }
  if (conPiu) {
    for (const auto valore : piu) byte.bitConSegno(valore, bit);
  }
  byte.allinea();
}

void scriviRgb(ScrittoreByte& byte, Colore colore) {
  byte.u8(colore.rosso);
  byte.u8(colore.verde);
  byte.u8(colore.blu);
}

void scriviRgba(ScrittoreByte& byte, Colore colore) {
  scriviRgb(byte, colore);
  byte.u8(colore.opacita);
}

}  // namespace somme::swf
