#include "exercises/bars/form_barre20.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre.h"

namespace somme {

using namespace disegno;

namespace {

constexpr int kAiuti = 20;
constexpr int kDecina = 10;

constexpr auto kControlli = std::to_array<Row>({
    row<&FormBarre20::Picture1>({240, 240, 10455, 3495},
                                {.toolTip = "Barre", .back = kWhite, .border = true}),
    row<&FormBarre20::n1>({240, 240, 465, 465}, Barra(kCiano, "Barra gialla")),
    row<&FormBarre20::n2>({705, 240, 465, 465}, Barra(kVerde, "Barra verde")),
    row<&FormBarre20::n3>({240, 705, 930, 465}, Barra(kRosso, "Barra rossa")),
    row<&FormBarre20::aiuto1>(0, {240, 1180, 465, 465}, Quadretto(kCiano)),
    row<&FormBarre20::aiuto2>(0, {705, 1180, 465, 465}, Quadretto(kVerde)),
    row<&FormBarre20::aiuto3>(0, {240, 1635, 465, 465}, Quadretto(kRosso)),
    row<&FormBarre20::Line1>({4890, -120, 0, 3480}, {.toolTip = "Qui finisce la decina",
                                                     .hidden = true,
                                                     .borderWidth = 2,
                                                     .in = nameOf<&FormBarre20::Picture1>}),
    row<&FormBarre20::Label4>(0, {2760, 4320, 975, 735}, Termine("")),
    row<&FormBarre20::Label4>(1, {3720, 4320, 855, 735}, Termine("+")),
    row<&FormBarre20::Label4>(2, {4560, 4320, 975, 735}, Termine("")),
    row<&FormBarre20::Label4>(3, {5520, 4320, 855, 735}, Termine("=")),
    row<&FormBarre20::Label4>(4, {6360, 4320, 975, 735}, Termine("")),
    row<&FormBarre20::Label3>(
        {360, 5520, 5175, 480},
        {.caption = "Trova il numero che corrisponde alla barra rossa", .font = kTahoma9}),
    row<&FormBarre20::TestoInput>({4800, 5760, 975, 735},
                                  {.toolTip = "Scrivi il numero e premi Invio",
                                   .font = kNumeroGrande,
                                   .align = Align::Centre,
                                   .border = true,
                                   .maxLength = 2}),
    Aiuto({6840, 6120, 1935, 975}),
    Avanti<FormBarre20>({8880, 6120, 1935, 975}),
    Si({360, 6360, 855, 855}),
    No({360, 6360, 855, 855}),
    Esatti({1560, 6240, 2415, 360}),
    Errati({1560, 6600, 2415, 360}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    Stampa({7440, 4680, 2580, 1155}),
    Chiudi({7440, 6240, 2580, 1155}),
});

constexpr auto kMenuProprio = std::to_array<Row>({
    item<&FormBarre20::mnuEsci>({.caption = "&Esci"}),
});

constexpr std::array<std::span<const Row>, 3> kTavole{kControlli, kMenuBarre, kMenuProprio};

constexpr FormDesign kDisegno{.name = forme::kFormBarre20,
                              .caption = "Esercitazioni sulle somme",
                              .width = 10980,
                              .height = 7605,
                              .back = kGialloPallido,
                              .tables = kTavole};

}  // namespace

FormBarre20::FormBarre20(Ambiente& ambiente) : FormaBarreTastiera(ambiente, kDisegno, kAiuti) {}

void FormBarre20::onActivate() {
  LeggiMisure();
  Line1.setX1(FineDi(kDecina));
  Line1.setX2(FineDi(kDecina));
  MisuraAiuti();
  ScriviTitolo(stringhe().TitoloFinoAl20);
  CreaAiuti();
  ColoraTermini();
  NuovoCaso();
}

void FormBarre20::MostraAiuto() {
  if (stato().LimiteEsercizio == kAiuti) Line1.setVisible(true);
  FormaBarreTastiera::MostraAiuto();
}

}  // namespace somme
