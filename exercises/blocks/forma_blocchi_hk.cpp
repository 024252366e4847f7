#include "exercises/blocks/forma_blocchi_hk.h"

#include "platform/base/numbers.h"

namespace somme {

FormaBlocchiHK::FormaBlocchiHK(Ambiente& ambiente, const platform::FormDesign& disegno,
                               const EsercizioBlocchi& esercizio)
    : ConHelpiKeys(Collega::DopoIlResizer, ambiente, disegno, esercizio) {
  OffriFoglio(mnuStampaHK);
}

void FormaBlocchiHK::Agisci(Tasto tasto) {
  switch (tasto) {
    case Tasto::Centinaia:
      ClicPiatti();
      break;
    case Tasto::Decine:
      ClicSpecie(PulsanteDa, blocchi::kLunghi);
      break;
    case Tasto::Unita:
      ClicSpecie(PulsanteU, blocchi::kUnita);
      break;
    case Tasto::CambioDaH:
      CambiaSeCe(1);
      break;
    case Tasto::CambioUDa:
      CambiaSeCe(0);
      break;
    case Tasto::Cestino:
      ClicCestino();
      break;
    case Tasto::Conferma:
      ClicConferma();
      break;
    case Tasto::Avanti:
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
