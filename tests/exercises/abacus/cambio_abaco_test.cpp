#include <QApplication>
#include <QPointer>

#include "abaco_di_prova.h"
#include "app/form_menu.h"
#include "support/iscrizione.h"

namespace cambio_abaco_test {

using prova::kTutti;

namespace {

constexpr double kPasso = prova::kPassoDelCambio;
constexpr int kPassi = prova::kPassiDelCambio;

constexpr double nel(int passo) {
  return prova::nelPasso(passo);
}

// An abacus that is drawn quickly.
struct BancoAbaco : prova::BancoAbaco {
  explicit BancoAbaco(qint16 tipo, const Caso& caso = {})
      : prova::BancoAbaco(tipo, caso, prova::kFinestraPiccola) {}
};

}  // namespace

// The carry of the abacus, with the clock in the test's hand.
class CambioAbacoTest : public QObject {
  Q_OBJECT

  // Ten units on their spike, at the level that carries units alone, and a case of 7 + 5.
  struct DieciUnita : BancoAbaco {
    explicit DieciUnita(qint16 tipo = 3) : BancoAbaco(tipo, caso(tipo, 12, 7)) { metti("ua", 10); }
    void cambia() { clicca(forma.PulsanteCambioUDa); }
  };

  static void momenti() {
    QTest::addColumn<int>("passo");
    for (const int passo : {0, 50, 99, 100, 199}) {
      QTest::addRow("step %d", passo) << passo;
    }
  }

 private Q_SLOTS:
  void tenUnitsBecomeATen() {
    DieciUnita banco;
    banco.cambia();
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    QCOMPARE(banco.forma.partita().Inserite().decine, 1);
    QCOMPARE(banco.visti("u"), QString());
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("da"), QStringLiteral("0"));
    QCOMPARE(banco.visti("daa"), QStringLiteral("0 1 2 3 4 5 6 7 8"));
    for (int i = 0; i < 10; ++i) QCOMPARE(banco.alfa("ua", i), 99);
    QCOMPARE(banco.alfa("da", 0), 100);
    QVERIFY(!banco.forma.PulsanteCambioUDa.isEnabled());
    QVERIFY(!banco.forma.PulsanteCambioDaH.isEnabled());
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void itTakesSixSecondsAndNotMuchMore() {
    DieciUnita banco;
    const double prima = banco.tempo.secondsSinceMidnight();
    banco.cambia();
    const double durata = banco.tempo.secondsSinceMidnight() - prima;
    QVERIFY2(durata > 2 * kPassi * kPasso - 1e-3 && durata < 2 * kPassi * kPasso + 1e-3,
             qPrintable(QString::number(durata)));
  }

  void theUnitsMeltBackStepByStepThenTheTenPassesOver() {
    DieciUnita banco;
    banco.metti("daa", 2);
    int visti = 0;
    for (int k = 0; k < kPassi; ++k) {
      banco.tempo.after(nel(k), [&banco, &visti, k] {
        for (int i = 0; i < 10; ++i) {
          if (banco.alfa("u", i) == 100 - k && banco.alfa("ua", i) == k && banco.vede("u", i) &&
              banco.vede("ua", i)) {
            ++visti;
          }
        }
      });
      banco.tempo.after(nel(kPassi + k), [&banco, &visti, k] {
        if (banco.alfa("da", 2) == k + 1 && banco.alfa("daa", 9) == 99 - k && banco.vede("da", 2) &&
            banco.vede("daa", 9) && banco.visti("u").isEmpty()) {
          ++visti;
        }
      });
    }
    banco.cambia();
    QCOMPARE(visti, 11 * kPassi);
    QCOMPARE(banco.visti("da"), QStringLiteral("0 1 2"));
    QCOMPARE(banco.visti("daa"), QStringLiteral("2 3 4 5 6 7 8"));
    QCOMPARE(banco.detto(), QStringLiteral("3 decine"));
  }

  void tensAndHundredsCarryInTheSameWay_data() {
    QTest::addColumn<int>("colonna");
    QTest::newRow("tens") << 2;
    QTest::newRow("hundreds") << 1;
  }
  void tensAndHundredsCarryInTheSameWay() {
    QFETCH(int, colonna);
    const prova::Ferro& da = prova::kFerri[colonna];
    const prova::Ferro& a = prova::kFerri[colonna - 1];
    BancoAbaco banco(19);
    banco.metti(da.inAttesa, 10);
    banco.clicca(colonna == 2 ? banco.forma.PulsanteCambioDaH : banco.forma.PulsanteCambioHK);
    QCOMPARE(banco.forma.partita().Inserite()[da.posto], 0);
    QCOMPARE(banco.forma.partita().Inserite()[a.posto], 1);
    QCOMPARE(banco.visti(da.sulFerro), QString());
    QCOMPARE(banco.visti(da.inAttesa), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti(a.sulFerro), QStringLiteral("0"));
    QVERIFY(!banco.vede(a.inAttesa, 9));
  }

