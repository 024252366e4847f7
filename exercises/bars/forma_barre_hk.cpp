#include "exercises/bars/forma_barre_hk.h"

namespace somme {

FormaBarreHK::FormaBarreHK(Ambiente& ambiente, const platform::FormDesign& disegno,
                           const PortataBarre& portata)
    : ConTastiCifre(Collega::PrimaDelResizer, ambiente, disegno, portata) {
  OffriFoglio(mnuStamopaHK);
}

void FormaBarreHK::DopoLaRichiesta() {
  LeggiMisure();
  PosaSegno();
  MisuraAiuti();
  ScriviTitolo();
  ColoraTermini();
  // A later activation leaves the squares as they are.
  if (aiuto1.count() < 2) CreaAiuti();
  EtichettaEsatti.setFontSize(EtichettaErrati.fontSize());
  NuovoCaso();
}

void FormaBarreHK::Aiuta() {
  if (PulsanteAiuto.isEnabled()) MostraAiuto();
}

}  // namespace somme
