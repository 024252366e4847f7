#include "exercises/numbers/forma_numeri.h"

namespace somme {

FormaNumeri::FormaNumeri(Ambiente& ambiente, const platform::FormDesign& disegno,
                         const EsercizioNumeri& esercizio)
    : FormaEsercizio(ambiente, disegno), esercizio_(esercizio) {}

const Livello* FormaNumeri::GeneraCaso() {
  const Livello* livello = LivelloDi(esercizio_.livelli, stato().TipoEsercizio);
  if (livello != nullptr) livello->genera(stato(), ambiente().servizi.sorte);
  return livello;
}

void FormaNumeri::ScriviDomanda() {
  EtOperazione.setCaption((this->*esercizio_.domanda)());
  DiciDomanda(EtOperazione.caption());
}

void FormaNumeri::ScriviRisolta(const QString& operazione) {
  EtOperazione.setCaption(operazione);
  AggiungiRiga(EtOperazione.caption());
}

QString FormaNumeri::ChiediTotale() const {
  return SommaDaFare();
}

QString FormaNumeri::ChiediAddendo() const {
  return NumeroInDomanda(stato().Addendo1) + QStringLiteral(" + ____ = ") +
         NumeroInDomanda(stato().Totale);
}

QString FormaNumeri::AccodaRisposta(const QString& risposta) const {
  return EtOperazione.caption() + stringhe().Spazio + risposta;
}

QString FormaNumeri::RicomponiSomma(const QString& /*risposta*/) const {
  return SommaFatta();
}

}  // namespace somme