  void theTenthTenThatACarryBringsEnablesTheNextArrow() {
    DieciUnita banco(19);
    banco.metti("daa", 9);
    QVERIFY(!banco.forma.PulsanteCambioDaH.isEnabled());
    banco.cambia();
    QCOMPARE(banco.forma.partita().Inserite().decine, 10);
    QVERIFY(banco.forma.PulsanteCambioDaH.isVisible());
    QVERIFY(banco.forma.PulsanteCambioDaH.isEnabled());
    banco.clicca(banco.forma.PulsanteCambioDaH);
    QCOMPARE(banco.detto(), QStringLiteral("1 centinaio"));
    QVERIFY(!banco.forma.PulsanteCambioHK.isEnabled());
  }

  void theTenthHundredThatACarryBringsEnablesTheLastArrow() {
    BancoAbaco banco(19);
    banco.metti("ha", 9);
    banco.metti("daa", 10);
    banco.clicca(banco.forma.PulsanteCambioDaH);
    QVERIFY(banco.forma.PulsanteCambioHK.isEnabled());
    banco.clicca(banco.forma.PulsanteCambioHK);
    QCOMPARE(banco.detto(), QStringLiteral("1 migliaio"));
  }

  void aFullSpikeTakesNoCarryAndTheArrowStaysEnabled() {
    DieciUnita banco(19);
    banco.metti("daa", 10);
    const double prima = banco.tempo.secondsSinceMidnight();
    banco.cambia();
    QCOMPARE(banco.tempo.secondsSinceMidnight(), prima);
    QCOMPARE(banco.detto(), QStringLiteral("10 decine, 10 unità"));
    QVERIFY(banco.forma.PulsanteCambioUDa.isEnabled());
  }

  void theLastFreePlaceOnASpikeIsStillTaken() {
    DieciUnita banco;
    banco.metti("daa", 9);
    banco.cambia();
    QCOMPARE(banco.visti("da"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("daa"), QString());
    QCOMPARE(banco.detto(), QStringLiteral("10 decine"));
  }

  void theSameCarryCannotBeStartedTwiceAtATime() {
    DieciUnita banco;
    banco.tempo.after(nel(10), [&banco] { banco.cambia(); });
    const double prima = banco.tempo.secondsSinceMidnight();
    banco.cambia();
    QVERIFY(banco.tempo.secondsSinceMidnight() - prima < 2 * kPassi * kPasso + 1e-3);
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
  }

  void anotherCarryCanRunInsideACarry() {
    DieciUnita banco(19);
    banco.metti("ha", 10);
    banco.tempo.after(nel(10), [&banco] { banco.clicca(banco.forma.PulsanteCambioHK); });
    banco.cambia();
    QCOMPARE(banco.detto(), QStringLiteral("1 migliaio, 1 decina"));
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("ha"), QString::fromLatin1(kTutti));
  }

  void aWaitingBeadThatACarryFadedOutComesBackUnseenFromTheBinAndCanBeClicked() {
    DieciUnita banco;
    banco.cambia();
    banco.clicca(banco.forma.PulsanteCestino);
    QVERIFY(banco.vede("daa", 9));
    QCOMPARE(banco.alfa("daa", 9), 0);
    banco.tocca("daa", 9);
    QCOMPARE(banco.forma.partita().Inserite().decine, 1);
    QCOMPARE(banco.alfa("da", 0), 100);
    banco.tocca("da", 0);
    QVERIFY(banco.vede("daa", 9));
    QCOMPARE(banco.alfa("daa", 9), 100);
  }

  void aBeadPutAfterACarryIsOpaque() {
    DieciUnita banco;
    banco.cambia();
    QVERIFY(banco.alfa("u", 0) < 2);
    banco.tocca("ua", 0);
    QVERIFY(banco.vede("u", 0));
    QCOMPARE(banco.alfa("u", 0), 100);
  }

  void leavingInTheMiddleEndsTheCarryThere_data() { momenti(); }
  void leavingInTheMiddleEndsTheCarryThere() {
    QFETCH(int, passo);
    DieciUnita banco;
    const QPointer<QWidget> tavola = banco.forma.ShockwaveFlash1.widget();
    banco.tempo.after(nel(passo), [&banco] { banco.batti(Qt::Key_E, Qt::AltModifier); });
    const double prima = banco.tempo.secondsSinceMidnight();
    banco.cambia();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
    QVERIFY(banco.tempo.secondsSinceMidnight() - prima < nel(passo) + kPasso);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(tavola.isNull());
    // The form that comes next knows nothing of it.
    auto& nuova = banco.apri<somme::FormaAbacoTastiera>(somme::forme::kFormAbaco);
    QCOMPARE(nuova.partita().Inserite().unita, 0);
    QCOMPARE(prova::Banco::siVede(nuova.ShockwaveFlash1, QStringLiteral("u0")), false);
  }

  void closingTheWindowInTheMiddleEndsTheProgram_data() { momenti(); }
  void closingTheWindowInTheMiddleEndsTheProgram() {
    QFETCH(int, passo);
    DieciUnita banco;
    banco.tempo.after(nel(passo), [&banco] { banco.ambiente->fondo.window().close(); });
    banco.cambia();
    QCOMPARE(banco.ambiente->fondo.forms().current(), nullptr);
  }

