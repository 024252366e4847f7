#include "exercises/abacus/forma_abaco_scansione.h"

#include "exercises/abacus/casella_dietro.h"
#include "exercises/abacus/disegno_abaco.h"
#include "exercises/core/disegno_scansione.h"

namespace somme::inline abaco {

using namespace disegno;

namespace {

constexpr int kMargine = 100;  // twips, on either side of the keyboard of digits

constexpr auto kControlli = std::to_array<Row>({
    Ancora({120, 120, 8175, 5415}),
    Abaco({120, 120, 8175, 5415}),
    Operazione({120, 6720, 4815, 735}),
    row<&FormaAbacoScansione::TestoInput>({4915, 6720, 2407, 735},
                                          {.toolTip = "Il numero scelto con la tastiera",
                                           .label = nameOf<&FormaAbaco::EtOperazione>}),
    row<&FormaAbacoScansione::LabelDimensioneTastiera>({1850, 5660, 4830, 805}, {.hidden = true}),
    TastieraHDU<FormaAbacoScansione>({1850, 5660, 4830, 805}, true),
    TastieraNumerica<FormaAbacoScansione>({100, 5660, 10660, 761}, true, kSenzaAiuto),
    Si({8940, 240, 855, 855}),
    No({8940, 240, 855, 855}),
    Esatti({8400, 1320, 2340, 375}),
    Errati({8400, 1695, 2340, 375}),
});

constexpr std::array<std::span<const Row>, 3> kTavole{kControlli, kPannelloAbaco, kMenuEsercizio};

}  // namespace

FormaAbacoScansione::FormaAbacoScansione(Ambiente& ambiente, std::string_view nome)
    : FormaAbaco(ambiente, DisegnoAbaco(nome, kTavole), PartitaAbaco::Cambi::DaSe) {
  Usa(scansione_);
  TestoInput.RiapreCon(TestoInputNumerico::Riapre::Cestino);
  TestoInput.onConfermato(
      [this] { Giudica(gioco().Rispondi(TestoInput.ValoreInserito.toDouble())); });
}

void FormaAbacoScansione::onLoad() {
  FormaAbaco::onLoad();
  ShockwaveFlash1.ignoreMouse();
  TestoInput.setVisible(false);
}

void FormaAbacoScansione::MostraRisposta() {
  PosaDietro(TestoInput, EtOperazione);
  PosaTastiere();
  TestoInput.setVisible(true);
}

void FormaAbacoScansione::PosaTastiere() {
  PosaTastiera(TastieraHDUScansione1, LabelDimensioneTastiera);
  TastieraNumericaScansione1.setTop(TastieraHDUScansione1.top());
  TastieraNumericaScansione1.setLeft(kMargine);
  TastieraNumericaScansione1.setWidth(width() - 2 * kMargine);
  const int tipo = stato().TipoEsercizio;
  if (const auto k = HaPalline(tipo, Posto::Migliaia)) TastieraHDUScansione1.KVisibile.set(*k);
  if (const auto h = HaPalline(tipo, Posto::Centinaia)) TastieraHDUScansione1.HVisibile.set(*h);
}

void FormaAbacoScansione::NuovoCaso() {
  newCase();
  EliminaNumeroSW1();
  TastieraNumericaScansione1.Disattiva();
  TastieraNumericaScansione1.DisattivaAvanti();
  TastieraNumericaScansione1.setVisible(false);
  TestoInput.Reimposta();
  GeneraCaso();
  TastieraHDUScansione1.setVisible(true);
  ScriviDomanda();
  MettiModoScansione(stato(), TastieraHDUScansione1);
  TastieraHDUScansione1.Attiva();
}

void FormaAbacoScansione::PassaAlleCifre() {
  TastieraHDUScansione1.Disattiva();
  TastieraHDUScansione1.setVisible(false);
  TastieraNumericaScansione1.setVisible(true);
  TastieraNumericaScansione1.Attiva();
  MettiModoScansione(stato(), TastieraNumericaScansione1);
}

void FormaAbacoScansione::Inserisci(Posto posto) {
  if (InserisciDaTasto(posto) && gioco().CambiaDaSe(posto)) Cambio(posto);
}

void FormaAbacoScansione::Cambio(Posto da) {
  TastieraHDUScansione1.setVisible(false);
  if (!gioco().IniziaCambio(da)) return;
  if (const std::optional<Posto> poi = Cambia(da)) {
    Cambio(*poi);
  } else {
    RiattivaTastiera();
  }
}

void FormaAbacoScansione::RiattivaTastiera() {
  TastieraHDUScansione1.setVisible(true);
  TastieraHDUScansione1.Attiva();
  qint16 primo = TastieraHDUScansione::kMigliaia;
  if (!TastieraHDUScansione1.KVisibile.get()) ++primo;
  if (!TastieraHDUScansione1.HVisibile.get()) ++primo;
  TastieraHDUScansione1.PulsanteCorrente.set(primo);
}

void FormaAbacoScansione::RispostaGiusta() {
  SegnaGiusto();
  TastieraNumericaScansione1.AttivaAvanti();
  TestoInput.Enabled.set(false);
  AggiungiSomma(TestoInput.TestoFormattato);
}

}  // namespace somme::inline abaco
