#include "exercises/blocks/forma_blocchi.h"

#include "app/shared/modulo_colori_suoni.h"
#include "cases/livelli.h"
#include "platform/base/numbers.h"

namespace somme {

using platform::leadingBlank;

namespace {

constexpr double kAttesaUnione = 2;  // seconds
constexpr double kAttesaCambio = 4;  // the movie's stretch must be over by then

}  // namespace

FormaBlocchi::FormaBlocchi(Ambiente& ambiente, const platform::FormDesign& disegno,
                           const EsercizioBlocchi& esercizio)
    : FormaEsercizio(ambiente, disegno), esercizio_(esercizio) {
  ShockwaveFlash3.onFsCommand(
      [this](const QString& /*command*/, const QString& args) { ComandoDelFilmato(args); });
}

void FormaBlocchi::onLoad() {
  FormaEsercizio::onLoad();
  ScriviEsatti();
  ScriviErrati();
}

void FormaBlocchi::onActivate() {
  PosaTavole();
  IniziaElencoDelLivello();
  CaricaFilmati();
  PosaTastiere();
  letEventsRun();
  NuovoCaso();
}

void FormaBlocchi::PosaTavole() {
  const auto posa = [](platform::Board& tavola, const platform::Label& ancora) {
    tavola.setTop(ancora.top());
    tavola.setLeft(ancora.left());
    tavola.setWidth(ancora.width());
    tavola.setHeight(ancora.height());
  };
  posa(ShockwaveFlash1, Label1);
  posa(ShockwaveFlash2, Label2);
  posa(ShockwaveFlash3, Label3);
}

void FormaBlocchi::IniziaElencoDelLivello() {
  const Livello* livello = LivelloDi(esercizio_.famiglia, stato().TipoEsercizio);
  if (livello == nullptr) return;
  IniziaElenco(QStringLiteral("     ") + stringhe().*esercizio_.titolo + stringhe().Trattino +
               stringhe().NomeDelLivello(livello->blocchi.registro));
}

void FormaBlocchi::CaricaFilmati() {
  const auto percorso = [this](QStringView filmato) {
    return QStringLiteral("%1/%2").arg(ambiente().servizi.cartella, filmato);
  };
  ShockwaveFlash1.setMovie(percorso(esercizio_.filmatoAddendo));
  ShockwaveFlash2.setMovie(percorso(esercizio_.filmatoAddendo));
  ShockwaveFlash3.setMovie(percorso(esercizio_.filmatoUnione));
  unita_.Ricomincia();
}

void FormaBlocchi::NuovoCaso() {
  newCase();
  ChiudiAvanti();
  Fase = 1;
  SW1 = {};
  SW2 = {};
  EliminaNumeroSW1();
  EliminaNumeroSW2();
  unita_.Sgombra();
  for (std::size_t i = 0; i < esercizio_.cambi.size(); ++i) {
    PulsanteDelCambio(i).setVisible(false);
  }
  ShockwaveFlash3.setVisible(false);
  NascondiRisultato();
  MettiComandi(Label1);
  if (const Livello* livello = LivelloDi(esercizio_.famiglia, stato().TipoEsercizio)) {
    livello->genera(stato(), ambiente().servizi.sorte);
  }
  CasoFatto();
  EtOperazione.setCaption(leadingBlank(stato().Addendo1) + stringhe().SegnoPiu +
                          leadingBlank(stato().Addendo2) + stringhe().SegnoUguale);
  ShockwaveFlash1.setVisible(true);
  ShockwaveFlash2.setVisible(true);
  Incornicia(Label1);
  Racconta();
  DiciDomanda(EtOperazione.caption());
  CasoPronto();
}

void FormaBlocchi::Sgombra(platform::Board& filmato) {
  for (const SpecieBlocchi* specie : esercizio_.specie) {
    MostraBlocchi(filmato, *specie, 1, blocchi::kMassimoPerSpecie, false);
  }
}

void FormaBlocchi::EliminaNumeroSW1() {
  Sgombra(ShockwaveFlash1);
}

void FormaBlocchi::EliminaNumeroSW2() {
  Sgombra(ShockwaveFlash2);
}

// The edge's width is a number of pixels and is taken off twips as it is, so that the frame stands
// that many twips outside of the board.
void FormaBlocchi::Incornicia(const platform::Label& ancora) {
  const int bordo = Shape1.look().borderWidth;
  Shape1.setPlace(ancora.left() - bordo, ancora.top() - bordo, ancora.width() + 2 * bordo,
                  ancora.height() + 2 * bordo);
  Shape1.setVisible(true);
}

std::optional<FormaBlocchi::Tavola> FormaBlocchi::InUso() {
  if (Fase == 1) return Tavola{ShockwaveFlash1, Label1, SW1, &Caso::Addendo1};
  if (Fase == 2) return Tavola{ShockwaveFlash2, Label2, SW2, &Caso::Addendo2};
  return std::nullopt;
}

void FormaBlocchi::MettiBlocco(const SpecieBlocchi& specie) {
  const std::optional<Tavola> tavola = InUso();
  if (!tavola) return;
  int& quanti = tavola->blocchi.*specie.quanti;
  if (quanti == blocchi::kMassimoPerSpecie) return;
  ++quanti;
  MostraBlocchi(tavola->filmato, specie, quanti, quanti, true);
  Racconta();
  announce(InParole(ambiente(), tavola->blocchi));
}

void FormaBlocchi::Svuota() {
  const std::optional<Tavola> tavola = InUso();
  if (!tavola) return;
  tavola->blocchi = {};
  Sgombra(tavola->filmato);
  Racconta();
  announce(InParole(ambiente(), tavola->blocchi));
}

void FormaBlocchi::GiudicaTavola() {
  const std::optional<Tavola> tavola = InUso();
  if (!tavola) return;
  int valore = 0;
  for (const SpecieBlocchi* specie : esercizio_.specie) {
    valore += tavola->blocchi.*specie->quanti * specie->valore;
  }
  if (valore != stato().*tavola->addendo) {
    SegnaSbagliato();
    return;
  }
  if (Fase == 1) {
    Fase = 2;
    SpostaComandi(Label2);
    Incornicia(Label2);
    SegnaPassoGiusto();
    return;
  }
  Fase = 3;
  Incornicia(Label3);
  TogliComandi();
  RiposaIlFuoco();
  SegnaPassoGiusto();
  Attendi(ambiente(), kAttesaUnione);
  UnisciTavole();
  letEventsRun();
  ChiediCambioDa(0);
}

int FormaBlocchi::SuEntrambe(const SpecieBlocchi& specie) const {
  return SW1.*specie.quanti + SW2.*specie.quanti;
}

void FormaBlocchi::UnisciTavole() {
  ShockwaveFlash1.setVisible(false);
  ShockwaveFlash2.setVisible(false);
  ShockwaveFlash3.setVisible(true);
  Quantita quante;
  for (const SpecieBlocchi* specie : esercizio_.specie) {
    quante.*specie->quanti = SuEntrambe(*specie);
  }
  unita_.Unisci(quante);
  Racconta();
  announce(InParole(ambiente(), unita_.Quante()));
}

// The sums are those of the boards as the pupil built them: what a carry has brought is not among
// them, so that nine tens and a carried one ask for no further carry. That is settled.
void FormaBlocchi::ChiediCambioDa(std::size_t quale) {
  for (; quale < esercizio_.cambi.size(); ++quale) {
    if (SuEntrambe(esercizio_.cambi[quale].da) >= blocchi::kDieci) {
      MostraCambio(PulsanteDelCambio(quale));
      return;
    }
  }
  ChiediRisultato();
}

void FormaBlocchi::MostraCambio(platform::Button& pulsante) {
  pulsante.setVisible(true);
  announce(pulsante.toolTip());
}

void FormaBlocchi::Cambia(std::size_t quale) {
  platform::Button& pulsante = PulsanteDelCambio(quale);
  if (!pulsante.isVisible()) return;
  pulsante.setVisible(false);
  RiposaIlFuoco();
  unita_.AvviaCambio(esercizio_.cambi[quale], caseNumber());
  Attendi(ambiente(), kAttesaCambio);
  unita_.FinisciAttesa();
  ChiediCambioDa(quale + 1);
}

void FormaBlocchi::RiposaIlFuoco() {
  if (page()->canvas()->focusWidget() == nullptr) EtOperazione.setFocus();
}

void FormaBlocchi::ComandoDelFilmato(const QString& args) {
  if (!unita_.ParlaDi(caseNumber())) return;
  for (const CambioBlocchi& cambio : esercizio_.cambi) {
    if (args != cambio.parola) continue;
    unita_.Cambia(cambio, SuEntrambe(cambio.a) + 1);
    Racconta();
    announce(InParole(ambiente(), unita_.Quante()));
  }
}

void FormaBlocchi::SegnaRisolto() {
  SegnaGiusto();
  ApriAvanti();
  EtOperazione.setCaption(EtOperazione.caption() + stringhe().Spazio +
                          platform::plain(stato().Totale));
  AggiungiRiga(EtOperazione.caption());
}

void FormaBlocchi::Racconta() {
  ShockwaveFlash1.setDescription(InParole(ambiente(), SW1));
  ShockwaveFlash2.setDescription(InParole(ambiente(), SW2));
  ShockwaveFlash3.setDescription(InParole(ambiente(), unita_.Quante()));
}

}  // namespace somme
