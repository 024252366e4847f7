#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMenu>

#include "app/form_avvio.h"
#include "app/form_menu.h"
#include "app/shared/modulo_ini.h"
#include "app/shared/nomi_forme.h"
#include "exercises/numbers/forma_numeri_tastiera.h"
#include "menu_di_prova.h"
#include "platform/forms/menu_bar.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/pulsante.h"

namespace lingua_del_menu_test {

using prova::apriMenu;
using prova::Banco;
using prova::pulsante;
using prova::scegliVoce;
using somme::FormMenu;

// The language menu of the main menu.
class LinguaDelMenuTest : public QObject {
  Q_OBJECT

  // The item of a language that is there.
  static platform::MenuItem& voce(FormMenu& menu, const QString& lingua) {
    platform::MenuItem* trovata = nullptr;
    menu.mnuLanguage.forEach([&](platform::MenuItem& una) {
      if (una.caption() == lingua) trovata = &una;
    });
    if (trovata == nullptr) throw std::logic_error("no such language is in the menu");
    return *trovata;
  }
  static platform::MenuItem& inglese(FormMenu& menu) {
    return voce(menu, QStringLiteral("English"));
  }
  static QByteArray leggi(const Banco& banco, const QString& nome) {
    QFile file(banco.percorso(nome));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
  }
  // The items with a check mark.
  static QStringList segnate(FormMenu& menu) {
    QStringList nomi;
    menu.mnuLanguage.forEach([&nomi](platform::MenuItem& voce) {
      if (voce.isChecked()) nomi.append(voce.caption());
    });
    return nomi;
  }
  // What of the language stands on a form.
  static QStringList testi(const platform::Form& forma) {
    QStringList tutti{forma.caption()};
    for (const platform::Control* controllo : forma.controls()) {
      tutti.append(controllo->name() + u'=' + controllo->caption() + u'|' + controllo->toolTip());
    }
    return tutti;
  }
  static void togli(const Banco& banco, const QString& nome) {
    QVERIFY(QFile::remove(banco.percorso(nome)));
  }

 private Q_SLOTS:
  void theLanguagesFoundStandInTheMenuByNameAndTheCurrentOneIsMarked() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    QStringList nomi;
    menu.mnuLanguage.forEach([&nomi](platform::MenuItem& una) { nomi.append(una.caption()); });
    QCOMPARE(nomi, QStringList({QStringLiteral("Deutsch"), QStringLiteral("English"),
                                QStringLiteral("Español"), QStringLiteral("Français"),
                                QStringLiteral("Italiano")}));
    QCOMPARE(segnate(menu), QStringList{QStringLiteral("Italiano")});
  }

