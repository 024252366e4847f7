#include "tools/swf/forma.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace somme::swf {
namespace {

// Half the edge of the square on which the format defines every gradient.
constexpr double kMezzoQuadrato = 16384;

struct PuntoTwip {
  std::int32_t x = 0;
  std::int32_t y = 0;
};

PuntoTwip inTwip(Punto p) {
  return {twip(p.x), twip(p.y)};
}

// How many bits the steps of an edge take, which the format counts from 2 to 17.
template <std::size_t N>
int bitDelBordo(const std::array<std::int32_t, N>& passi) {
  int bit = 2;
  for (const auto passo : passi) bit = std::max(bit, ScrittoreByte::bitOccorrenti(passo));
  if (bit > 17) throw std::out_of_range("an edge too long for a movie");
  return bit;
}

// Edges are written as steps; the steps are taken between rounded points, so that rounding never
// adds up and a closed path closes.
void scriviLinea(ScrittoreByte& byte, PuntoTwip da, PuntoTwip a) {
  const std::int32_t dx = a.x - da.x;
  const std::int32_t dy = a.y - da.y;
  if (dx == 0 && dy == 0) return;
  const int bit = bitDelBordo(std::array{dx, dy});
  byte.bit(0b11, 2);
  byte.bit(static_cast<std::uint32_t>(bit - 2), 4);
  const bool obliqua = dx != 0 && dy != 0;
  byte.bit(obliqua ? 1 : 0, 1);
  if (!obliqua) byte.bit(dx == 0 ? 1 : 0, 1);
  if (dx != 0) byte.bitConSegno(dx, bit);
  if (dy != 0) byte.bitConSegno(dy, bit);
}

void scriviCurva(ScrittoreByte& byte, PuntoTwip da, PuntoTwip controllo, PuntoTwip a) {
  const std::array<std::int32_t, 4> passi{controllo.x - da.x, controllo.y - da.y, a.x - controllo.x,
                                          a.y - controllo.y};
  const int bit = bitDelBordo(passi);
  byte.bit(0b10, 2);
  byte.bit(static_cast<std::uint32_t>(bit - 2), 4);
  for (const auto passo : passi) byte.bitConSegno(passo, bit);
}

// Moves the pencil. The first move of a layer also takes up its fill and its pen, one bit each.
void scriviMossa(ScrittoreByte& byte, PuntoTwip dove, bool prendi, bool piena, bool contornata) {
  const int bit =
      std::max(ScrittoreByte::bitOccorrenti(dove.x), ScrittoreByte::bitOccorrenti(dove.y));
  const bool conPieno = prendi && piena;
  const bool conPenna = prendi && contornata;
  byte.bit(0, 2);
  byte.bit(conPenna ? 1 : 0, 1);
  byte.bit(conPieno ? 1 : 0, 1);
  byte.bit(0b01, 2);
  byte.bit(static_cast<std::uint32_t>(bit), 5);
  byte.bitConSegno(dove.x, bit);
  byte.bitConSegno(dove.y, bit);
  if (conPieno) byte.bit(1, 1);
  if (conPenna) byte.bit(1, 1);
}

// Lays fill and pen down, then announces a new list of styles. Without the first step a player
// could carry the old choice over into the new list.
void scriviCambioDiStrato(ScrittoreByte& byte, bool piena, bool contornata) {
  byte.bit(0, 2);
  byte.bit(contornata ? 1 : 0, 1);
  byte.bit(piena ? 1 : 0, 1);
  byte.bit(0, 2);
  byte.bit(0, (piena ? 1 : 0) + (contornata ? 1 : 0));
  byte.bit(0b010000, 6);
}

}  // namespace

Riempimento Riempimento::tinta(Colore colore) {
  Riempimento r;
  r.fermate_ = {{0, colore}};
  return r;
}

Riempimento Riempimento::lineare(Punto da, Punto a, std::vector<Fermata> fermate) {
  Riempimento r;
  r.tipo_ = Tipo::Lineare;
  r.fermate_ = std::move(fermate);
  const Punto asse = (a - da) * (kTwipPerPixel / (2 * kMezzoQuadrato));
  const Punto mezzo = (da + a) * 0.5;
  r.matrice_ = {asse.x, asse.y, -asse.y, asse.x, mezzo.x, mezzo.y};
  return r;
}

