#include "exercises/blocks/pulsanti_blocchi.h"

#include <ranges>

namespace somme::inline blocchi {

PulsantiBlocchi::PulsantiBlocchi(FormaBlocchi& forma)
    : PicturePulsanti(forma),
      PulsanteH(forma),
      PulsanteDa(forma),
      PulsanteU(forma),
      PulsanteCestino(forma),
      PulsanteConferma(forma),
      forma_(forma) {
  PulsanteCestino.onClick([this] { ClicCestino(); });
  PulsanteConferma.onClick([this] { ClicConferma(); });
}

void PulsantiBlocchi::AlCaricamento() {
  for (const Posto specie : forma_.esercizio().regole.specie | std::views::reverse) {
    platform::Button* pulsante = PulsanteDi(specie);
    pulsante->onClick([this, specie] { ClicBlocco(specie); });
    comandi_.add(*pulsante);
  }
  comandi_.add(PulsanteCestino);
  comandi_.add(PulsanteConferma);
}

void PulsantiBlocchi::PrendiIlFuoco() {
  // The button of the case before cannot be pressed any more.
  const bool perso =
      forma_.page()->canvas()->focusWidget() == nullptr || forma_.EtOperazione.hasFocus();
  if (perso) comandi_.focusFirst();
}

platform::Button* PulsantiBlocchi::PulsanteDi(Posto specie) {
  if (specie == Posto::Unita) return &PulsanteU;
  if (specie == Posto::Decine) return &PulsanteDa;
  return PulsanteH ? &*PulsanteH : nullptr;
}

void PulsantiBlocchi::ClicBlocco(Posto specie) {
  const platform::Button* pulsante = PulsanteDi(specie);
  if (pulsante != nullptr && pulsante->isVisible()) forma_.MettiBlocco(specie);
}

void PulsantiBlocchi::ClicCestino() {
  if (PulsanteCestino.isVisible()) forma_.Svuota();
}

void PulsantiBlocchi::ClicConferma() {
  if (PulsanteConferma.isVisible()) forma_.GiudicaTavola();
}

}  // namespace somme::inline blocchi
