#include "exercises/core/forma_esercizio.h"

#include "app/shared/modulo_colori_suoni.h"
#include "exercises/core/in_parole.h"
#include "platform/base/numbers.h"
#include "printing/modulo_stampa.h"

namespace somme::inline nucleo {

FormaEsercizio::FormaEsercizio(Ambiente& ambiente, const platform::FormDesign& disegno)
    : Form(ambiente.fondo, disegno), Comune(*this, ambiente) {
  EtichettaEsatti.shareCaptionSize(conteggi_);
  EtichettaErrati.shareCaptionSize(conteggi_);
  MenuAzzera.onClick([this] { AzzeraConteggio(); });
  mnuStampa.onClick([this] { ApriPannelloStampa(); });
  CommandStampa.onClick([this] { StampaElenco(); });
  CommandChiudi.onClick([this] { ChiudiPannelloStampa(); });
  mnuEsci.onClick([this] { Esci(); });
}

void FormaEsercizio::onLoad() {
  PrendiLingua();
  if (modo_ != nullptr) modo_->PrimaDelResizer();
  EssResizer1.start();
  if (modo_ != nullptr) modo_->DopoIlResizer();
  PrendiIcona();
  if (modo_ != nullptr) modo_->AlCaricamento();
}

void FormaEsercizio::onActivate() {
  if (modo_ != nullptr) modo_->AllAttivazione();
  IniziaAttivazione();
}

void FormaEsercizio::Esci() {
  if (modo_ != nullptr) modo_->AllUscita();
  VaiA(scheda().menu);
}

QString FormaEsercizio::ConteggioEsatti() const {
  return stringhe().TestoEsatti + stringhe().Spazio + platform::leadingBlank(stato().ContaEsatti);
}

QString FormaEsercizio::ConteggioErrati() const {
  return stringhe().TestoErrati + stringhe().Spazio + platform::leadingBlank(stato().ContaErrati);
}

void FormaEsercizio::ScriviEsatti() {
  EtichettaEsatti.setCaption(ConteggioEsatti());
}

void FormaEsercizio::ScriviErrati() {
  EtichettaErrati.setCaption(ConteggioErrati());
}

// A verdict like the last changes a digit of the count alone: the movement says that it is a new
// one.
void FormaEsercizio::Mostra(platform::Image& verdetto, platform::Pop come) {
  ImgSi.setVisible(&verdetto == &ImgSi);
  ImgNo.setVisible(&verdetto == &ImgNo);
  verdetto.pop(come);
}

// The verdict is told first: whatever moves the focus or the light makes a screen reader speak,
// too.
void FormaEsercizio::SegnaGiusto(const Passo& primaDellEtichetta) {
  Mostra(ImgSi, platform::Pop::Burst);
  stato().ContaEsatti = platform::toInt16(stato().ContaEsatti + 1);
  DiciVerdetto(ImgSi, ConteggioEsatti());
  RiproduciSuono(ambiente(), QStringLiteral("si"));
  if (primaDellEtichetta) primaDellEtichetta();
  ScriviEsatti();
  EtichettaEsatti.glow();
}

void FormaEsercizio::SegnaPassoGiusto() {
  Mostra(ImgSi, platform::Pop::Burst);
  announce(ImgSi.toolTip());
  RiproduciSuono(ambiente(), QStringLiteral("si"));
}

void FormaEsercizio::SegnaSbagliato(const Passo& primaDelSuono) {
  stato().ContaErrati = platform::toInt16(stato().ContaErrati + 1);
  ScriviErrati();
  EtichettaErrati.glow();
  Mostra(ImgNo, platform::Pop::Shake);
  DiciVerdetto(ImgNo, ConteggioErrati());
  if (primaDelSuono) primaDelSuono();
  RiproduciSuono(ambiente(), QStringLiteral("no"));
}

void FormaEsercizio::DiciVerdetto(const platform::Image& verdetto, const QString& conteggio) {
  announce(QStringLiteral("%1. %2").arg(verdetto.toolTip(), conteggio.simplified()));
}

void FormaEsercizio::DiciScritto(const QString& scritto) {
  announce(scritto.isEmpty() ? InParole(ambiente(), {}) : scritto);
}

void FormaEsercizio::AzzeraConteggio() {
  stato().ContaEsatti = 0;
  stato().ContaErrati = 0;
  ScriviEsatti();
  ScriviErrati();
}

void FormaEsercizio::IniziaElenco(const QString& intestazione) {
  TestoStampa.setText(QStringLiteral("\r\n%1\r\n\r\n").arg(intestazione));
}

void FormaEsercizio::AggiungiRiga(const QString& riga) {
  TestoStampa.append(riga + QStringLiteral("\r\n"));
  announce(riga.simplified());
}

QString FormaEsercizio::NumeroInDomanda(qint16 numero) const {
  return platform::formatPicture(numero, stringhe().FormatoNumeri);
}

QString FormaEsercizio::SommaDaFare() const {
  return NumeroInDomanda(stato().Addendo1) + stringhe().SegnoPiu +
         NumeroInDomanda(stato().Addendo2) + stringhe().SegnoUguale;
}

QString FormaEsercizio::SommaFatta() const {
  return SommaDaFare() + NumeroInDomanda(stato().Totale);
}

void FormaEsercizio::ApriPannelloStampa() {
  if (modo_ != nullptr) modo_->AlPannelloStampa();
  PictureStampa.cover();
}

void FormaEsercizio::StampaElenco() {
  constexpr int kUnPollice = int(platform::Twips::inches(1).count());
  StampaTestoRicco(ambiente(), TestoStampa, kUnPollice, kUnPollice, kUnPollice, kUnPollice);
}

void FormaEsercizio::ChiudiPannelloStampa() {
  PictureStampa.setVisible(false);
}

}  // namespace somme::inline nucleo
