#include "exercises/blocks/forma_blocchi.h"

#include <algorithm>

#include "app/shared/modulo_colori_suoni.h"
#include "cases/livelli.h"
#include "exercises/core/disegno_comune.h"
#include "exercises/core/in_parole.h"
#include "platform/base/numbers.h"

namespace somme::inline blocchi {

using platform::leadingBlank;

namespace {

constexpr double kAttesaUnione = 2;  // seconds
constexpr double kAttesaCambio = 4;  // the movie's stretch must be over by then

platform::FormDesign Disegno(std::string_view nome, const VarianteBlocchi& variante) {
  return {.name = nome,
          .caption = kTitoloProgramma,
          .width = 11175,
          .height = 7695,
          .back = disegno::kGialloPallido,
          .tables = variante.tavole};
}

}  // namespace

FormaBlocchi::FormaBlocchi(Ambiente& ambiente, std::string_view nome,
                           const VarianteBlocchi& variante)
    : FormaEsercizio(ambiente, Disegno(nome, variante)),
      variante_(variante),
      partita_(stato(), esercizio().regole) {
  ShockwaveFlash3.onFsCommand(
      [this](const QString& /*command*/, const QString& args) { ComandoDelFilmato(args); });
}

void FormaBlocchi::onLoad() {
  FormaEsercizio::onLoad();
  for (std::size_t quale = 0; quale < esercizio().cambi.size(); ++quale) {
    const Posto da = esercizio().regole.cambi[quale];
    PulsanteDi(esercizio().cambi[quale]).onClick([this, da] { Cambia(da); });
  }
  ScriviEsatti();
  ScriviErrati();
  const bool seguono = variante_.puntatori == VarianteBlocchi::Puntatori::Impostazione;
  if (seguono && stato().CursoreDiSistema) ImpostaCursoreSistema();
}

void FormaBlocchi::IniziaAttivazione() {
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
  const Livello* livello = LivelloDi(esercizio().regole.famiglia, stato().TipoEsercizio);
  if (livello == nullptr) return;
  IniziaElenco(QStringLiteral("     ") + stringhe().*esercizio().titolo + stringhe().Trattino +
               stringhe().NomeDelLivello(livello->blocchi.registro));
}

void FormaBlocchi::CaricaFilmati() {
  const auto percorso = [this](QStringView filmato) {
    return QStringLiteral("%1/%2").arg(ambiente().servizi.cartella, filmato);
  };
  ShockwaveFlash1.setMovie(percorso(esercizio().filmatoAddendo));
  ShockwaveFlash2.setMovie(percorso(esercizio().filmatoAddendo));
  ShockwaveFlash3.setMovie(percorso(esercizio().filmatoUnione));
  partita_.FilmatiCaricati();
}

void FormaBlocchi::NuovoCaso() {
  newCase();
  ChiudiAvanti();
  partita_.NuovoCaso(stato().TipoEsercizio, ambiente().servizi.sorte);
  Sgombra(PartitaBlocchi::Tavola::Prima);
  Sgombra(PartitaBlocchi::Tavola::Seconda);
  unita_.Ricomincia();
  for (const CambioBlocchi& cambio : esercizio().cambi) PulsanteDi(cambio).setVisible(false);
  ShockwaveFlash3.setVisible(false);
  NascondiRisultato();
  MettiComandi();
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

platform::Board& FormaBlocchi::FilmatoDi(PartitaBlocchi::Tavola tavola) {
  return tavola == PartitaBlocchi::Tavola::Prima ? ShockwaveFlash1 : ShockwaveFlash2;
}

void FormaBlocchi::Sgombra(PartitaBlocchi::Tavola tavola) {
  for (const Posto specie : esercizio().regole.specie) {
    MostraBlocchi(FilmatoDi(tavola), specie, 1, PartitaBlocchi::kMassimoPerSpecie, false);
  }
}

platform::Button& FormaBlocchi::PulsanteDi(const CambioBlocchi& cambio) {
  return *(this->*cambio.pulsante);
}

// The edge's width is a number of pixels and is taken off twips as it is, so that the frame stands
// that many twips outside of the board.
void FormaBlocchi::Incornicia(const platform::Label& ancora) {
  const int bordo = Shape1.look().borderWidth;
  Shape1.setPlace(ancora.left() - bordo, ancora.top() - bordo, ancora.width() + 2 * bordo,
                  ancora.height() + 2 * bordo);
  Shape1.setVisible(true);
}

void FormaBlocchi::MettiComandi() {
  Comandi().setLeft(Label1.left());
  Comandi().setVisible(true);
}

void FormaBlocchi::TogliComandi() {
  Comandi().setVisible(false);
}

void FormaBlocchi::NascondiCasella(platform::TextBox& casella) {
  casella.setText({});
  casella.setVisible(false);
  casella.setLocked(false);
}

void FormaBlocchi::MettiBlocco(Posto specie) {
  const std::optional<PartitaBlocchi::Tavola> tavola = partita_.InUso();
  const std::optional<int> nuovo = partita_.Metti(specie);
  if (!tavola || !nuovo) return;
  MostraBlocchi(FilmatoDi(*tavola), specie, *nuovo, *nuovo, true);
  Racconta();
  announce(InParole(ambiente(), partita_.Su(*tavola)));
}

void FormaBlocchi::Svuota() {
  const std::optional<PartitaBlocchi::Tavola> tavola = partita_.Svuota();
  if (!tavola) return;
  Sgombra(*tavola);
  Racconta();
  announce(InParole(ambiente(), partita_.Su(*tavola)));
}

void FormaBlocchi::GiudicaTavola() {
  switch (partita_.Conferma()) {
    case Esito::Sbagliato:
      SegnaSbagliato();
      break;
    case Esito::PassoGiusto:
      if (partita_.InUso()) {
        PassaAllaSeconda();
      } else {
        UnisciTavole();
      }
      break;
    default:
      break;
  }
}

void FormaBlocchi::PassaAllaSeconda() {
  Comandi().setLeft(Label2.left());
  Incornicia(Label2);
  SegnaPassoGiusto();
}

void FormaBlocchi::UnisciTavole() {
  Incornicia(Label3);
  TogliComandi();
  RiposaIlFuoco();
  SegnaPassoGiusto();
  Attendi(ambiente(), kAttesaUnione);
  ShockwaveFlash1.setVisible(false);
  ShockwaveFlash2.setVisible(false);
  ShockwaveFlash3.setVisible(true);
  partita_.Unisci();
  unita_.Mostra();
  Racconta();
  announce(InParole(ambiente(), partita_.Uniti().Quanti()));
  letEventsRun();
  Prosegui();
}

void FormaBlocchi::Prosegui() {
  partita_.Prosegui();
  if (const std::optional<std::size_t> quale = partita_.CambioDaChiedere()) {
    MostraCambio(PulsanteDi(esercizio().cambi[*quale]));
  } else {
    ChiediRisultato();
  }
}

void FormaBlocchi::MostraCambio(platform::Button& pulsante) {
  pulsante.setVisible(true);
  announce(pulsante.toolTip());
}

void FormaBlocchi::Cambia(Posto da) {
  const std::span<const Posto> cambi = esercizio().regole.cambi;
  const auto dove = std::ranges::find(cambi, da);
  if (dove == cambi.end()) return;
  const auto quale = static_cast<std::size_t>(dove - cambi.begin());
  const CambioBlocchi& cambio = esercizio().cambi[quale];
  platform::Button& pulsante = PulsanteDi(cambio);
  if (!pulsante.isVisible() || !partita_.IniziaCambio(quale)) return;
  pulsante.setVisible(false);
  RiposaIlFuoco();
  unita_.AvviaCambio(cambio.tratto);
  Attendi(ambiente(), kAttesaCambio);
  partita_.FinisciAttesa();
  unita_.NascondiGliAltri();
  Prosegui();
}

void FormaBlocchi::RiposaIlFuoco() {
  if (page()->canvas()->focusWidget() == nullptr) EtOperazione.setFocus();
}

void FormaBlocchi::ComandoDelFilmato(const QString& args) {
  for (std::size_t quale = 0; quale < esercizio().cambi.size(); ++quale) {
    const TrattoDelCambio& tratto = esercizio().cambi[quale].tratto;
    if (args != tratto.parola) continue;
    const std::optional<int> nuovo = partita_.CambioDetto(quale);
    if (!nuovo) continue;
    unita_.Cambia(tratto, esercizio().regole.cambi[quale], *nuovo);
    Racconta();
    announce(InParole(ambiente(), partita_.Uniti().Quanti()));
  }
}

void FormaBlocchi::Concludi(Esito esito) {
  if (esito == Esito::Sbagliato) SegnaSbagliato();
  if (esito != Esito::Risolto) return;
  SegnaGiusto();
  ApriAvanti();
  EtOperazione.setCaption(EtOperazione.caption() + stringhe().Spazio +
                          platform::plain(stato().Totale));
  AggiungiRiga(EtOperazione.caption());
  RisultatoGiusto();
}

void FormaBlocchi::Racconta() {
  using Tavola = PartitaBlocchi::Tavola;
  ShockwaveFlash1.setDescription(InParole(ambiente(), partita_.Su(Tavola::Prima)));
  ShockwaveFlash2.setDescription(InParole(ambiente(), partita_.Su(Tavola::Seconda)));
  ShockwaveFlash3.setDescription(InParole(ambiente(), partita_.Uniti().Quanti()));
}

}  // namespace somme::inline blocchi
