#include "exercises/blocks/forma_blocchi_tastiera.h"

#include "exercises/blocks/disegno_pulsanti.h"
#include "exercises/core/testo_cifre.h"

namespace somme::inline blocchi {

using namespace disegno;

namespace {

constexpr std::string_view kAiuto = "Scrivi il risultato e premi Invio";

constexpr auto kRisultato99 = std::to_array<Row>({
    RisultatoEntro99<FormaBlocchiTastiera>(kAiuto),
    Avanti<FormaBlocchiTastiera>(kPostoAvantiBlocchi),
});
constexpr auto kRisultato999 = std::to_array<Row>({
    RisultatoEntro999<FormaBlocchiTastiera>(kAiuto),
    Avanti<FormaBlocchiTastiera>(kPostoAvantiBlocchi),
});

constexpr std::array<std::span<const Row>, 7> kTavole99{
    kTavoleBlocchi, kComandiEntro99<FormaBlocchiTastiera>,
    kCambioEntro99, kRisultato99,
    kContiBlocchi,  kSottoBlocchi,
    kMenuEsercizio};
constexpr std::array<std::span<const Row>, 7> kTavole999{
    kTavoleBlocchi, kComandiEntro999<FormaBlocchiTastiera>,
    kCambiEntro999, kRisultato999,
    kContiBlocchi,  kSottoBlocchi,
    kMenuEsercizio};

}  // namespace

constinit const VarianteBlocchi kBlocchiTastiera99{.esercizio = kBlocchiEntro99,
                                                   .tavole = kTavole99};
constinit const VarianteBlocchi kBlocchiTastiera999{.esercizio = kBlocchiEntro999,
                                                    .tavole = kTavole999};

FormaBlocchiTastiera::FormaBlocchiTastiera(Ambiente& ambiente, std::string_view nome,
                                           const VarianteBlocchi& variante)
    : FormaBlocchi(ambiente, nome, variante) {
  RaccogliCifre(TestoInput, [this] { Rispondi(NumeroScritto(TestoInput)); });
  PulsanteAvanti.onClick([this] { NuovoCaso(); });
}

void FormaBlocchiTastiera::onLoad() {
  FormaBlocchi::onLoad();
  PulsanteAvanti.setVisible(true);
  pulsanti.AlCaricamento();
  TestoInput.askForDigits();
}

void FormaBlocchiTastiera::MettiComandi() {
  FormaBlocchi::MettiComandi();
  pulsanti.PrendiIlFuoco();
}

void FormaBlocchiTastiera::ChiediRisultato() {
  TestoInput.setVisible(true);
  TestoInput.setFocus();
}

void FormaBlocchiTastiera::RisultatoGiusto() {
  TestoInput.setLocked(true);
  PulsanteAvanti.setFocus();
}

}  // namespace somme::inline blocchi