  void anItemMadeAtRunTimeStandsInTheSameMenuUnderItsOwnName() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    const QAction* prima = menu.mnuLanguage[0].action();
    const QAction* seconda = menu.mnuLanguage[1].action();
    QCOMPARE(seconda->objectName(), QStringLiteral("mnuLanguage(1)"));
    QVERIFY(seconda->isVisible());
    QCOMPARE(seconda->parent(), prima->parent());
    const auto* tendina = menu.mnuLanguages.action()->menu();
    QVERIFY(tendina != nullptr);
    QCOMPARE(tendina->actions().size(), qsizetype(menu.mnuLanguage.count()));
    QCOMPARE(tendina->actions()[1], seconda);
  }

  void theMouseChoosesALanguageFromTheOpenMenu() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    platform::MenuBar* barra = menu.page()->menuBar();
    const QPoint voce = barra->actionGeometry(menu.mnuLanguages.action()).center();
    QTest::mouseClick(banco.finestra(), Qt::LeftButton, {},
                      barra->mapTo(&banco.ambiente->fondo.window(), voce));
    auto* tendina = menu.mnuLanguages.action()->menu();
    QVERIFY(tendina->isVisible());
    QTest::mouseClick(tendina->windowHandle(), Qt::LeftButton, {},
                      tendina->actionGeometry(inglese(menu).action()).center());
    QCoreApplication::processEvents();
    QVERIFY(!tendina->isVisible());
    QCOMPARE(banco.ambiente->stato.LinguaCorrente, QStringLiteral("English"));
    QCOMPARE(pulsante(menu, "Command3").caption(), QStringLiteral("Numbers only"));
  }

  void choosingALanguageMarksItAppliesItAndWritesItAtOnce() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    scegliVoce(inglese(menu));
    QCOMPARE(segnate(menu), QStringList{QStringLiteral("English")});
    QCOMPARE(menu.caption(), QStringLiteral("Addition exercises"));
    QCOMPARE(menu.Command1.caption(), QStringLiteral("Exit"));
    QCOMPARE(leggi(banco, QStringLiteral("LangSetting.ini")).simplified(),
             QByteArray("[Language] CurrentLanguage=English"));
    // Also a form that is loaded without being shown.
    auto& avvio = static_cast<somme::FormAvvio&>(
        banco.ambiente->fondo.forms().loaded(somme::forme::kFormAvvio));
    QCOMPARE(avvio.BottoneAvvio.caption(), QStringLiteral("Start"));
  }

  void aLanguageIsKeptAlsoWhenTheMenuIsLeftWhileItIsApplied() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    // At the first yield of the language.
    banco.tempo.after(0, [&] { banco.clicca(pulsante(menu, "Command3")); });
    scegliVoce(inglese(menu));
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuNumeri"));
    QCOMPARE(leggi(banco, QStringLiteral("LangSetting.ini")).simplified(),
             QByteArray("[Language] CurrentLanguage=English"));
  }

  void ofTwoChoicesWithinOneApplicationTheLaterOneHolds_data() {
    QTest::addColumn<int>("passi");  // yields of the first one before the second is made
    QTest::newRow("at its beginning") << 1;
    QTest::newRow("on its way") << 12;
    QTest::newRow("at its end") << 33;
  }
  void ofTwoChoicesWithinOneApplicationTheLaterOneHolds() {
    QFETCH(int, passi);
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    auto& avvio = static_cast<somme::FormAvvio&>(
        banco.ambiente->fondo.forms().loaded(somme::forme::kFormAvvio));
    int fatti = 0;
    std::function<void()> passo = [&] {
      if (++fatti < passi) {
        banco.tempo.after(0, passo);
      } else if (fatti == passi) {
        scegliVoce(voce(menu, QStringLiteral("Français")));
      }
    };
    banco.tempo.after(0, passo);
    scegliVoce(inglese(menu));
    QCOMPARE(fatti, passi);
    QCOMPARE(banco.ambiente->stato.LinguaCorrente, QStringLiteral("Français"));
    QCOMPARE(segnate(menu), QStringList{QStringLiteral("Français")});
    QCOMPARE(leggi(banco, QStringLiteral("LangSetting.ini")).simplified(),
             QByteArray("[Language] CurrentLanguage=Français"));
    // As where nothing else was ever chosen.
    Banco solo;
    FormMenu& altro = apriMenu(solo);
    auto& altroAvvio = static_cast<somme::FormAvvio&>(
        solo.ambiente->fondo.forms().loaded(somme::forme::kFormAvvio));
    scegliVoce(voce(altro, QStringLiteral("Français")));
    QCOMPARE(testi(menu), testi(altro));
    QCOMPARE(testi(avvio), testi(altroAvvio));
  }

  void whoComesBackToTheFirstOfThreeLanguagesHasIt() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    banco.tempo.after(0, [&] {
      banco.tempo.after(0, [&] { scegliVoce(inglese(menu)); });
      scegliVoce(voce(menu, QStringLiteral("Deutsch")));
    });
    scegliVoce(inglese(menu));
    Banco solo;
    FormMenu& altro = apriMenu(solo);
    scegliVoce(inglese(altro));
    QCOMPARE(testi(menu), testi(altro));
    QCOMPARE(segnate(menu), QStringList{QStringLiteral("English")});
    QCOMPARE(leggi(banco, QStringLiteral("LangSetting.ini")).simplified(),
             QByteArray("[Language] CurrentLanguage=English"));
  }

  void theNextRunStartsInTheChosenLanguage() {
    Banco banco;
    scegliVoce(inglese(apriMenu(banco)));
    Banco poi;
    poi.metti(QStringLiteral("LangSetting.ini"), leggi(banco, QStringLiteral("LangSetting.ini")));
    poi.ambiente->stato.LinguaCorrente.clear();
    somme::CaricaStringhe(*poi.ambiente);
    QCOMPARE(poi.ambiente->stato.LinguaCorrente, QStringLiteral("English"));
    QCOMPARE(poi.ambiente->stringhe.TestoEsatti, QStringLiteral("Right"));
    FormMenu& menu = apriMenu(poi);
    QCOMPARE(segnate(menu), QStringList{QStringLiteral("English")});
    QCOMPARE(menu.Command1.caption(), QStringLiteral("Exit"));
  }

  void theSharedStringsKeepTheLanguageOfTheStart() {
    Banco banco;
    scegliVoce(inglese(apriMenu(banco)));
    QCOMPARE(banco.ambiente->stringhe.TestoEsatti, QStringLiteral("Esatti"));
    QCOMPARE(somme::TestoLingua(*banco.ambiente, "0003"), QStringLiteral("Right"));
  }

  void laterExercisesSpeakTheNewLanguageButCountInTheWordsOfTheStart() {
    Banco banco;
    scegliVoce(inglese(apriMenu(banco)));
    banco.ambiente->stato.TipoEsercizio = 1;
    const auto& forma = banco.apri<somme::FormaNumeriTastiera>(somme::forme::kFormNumeriTotale);
    QCOMPARE(forma.PulsanteAvanti.caption(), QStringLiteral("&next"));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
  }

  void aChangeOfLanguagePutsTheFilesOwnCaptionOnTheSounds() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    QCOMPARE(menu.MnuSuoni.caption(), QStringLiteral("Disattiva i suoni"));
    scegliVoce(inglese(menu));
    QCOMPARE(menu.MnuSuoni.caption(), QStringLiteral("Sounds"));
  }

  void aNameOfTwoWordsIsShownWholeAndWithoutItsExtension() {
    Banco banco;
    banco.metti(QStringLiteral("Lingua semplice.lng"), "[FormMenu]\nCommand1.Caption=\"Via\"\n");
    FormMenu& menu = apriMenu(banco);
    scegliVoce(voce(menu, QStringLiteral("Lingua semplice")));
    QCOMPARE(menu.Command1.caption(), QStringLiteral("Via"));
    QCOMPARE(pulsante(menu, "Command3").caption(), QStringLiteral("Solo numeri"));
    // The form's own caption is set also where the file has none.
    QCOMPARE(menu.caption(), QString());
  }

  void aFileWhoseExtensionIsInOtherLettersIsALanguageToo_data() {
    QTest::addColumn<QString>("estensione");
    for (const char* una : {"LNG", "Lng", "lnG"}) QTest::newRow(una) << QString::fromLatin1(una);
  }
  void aFileWhoseExtensionIsInOtherLettersIsALanguageToo() {
    QFETCH(QString, estensione);
    Banco banco;
    banco.metti(QStringLiteral("Semplice.") + estensione,
                "[FormMenu]\nCommand1.Caption=\"Via\"\n[Strings]\n0003=\"Bravo\"\n");
    FormMenu& menu = apriMenu(banco);
    scegliVoce(voce(menu, QStringLiteral("Semplice")));
    QCOMPARE(menu.Command1.caption(), QStringLiteral("Via"));
    QCOMPARE(somme::TestoLingua(*banco.ambiente, "0003"), QStringLiteral("Bravo"));
    QCOMPARE(segnate(menu), QStringList{QStringLiteral("Semplice")});
  }

  void aLanguageThatIsThereInTwoSpellingsOfItsExtensionStandsOnceInTheMenu() {
    Banco banco;
    banco.metti(QStringLiteral("English.LNG"), "[FormMenu]\nCommand1.Caption=\"Other\"\n");
    FormMenu& menu = apriMenu(banco);
    QStringList nomi;
    menu.mnuLanguage.forEach([&nomi](platform::MenuItem& una) { nomi.append(una.caption()); });
    QCOMPARE(nomi.count(QStringLiteral("English")), 1);
    scegliVoce(inglese(menu));
    QCOMPARE(menu.Command1.caption(), QStringLiteral("Exit"));
  }

  void namesAreComparedExactly() {
    Banco banco;
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\nCurrentLanguage=\"italiano\"\n");
    FormMenu& menu = apriMenu(banco);
    QCOMPARE(segnate(menu), QStringList());
    QCOMPARE(banco.ambiente->stato.LinguaCorrente, QStringLiteral("italiano"));
  }

  void withoutAnyLanguageFileEachLoadSaysSoAndTheDesignTextsStand() {
    Banco banco;
    for (const QString& nome : QDir(banco.cartella.path())
                                   .entryList({QStringLiteral("*.lng"), QStringLiteral("*.ini")})) {
      togli(banco, nome);
    }
    for (std::size_t volta = 1; volta <= 2; ++volta) {
      FormMenu& menu = apriMenu(banco);
      QCOMPARE(banco.messaggi.mostrati.size(), volta);
      const platform::MessageBox& messaggio = banco.messaggi.mostrati.back();
      QCOMPARE(messaggio.text, QStringLiteral("Non è presente alcun file di linguaggio!"));
      QCOMPARE(messaggio.title, somme::TitoloProgramma());
      QCOMPARE(menu.mnuLanguage.count(), 1);
      QCOMPARE(menu.mnuLanguage[0].caption(), QStringLiteral("mnuLanguage 0"));
      QCOMPARE(pulsante(menu, "Command3").caption(), QStringLiteral("Solo numeri"));
      QCOMPARE(menu.MnuSuoni.caption(), QString());
      banco.ambiente->fondo.forms().unload(menu);
    }
    QVERIFY(!banco.fine.stato.has_value());
  }

  void languagesWithoutASettingsFileEndTheProgramWithTheRunTimesBox() {
    Banco banco;
    somme::FormAvvio& avvio = banco.apri<somme::FormAvvio>(somme::forme::kFormAvvio);
    togli(banco, QStringLiteral("LangSetting.ini"));
    banco.clicca(avvio.BottoneAvvio);
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(1));
    const platform::MessageBox& messaggio = banco.messaggi.mostrati.front();
    QCOMPARE(messaggio.text,
             QStringLiteral("Errore di run-time '53':\n\nImpossibile trovare il file"));
    QCOMPARE(messaggio.icon, platform::BoxIcon::Critical);
    QVERIFY(banco.fine.stato.has_value());
    QVERIFY(*banco.fine.stato != 0);
    QVERIFY(!avvio.isUnloaded());
  }

  void aSettingsFileWithoutTheKeyMarksNothingAndEmptiesTheStrings() {
    Banco banco;
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\n");
    FormMenu& menu = apriMenu(banco);
    QCOMPARE(segnate(menu), QStringList());
    QCOMPARE(banco.ambiente->stato.LinguaCorrente, QString());
    QCOMPARE(somme::TestoLingua(*banco.ambiente, "0003"), QString());
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  void aLanguageThatIsMissingLeavesTheDesignTexts() {
    Banco banco;
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\nCurrentLanguage=\"Latino\"\n");
    FormMenu& menu = apriMenu(banco);
    QCOMPARE(segnate(menu), QStringList());
    QCOMPARE(pulsante(menu, "Command3").caption(), QStringLiteral("Solo numeri"));
    QCOMPARE(menu.caption(), QStringLiteral("Esercitazioni sulle somme"));
  }

  void aLanguageThatVanishesWhileTheProgramRunsLeavesTheTextsAsTheyAre() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    togli(banco, QStringLiteral("English.lng"));
    scegliVoce(inglese(menu));
    QCOMPARE(pulsante(menu, "Command3").caption(), QStringLiteral("Solo numeri"));
    QCOMPARE(menu.caption(), QStringLiteral("Esercitazioni sulle somme"));
    QCOMPARE(segnate(menu), QStringList{QStringLiteral("English")});
    QVERIFY(!banco.fine.stato.has_value());
  }

  void aSettingsFileThatCannotBeWrittenChangesTheLanguageAllTheSame() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    togli(banco, QStringLiteral("LangSetting.ini"));
    QVERIFY(QDir(banco.cartella.path()).mkdir(QStringLiteral("LangSetting.ini")));
    scegliVoce(inglese(menu));
    QCOMPARE(menu.Command1.caption(), QStringLiteral("Exit"));
    QVERIFY(banco.messaggi.mostrati.empty());
    QVERIFY(!banco.fine.stato.has_value());
  }
};

const prova::Iscrizione<LinguaDelMenuTest, QApplication> kIscritta;

}  // namespace lingua_del_menu_test

#include "lingua_del_menu_test.moc"
