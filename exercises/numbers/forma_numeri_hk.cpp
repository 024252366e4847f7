#include "exercises/numbers/forma_numeri_hk.h"

#include "platform/base/numbers.h"

namespace somme {

namespace {

constexpr TastieraHelpiKeys kTastiera{.mappa = kMappaCifre};

}  // namespace

FormaNumeriHK::FormaNumeriHK(Ambiente& ambiente, const platform::FormDesign& disegno,
                             const EsercizioNumeriHK& esercizio)
    : ConTastiCifre(kTastiera, ambiente, disegno, esercizio.numeri), inizio_(esercizio.inizio) {
  OffriFoglio(mnuStampaHK);
}

void FormaNumeriHK::onLoad() {
  ConTastiCifre::onLoad();
  PulsanteAvanti.setVisible(true);
  ScriviEsatti();
  ScriviErrati();
  ImpostaCursoreSistema();
}

void FormaNumeriHK::DopoLaRichiesta() {
  IniziaElenco(stato().TitoloEsercizio);
  letEventsRun();
  NuovoCaso();
}

void FormaNumeriHK::NuovoCaso() {
  newCase();
  if (inizio_ == EsercizioNumeriHK::Inizio::AbilitaCasella) {
    TestoInput.setEnabled(true);
    letEventsRun();
  }
  PulsanteAvanti.setEnabled(false);
  TestoInput.setText({});
  if (const Livello* livello = GeneraCaso()) TestoInput.setMaxLength(livello->cifre);
  ScriviDomanda();
}

void FormaNumeriHK::Conferma() {
  const double numero = platform::leadingNumber(TestoInput.text());
  if (numero == 0) return;
  if (numero == Cercato()) {
    RispostaGiusta(numero);
  } else {
    SegnaSbagliato();
  }
}

void FormaNumeriHK::RispostaGiusta(double numero) {
  TestoInput.setText(platform::formatPicture(numero, u"### ###"));
  SegnaGiusto();
  PulsanteAvanti.setEnabled(true);
  ScriviRisolta(SommaFatta());
  PulsanteAvanti.setFocus();
}

}  // namespace somme
