#include "app/shared/scheda_forma.h"

#include <QApplication>
#include <QTest>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "support/iscrizione.h"
#include "support/nomi_esercizi.h"

namespace scheda_forma_test {

using somme::Famiglia;
using somme::Genere;
using somme::Modo;
using somme::ModoDi;
using somme::SchedaDi;
using somme::SchedaForma;
using namespace somme::forme;

namespace {

// The form that a menu shows for a way of input as the settings count it.
std::string_view strada(Famiglia famiglia, qint16 modalita) {
  return somme::Strada(somme::LeForme(), famiglia, ModoDi(modalita));
}

SchedaForma scheda(std::string_view nome) {
  return SchedaDi(somme::LeForme(), nome);
}

}  // namespace

// What the table says of the forms.
class SchedaFormaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyFamilyHasAFormForEveryModeOfInput() {
    const auto vanno = [](Famiglia famiglia, std::string_view mouse, std::string_view scansione,
                          std::string_view helpiKeys) {
      return strada(famiglia, 0) == mouse && strada(famiglia, 1) == scansione &&
             strada(famiglia, 2) == scansione && strada(famiglia, 3) == helpiKeys;
    };
    QVERIFY(vanno(Famiglia::NumeriTotale, "FormNumeriTotale", "FormNumeriTotaleScansione",
                  "FormNumeriTotaleHK"));
    QVERIFY(vanno(Famiglia::NumeriAddendo, "FormNumeriAddendo", "FormNumeriAddendoScansione",
                  "FormNumeriAddendoHK"));
    QVERIFY(vanno(Famiglia::Abaco, "FormAbaco", "FormAbacoScansione", "FormAbacoHK"));
    QVERIFY(vanno(Famiglia::BlocchiDecine, "FormLU", "FormLUScansione", "FormLUHK"));
    QVERIFY(vanno(Famiglia::BlocchiCentinaia, "FormHLU", "FormHLUScansione", "FormHLUHK"));
    QVERIFY(vanno(Famiglia::Barre10, "FormBarre10", "FormBarre10Scansione", "FormBarre10HK"));
    QVERIFY(vanno(Famiglia::Barre20, "FormBarre20", "FormBarre20Scansione", "FormBarre20HK"));
  }

  void theTableIsOneFormWhateverTheMode() {
    for (qint16 modalita = 0; modalita <= 3; ++modalita) {
      QVERIFY(strada(Famiglia::Tabella, modalita) == kFormTabella);
    }
  }

  void theTableAloneIsNotOfferedInEveryWay() {
    for (const SchedaForma& forma : somme::LeForme()) {
      if (forma.genere != Genere::Esercizio) continue;
      const bool tabella = forma.famiglia == Famiglia::Tabella;
      for (const Modo modo : {Modo::MouseTastiera, Modo::Scansione, Modo::Tocco}) {
        QCOMPARE(somme::SiOffre(somme::LeForme(), forma.famiglia, modo),
                 !tabella || modo == Modo::MouseTastiera);
      }
    }
  }

  void thereAreAsManyFormsOfEachKindAsTheProgramHas() {
    std::map<Genere, int> quante;
    for (const SchedaForma& forma : somme::LeForme()) ++quante[forma.genere];
    const std::map<Genere, int> attese{{Genere::Pagina, 3},       {Genere::Menu, 5},
                                       {Genere::Esercizio, 23},   {Genere::Foglio, 5},
                                       {Genere::Calibrazione, 2}, {Genere::Dialogo, 1}};
    QVERIFY(quante == attese);
  }

  void everyTouchFormHasTheSheetOfItsFamily() {
    QVERIFY(scheda(kFormNumeriTotaleHK).foglio == kFormStampaFoglioNumeri2);
    QVERIFY(scheda(kFormNumeriAddendoHK).foglio == kFormStampaFoglioNumeri2);
    QVERIFY(scheda(kFormBarre10HK).foglio == kFormStampaFoglioNumeri);
    QVERIFY(scheda(kFormBarre20HK).foglio == kFormStampaFoglioNumeri);
    QVERIFY(scheda(kFormLUHK).foglio == kFormStampaLU);
    QVERIFY(scheda(kFormHLUHK).foglio == kFormStampaPLU);
    QVERIFY(scheda(kFormAbacoHK).foglio == kFormStampaAbaco);
  }

  void theAbacusGoesBackToTheMainMenuAndTheOthersToTheirOwn() {
    for (const SchedaForma& forma : somme::LeForme()) {
      if (forma.genere != Genere::Esercizio) continue;
      QCOMPARE(forma.menu == kFormMenu, forma.famiglia == Famiglia::Abaco);
      QCOMPARE(forma.menu == kFormMenuTabella, forma.famiglia == Famiglia::Tabella);
    }
    QVERIFY(scheda(kFormBarre10Tastiera).menu == kFormMenuBarre);
    QVERIFY(scheda(kFormHLUScansione).menu == kFormMenuPLU);
    QVERIFY(scheda(kFormNumeriAddendoHK).menu == kFormMenuNumeri);
  }

  void aNameThatTheTableDoesNotHaveSaysNothing() {
    const SchedaForma nessuna = scheda("FormNumeri");
    QVERIFY(nessuna.nome == "FormNumeri");
    QVERIFY(nessuna.crea == nullptr);
    QVERIFY(nessuna.famiglia == Famiglia::Nessuna);
    QVERIFY(nessuna.menu.empty());
  }
};

const prova::Iscrizione<SchedaFormaTest, QApplication> kIscritta;

}  // namespace scheda_forma_test

#include "scheda_forma_test.moc"
