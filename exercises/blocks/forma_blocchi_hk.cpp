#include "exercises/blocks/forma_blocchi_hk.h"

#include "platform/base/numbers.h"

namespace somme {

FormaBlocchiHK::FormaBlocchiHK(const TastieraHelpiKeys& tastiera, Ambiente& ambiente,
                               const platform::FormDesign& disegno,
                               const EsercizioBlocchi& esercizio)
    : ConHelpiKeys(tastiera, ambiente, disegno, esercizio) {
  OffriFoglio(mnuStampaHK);
}

void FormaBlocchiHK::InterpretaSegnale(int tasto) {
  switch (tasto) {
    case 1:
      ClicPiatti();
      break;
    case 2:
      ClicSpecie(PulsanteDa, blocchi::kLunghi);
      break;
    case 3:
      ClicSpecie(PulsanteU, blocchi::kUnita);
      break;
    case 5:
      CambiaSeCe(1);
      break;
    case 6:
      CambiaSeCe(0);
      break;
    case 7:
      ClicCestino();
      break;
    case 8:
      ClicConferma();
      break;
    case 9:
      if (PulsanteAvanti.isVisible()) NuovoCaso();
      break;
    default:
      break;
  }
}

void FormaBlocchiHK::CambiaSeCe(std::size_t quale) {
  if (quale < esercizio().cambi.size()) Cambia(quale);
}

int FormaBlocchiHK::PrimaCifra() const {
  return Label4.count() - static_cast<int>(esercizio().specie.size());
}

void FormaBlocchiHK::NascondiRisultato() {
  Label4.forEach([](platform::Label& cifra) { cifra.setVisible(false); });
}

// The first digit takes all that is above it: its number is not cut down to one place.
void FormaBlocchiHK::CasoFatto() {
  int resto = stato().Totale;
  for (int i = Label4.count() - 1; i >= PrimaCifra(); --i) {
    const bool unita = i == Label4.count() - 1;
    const int numero = i == PrimaCifra() ? resto : resto % 10;
    Label4[i].setCaption(resto == 0 && !unita ? QString() : platform::plain(numero));
    resto /= 10;
  }
}

void FormaBlocchiHK::ChiediRisultato() {
  for (int i = PrimaCifra(); i < Label4.count(); ++i) Label4[i].setVisible(true);
  SegnaRisolto();
  PulsanteAvanti.setFocus();
}

}  // namespace somme
