#include "exercises/core/input_tocco.h"

#include "exercises/core/chiedi_foglio.h"
#include "exercises/core/forma_esercizio.h"

namespace somme::inline nucleo {

InputTocco::InputTocco(FormaEsercizio& forma, CollegamentoHelpiKeys::Prese& prese,
                       platform::MenuItem& foglio, std::function<void(Tasto tasto)> agisci,
                       Collega collega)
    : collega_(collega),
      foglio_(FoglioDi(forma.scheda().foglio)),
      agisci_(std::move(agisci)),
      collegamento_(forma.ambiente(), prese, foglio_.tastiera,
                    [this](int tasto) { InterpretaSegnale(tasto); }) {
  foglio.onClick([&forma] { ChiediFoglio(forma.ambiente(), forma.scheda().foglio); });
}

void InputTocco::PrimaDelResizer() {
  if (collega_ == Collega::PrimaDelResizer) collegamento_.Apri();
}

void InputTocco::DopoIlResizer() {
  if (collega_ == Collega::DopoIlResizer) collegamento_.Apri();
}

void InputTocco::AllAttivazione() {
  collegamento_.Richiedi();
}

void InputTocco::AllUscita() {
  collegamento_.Lascia();
}

void AgisciSulleCifre(const TastiCifre& tasti, Tasto tasto, bool siScrive, bool avanti) {
  switch (tasto) {
    case Tasto::Cestino:
      if (siScrive) tasti.Cestino();
      break;
    case Tasto::Aiuto:
      tasti.Aiuto();
      break;
    case Tasto::Conferma:
      if (siScrive) tasti.Conferma();
      break;
    case Tasto::Avanti:
      if (avanti) tasti.Avanti();
      break;
    default:
      if (ECifra(tasto) && siScrive) tasti.Cifra(CifraDi(tasto));
      break;
  }
}

}  // namespace somme::inline nucleo
