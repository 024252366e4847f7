#include "app/modulo1.h"

#include <QApplication>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/schede_di_prova.h"

namespace modulo1_test {

using prova::Banco;

namespace {

// A program that has not started yet, over the services of a bench.
class Programma {
 public:
  explicit Programma(Banco& banco) : ambiente(banco.ambiente->servizi, somme::LeForme()) {}

  somme::Ambiente ambiente;
};

}  // namespace

// The entry routine.
class Modulo1Test : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aSecondInstanceSaysSoAndEndsWithoutAForm() {
    Banco banco;
    banco.istanza.libera = false;
    Programma programma(banco);
    programma.ambiente.stato.ModalitaInput = 3;
    programma.ambiente.stato.SuoniAttivi = false;
    somme::Avvia(programma.ambiente);
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(1));
    const platform::MessageBox& box = banco.messaggi.mostrati.front();
    QCOMPARE(box.text, QStringLiteral("Il programma è già aperto."));
    QCOMPARE(box.title, QStringLiteral("Error"));
    QCOMPARE(box.icon, platform::BoxIcon::Critical);
    QCOMPARE(box.buttons, platform::BoxButtons::Ok);
    QCOMPARE(banco.fine.stato, std::optional(0));
    // Nothing else was set.
    QVERIFY(programma.ambiente.fondo.forms().all().empty());
    QVERIFY(!programma.ambiente.fondo.window().isVisible());
    QVERIFY(banco.sorte.semi.empty());
    QCOMPARE(programma.ambiente.stato.ModalitaInput, qint16(3));
    QVERIFY(!programma.ambiente.stato.SuoniAttivi);
    QVERIFY(programma.ambiente.stringhe.TestoErrati.isEmpty());
    QVERIFY(programma.ambiente.stringhe.Spazio.isEmpty());
  }

  void aSecondInstanceSpeaksTheChosenLanguage() {
    Banco banco;
    banco.istanza.libera = false;
    banco.metti(QStringLiteral("Prova.lng"), "[Strings]\n0001=\"Already open\"\n");
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\nCurrentLanguage=Prova\n");
    Programma programma(banco);
    somme::Avvia(programma.ambiente);
    QCOMPARE(banco.messaggi.mostrati.front().text, QStringLiteral("Already open"));
  }

  void aStartSetsDefaultsChanceAndStringsAndShowsTheSplashForm() {
    Banco banco;
    Programma programma(banco);
    somme::StatoCondiviso& stato = programma.ambiente.stato;
    stato.SuoniAttivi = false;
    stato.CursoreDiSistema = true;
    stato.ModalitaInput = 2;
    stato.TempoScansione = 60;
    somme::Avvia(programma.ambiente);
    QVERIFY(stato.SuoniAttivi);
    QVERIFY(!stato.CursoreDiSistema);
    QCOMPARE(stato.ModalitaInput, qint16(0));
    QCOMPARE(stato.TempoScansione, qint16(4));
    QCOMPARE(stato.LinguaCorrente, QStringLiteral("Italiano"));
    QCOMPARE(banco.sorte.semi.size(), std::size_t(1));
    QCOMPARE(programma.ambiente.stringhe.TestoErrati, QStringLiteral("Errati"));
    QCOMPARE(programma.ambiente.stringhe.SegnoPiu, QStringLiteral(" + "));
    const platform::Form* forma = programma.ambiente.fondo.forms().current();
    QVERIFY(forma != nullptr);
    QCOMPARE(forma->name(), QStringLiteral("FormAvvio"));
    QVERIFY(forma->page()->isVisible());
    QCOMPARE(programma.ambiente.fondo.forms().all().size(), std::size_t(1));
    QVERIFY(banco.messaggi.mostrati.empty());
    QVERIFY(!banco.fine.stato);
  }

  void chanceIsSeededOnceAndNeverAgain() {
    Banco banco;
    Programma programma(banco);
    somme::Avvia(programma.ambiente);
    banco.stampanti.nessuna();  // keyboard sheets have nothing to wait for
    for (const std::string_view nome : somme::NomiDelleForme()) {
      programma.ambiente.fondo.forms().show(nome);
    }
    QCOMPARE(banco.sorte.semi.size(), std::size_t(1));
  }

  void twoStartsHaveDifferentSeeds() {
    Banco banco;
    Programma first(banco);
    somme::Avvia(first.ambiente);
    QTest::qWait(5);
    Programma second(banco);
    somme::Avvia(second.ambiente);
    QVERIFY(banco.sorte.semi[0] != banco.sorte.semi[1]);
  }

  void withoutAnyLanguageFileTheProgramStartsAllTheSame() {
    Banco banco;
    QFile::remove(banco.percorso(QStringLiteral("Italiano.lng")));
    QFile::remove(banco.percorso(QStringLiteral("LangSetting.ini")));
    Programma programma(banco);
    somme::Avvia(programma.ambiente);
    QCOMPARE(programma.ambiente.fondo.forms().current()->name(), QStringLiteral("FormAvvio"));
    QCOMPARE(programma.ambiente.fondo.window().windowTitle(), somme::TitoloProgramma());
    QVERIFY(programma.ambiente.stringhe.TestoErrati.isEmpty());
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  void aWindowClosedWhileTheFirstFormComesUpEndsTheProgram() {
    Banco banco;
    Programma programma(banco);
    banco.tempo.after(0, [&] { programma.ambiente.fondo.window().close(); });
    somme::Avvia(programma.ambiente);
    QCOMPARE(banco.fine.stato, std::optional(0));
  }
};

const prova::Iscrizione<Modulo1Test, QApplication> kIscritta;

}  // namespace modulo1_test

#include "modulo1_test.moc"