  void theNextCaseInTheMiddleBeginsAndTheCarryGoesOnToItsEnd_data() { momenti(); }
  void theNextCaseInTheMiddleBeginsAndTheCarryGoesOnToItsEnd() {
    QFETCH(int, passo);
    DieciUnita banco;
    banco.metti("daa", 3);
    banco.rispondi(QStringLiteral("12"));
    banco.sorte.scrivi(BancoAbaco::caso(3, 82, 47));
    banco.tempo.after(nel(passo), [&banco] {
      banco.clicca(banco.forma.PulsanteAvanti);
      QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
      QCOMPARE(banco.forma.partita().Inserite().decine, 0);
    });
    const double prima = banco.tempo.secondsSinceMidnight();
    banco.cambia();
    QVERIFY(banco.tempo.secondsSinceMidnight() - prima > 2 * kPassi * kPasso - 1e-3);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QVERIFY(banco.forma.TestoInput.TestoInput.hasFocus());
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    QCOMPARE(banco.forma.partita().Inserite().decine, 1);
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    // What the new case asks for is answered as ever.
    banco.rispondi(QStringLiteral("82"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void theBinInTheMiddleClearsAndTheCarryGoesOnToItsEnd_data() { momenti(); }
  void theBinInTheMiddleClearsAndTheCarryGoesOnToItsEnd() {
    QFETCH(int, passo);
    DieciUnita banco;
    banco.metti("daa", 3);
    banco.tempo.after(nel(passo), [&banco] {
      banco.clicca(banco.forma.PulsanteCestino);
      QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    });
    banco.cambia();
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    QCOMPARE(banco.forma.partita().Inserite().decine, 1);
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    QVERIFY(!banco.vede("daa", 9));
    // A spike that the bin emptied before the ten came gets it at its foot; one that it emptied
    // afterwards has lost it to the eye, and the counter alone knows of it.
    QCOMPARE(banco.visti("da"), passo < kPassi ? QStringLiteral("0") : QString());
    banco.clicca(banco.forma.PulsanteCestino);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
  }

  void beadsCanBeMovedInTheMiddle() {
    DieciUnita banco;
    banco.tempo.after(nel(50), [&banco] { banco.tocca("daa", 0); });
    banco.tempo.after(nel(150), [&banco] { banco.tocca("ua", 4); });
    banco.cambia();
    QCOMPARE(banco.visti("da"), QStringLiteral("0 1"));
    QCOMPARE(banco.forma.partita().Inserite().decine, 2);
    // The carry counts the units as it ends, whatever came onto the spike meanwhile.
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
  }

  void aUnitTakenAwayInTheMiddleDoesNotHoldTheCarryUp() {
    DieciUnita banco;
    banco.tempo.after(nel(50), [&banco] { banco.tocca("u", 0); });
    banco.cambia();
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
    QCOMPARE(banco.visti("u"), QString());
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
  }

  void aSpikeThatFillsInTheMiddleLeavesTheCarryNoWaitingBead() {
    DieciUnita banco(19);
    banco.metti("daa", 9);
    banco.tempo.after(nel(50), [&banco] { banco.tocca("daa", 9); });
    banco.cambia();
    // The value is kept, though the spike has no place for the eleventh.
    QCOMPARE(banco.detto(), QStringLiteral("11 decine"));
    QCOMPARE(banco.visti("da"), QString::fromLatin1(kTutti));
    QVERIFY(banco.vede("ua", 0));
    QVERIFY(banco.forma.PulsanteCambioDaH.isEnabled());
    banco.clicca(banco.forma.PulsanteCestino);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QCOMPARE(banco.visti("daa"), QString::fromLatin1(kTutti));
  }

  void thePupilCanWriteAtOnceWhileTheCarryGoesOn() {
    DieciUnita banco;
    banco.tempo.after(nel(50), [&banco] { banco.rispondi(QStringLiteral("12")); });
    banco.cambia();
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void anAnswerInTheMiddleIsJudged() {
    DieciUnita banco;
    banco.forma.PulsanteCambioUDa.setFocus();
    banco.tempo.after(nel(50), [&banco] {
      banco.forma.TestoInput.setFocus();
      banco.rispondi(QStringLiteral("12"));
    });
    banco.cambia();
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(banco.forma.PulsanteAvanti.hasFocus());
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
  }

  void anActivationInTheMiddleLoadsTheAbacusAnewAndTheCarryGoesOn() {
    DieciUnita banco;
    banco.tempo.after(nel(50), [&banco] { banco.mostra(somme::forme::kFormAbaco); });
    banco.cambia();
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    QCOMPARE(banco.forma.partita().Inserite().decine, 1);
    QVERIFY(banco.vede("da", 0));
  }
};

const prova::Iscrizione<CambioAbacoTest, QApplication> kIscritta;

}  // namespace cambio_abaco_test

#include "cambio_abaco_test.moc"
