#include "app/shared/modulo_colori_suoni.h"

#include <QApplication>
#include <QTimer>

#include "app/shared/nomi_forme.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace modulo_colori_suoni_test {

using prova::Banco;
using somme::Attendi;
using somme::RiproduciSuono;

// The wait in which events go on, and the two sounds.
class ModuloColoriSuoniTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aWaitOfNothingOrLessReturnsWithoutLettingEventsRun_data() {
    QTest::addColumn<double>("seconds");
    QTest::newRow("0") << 0.0;
    QTest::newRow("-1") << -1.0;
    QTest::newRow("-100000") << -100000.0;
  }
  void aWaitOfNothingOrLessReturnsWithoutLettingEventsRun() {
    QFETCH(double, seconds);
    Banco banco;
    bool ran = false;
    QMetaObject::invokeMethod(
        &banco.ambiente->fondo.window(), [&ran] { ran = true; }, Qt::QueuedConnection);
    const int before = banco.tempo.yields();
    Attendi(*banco.ambiente, seconds);
    QCOMPARE(banco.tempo.yields(), before);
    QVERIFY(!ran);
  }

  void aWaitLastsItsSecondsAndLetsEventsRun() {
    Banco banco;
    const double start = banco.tempo.secondsSinceMidnight();
    double ran = 0;
    banco.tempo.after(0.3, [&] { ran = banco.tempo.secondsSinceMidnight(); });
    Attendi(*banco.ambiente, 0.5);
    QVERIFY(ran > 0);
    // To the step of the 32-bit floats that clock and limit are compared as.
    QVERIFY(banco.tempo.secondsSinceMidnight() > start + 0.5 - 1.0 / 256);
    QVERIFY(banco.tempo.secondsSinceMidnight() < start + 0.51);
  }

  void aWaitSleepsFromEventToEventAndNeverSpins() {
    Banco banco;
    for (int i = 1; i <= 9; ++i) banco.tempo.after(i, [] {});
    const int before = banco.tempo.yields();
    Attendi(*banco.ambiente, 10);
    QVERIFY(banco.tempo.yields() - before <= 11);
  }

  // A 32-bit float has steps of 1/128 of a second late in the day.
  void clockAndLimitAreComparedAsFloatsOfThirtyTwoBits() {
    Banco banco;
    banco.tempo.setNow(80000);
    int before = banco.tempo.yields();
    Attendi(*banco.ambiente, 0.003);
    QCOMPARE(banco.tempo.yields(), before);
    Attendi(*banco.ambiente, 0.005);
    QVERIFY(banco.tempo.yields() > before);
    QVERIFY(banco.tempo.secondsSinceMidnight() > 80000.0038);
    // Early in the day they are fine enough for the same wait.
    banco.tempo.setNow(100);
    before = banco.tempo.yields();
    Attendi(*banco.ambiente, 0.003);
    QVERIFY(banco.tempo.yields() > before);
  }

  void aWaitThatSpansMidnightEndsOnlyADayLater() {
    Banco banco;
    banco.tempo.setNow(86399.5);
    bool nextNoon = false;
    banco.tempo.after(0.25, [&] {
      banco.tempo.setNow(0);
      banco.tempo.after(43200, [&nextNoon] { nextNoon = true; });
    });
    Attendi(*banco.ambiente, 0.5);
    QVERIFY(nextNoon);
    QVERIFY(banco.tempo.secondsSinceMidnight() >= 86399.99);
  }

  void aWaitThatMidnightMakesEndlessIsStillLeftWithItsForm() {
    Banco banco;
    banco.mostra(somme::forme::kFormInfo);
    platform::Form& forma = *banco.ambiente->fondo.forms().current();
    banco.tempo.setNow(86399.5);
    banco.tempo.after(0.25, [&] { banco.tempo.setNow(0); });
    banco.tempo.after(0.2, [&] {
      QTimer::singleShot(0, &banco.ambiente->fondo.window(),
                         [&] { banco.ambiente->fondo.window().close(); });
    });
    bool wentOn = false;
    forma.run([&] {
      Attendi(*banco.ambiente, 60);
      wentOn = true;
    });
    QVERIFY(!wentOn);
    QCOMPARE(banco.fine.stato, std::optional(0));
  }

  void aWaitDoesNotReturnIntoAHandlerWhoseFormIsLeft() {
    Banco banco;
    banco.mostra(somme::forme::kFormInfo);
    platform::Form& forma = *banco.ambiente->fondo.forms().current();
    banco.tempo.after(1, [&] { banco.ambiente->fondo.forms().unload(forma); });
    bool wentOn = false;
    forma.run([&] {
      Attendi(*banco.ambiente, 2);
      wentOn = true;
    });
    QVERIFY(!wentOn);
  }

  void theSoundsLieBesideTheProgram() {
    Banco banco;
    RiproduciSuono(*banco.ambiente, QStringLiteral("si"));
    RiproduciSuono(*banco.ambiente, QStringLiteral("no"));
    QCOMPARE(banco.suono.suonati, (QStringList{banco.percorso(QStringLiteral("suoni/si.wav")),
                                               banco.percorso(QStringLiteral("suoni/no.wav"))}));
  }

  void withSoundsOffNothingIsPlayed() {
    Banco banco;
    banco.ambiente->stato.SuoniAttivi = false;
    RiproduciSuono(*banco.ambiente, QStringLiteral("si"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }
};

const prova::Iscrizione<ModuloColoriSuoniTest, QApplication> kIscritta;

}  // namespace modulo_colori_suoni_test

#include "modulo_colori_suoni_test.moc"
