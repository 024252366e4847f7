#include "exercises/numbers/forma_numeri_scansione.h"

#include "exercises/core/disegno_scansione.h"
#include "exercises/numbers/disegno_numeri.h"

namespace somme::inline numeri {

using namespace disegno;

namespace {

// Smaller than where it is typed, to leave room for the keyboard.
constexpr TwipsRect kPostoTestoInput{3360, 2400, 2175, 1095};

constexpr auto kRisposta = std::to_array<Row>({
    row<&FormaNumeriScansione::TestoInputInvisibile>(
        kPostoTestoInput, {.font = {Face::Tahoma, 20.25}, .hidden = true}),
    row<&FormaNumeriScansione::TestoInput>(kPostoTestoInput,
                                           {.toolTip = "Il numero scelto con la tastiera",
                                            .label = nameOf<&FormaNumeri::EtOperazione>}),
    TastieraNumerica<FormaNumeriScansione>({360, 4440, 9855, 705}, true, kSenzaAiuto),
    row<&FormaNumeriScansione::LabelPerTastieraNumerica>({360, 4320, 9975, 735}, {.hidden = true}),
});

constexpr std::array<std::span<const Row>, 4> kTavole{kDomandaNumeri, kRisposta, kVerdettoNumeri,
                                                      kMenuEsercizio};

}  // namespace

FormaNumeriScansione::FormaNumeriScansione(Ambiente& ambiente, std::string_view nome,
                                           const EsercizioNumeri& esercizio)
    : FormaNumeri(ambiente, nome, esercizio, kTavole) {
  Usa(scansione_);
  TestoInput.onConfermato([this] { Giudica(TestoInput.ValoreInserito.toDouble()); });
}

void FormaNumeriScansione::onLoad() {
  FormaNumeri::onLoad();
  TestoInput.setVisible(false);
}

void FormaNumeriScansione::MostraRisposta() {
  casella_.Mostra();
  PosaTastiera(TastieraNumericaScansione1, LabelPerTastieraNumerica);
  TastieraNumericaScansione1.setVisible(true);
}

void FormaNumeriScansione::NuovoCaso() {
  newCase();
  TestoInput.Reimposta();
  TestoInput.RiapreCon(TestoInputNumerico::Riapre::Cestino);
  if (const auto cifre = GeneraCaso()) TestoInput.MaxLength.set(*cifre);
  ScriviDomanda();
  TastieraNumericaScansione1.Attiva();
  MettiModoScansione(stato(), TastieraNumericaScansione1);
  TastieraNumericaScansione1.DisattivaAvanti();
}

void FormaNumeriScansione::RispostaGiusta() {
  SegnaGiusto();
  TestoInput.RiapreCon(TestoInputNumerico::Riapre::Niente);
  ScriviConRisposta(TestoInput.TestoFormattato);
  TastieraNumericaScansione1.AttivaAvanti();
}

}  // namespace somme::inline numeri
