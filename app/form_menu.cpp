#include "app/form_menu.h"

#include <QScopeGuard>
#include <vector>

#include "app/disegno_menu.h"
#include "app/shared/file_lingua.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/modulo_navigate.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "cases/chiavi.h"
#include "platform/base/numbers.h"

namespace somme::inline programma {

using namespace disegno;
using platform::StoredProperty;

namespace {

// Quarters of a second; the large step is a whole one.
constexpr auto kScala = std::to_array<StoredProperty>({
    {"Min", std::int16_t{4}},
    {"Max", std::int16_t{60}},
    {"SmallChange", std::int16_t{1}},
    {"LargeChange", std::int16_t{4}},
});

constexpr Look AspettoVoce(std::string_view testo, std::string_view figura,
                           std::optional<Rgb> tinta = {}) {
  return {.caption = testo, .font = {Face::Tahoma, 14.25, true}, .back = tinta, .picture = figura};
}
constexpr TwipsRect PostoVoce(double sinistra, double alto) {
  return {sinistra, alto, 2580, 1155};
}

// The bar goes by quarters of a second.
constexpr double kSecondiPerScatto = 0.25;

constexpr auto kControlli = std::to_array<Row>({
    row<&FormMenu::Command1>(PostoVoce(6600, 4680), AspettoVoce("Esci", "esci")),
    AmicoDiBlocchi<FormMenu>({6600, 1500, 1200, 1500}),
    AmicoAbaco<FormMenu>({7980, 1500, 1200, 1500}),
    row<&FormMenu::PictureTempoScansione>(
        {0, 0, 9780, 6210}, {.toolTip = "Tempo di scansione", .back = kGrigio, .hidden = true}),
    row<&FormMenu::HScrollScansione>({240, 2520, 7095, 345},
                                     {.toolTip = "Velocità di scansione",
                                      .in = nameOf<&FormMenu::PictureTempoScansione>,
                                      .stored = kScala}),
    row<&FormMenu::LabelTempoScansione>({240, 2880, 7095, 345},
                                        {.font = {Face::Tahoma, 9.75},
                                         .back = kGrigio,
                                         .in = nameOf<&FormMenu::PictureTempoScansione>}),
    row<&FormMenu::CommandConfermaTempoInput>({6120, 5280, 2580, 795},
                                              {.caption = "Conferma",
                                               .font = {Face::Tahoma, 14.25},
                                               .picture = "conferma",
                                               .in = nameOf<&FormMenu::PictureTempoScansione>}),
});

constexpr auto kMenu = std::to_array<Row>({
    item<&FormMenu::mnuImpostazioni>({.caption = "Impostazioni"}),
    item<&FormMenu::MnuSuoni>(
        {.caption = "Suoni", .in = nameOf<&FormMenu::mnuImpostazioni>, .shortcut = "Ctrl+S"}),
    item<&FormMenu::mnuUsaCursoreDiSistema>({.caption = "Usa cursore di sistema",
                                             .in = nameOf<&FormMenu::mnuImpostazioni>,
                                             .shortcut = "Ctrl+K"}),
    item<&FormMenu::mnuModInput>(
        {.caption = "Modalità di input", .in = nameOf<&FormMenu::mnuImpostazioni>}),
    item<&FormMenu::mnuInput>(0, {.caption = "mouse / tastiera",
                                  .in = nameOf<&FormMenu::mnuModInput>,
                                  .shortcut = "Ctrl+D"}),
    item<&FormMenu::mnuInput>(1, {.caption = "scansione manuale",
                                  .in = nameOf<&FormMenu::mnuModInput>,
                                  .shortcut = "Ctrl+M"}),
    item<&FormMenu::mnuInput>(2, {.caption = "scansione automatica",
                                  .in = nameOf<&FormMenu::mnuModInput>,
                                  .shortcut = "Ctrl+A"}),
    item<&FormMenu::mnuInput>(3, {.caption = "Tastiera HelpiKeys",
                                  .in = nameOf<&FormMenu::mnuModInput>,
                                  .shortcut = "Ctrl+H"}),
    item<&FormMenu::mnuLinea1>(
        {.caption = "--------------------------------", .in = nameOf<&FormMenu::mnuModInput>}),
    item<&FormMenu::mnuTempoScansione>(
        {.caption = "tempo scansione", .in = nameOf<&FormMenu::mnuModInput>, .shortcut = "Ctrl+T"}),
    item<&FormMenu::mnuInfo>({.caption = "Informazioni"}),
    item<&FormMenu::MnuDoc>({.caption = "documentazione", .in = nameOf<&FormMenu::mnuInfo>}),
    item<&FormMenu::mnuAbout>({.caption = "about", .in = nameOf<&FormMenu::mnuInfo>}),
    item<&FormMenu::mnuLanguages>({.caption = "Lingua"}),
    item<&FormMenu::mnuLanguage>(
        0, {.caption = "mnuLanguage 0", .in = nameOf<&FormMenu::mnuLanguages>}),
});

Row PulsanteDi(const VoceFamiglia& voce, std::size_t quale) {
  return {voce.pulsante, -1, kVoci<FormMenu>.at(quale), PostoVoce(voce.sinistra, voce.alto),
          AspettoVoce(voce.parole, voce.immagine, voce.tinta)};
}

// The families' buttons come first.
FormDesign Disegno() {
  static const std::vector<Row> kFamiglie = [] {
    std::vector<Row> righe;
    for (const VoceFamiglia& voce : LeFamiglie()) righe.push_back(PulsanteDi(voce, righe.size()));
    return righe;
  }();
  static const std::array<std::span<const Row>, 3> kTavole{kFamiglie, kControlli, kMenu};
  return Menu(forme::kFormMenu, 9780, 6210, kTavole);
}

}  // namespace

FormMenu::FormMenu(Ambiente& ambiente) : Forma(ambiente, Disegno()) {
  Command1.onClick([this] { this->ambiente().fondo.endProcess(0); });
  for (int i = 0; const VoceFamiglia& famiglia : LeFamiglie()) {
    platform::Button& pulsante = Voce(i++);
    pulsante.onClick([this, &famiglia] { VaiA(famiglia.forma); });
    pulsante.shareCaptionSize(scritte_);
  }
  HScrollScansione.onChange([this] { CambiaTempo(); });
  HScrollScansione.speakInUnitsOf(kSecondiPerScatto);
  CommandConfermaTempoInput.onClick([this] { PictureTempoScansione.setVisible(false); });
  CollegaMenu();
}

void FormMenu::CollegaMenu() {
  MnuSuoni.onClick([this] { InvertiSuoni(); });
  mnuUsaCursoreDiSistema.onClick([this] { InvertiCursore(); });
  for (int i = 0; i <= kHelpiKeys; ++i) {
    mnuInput.element(i).onClick([this, i] { ScegliModalita(i); });
  }
  mnuTempoScansione.onClick([this] { ApriTempoScansione(); });
  MnuDoc.onClick([this] {
    ApriDocumento(ambiente(), ambiente().servizi.cartella + QStringLiteral("/somme.pdf"));
  });
  mnuAbout.onClick([this] { VaiA(forme::kFormInfo); });
  mnuLanguage.element(0).onClick([this] { ScegliLingua(0); });
}

void FormMenu::onLoad() {
  MLSFillMenuLanguages();
  famiglie_.forEach([this](platform::Button& strada) { strade_.add(strada); });
  strade_.add(Command1);
  Forma::onLoad();
  stato().ContaEsatti = 0;
  stato().ContaErrati = 0;
  MnuSuoni.setCaption(
      TestoLingua(ambiente(), stato().SuoniAttivi ? chiavi::kSuoniAttivi : chiavi::kSuoniSpenti));
  mnuUsaCursoreDiSistema.setChecked(stato().CursoreDiSistema);
  ImpostaCursoreSistema();
  mnuInput[stato().ModalitaInput].setChecked(true);
}

void FormMenu::onActivate() {
  paintGradient();
  OffriFamiglie();
}

// A family that cannot be answered in the chosen way is not offered.
void FormMenu::OffriFamiglie() {
  const Modo modo = ModoDi(stato().ModalitaInput);
  for (int i = 0; const VoceFamiglia& famiglia : LeFamiglie()) {
    Voce(i++).setVisible(SiOffre(ambiente().forme, famiglia.famiglia, modo));
  }
}

void FormMenu::MLSFillMenuLanguages() {
  const QStringList lingue = LingueNellaCartella(ambiente().servizi.cartella);
  if (lingue.isEmpty()) {
    ambiente().fondo.showBox({QStringLiteral("Non è presente alcun file di linguaggio!")});
    return;
  }
  for (int i = 0; i < lingue.size(); ++i) {
    if (i > 0) {
      mnuLanguage.load(i).setVisible(true);
      mnuLanguage[i].onClick([this, i] { ScegliLingua(i); });
    }
    mnuLanguage[i].setCaption(lingue[i]);
  }
  stato().LinguaCorrente = LinguaScelta(ambiente());
  for (int i = 0; i < lingue.size(); ++i) {
    if (mnuLanguage[i].caption() != stato().LinguaCorrente) continue;
    mnuLanguage[i].setChecked(true);
    return;
  }
}

// The words after a click differ from those at the next load: they may tell what the click did.
void FormMenu::InvertiSuoni() {
  stato().SuoniAttivi = !stato().SuoniAttivi;
  MnuSuoni.setCaption(
      TestoLingua(ambiente(), stato().SuoniAttivi ? chiavi::kSuoniAttivati : chiavi::kSuoniTolti));
}

void FormMenu::InvertiCursore() {
  stato().CursoreDiSistema = !stato().CursoreDiSistema;
  mnuUsaCursoreDiSistema.setChecked(stato().CursoreDiSistema);
  ImpostaCursoreSistema();
}

void FormMenu::ScegliModalita(int indice) {
  stato().ModalitaInput = static_cast<qint16>(indice);
  mnuInput.forEach([](platform::MenuItem& voce) { voce.setChecked(false); });
  mnuInput[indice].setChecked(true);
  OffriFamiglie();
}

void FormMenu::ApriTempoScansione() {
  ScriviTempo();
  HScrollScansione.setValue(stato().TempoScansione);
  PictureTempoScansione.cover();
}

// The interval changes while the bar moves; there is no way back but to move it back.
void FormMenu::CambiaTempo() {
  stato().TempoScansione = platform::toInt16(HScrollScansione.value());
  ScriviTempo();
  if (HScrollScansione.hasFocus()) announce(LabelTempoScansione.caption());
}

// Neither word goes through the language file.
void FormMenu::ScriviTempo() {
  LabelTempoScansione.setCaption(
      QStringLiteral("Velocità scansione: ") +
      platform::formatPicture(stato().TempoScansione * kSecondiPerScatto, u"##0.00") +
      QStringLiteral(" secondi"));
}

// Every form now loaded changes its language, hidden ones too. Events run between: of two choices
// the later one holds, on the forms, in the file and in the mark.
void FormMenu::ScegliLingua(int indice) {
  mnuLanguage.forEach([](platform::MenuItem& voce) { voce.setChecked(false); });
  mnuLanguage[indice].setChecked(true);
  const QString lingua = mnuLanguage[indice].caption();
  stato().LinguaCorrente = lingua;
  // Also when this form is left while the language is being applied, which unwinds from here.
  const auto vale = [&] { return stato().LinguaCorrente == lingua; };
  const auto scrivi = qScopeGuard([&] {
    if (vale()) ScriviLinguaScelta(ambiente(), lingua);
  });
  for (const std::shared_ptr<platform::Form>& forma : ambiente().fondo.forms().all()) {
    if (vale()) ApplicaLingua(ambiente(), *forma);
  }
}

}  // namespace somme::inline programma
