#include "exercises/bars/forma_barre_pulsanti.h"

namespace somme {

FormaBarrePulsanti::FormaBarrePulsanti(Ambiente& ambiente, const platform::FormDesign& disegno,
                                       int aiuti)
    : ConAvanti(ambiente, disegno, aiuti) {
  PulsanteAiuto.onClick([this] { MostraAiuto(); });
}

void FormaBarrePulsanti::onLoad() {
  ConAvanti::onLoad();
  PulsanteAvanti.setVisible(true);
  IniziaEsercizio();
  if (stato().CursoreDiSistema) ImpostaCursoreSistema();
}

void FormaBarrePulsanti::SegnaRisolto() {
  SegnaGiusto();
  MostraNumeri();
  PulsanteAvanti.setEnabled(true);
  AggiungiAllElenco();
  ScriviSomma();
}

}  // namespace somme