Riempimento Riempimento::radiale(Punto centro, double raggioX, double raggioY,
                                 std::vector<Fermata> fermate) {
  Riempimento r;
  r.tipo_ = Tipo::Radiale;
  r.fermate_ = std::move(fermate);
  r.matrice_ = {.a = raggioX * kTwipPerPixel / kMezzoQuadrato,
                .d = raggioY * kTwipPerPixel / kMezzoQuadrato,
                .tx = centro.x,
                .ty = centro.y};
  return r;
}

void Riempimento::scrivi(ScrittoreByte& byte) const {
  if (fermate_.empty() || fermate_.size() > 8) {
    throw std::length_error("a gradient has one to eight colours");
  }
  byte.u8(static_cast<std::uint32_t>(tipo_));
  if (tipo_ == Tipo::Tinta) {
    scriviRgba(byte, fermate_.front().colore);
    return;
  }
  swf::scrivi(byte, matrice_);
  byte.u8(static_cast<std::uint32_t>(fermate_.size()));
  for (const auto& fermata : fermate_) {
    byte.u8(static_cast<std::uint32_t>(std::lround(std::clamp(fermata.dove, 0.0, 1.0) * 255)));
    scriviRgba(byte, fermata.colore);
  }
}

Forma& Forma::dipingi(const Percorso& percorso, const Riempimento& riempimento,
                      std::optional<Penna> orlo) {
  strati_.push_back({percorso, riempimento, orlo});
  return *this;
}

Forma& Forma::traccia(const Percorso& percorso, const Penna& penna) {
  strati_.push_back({percorso, {}, penna});
  return *this;
}

Rettangolo Forma::ingombro() const {
  if (strati_.empty()) return {};
  double sinistra = INFINITY, alto = INFINITY, destra = -INFINITY, basso = -INFINITY;
  for (const auto& strato : strati_) {
    const Rettangolo r = strato.percorso.ingombro();
    const double orlo = strato.penna ? strato.penna->spessore / 2 : 0;
    sinistra = std::min(sinistra, r.sinistra - orlo);
    alto = std::min(alto, r.alto - orlo);
    destra = std::max(destra, r.sinistra + r.larghezza + orlo);
    basso = std::max(basso, r.alto + r.altezza + orlo);
  }
  return {sinistra, alto, destra - sinistra, basso - alto};
}

// Every layer brings a list of styles of its own with at most one fill and one pen. A new list
// starts a new layer, which is what makes the later ones cover the earlier.
void Forma::scriviStili(ScrittoreByte& byte, const Strato& strato) {
  byte.u8(strato.riempimento ? 1 : 0);
  if (strato.riempimento) strato.riempimento->scrivi(byte);
  byte.u8(strato.penna ? 1 : 0);
  if (strato.penna) {
    byte.u16(static_cast<std::uint32_t>(twip(strato.penna->spessore)));
    scriviRgba(byte, strato.penna->colore);
  }
  byte.bit(strato.riempimento ? 1 : 0, 4);
  byte.bit(strato.penna ? 1 : 0, 4);
}

void Forma::scriviPercorso(ScrittoreByte& byte, const Strato& strato) {
  PuntoTwip qui;
  bool prendi = true;
  for (const auto& passo : strato.percorso.passi()) {
    const PuntoTwip fine = inTwip(passo.fine);
    switch (passo.tipo) {
      case Percorso::Passo::Tipo::Vai:
        scriviMossa(byte, fine, prendi, strato.riempimento.has_value(), strato.penna.has_value());
        prendi = false;
        break;
      case Percorso::Passo::Tipo::Linea:
        scriviLinea(byte, qui, fine);
        break;
      case Percorso::Passo::Tipo::Curva:
        scriviCurva(byte, qui, inTwip(passo.controllo), fine);
        break;
    }
    qui = fine;
  }
}

std::vector<std::uint8_t> Forma::byte() const {
  if (strati_.empty()) throw std::length_error("a shape without layers");
  ScrittoreByte byte;
  scrivi(byte, ingombro());
  for (std::size_t i = 0; i < strati_.size(); ++i) {
    if (i > 0) {
      scriviCambioDiStrato(byte, strati_[i - 1].riempimento.has_value(),
                           strati_[i - 1].penna.has_value());
    }
    scriviStili(byte, strati_[i]);
    scriviPercorso(byte, strati_[i]);
  }
  byte.bit(0, 6);
  return byte.byte();
}

}  // namespace somme::swf
