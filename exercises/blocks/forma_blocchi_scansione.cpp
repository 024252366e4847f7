#include "exercises/blocks/forma_blocchi_scansione.h"

namespace somme {

FormaBlocchiScansione::FormaBlocchiScansione(Ambiente& ambiente,
                                             const platform::FormDesign& disegno,
                                             const EsercizioBlocchi& esercizio)
    : ConDueTastiere(ambiente, disegno, esercizio) {}

void FormaBlocchiScansione::PosaTastiere() {
  PosaTastiera(TastieraHDUScansione1, LabelDimensioneTastiera);
  PosaTastiera(TastieraNumericaScansione1, LabelPerTastieraNumerica);
}

void FormaBlocchiScansione::ChiudiAvanti() {
  TastieraNumericaScansione1.Disattiva();
  TastieraNumericaScansione1.setVisible(false);
}

void FormaBlocchiScansione::MettiComandi(const platform::Label& ancora) {
  TastieraHDUScansione1.setLeft(ancora.left());
  TastieraHDUScansione1.setVisible(true);
}

void FormaBlocchiScansione::SpostaComandi(const platform::Label& ancora) {
  TastieraHDUScansione1.setLeft(ancora.left());
}

void FormaBlocchiScansione::TogliComandi() {
  TastieraHDUScansione1.Disattiva();
  TastieraHDUScansione1.setVisible(false);
}

void FormaBlocchiScansione::CasoPronto() {
  Avvia(TastieraHDUScansione1);
}

void FormaBlocchiScansione::MostraCambio(platform::Button& pulsante) {
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

void FormaBlocchiScansione::TastoHDU(qint16 tasto) {
  switch (tasto) {
    case TastieraHDUScansione::kCentinaia:
      if (TastieraHDUScansione1.HVisibile.get()) MettiBlocco(blocchi::kPiatti);
      break;
    case TastieraHDUScansione::kDecine:
      MettiBlocco(blocchi::kLunghi);
      break;
    case TastieraHDUScansione::kUnita:
      MettiBlocco(blocchi::kUnita);
      break;
    case TastieraHDUScansione::kCestino:
      Svuota();
      break;
    case TastieraHDUScansione::kConferma:
      GiudicaTavola();
      break;
    default:
      break;
  }
}

void FormaBlocchiScansione::ChiudiPannelloStampa() {
  ConDueTastiere::ChiudiPannelloStampa();
  NuovoCaso();
}

}  // namespace somme
