#pragma once

#include <algorithm>
#include <utility>

#include "app/menu_di_famiglia.h"
#include "app/shared/ambiente.h"
#include "app/shared/colori.h"
#include "platform/forms/design.h"

// What the designs of the menus have in common.
namespace somme::inline programma::disegno {

using namespace colori;
using platform::Align;
using platform::Face;
using platform::FormDesign;
using platform::item;
using platform::Look;
using platform::nameOf;
using platform::Row;
using platform::row;
using platform::TwipsRect;

constexpr Row Intestazione(double larghezza, std::string_view testo) {
  return row<&MenuDiFamiglia::Label1>({240, 120, larghezza, 720}, {.caption = testo,
                                                                   .font = {Face::Tahoma, 24, true},
                                                                   .fore = kInchiostro,
                                                                   .align = Align::Centre});
}

// The band over the columns of a group.
constexpr Look Fascia(std::string_view testo) {
  return {.caption = testo,
          .font = {Face::Tahoma, 14.25, true},
          .fore = kInchiostro,
          .back = kFascia,
          .align = Align::Centre,
          .border = true};
}

constexpr Look VoceLivello(std::string_view testo, Rgb tinta) {
  return {.caption = testo, .font = {Face::Tahoma, 11.25}, .back = tinta};
}

// A level whose button has room for a picture of what it does.
constexpr Look VoceGrande(std::string_view testo, Rgb tinta, std::string_view immagine,
                          double punti = 14.25) {
  return {.caption = testo, .font = {Face::Tahoma, punti}, .back = tinta, .picture = immagine};
}

constexpr Look Indietro() {
  return {
      .caption = "Torna al menù principale", .font = {Face::Tahoma, 14.25}, .picture = "indietro"};
}

// The two friends, who greet on the first form and come back where there is room for them.
// F: a form with `Image1` and `Image2`.
template <class F>
constexpr Row AmicoDiBlocchi(TwipsRect posto) {
  return row<&F::Image1>(posto,
                         {.toolTip = "Un amico fatto di blocchi", .picture = "avvio_sinistra"});
}
template <class F>
constexpr Row AmicoAbaco(TwipsRect posto) {
  return row<&F::Image2>(posto, {.toolTip = "Un abaco", .picture = "avvio_destra"});
}

// The way to a button that its row gives a name of its own: `F::Voce(quale)`.
template <class F, int quale>
platform::Control& VoceDi(platform::Form& forma, int /*indice*/) {
  return static_cast<F&>(forma).Voce(quale);
}
inline constexpr int kPiuVoci = 64;
template <class F>
inline constexpr auto kVoci = []<int... quali>(std::integer_sequence<int, quali...>) {
  return std::array{&VoceDi<F, quali>...};
}(std::make_integer_sequence<int, kPiuVoci>{});

constexpr FormDesign Menu(std::string_view nome, double larghezza, double altezza,
                          std::span<const std::span<const Row>> tavole) {
  return {.name = nome,
          .caption = kTitoloProgramma,
          .width = larghezza,
          .height = altezza,
          .back = kSfondoMenu,
          .tables = tavole};
}

// What must hold of the rows that a menu makes of levels; each menu asks as it is compiled.

constexpr bool Discosti(const Row& a, const Row& b) {
  if (a.name == b.name && a.index == b.index) return true;
  const auto prima = [](double da, double lungo, double altro) { return da + lungo <= altro; };
  const TwipsRect& p = a.place;
  const TwipsRect& q = b.place;
  return a.look.hidden || b.look.hidden || prima(p.left, p.width, q.left) ||
         prima(q.left, q.width, p.left) || prima(p.top, p.height, q.top) ||
         prima(q.top, q.height, p.top);
}

// No level lies over another, or over what else the menu shows, or out of the form. Lengths are
// twips of the form.
constexpr bool HaPosto(double larghezza, double altezza, std::span<const Row> livelli,
                       std::span<const Row> altre) {
  return std::ranges::all_of(livelli, [&](const Row& a) {
    const auto daA = [&a](const Row& b) { return Discosti(a, b); };
    return a.place.left + a.place.width <= larghezza && a.place.top + a.place.height <= altezza &&
           std::ranges::all_of(livelli, daA) && std::ranges::all_of(altre, daA);
  });
}

// Each button has a picture, and none the picture of another: by it a pupil who cannot read finds
// his level again.
constexpr bool ConImmaginiProprie(std::span<const Row> pulsanti) {
  return std::ranges::all_of(pulsanti, [pulsanti](const Row& riga) {
    const auto uguale = [&riga](const Row& altra) {
      return altra.look.picture == riga.look.picture;
    };
    return !riga.look.picture.empty() && std::ranges::count_if(pulsanti, uguale) == 1;
  });
}

}  // namespace somme::inline programma::disegno
