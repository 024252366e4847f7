#include "printing/disegno_foglio.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "app/shared/colori.h"
#include "printing/foglio_tastiera.h"

namespace somme::inline stampa {

namespace {

using platform::Align;
using platform::Face;
using platform::FontSpec;
using platform::Row;
using platform::row;
using platform::TwipsRect;
using F = FoglioTastiera;

constexpr FontSpec kCaratteriCifra{Face::Arial, 36, true};
constexpr FontSpec kCaratteriParola{Face::Arial, 44, true};
constexpr double kLatoCifra = 1160;

// The place values have the colours of their blocks and beads.
constexpr platform::Rgb ColoreDi(Tasto tasto) {
  switch (tasto) {
    case Tasto::Migliaia:
      return colori::kColoreMigliaia;
    case Tasto::Centinaia:
      return colori::kColoreCentinaia;
    case Tasto::Decine:
      return colori::kColoreDecine;
    case Tasto::Unita:
      return colori::kColoreUnita;
    default:
      return platform::kBlack;
  }
}

// The drawings are controls outside of an array, each under a name of its own.
constexpr std::array<std::string_view, F::kDisegni> kNomiDisegni{"Image1", "Image2", "Image3",
                                                                 "Image4", "Image5", "Image6"};
using Accesso = decltype(Row::control);
template <std::size_t... i>
constexpr std::array<Accesso, sizeof...(i)> Accessi(std::index_sequence<i...> /*quali*/) {
  return {[](platform::Form& forma, int) -> platform::Control& {
    return static_cast<F&>(forma).Image.element(static_cast<int>(i) + 1);
  }...};
}
constexpr auto kAccessi = Accessi(std::make_index_sequence<F::kDisegni>());

// Every drawing of every sheet is one of them.
constexpr bool HaUnDisegno(const TastoPosato& tasto) {
  return tasto.tasto == Tasto::Nessuno || ComeSiMostra(tasto.tasto) != Mostra::Disegno ||
         (tasto.controllo >= 1 && tasto.controllo <= F::kDisegni);
}
static_assert(std::ranges::all_of(kFogliTasti, [](const FoglioTasti& foglio) {
  return std::ranges::all_of(foglio.tastiera.tasti, HaUnDisegno);
}));

constexpr TwipsRect InMezzo(const TwipsRect& cornice, double lato) {
  return {cornice.left + (cornice.width - lato) / 2, cornice.top + (cornice.height - lato) / 2,
          lato, lato};
}

// What shows a key over its frame. A digit is written at the Load, in every language.
Row RigaTasto(const TastoPosato& tasto, const TwipsRect& cornice) {
  const SegnoTasto segno = SegnoDi(tasto.tasto);
  switch (ComeSiMostra(tasto.tasto)) {
    case Mostra::Cifra:
      return row<&F::Label1>(tasto.controllo, InMezzo(cornice, kLatoCifra),
                             {.font = kCaratteriCifra, .align = Align::Centre});
    case Mostra::Parola:
      return row<&F::Label3>(tasto.controllo, cornice,
                             {.caption = segno.parola,
                              .font = kCaratteriParola,
                              .fore = ColoreDi(tasto.tasto),
                              .align = Align::Centre});
    case Mostra::Disegno:
      break;
  }
  const auto quale = static_cast<std::size_t>(tasto.controllo - 1);
  return {
      kNomiDisegni.at(quale),
      -1,
      kAccessi.at(quale),
      cornice,
      {.toolTip = segno.nome, .picture = tasto.disegno.empty() ? segno.disegno : tasto.disegno}};
}

std::vector<Row> Righe(const FoglioTasti& foglio, int bordo) {
  std::vector<Row> cornici;
  std::vector<Row> tasti;
  for (int posto = 1; posto <= foglio.tastiera.Posti(); ++posto) {
    const TastoPosato tasto = foglio.TastoDi(posto);
    const TwipsRect cornice = PostoDi(foglio.tastiera.CorniceDi(posto), kGrigliaDisegno);
    const bool vuoto = tasto.tasto == Tasto::Nessuno;
    cornici.push_back(
        row<&F::Shape1>(posto - 1, cornice,
                        {.hidden = vuoto && !foglio.tastiera.tasti.empty(), .borderWidth = bordo}));
    if (!vuoto) tasti.push_back(RigaTasto(tasto, cornice));
  }
  cornici.insert(cornici.end(), tasti.begin(), tasti.end());
  return cornici;
}

}  // namespace

DisegnoFoglio::DisegnoFoglio(const FoglioTasti& foglio, int bordo,
                             std::span<const platform::Row> altre)
    : foglio_(foglio),
      righe_(Righe(foglio, bordo)),
      tavole_{righe_, altre},
      disegno_{.name = foglio.nome,
               .caption = foglio.titolo,
               .width = kLarghezzaFoglio,
               .height = kAltezzaFoglio,
               .tables = tavole_,
               .keepsShape = true} {}

}  // namespace somme::inline stampa
