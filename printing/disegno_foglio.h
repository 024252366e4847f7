#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>

#include "platform/forms/design.h"
#include "printing/foglio_tastiera.h"

// What the designs of the keyboard sheets are made of.
namespace somme::disegno_foglio {

using platform::Align;
using platform::Face;
using platform::FontSpec;
using platform::FormDesign;
using platform::Look;
using platform::Row;
using platform::row;
using platform::TwipsRect;

// The grid divides the design evenly, and its shape is that of the 400 by 280 mm that the print
// dialog begins with.
inline constexpr Griglia kGriglia{400, 292};
inline constexpr double kLarghezza = kGriglia.X * Griglia::kColonne;
inline constexpr double kAltezza = kGriglia.Y * Griglia::kRighe;

inline constexpr FontSpec kCaratteri{Face::Arial, 44, true};

// The frames of a sheet; some stay hidden, because no key is there. bordo: of the edge, logical
// pixels.
template <std::size_t Quanti>
constexpr std::array<Row, Quanti> Cornici(const PostiTasti& tasti,
                                          std::initializer_list<int> nascoste = {}, int bordo = 2) {
  std::array<Row, Quanti> righe{};
  for (int i = 0; i < static_cast<int>(Quanti); ++i) {
    const bool nascosta = std::find(nascoste.begin(), nascoste.end(), i) != nascoste.end();
    righe[static_cast<std::size_t>(i)] = row<&FoglioTastiera::Shape1>(
        i, tasti.Posto(i, kGriglia), {.hidden = nascosta, .borderWidth = bordo});
  }
  return righe;
}

// A picture over a frame.
template <auto Figura>
constexpr Row Simbolo(const PostiTasti& tasti, int tasto, std::string_view disegno,
                      std::string_view nome) {
  return row<Figura>(tasti.Posto(tasto, kGriglia), {.toolTip = nome, .picture = disegno});
}

// A caption over a frame.
template <auto Scritta>
constexpr Row Parola(const PostiTasti& tasti, int tasto, std::string_view testo) {
  return row<Scritta>(tasto, tasti.Posto(tasto, kGriglia),
                      {.caption = testo, .font = kCaratteri, .align = Align::Centre});
}

constexpr FormDesign Foglio(std::string_view nome, std::string_view titolo,
                            std::span<const std::span<const Row>> tavole) {
  return {.name = nome,
          .caption = titolo,
          .width = kLarghezza,
          .height = kAltezza,
          .tables = tavole,
          .keepsShape = true};
}

}  // namespace somme::disegno_foglio
