#include "exercises/blocks/forma_blocchi_scansione.h"

#include "exercises/blocks/disegno_blocchi.h"
#include "exercises/core/disegno_scansione.h"

namespace somme::inline blocchi {

using namespace disegno;

namespace {

constexpr TwipsRect kPostoHDU{840, 5400, 4335, 722};
constexpr TwipsRect kPostoNumerica{2640, 6480, 6255, 447};
constexpr std::string_view kAiuto = "Il numero scelto con la tastiera";

constexpr auto kValori99 = std::to_array<Row>({
    TastieraHDU<FormaBlocchiScansione>(kPostoHDU, true, kSenzaKH),
});
constexpr auto kValori999 = std::to_array<Row>({
    TastieraHDU<FormaBlocchiScansione>(kPostoHDU, true, kSenzaK),
});
constexpr auto kRisultato99 = std::to_array<Row>({
    RisultatoEntro99<FormaBlocchiScansione>(kAiuto),
});
constexpr auto kRisultato999 = std::to_array<Row>({
    RisultatoEntro999<FormaBlocchiScansione>(kAiuto),
});

// What the switch presses is lit as a key of the keyboards is.
constexpr auto kCambio99 = CambioEntro99(kRosso);
constexpr auto kCambi999 = CambiEntro999(kRosso);

// The counters stand right of the keyboard of digits, where other forms have the way on.
constexpr auto kCifre = std::to_array<Row>({
    row<&FormaBlocchiScansione::LabelDimensioneTastiera>(kPostoHDU, {.hidden = true}),
    row<&FormaBlocchiScansione::LabelPerTastieraNumerica>(kPostoNumerica, {.hidden = true}),
    TastieraNumerica<FormaBlocchiScansione>(kPostoNumerica, true, kSenzaAiuto),
    Esatti({9000, 6720, 2055, 375}),
    Errati({9000, 7125, 2055, 375}),
});

constexpr std::array<std::span<const Row>, 7> kTavole99{
    kTavoleBlocchi, kValori99, kCambio99, kRisultato99, kCifre, kSottoBlocchi, kMenuEsercizio};
constexpr std::array<std::span<const Row>, 7> kTavole999{
    kTavoleBlocchi, kValori999, kCambi999, kRisultato999, kCifre, kSottoBlocchi, kMenuEsercizio};

}  // namespace

constinit const VarianteBlocchi kBlocchiScansione99{
    .esercizio = kBlocchiEntro99,
    .tavole = kTavole99,
    .puntatori = VarianteBlocchi::Puntatori::Disegno};
constinit const VarianteBlocchi kBlocchiScansione999{.esercizio = kBlocchiEntro999,
                                                     .tavole = kTavole999};

FormaBlocchiScansione::FormaBlocchiScansione(Ambiente& ambiente, std::string_view nome,
                                             const VarianteBlocchi& variante)
    : FormaBlocchi(ambiente, nome, variante) {
  Usa(scansione_);
}

void FormaBlocchiScansione::PosaTastiere() {
  PosaTastiera(TastieraHDUScansione1, LabelDimensioneTastiera);
  PosaTastiera(TastieraNumericaScansione1, LabelPerTastieraNumerica);
}

void FormaBlocchiScansione::ChiudiAvanti() {
  TastieraNumericaScansione1.Disattiva();
  TastieraNumericaScansione1.setVisible(false);
}

void FormaBlocchiScansione::TogliComandi() {
  TastieraHDUScansione1.Disattiva();
  FormaBlocchi::TogliComandi();
}

void FormaBlocchiScansione::MostraCambio(platform::Button& pulsante) {
  pulsante.ringAsScanned();
  pulsante.setVisible(true);
  pulsante.setFocus();
}

void FormaBlocchiScansione::ChiediRisultato() {
  TestoInput.setVisible(true);
  TestoInput.setLocked(true);
  TastieraNumericaScansione1.setVisible(true);
  Avvia(TastieraNumericaScansione1);
  TastieraNumericaScansione1.DisattivaAvanti();
}

void FormaBlocchiScansione::ChiudiPannelloStampa() {
  FormaBlocchi::ChiudiPannelloStampa();
  NuovoCaso();
}

}  // namespace somme::inline blocchi
