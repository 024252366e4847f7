#pragma once

#include "app/forma_menu.h"
#include "platform/forms/design.h"

// What the designs of the menus have in common.
namespace somme::disegno {

using platform::Align;
using platform::Face;
using platform::FormDesign;
using platform::item;
using platform::Look;
using platform::nameOf;
using platform::Rgb;
using platform::Row;
using platform::row;
using platform::TwipsRect;

inline constexpr Rgb kSfondoMenu{255, 255, 192};
inline constexpr Rgb kInchiostro{24, 33, 59};
inline constexpr Rgb kFascia{214, 232, 255};

// The levels stand in rows of one height, 840 twips from row to row.
constexpr double AltoRiga(int riga, double primo = 1440) {
  return primo + 840 * riga;
}
inline constexpr double kAltoLivello = 675;

constexpr Row Intestazione(double larghezza, std::string_view testo) {
  return row<&FormaMenu::Label1>({240, 120, larghezza, 720}, {.caption = testo,
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

constexpr Look VoceLivello(std::string_view testo) {
  return {.caption = testo, .font = {Face::Tahoma, 11.25}};
}

// A level whose button has room for a picture.
constexpr Look VoceGrande(std::string_view testo, double punti = 14.25) {
  return {.caption = testo, .font = {Face::Tahoma, punti}, .picture = "livello"};
}

constexpr Look Indietro() {
  return {
      .caption = "Torna al menù principale", .font = {Face::Tahoma, 14.25}, .picture = "indietro"};
}

constexpr FormDesign Menu(std::string_view nome, double larghezza, double altezza,
                          std::span<const std::span<const Row>> tavole) {
  return {.name = nome,
          .caption = "Esercitazioni sulle somme",
          .width = larghezza,
          .height = altezza,
          .back = kSfondoMenu,
          .tables = tavole};
}

}  // namespace somme::disegno
