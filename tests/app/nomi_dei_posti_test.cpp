#include <QApplication>
#include <array>
#include <map>
#include <set>

#include "app/shared/foglio_tasti.h"
#include "app/tabella_forme.h"
#include "input/tastiera_hdu_scansione.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/schede_di_prova.h"

namespace nomi_dei_posti_test {

using platform::Control;
using platform::Form;
using prova::Banco;
using somme::TastieraHDUScansione;
using somme::Tasto;

namespace {

// What thousands, hundreds, tens and units are called on a form.
using Lettere = std::map<Tasto, std::set<QString>>;

// The letters of a language's classrooms: hundreds, tens, units.
struct Lingua {
  const char* nome;
  std::array<const char*, 3> lettere;
};
constexpr Lingua kLingue[] = {{"Italiano", {"h", "da", "u"}},
                              {"English", {"H", "T", "U"}},
                              {"Français", {"c", "d", "u"}},
                              {"Deutsch", {"H", "Z", "E"}},
                              {"Español", {"C", "D", "U"}}};

constexpr Tasto kPosti[] = {Tasto::Migliaia, Tasto::Centinaia, Tasto::Decine, Tasto::Unita};

void aggiungiTastiera(const TastieraHDUScansione& tastiera, Lettere& lettere) {
  for (int i = TastieraHDUScansione::kMigliaia; i <= TastieraHDUScansione::kUnita; ++i) {
    if (!tastiera.Pulsante[i].isVisible()) continue;
    lettere[kPosti[i]].insert(tastiera.Pulsante[i].caption());
  }
}

// On buttons and on the keyboard of the screen.
Lettere sullaForma(const Form& forma) {
  const std::map<QString, Tasto> pulsanti{{QStringLiteral("PulsanteH"), Tasto::Centinaia},
                                          {QStringLiteral("PulsanteDa"), Tasto::Decine},
                                          {QStringLiteral("PulsanteU"), Tasto::Unita}};
  Lettere lettere;
  for (const Control* controllo : forma.controls()) {
    const auto trovato = pulsanti.find(controllo->name());
    if (trovato != pulsanti.end()) lettere[trovato->second].insert(controllo->caption());
    const auto* tastiera = dynamic_cast<const TastieraHDUScansione*>(controllo);
    if (tastiera != nullptr) aggiungiTastiera(*tastiera, lettere);
  }
  return lettere;
}

// On the keyboard that lies on the touch surface.
void aggiungiFoglio(Form& foglio, Lettere& lettere) {
  const somme::FoglioTasti& tasti = somme::FoglioDi(foglio.design().name);
  for (int posto = 1; posto <= tasti.tastiera.Posti(); ++posto) {
    const somme::TastoPosato tasto = tasti.TastoDi(posto);
    if (std::ranges::find(kPosti, tasto.tasto) == std::end(kPosti)) continue;
    for (const Control* controllo : foglio.controls()) {
      if (controllo->name() != QStringLiteral("Label3(%1)").arg(tasto.controllo)) continue;
      lettere[tasto.tasto].insert(controllo->caption());
    }
  }
}

// On an exercise form and on its sheet, in a language.
Lettere sullaStrada(const somme::SchedaForma& scheda, const QString& lingua) {
  Banco banco({1024, 768});
  banco.ambiente->stato.LinguaCorrente = lingua;
  platform::Forms& forme = banco.ambiente->fondo.forms();
  Lettere lettere = sullaForma(forme.loaded(scheda.nome));
  if (!scheda.foglio.empty()) aggiungiFoglio(forme.loaded(scheda.foglio), lettere);
  return lettere;
}

}  // namespace

// What a pupil reads for hundreds, tens and units.
class NomiDeiPostiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void onEachRoadAPlaceHasOneName_data() {
    QTest::addColumn<QString>("lingua");
    for (const Lingua& lingua : kLingue) {
      QTest::newRow(lingua.nome) << QString::fromUtf8(lingua.nome);
    }
  }
  // The language's own, but where the program's keyboard of the screen and the plates of the abacus
  // bear theirs: there all do.
  void onEachRoadAPlaceHasOneName() {
    QFETCH(QString, lingua);
    const auto* sua = std::ranges::find_if(
        kLingue, [&lingua](const Lingua& l) { return QString::fromUtf8(l.nome) == lingua; });
    int viste = 0;
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      if (!somme::HaTavole(scheda)) continue;
      const bool fisse =
          scheda.famiglia == somme::Famiglia::Abaco || scheda.modo == somme::Modo::Scansione;
      const auto& lettere = fisse ? kLingue[0].lettere : sua->lettere;
      for (const auto& [posto, nomi] : sullaStrada(scheda, lingua)) {
        const auto quale = std::ranges::find(kPosti, posto) - std::begin(kPosti);
        const QString atteso =
            quale == 0 ? QStringLiteral("k") : QString::fromUtf8(lettere.at(size_t(quale - 1)));
        QCOMPARE(nomi, std::set<QString>{atteso});
        ++viste;
      }
    }
    // Blocks up to 99 and 999 in three ways, the abacus in two of its three.
    QCOMPARE(viste, 3 * (2 + 3) + 2 * 4);
  }
};

const prova::Iscrizione<NomiDeiPostiTest, QApplication> kIscritta;

}  // namespace nomi_dei_posti_test

#include "nomi_dei_posti_test.moc"
