#include "exercises/numbers/forma_numeri_tastiera.h"

#include "exercises/numbers/disegno_numeri.h"

namespace somme::inline numeri {

using namespace disegno;

namespace {

constexpr TwipsRect kPostoTestoInput{3360, 2760, 2655, 1095};

constexpr auto kCasella = std::to_array<Row>({
    row<&FormaNumeriTastiera::TestoInputInvisibile>(kPostoTestoInput,
                                                    {.font = {Face::Tahoma, 36}, .hidden = true}),
    row<&FormaNumeriTastiera::TestoInput>(
        kPostoTestoInput,
        {.toolTip = "Scrivi il numero e premi Invio", .label = nameOf<&FormaNumeri::EtOperazione>}),
    Avanti<FormaNumeriTastiera>(kPostoAvantiNumeri),
});

constexpr std::array<std::span<const Row>, 4> kTavole{kDomandaNumeri, kCasella, kVerdettoNumeri,
                                                      kMenuEsercizio};

}  // namespace

FormaNumeriTastiera::FormaNumeriTastiera(Ambiente& ambiente, std::string_view nome,
                                         const EsercizioNumeri& esercizio)
    : FormaNumeri(ambiente, nome, esercizio, kTavole) {
  TestoInput.onConfermato([this] { Giudica(TestoInput.ValoreInserito.toDouble()); });
  PulsanteAvanti.onClick([this] { NuovoCaso(); });
}

void FormaNumeriTastiera::onLoad() {
  FormaNumeri::onLoad();
  PulsanteAvanti.setVisible(true);
  TestoInput.setVisible(false);
}

void FormaNumeriTastiera::NuovoCaso() {
  newCase();
  TestoInput.Enabled.set(true);
  letEventsRun();
  PulsanteAvanti.setEnabled(false);
  TestoInput.Reimposta();
  if (const auto cifre = GeneraCaso()) TestoInput.MaxLength.set(*cifre);
  ScriviDomanda();
  TestoInput.setFocus();
}

void FormaNumeriTastiera::RispostaGiusta() {
  SegnaGiusto();
  PulsanteAvanti.setEnabled(true);
  ScriviConRisposta(TestoInput.TestoFormattato);
  if (esercizio().finale == EsercizioNumeri::Finale::DisabilitaPoiFuoco) {
    TestoInput.Enabled.set(false);
    PulsanteAvanti.setFocus();
  } else {
    PulsanteAvanti.setFocus();
    TestoInput.Enabled.set(false);
  }
}

}  // namespace somme::inline numeri
