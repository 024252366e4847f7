#include "exercises/abacus/forma_abaco.h"

#include "app/shared/modulo_colori_suoni.h"
#include "exercises/abacus/clip_abaco.h"
#include "exercises/core/in_parole.h"
#include "platform/forms/gate.h"

namespace somme::inline abaco {

namespace {

constexpr double kPasso = 0.03;  // seconds

}  // namespace

// The way out leads to the main menu, not to the family's. Kept: see docs/oddities.md.
FormaAbaco::FormaAbaco(Ambiente& ambiente, const platform::FormDesign& disegno,
                       PartitaAbaco::Cambi cambi)
    : FormaEsercizio(ambiente, disegno), partita_(stato(), cambi) {}

void FormaAbaco::onLoad() {
  FormaEsercizio::onLoad();
  ScriviEsatti();
  ScriviErrati();
  if (stato().CursoreDiSistema) ImpostaCursoreSistema();
}

void FormaAbaco::IniziaAttivazione() {
  ApriAbaco();
  MostraRisposta();
  NuovoCaso();
}

void FormaAbaco::ApriAbaco() {
  ShockwaveFlash1.setTop(Label1.top());
  ShockwaveFlash1.setLeft(Label1.left());
  ShockwaveFlash1.setWidth(Label1.width());
  ShockwaveFlash1.setHeight(Label1.height());
  IniziaElenco(stato().TitoloEsercizio);
  ShockwaveFlash1.setMovie(ambiente().servizi.cartella + QStringLiteral("/swf/abaco.swf"));
  letEventsRun();
}

void FormaAbaco::EliminaNumeroSW1() {
  const int tipo = stato().TipoEsercizio;
  partita_.Svuota();
  for (const Posto posto : kFerri) {
    const std::optional<bool> aspettano = HaPalline(tipo, posto);
    for (int i = 0; i < PartitaAbaco::kPalline; ++i) {
      Mostra(ClipSulFerro(posto, i), false);
      if (aspettano) Mostra(ClipInAttesa(posto, i), *aspettano);
      if (!PartitaAbaco::SiVedeInAttesa(posto, i)) Mostra(ClipInAttesa(posto, i), false);
    }
  }
  if (const std::optional<qint16> cifre = CifreDellaRisposta(tipo)) ImpostaCifre(*cifre);
  ImpostaFrecce();
  Descrivi();
}

void FormaAbaco::ScriviDomanda() {
  EtOperazione.setCaption(SommaDaFare());
  DiciDomanda(EtOperazione.caption());
}

void FormaAbaco::Svuota() {
  EliminaNumeroSW1();
  Racconta();
}

bool FormaAbaco::InserisciDaTasto(Posto posto) {
  const std::optional<int> nuova = partita_.InserisciDaTasto(posto);
  if (!nuova) return false;
  Sfuma(ClipSulFerro(posto, *nuova), kOpaca);
  Mostra(ClipSulFerro(posto, *nuova), true);
  Mostra(ClipInAttesa(posto, *nuova), false);
  Racconta();
  return true;
}

std::optional<Posto> FormaAbaco::Cambia(Posto da) {
  const platform::Gate::AcrossCases finoInFondo(ambiente().fondo.gate());
  const Posto a = Superiore(da);
  for (int i = PartitaAbaco::kPalline - 1; i >= 0; --i) Mostra(ClipInAttesa(da, i), true);
  for (int alfa = kOpaca; alfa >= 1; --alfa) {
    for (int i = 0; i < PartitaAbaco::kPalline; ++i) {
      Sfuma(ClipInAttesa(da, i), kOpaca - alfa);
      Sfuma(ClipSulFerro(da, i), alfa);
    }
    Attendi(ambiente(), kPasso);
    letEventsRun();
  }
  for (int i = PartitaAbaco::kPalline - 1; i >= 0; --i) Mostra(ClipSulFerro(da, i), false);
  const auto [nuova, presa] = partita_.Passa(da);
  Mostra(ClipSulFerro(a, nuova), true);
  for (int alfa = 1; alfa <= kOpaca; ++alfa) {
    Sfuma(ClipSulFerro(a, nuova), alfa);
    if (presa) Sfuma(ClipInAttesa(a, *presa), kOpaca - alfa);
    Attendi(ambiente(), kPasso);
  }
  if (presa) Mostra(ClipInAttesa(a, *presa), false);
  const std::optional<Posto> poi = partita_.FinisciCambio(da);
  Racconta();
  return poi;
}

void FormaAbaco::Giudica(Esito esito) {
  if (esito == Esito::Risolto) RispostaGiusta();
  if (esito == Esito::Sbagliato) RispostaSbagliata();
}

void FormaAbaco::AggiungiSomma(const QString& somma) {
  AggiungiRiga(EtOperazione.caption() + stringhe().Spazio + somma);
}

void FormaAbaco::Mostra(const QString& clip, bool visibile) {
  ShockwaveFlash1.tSetProperty(clip, platform::Board::Property::Visible,
                               visibile ? QStringLiteral("1") : QStringLiteral("0"));
}

void FormaAbaco::Sfuma(const QString& clip, int alfa) {
  ShockwaveFlash1.tSetProperty(clip, platform::Board::Property::Alpha, QString::number(alfa));
}

QString FormaAbaco::SulFerro() const {
  return InParole(ambiente(), partita_.Inserite());
}

void FormaAbaco::Descrivi() {
  ShockwaveFlash1.setDescription(SulFerro());
}

void FormaAbaco::Racconta() {
  Descrivi();
  announce(SulFerro());
}

}  // namespace somme::inline abaco
