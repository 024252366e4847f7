#include "exercises/core/input_tocco.h"

#include "exercises/core/chiedi_foglio.h"
#include "exercises/core/forma_esercizio.h"

namespace somme {

InputTocco::InputTocco(FormaEsercizio& forma, const TastieraHelpiKeys& tastiera,
                       CollegamentoHelpiKeys::Prese& prese, platform::MenuItem& foglio,
                       std::function<void(int tasto)> interpreta)
    : collega_(tastiera.collega),
      collegamento_(forma.ambiente(), prese, tastiera.mappa, std::move(interpreta)) {
  foglio.onClick([&forma] { ChiediFoglio(forma.ambiente(), forma.scheda().foglio); });
}

void InputTocco::PrimaDelResizer() {
  if (collega_ == TastieraHelpiKeys::Collega::PrimaDelResizer) collegamento_.Apri();
}

void InputTocco::DopoIlResizer() {
  if (collega_ == TastieraHelpiKeys::Collega::DopoIlResizer) collegamento_.Apri();
}

void InputTocco::AllAttivazione() {
  collegamento_.Richiedi();
}

void InputTocco::AllUscita() {
  collegamento_.Lascia();
}

void InterpretaCifre(const TastiCifre& tasti, int tasto, bool siScrive, bool avanti) {
  constexpr int kNove = 10;
  constexpr int kCestino = 13;
  constexpr int kAiuto = 14;
  constexpr int kConferma = 15;
  constexpr int kAvanti = 16;
  if (tasto < 1) return;
  if (tasto <= kNove) {
    if (siScrive) tasti.Cifra(tasto - 1);
  } else if (tasto == kCestino) {
    if (siScrive) tasti.Cestino();
  } else if (tasto == kAiuto) {
    tasti.Aiuto();
  } else if (tasto == kConferma) {
    if (siScrive) tasti.Conferma();
  } else if (tasto == kAvanti) {
    if (avanti) tasti.Avanti();
  }
}

}  // namespace somme
