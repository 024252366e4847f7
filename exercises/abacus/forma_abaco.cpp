#include "exercises/abacus/forma_abaco.h"

#include "app/shared/modulo_colori_suoni.h"
#include "cases/livelli.h"
#include "exercises/core/quantita.h"
#include "platform/base/numbers.h"
#include "platform/forms/gate.h"

namespace somme {

namespace {

// The properties of a clip that the form sets.
constexpr int kAlfa = 6;
constexpr int kVisibile = 7;

constexpr double kPasso = 0.03;  // seconds

}  // namespace

// The way out leads to the main menu, not to the family's: settled.
FormaAbaco::FormaAbaco(Ambiente& ambiente, const platform::FormDesign& disegno)
    : FormaEsercizio(ambiente, disegno) {}

void FormaAbaco::onLoad() {
  FormaEsercizio::onLoad();
  ScriviEsatti();
  ScriviErrati();
  if (stato().CursoreDiSistema) ImpostaCursoreSistema();
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

void FormaAbaco::GeneraCaso() {
  if (const Livello* livello = LivelloDi(LivelliAbaco, stato().TipoEsercizio)) {
    livello->genera(stato(), ambiente().servizi.sorte);
  }
}

void FormaAbaco::EliminaNumeroSW1() {
  const Livello* livello = LivelloDi(LivelliAbaco, stato().TipoEsercizio);
  for (int i = 0; i < kPalline; ++i) {
    for (const GenerePalline* genere : kGeneriPalline) Mostra(genere->sulFerro, i, false);
    if (livello != nullptr) {
      Mostra(kPallineMigliaia.inAttesa, i, livello->gruppo == Gruppo::Entro9999);
      Mostra(kPallineCentinaia.inAttesa, i, livello->gruppo != Gruppo::Entro99);
    }
    Mostra(kPallineDecine.inAttesa, i, true);
    Mostra(kPallineUnita.inAttesa, i, true);
    PallineInAttesa[static_cast<std::size_t>(i)].fill(true);
  }
  if (livello != nullptr) ImpostaCifre(livello->cifre);
  ImpostaFrecce();
  for (const GenerePalline* genere : kGeneriPalline) this->*genere->inserite = 0;
  Mostra(kPallineMigliaia.inAttesa, 0, false);
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

void FormaAbaco::Cambia(const GenerePalline& da, const GenerePalline& a) {
  const platform::Gate::AcrossCases finoInFondo(ambiente().fondo.gate());
  for (int i = kPalline - 1; i >= 0; --i) Mostra(da.inAttesa, i, true);
  for (int alfa = kOpaca; alfa >= 1; --alfa) {
    for (int i = 0; i < kPalline; ++i) {
      Sfuma(da.inAttesa, i, kOpaca - alfa);
      Sfuma(da.sulFerro, i, alfa);
    }
    Attendi(ambiente(), kPasso);
    letEventsRun();
  }
  for (int i = kPalline - 1; i >= 0; --i) {
    Mostra(da.sulFerro, i, false);
    PallineInAttesa[static_cast<std::size_t>(i)][da.colonna] = true;
  }
  const int presa = PallinaPerIlCambio(a);
  if (presa >= 0) PallineInAttesa[static_cast<std::size_t>(presa)][a.colonna] = false;
  const int nuova = this->*a.inserite;
  Mostra(a.sulFerro, nuova, true);
  for (int alfa = 1; alfa <= kOpaca; ++alfa) {
    Sfuma(a.sulFerro, nuova, alfa);
    if (presa >= 0) Sfuma(a.inAttesa, presa, kOpaca - alfa);
    Attendi(ambiente(), kPasso);
  }
  if (presa >= 0) Mostra(a.inAttesa, presa, false);
  this->*da.inserite = 0;
  this->*a.inserite = platform::toInt16(this->*a.inserite + 1);
  Racconta();
}

int FormaAbaco::PallinaPerIlCambio(const GenerePalline& genere) const {
  int i = kPalline - 1;
  while (i >= 0 && !PallineInAttesa[static_cast<std::size_t>(i)][genere.colonna]) --i;
  return i;
}

void FormaAbaco::Mostra(const QString& clip, bool visibile) {
  ShockwaveFlash1.tSetProperty(clip, kVisibile,
                               visibile ? QStringLiteral("1") : QStringLiteral("0"));
}

void FormaAbaco::Mostra(QLatin1String clip, int numero, bool visibile) {
  Mostra(NomeClip(clip, numero), visibile);
}

void FormaAbaco::Sfuma(QLatin1String clip, int numero, int alfa) {
  ShockwaveFlash1.tSetProperty(NomeClip(clip, numero), kAlfa, QString::number(alfa));
}

QString FormaAbaco::SulFerro() const {
  return InParole(ambiente(), {.migliaia = MigliaiaInserite,
                               .centinaia = CentinaiaInserite,
                               .decine = DecineInserite,
                               .unita = UnitaInserite});
}

void FormaAbaco::Descrivi() {
  ShockwaveFlash1.setDescription(SulFerro());
}

void FormaAbaco::Racconta() {
  Descrivi();
  announce(SulFerro());
}

}  // namespace somme
