#include "exercises/table/form_tabella.h"

#include "app/shared/mod_language_support.h"
#include "cases/chiavi.h"
#include "exercises/core/disegno_comune.h"
#include "exercises/core/in_parole.h"
#include "platform/base/numbers.h"
#include "platform/forms/page.h"

namespace somme::inline tabella {

using namespace nucleo::disegno;
using Difficolta = PartitaTabella::Difficolta;

namespace {

constexpr int kCelle = PartitaTabella::kCelle;
constexpr int kPerRiga = PartitaTabella::kPerRiga;

constexpr auto kCelleDisegno = [] {
  std::array<Row, kCelle> righe{};
  for (int i = 0; i < kCelle; ++i) {
    const int riga = i / kPerRiga;
    righe[static_cast<std::size_t>(i)] = row<&FormTabella::Numero>(
        i, {120.0 + 600 * (i % kPerRiga), 120.0 + 600 * riga, 615, 615},
        {.caption = "0", .font = {Face::Arial, 12, true}, .back = kGiallo});
  }
  return righe;
}();

constexpr auto kControlli = std::to_array<Row>({
    Si({7200, 360, 855, 855}),
    No({7200, 360, 855, 855}),
    Esatti({6600, 1320, 2415, 360}),
    Errati({6600, 1680, 2415, 360}),
    row<&FormTabella::Label3>({6600, 2880, 2415, 360},
                              {.caption = "clicca sul risultato", .font = {Face::Arial, 9}}),
    row<&FormTabella::EtichettaNumero>(
        {6240, 3420, 2835, 840},
        {.caption = "Forma il numero", .font = {Face::Tahoma, 24}, .align = Align::Centre}),
    Avanti<FormTabella>({6720, 5280, 1935, 975}),
    Pannello({0, 0, 9255, 6495}),
    Elenco({360, 240, 5895, 5895}),
    Stampa({6720, 4560, 2220, 855}),
    Chiudi({6720, 5520, 2220, 855}),
    item<&FormTabella::MenuAzzera>({.caption = "Azzera conteggio"}),
    item<&FormTabella::mnuTabella>({.caption = "Tabella"}),
    item<&FormTabella::mnuFacile>({.caption = "facile", .in = nameOf<&FormTabella::mnuTabella>}),
    item<&FormTabella::mnuMedia>(
        {.caption = "media", .checked = true, .in = nameOf<&FormTabella::mnuTabella>}),
    item<&FormTabella::mnudifficile>(
        {.caption = "difficile", .in = nameOf<&FormTabella::mnuTabella>}),
    item<&FormTabella::mnuStampa>({.caption = "Stampa"}),
    item<&FormTabella::mnuEsci>({.caption = "Esci"}),
});

constexpr std::array<std::span<const Row>, 2> kTavole{kCelleDisegno, kControlli};

constexpr FormDesign Disegno(std::string_view nome) {
  return {.name = nome,
          .caption = kTitoloProgramma,
          .width = 9315,
          .height = 6525,
          .back = kRosaPallido,
          .tables = kTavole};
}

// The corner of the table that a cell is; none for the others.
std::optional<Qt::Corner> AngoloDi(int cella) {
  switch (cella) {
    case 0:
      return Qt::TopLeftCorner;
    case kPerRiga - 1:
      return Qt::TopRightCorner;
    case kCelle - kPerRiga:
      return Qt::BottomLeftCorner;
    case kCelle - 1:
      return Qt::BottomRightCorner;
    default:
      return std::nullopt;
  }
}

}  // namespace

FormTabella::FormTabella(Ambiente& ambiente, std::string_view nome)
    : FormaEsercizio(ambiente, Disegno(nome)) {
  for (int i = 0; i < kCelle; ++i) {
    platform::Button& cella = Numero.element(i);
    cella.onClick([this, i] { Rispondi(i); });
  }
  PulsanteAvanti.onClick([this] {
    partita_.Avanti();
    MostraAvanti();
    NuovoCaso();
    // While the whole grid was spent nothing could take the focus from the button.
    if (page()->canvas()->focusWidget() == nullptr) celle_.focusAgain();
  });
  mnuFacile.onClick([this] { ScegliDifficolta(mnuFacile, Difficolta::Facile); });
  mnuMedia.onClick([this] { ScegliDifficolta(mnuMedia, Difficolta::Media); });
  mnudifficile.onClick([this] { ScegliDifficolta(mnudifficile, Difficolta::Difficile); });
}

// The pointer is set whatever `CursoreDiSistema` says. There is one picture of the program's own
// pointer, so that no cell needs to be handed another control's.
void FormTabella::onLoad() {
  Numero.forEach([this](platform::Button& cella) {
    cella.makeCell(AngoloDi(cella.index()));
    celle_.add(cella);
  });
  FormaEsercizio::onLoad();
  ImpostaCursoreSistema();
}

void FormTabella::IniziaAttivazione() {
  PulsanteAvanti.setVisible(true);
  paintGradient();
  IniziaElenco(TestoLingua(ambiente(), chiavi::kTitoloTabella));
  AzzeraConteggio();
  RiempiTabella();
  NuovoCaso();
}

void FormTabella::RiempiTabella() {
  for (int i = 0; i < kCelle; ++i) {
    // The name first: a cell then changes it once.
    if (!partita_.HaNumero(i)) Numero[i].setSpokenName(NomeDiVuota(i));
    Numero[i].setCaption(partita_.HaNumero(i) ? platform::leadingBlank(i) : QString());
  }
}

// A cell that shows no number says what is seen of its place. Where row and column bear theirs, it
// is the tens and the units that they stand for; where nothing is numbered, the row and the column
// counted from 1, which any language reads: the number would be found without the table.
QString FormTabella::NomeDiVuota(int cella) const {
  const int riga = cella / kPerRiga;
  const int colonna = cella % kPerRiga;
  const bool media = partita_.difficolta() == Difficolta::Media;
  if (media) return InParole(ambiente(), {.decine = riga, .unita = colonna});
  return QStringLiteral("%1, %2").arg(riga + 1).arg(colonna + 1);
}

// The case stays, and so do the colours of its cells.
void FormTabella::ScegliDifficolta(const platform::MenuItem& scelta, Difficolta difficolta) {
  partita_.Cambia(difficolta);
  for (platform::MenuItem* voce : {&mnuFacile, &mnuMedia, &mnudifficile}) {
    voce->setChecked(voce == &scelta);
  }
  RiempiTabella();
}

void FormTabella::Es_Caso(int tipo) {
  MostraCaso(partita_.Chiedi(tipo, ambiente().servizi.sorte));
}

void FormTabella::MostraCaso(const std::optional<CasoTabella>& caso) {
  if (!caso) return;
  EtichettaNumero.setCaption(platform::leadingBlank(caso->a) +
                             (caso->meno ? QStringLiteral(" - ") : QStringLiteral(" + ")) +
                             platform::leadingBlank(caso->b) + QStringLiteral(" = "));
  DiciDomanda(EtichettaNumero.caption());
}

void FormTabella::NuovoCaso() {
  newCase();
  MostraCaso(partita_.NuovoCaso(stato().TipoEsercizio, ambiente().servizi.sorte));
  celle_.setEnabled(kCelle, true);
  Numero.forEach([](platform::Button& cella) { cella.setBackColor(kCianoPallido); });
}

void FormTabella::Rispondi(int numero) {
  const Esito esito = partita_.Scegli(numero);
  if (esito == Esito::Risolto) RispostaGiusta(numero);
  if (esito != Esito::Sbagliato) return;
  SegnaSbagliato([this, numero] {
    Numero[numero].setBackColor(kRosso);
    Numero[numero].setEnabled(false);
    Numero[numero].markAnswer(platform::AnswerMark::Wrong);
  });
}

// The question keeps its open end and a cell without a number stays without one: the green cell is
// all that shows the place.
void FormTabella::RispostaGiusta(int numero) {
  SegnaGiusto();
  MostraAvanti();
  AggiungiRiga(EtichettaNumero.caption() + platform::leadingBlank(numero));
  Numero[numero].setBackColor(kVerde);
  Numero[numero].markAnswer(platform::AnswerMark::Right);
  celle_.setEnabled(kCelle, false);
  PulsanteAvanti.setFocus();
}

// Unlike on other forms, closing the panel changes the case.
void FormTabella::ChiudiPannelloStampa() {
  FormaEsercizio::ChiudiPannelloStampa();
  NuovoCaso();
}

}  // namespace somme::inline tabella
