#include "exercises/numbers/forma_numeri.h"

#include "exercises/numbers/disegno_numeri.h"

namespace somme::inline numeri {

FormaNumeri::FormaNumeri(Ambiente& ambiente, std::string_view nome,
                         const EsercizioNumeri& esercizio,
                         std::span<const std::span<const platform::Row>> tavole,
                         PartitaNumeri::Zero zero)
    : FormaEsercizio(ambiente, disegno::DisegnoNumeri(nome, tavole)),
      esercizio_(esercizio),
      partita_(stato(), esercizio.regole, zero) {}

void FormaNumeri::onLoad() {
  FormaEsercizio::onLoad();
  ScriviEsatti();
  ScriviErrati();
  ImpostaCursoreSistema();
}

void FormaNumeri::IniziaAttivazione() {
  IniziaElenco(stato().TitoloEsercizio);
  letEventsRun();
  MostraRisposta();
  NuovoCaso();
}

std::optional<qint16> FormaNumeri::GeneraCaso() {
  return partita_.NuovoCaso(stato().TipoEsercizio, ambiente().servizi.sorte);
}

void FormaNumeri::ScriviDomanda() {
  EtOperazione.setCaption((this->*esercizio_.domanda)());
  DiciDomanda(EtOperazione.caption());
}

void FormaNumeri::Giudica(double numero) {
  const Esito esito = partita_.Rispondi(numero);
  if (esito == Esito::Risolto) RispostaGiusta();
  if (esito == Esito::Sbagliato) SegnaSbagliato();
}

void FormaNumeri::ScriviConRisposta(const QString& risposta) {
  ScriviRisolta((this->*esercizio_.risolta)(risposta));
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

}  // namespace somme::inline numeri
