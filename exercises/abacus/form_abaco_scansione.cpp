#include "exercises/abacus/form_abaco_scansione.h"

#include "app/shared/nomi_forme.h"
#include "cases/livelli.h"
#include "exercises/abacus/disegno_abaco.h"
#include "exercises/core/disegno_scansione.h"

namespace somme {

using namespace disegno;

namespace {

constexpr int kMargine = 100;  // twips, on either side of the keyboard of digits

constexpr auto kControlli = std::to_array<Row>({
    Ancora({120, 120, 8175, 5415}),
    Abaco({120, 120, 8175, 5415}),
    Operazione({120, 6720, 4815, 735}),
    row<&FormAbacoScansione::TestoInput>({4915, 6720, 2407, 735},
                                         {.toolTip = "Il numero scelto con la tastiera"}),
    row<&FormAbacoScansione::LabelDimensioneTastiera>({1850, 5660, 4830, 805}, {.hidden = true}),
    TastieraHDU<FormAbacoScansione>({1850, 5660, 4830, 805}, true),
    TastieraNumerica<FormAbacoScansione>({100, 5660, 10660, 761}, true, kSenzaAiuto),
    Si({8940, 240, 855, 855}),
    No({8940, 240, 855, 855}),
    Esatti({8400, 1320, 2340, 375}),
    Errati({8400, 1695, 2340, 375}),
});

constexpr std::array<std::span<const Row>, 3> kTavole{kControlli, kPannelloAbaco, kMenuAbaco};

constexpr FormDesign kDisegno = DisegnoAbaco(forme::kFormAbacoScansione, kTavole);

}  // namespace

FormAbacoScansione::FormAbacoScansione(Ambiente& ambiente) : ConDueTastiere(ambiente, kDisegno) {}

void FormAbacoScansione::onActivate() {
  ApriAbaco();
  PosaTestoInput();
  PosaTastiere();
  TestoInput.setVisible(true);
  NuovoCaso();
}

void FormAbacoScansione::PosaTastiere() {
  PosaTastiera(TastieraHDUScansione1, LabelDimensioneTastiera);
  TastieraNumericaScansione1.setTop(TastieraHDUScansione1.top());
  TastieraNumericaScansione1.setLeft(kMargine);
  TastieraNumericaScansione1.setWidth(width() - 2 * kMargine);
  if (const Livello* livello = LivelloDi(LivelliAbaco, stato().TipoEsercizio)) {
    TastieraHDUScansione1.KVisibile.set(livello->gruppo == Gruppo::Entro9999);
    TastieraHDUScansione1.HVisibile.set(livello->gruppo != Gruppo::Entro99);
  }
}

void FormAbacoScansione::NuovoCaso() {
  newCase();
  EliminaNumeroSW1();
  TastieraNumericaScansione1.Disattiva();
  TastieraNumericaScansione1.DisattivaAvanti();
  TastieraNumericaScansione1.setVisible(false);
  TestoInput.Reimposta();
  GeneraCaso();
  TastieraHDUScansione1.setVisible(true);
  ScriviDomanda();
  MettiModo(TastieraHDUScansione1);
  TastieraHDUScansione1.Attiva();
}

void FormAbacoScansione::TastoHDU(qint16 tasto) {
  switch (tasto) {
    case TastieraHDUScansione::kMigliaia:
      InserisciMigliaio();
      break;
    case TastieraHDUScansione::kCentinaia:
      InserisciCentinaio();
      break;
    case TastieraHDUScansione::kDecine:
      InserisciDecina();
      break;
    case TastieraHDUScansione::kUnita:
      InserisciUnita();
      break;
    case TastieraHDUScansione::kCestino:
      Svuota();
      break;
    default:
      PassaAlleCifre();
      break;
  }
}

void FormAbacoScansione::PassaAlleCifre() {
  TastieraHDUScansione1.Disattiva();
  TastieraHDUScansione1.setVisible(false);
  TastieraNumericaScansione1.setVisible(true);
  TastieraNumericaScansione1.Attiva();
  MettiModo(TastieraNumericaScansione1);
}

void FormAbacoScansione::SvuotaInput() {
  TestoInput.TestoPerInput();
  TestoInput.Text.set({});
}

void FormAbacoScansione::PallinaInserita(const GenerePalline& genere) {
  if (&genere != &kPallineMigliaia && this->*genere.inserite == kPalline) Cambio(genere);
}

void FormAbacoScansione::Cambio(const GenerePalline& da) {
  const GenerePalline& a = Superiore(da);
  TastieraHDUScansione1.setVisible(false);
  if (this->*a.inserite >= kPalline) return;
  Cambia(da, a);
  if (&a != &kPallineMigliaia && this->*a.inserite >= kPalline) {
    Cambio(a);
  } else {
    RiattivaTastiera();
  }
}

int FormAbacoScansione::PallinaPerIlCambio(const GenerePalline& genere) const {
  const int numero = this->*genere.inserite;
  return numero < kPalline ? numero : -1;
}

void FormAbacoScansione::RiattivaTastiera() {
  TastieraHDUScansione1.setVisible(true);
  TastieraHDUScansione1.Attiva();
  qint16 primo = TastieraHDUScansione::kMigliaia;
  if (!TastieraHDUScansione1.KVisibile.get()) ++primo;
  if (!TastieraHDUScansione1.HVisibile.get()) ++primo;
  TastieraHDUScansione1.PulsanteCorrente.set(primo);
}

}  // namespace somme
