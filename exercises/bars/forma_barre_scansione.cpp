#include "exercises/bars/forma_barre_scansione.h"

#include "exercises/bars/disegno_barre.h"
#include "exercises/core/disegno_scansione.h"
#include "exercises/core/testo_cifre.h"

namespace somme::inline barre {

using namespace disegno;

namespace {

// What stands below the written sum, left of the keyboard.
constexpr auto kResto = std::to_array<Row>({
    Casella<FormaBarreScansione>({4800, 5400, 975, 735}, "Il numero scelto con la tastiera", true),
    Si({240, 6120, 795, 795}),
    No({240, 6120, 795, 795}),
    Esatti({1140, 6120, 1740, 390}),
    Errati({1140, 6540, 1740, 390}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    // Low enough for the lower of the two forms.
    Stampa({7440, 4680, 2580, 975}),
    Chiudi({7440, 6240, 2580, 975}),
});

// The keyboard, and the hidden label that carries its place.
constexpr auto Tastiera(TwipsRect posto) {
  return std::to_array<Row>({
      row<&FormaBarreScansione::LabelDimensioneTastiera>(posto, {.hidden = true}),
      TastieraNumerica<FormaBarreScansione>(posto, false),
  });
}

constexpr auto kBarre10 = BarreInAlto(705);
constexpr auto kTastiera10 = Tastiera({3120, 6240, 7455, 555});

constexpr auto kBarre20 = BarreInAlto(465);
constexpr auto kSegno = std::to_array<Row>({Segno(480, 3000, false)});  // the first case hides it
constexpr auto kTastiera20 = Tastiera({3240, 6600, 7455, 555});
constexpr auto kVerdetto20 = std::to_array<Row>({
    Si({240, 6450, 795, 795}),
    No({240, 6450, 795, 795}),
    Esatti({1140, 6450, 1860, 390}),
    Errati({1140, 6870, 1860, 390}),
});

constexpr std::array<std::span<const Row>, 7> kTavole10{
    kBarre10, kSommaSotto, kConsegnaSotto, kResto, kTastiera10, kMenuBarre, kEsciBarre};
constexpr std::array<std::span<const Row>, 9> kTavole20{kBarre20,    kSommaSotto, kConsegnaSotto,
                                                        kResto,      kSegno,      kTastiera20,
                                                        kVerdetto20, kMenuBarre,  kEsciBarre};

}  // namespace

constexpr VarianteBarreScansione kBarreScansione10{
    .pagina = {.titolo = &StringheCondivise::TitoloFinoAl10,
               .larghezza = 11010,
               .altezza = 7245,
               .tavole = kTavole10},
    .primoTermine = {},
    .chiusura = VarianteBarreScansione::Chiusura::PaginaPoiTastiera};
constexpr VarianteBarreScansione kBarreScansione20{
    .pagina = {.titolo = &StringheCondivise::TitoloFinoAl20,
               .larghezza = 11190,
               .altezza = 7500,
               .tavole = kTavole20},
    .primoTermine = kGiallo,
    .chiusura = VarianteBarreScansione::Chiusura::TastieraPoiPagina};

FormaBarreScansione::FormaBarreScansione(Ambiente& ambiente, std::string_view nome,
                                         const VarianteBarreScansione& variante)
    : FormaBarre(ambiente, nome, variante.pagina, PartitaBarre::Vuoto::Zero), variante_(variante) {
  Usa(scansione_);
}

void FormaBarreScansione::IniziaCasi() {
  PosaTastiera(TastieraNumericaScansione1, LabelDimensioneTastiera);
  NuovoCaso();
  MettiModoScansione(stato(), TastieraNumericaScansione1);
  TastieraNumericaScansione1.Attiva();
}

void FormaBarreScansione::NuovoCaso() {
  newCase();
  TastieraNumericaScansione1.DisattivaAvanti();
  TestoInput.setText({});
  NascondiAiuti();
  NascondiSegno();
  GeneraPerTipo();
  if (!variante_.primoTermine) return;
  ColoraTermini(variante_.primoTermine);
  ScriviSomma();
}

// The mark is shown whatever the limit.
void FormaBarreScansione::MostraAiuto() {
  if (Line1) Line1->setVisible(true);
  FormaBarre::MostraAiuto();
}

void FormaBarreScansione::Conferma() {
  if (partita().Rispondi(NumeroScritto(TestoInput)) == Esito::Risolto) {
    RispostaGiusta();
  } else {
    SegnaSbagliato([this] { TastieraNumericaScansione1.SelezionaCestino(); });
  }
}

void FormaBarreScansione::RispostaGiusta() {
  SegnaGiusto([this] { TastieraNumericaScansione1.AttivaAvanti(); });
  MostraNumeri();
  AggiungiAllElenco();
  Label4.forEach([](platform::Label& termine) { termine.setVisible(true); });
}

void FormaBarreScansione::ChiudiPannelloStampa() {
  if (variante_.chiusura == VarianteBarreScansione::Chiusura::TastieraPoiPagina) {
    TastieraNumericaScansione1.Attiva();
    FormaBarre::ChiudiPannelloStampa();
  } else {
    FormaBarre::ChiudiPannelloStampa();
    TastieraNumericaScansione1.Attiva();
  }
  NuovoCaso();
}

}  // namespace somme::inline barre
