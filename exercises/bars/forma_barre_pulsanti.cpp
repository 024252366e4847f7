#include "exercises/bars/forma_barre_pulsanti.h"

namespace somme {

FormaBarrePulsanti::FormaBarrePulsanti(Ambiente& ambiente, const platform::FormDesign& disegno,
                                       const PortataBarre& portata)
    : ConAvanti(ambiente, disegno, portata) {
  PulsanteAiuto.onClick([this] { MostraAiuto(); });
}

void FormaBarrePulsanti::onLoad() {
  ConAvanti::onLoad();
  PulsanteAvanti.setVisible(true);
  IniziaEsercizio();
  if (stato().CursoreDiSistema) ImpostaCursoreSistema();
}

void FormaBarrePulsanti::onActivate() {
  LeggiMisure();
  PosaSegno();
  MisuraAiuti();
  ScriviTitolo();
  CreaAiuti();
  ColoraTermini();
  NuovoCaso();
}

void FormaBarrePulsanti::SegnaRisolto() {
  SegnaGiusto();
  MostraNumeri();
  PulsanteAvanti.setEnabled(true);
  AggiungiAllElenco();
  ScriviSomma();
}

}  // namespace somme
