#include "exercises/bars/comandi_barre.h"

#include "exercises/bars/forma_barre.h"

namespace somme::inline barre {

ComandiBarre::ComandiBarre(FormaBarre& forma, platform::Button& aiuto, platform::Button& avanti)
    : forma_(forma), avanti_(avanti) {
  aiuto.onClick([&forma] { forma.MostraAiuto(); });
  avanti.onClick([&forma] { forma.NuovoCaso(); });
}

void ComandiBarre::AlCaricamento() {
  avanti_.setVisible(true);
  if (forma_.ambiente().stato.CursoreDiSistema) forma_.ImpostaCursoreSistema();
}

void ComandiBarre::SegnaRisolto() {
  forma_.SegnaGiusto();
  forma_.MostraNumeri();
  avanti_.setEnabled(true);
  forma_.AggiungiAllElenco();
  forma_.ScriviSomma();
}

}  // namespace somme::inline barre
