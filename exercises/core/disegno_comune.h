#pragma once

#include "app/shared/colori.h"
#include "exercises/core/forma_esercizio.h"
#include "platform/forms/design.h"

// What the designs of the exercise forms have in common: fonts, and rows that differ between
// forms in their place alone.
namespace somme::inline nucleo::disegno {

using namespace colori;
using platform::Align;
using platform::Face;
using platform::FontSpec;
using platform::FormDesign;
using platform::item;
using platform::kBlack;
using platform::kWhite;
using platform::Look;
using platform::nameOf;
using platform::Row;
using platform::row;
using platform::TwipsRect;

inline constexpr FontSpec kTahoma9{Face::Tahoma, 9.75};
inline constexpr FontSpec kTahoma14{Face::Tahoma, 14.25};

// F: a form with `PulsanteAvanti`, which shows itself at its Load.
template <class F>
constexpr Row Avanti(TwipsRect posto) {
  return row<&F::PulsanteAvanti>(
      posto, {.caption = "a&vanti", .font = kTahoma14, .hidden = true, .picture = "avanti"});
}
constexpr Row Esatti(TwipsRect posto) {
  return row<&FormaEsercizio::EtichettaEsatti>(
      posto, {.caption = "Esatti", .font = kTahoma14, .back = kCiano, .border = true});
}
constexpr Row Errati(TwipsRect posto) {
  return row<&FormaEsercizio::EtichettaErrati>(
      posto, {.caption = "Errati", .font = kTahoma14, .back = kCiano, .border = true});
}
constexpr Row Si(TwipsRect posto) {
  return row<&FormaEsercizio::ImgSi>(posto, {.toolTip = "Giusto", .picture = "si"});
}
constexpr Row No(TwipsRect posto) {
  return row<&FormaEsercizio::ImgNo>(
      posto, {.toolTip = "Sbagliato: prova ancora", .hidden = true, .picture = "no"});
}
constexpr Row Pannello(TwipsRect posto) {
  return row<&FormaEsercizio::PictureStampa>(
      posto, {.toolTip = "Somme risolte", .back = kVerdePallido, .hidden = true});
}
constexpr Row Elenco(TwipsRect posto) {
  return row<&FormaEsercizio::TestoStampa>(posto, {.toolTip = "Elenco delle somme risolte",
                                                   .font = {Face::Tahoma, 12},
                                                   .in = nameOf<&FormaEsercizio::PictureStampa>});
}
constexpr Row Stampa(TwipsRect posto) {
  return row<&FormaEsercizio::CommandStampa>(posto, {.caption = "Stampa",
                                                     .font = kTahoma14,
                                                     .picture = "stampante",
                                                     .in = nameOf<&FormaEsercizio::PictureStampa>});
}
constexpr Row Chiudi(TwipsRect posto) {
  return row<&FormaEsercizio::CommandChiudi>(posto, {.caption = "Chiudi",
                                                     .font = kTahoma14,
                                                     .picture = "chiudi",
                                                     .in = nameOf<&FormaEsercizio::PictureStampa>});
}

// The menu of the forms that have nothing to choose in it.
inline constexpr auto kMenuEsercizio = std::to_array<Row>({
    item<&FormaEsercizio::MenuAzzera>({.caption = "A&zzera conteggio"}),
    item<&FormaEsercizio::mnuStampa>({.caption = "&Stampa"}),
    item<&FormaEsercizio::mnuEsci>({.caption = "&Esci"}),
});

}  // namespace somme::inline nucleo::disegno
