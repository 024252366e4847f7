#include <QApplication>
#include <QFile>

#include "abaco_di_prova.h"
#include "support/iscrizione.h"

namespace somma_abaco_tastiera_test {

using prova::BancoAbaco;
using prova::kTutti;

// Sums on the abacus for mouse and keyboard: the answer, the counts, what comes after.
class SommaAbacoTastieraTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aRightResultCountsWithAnEmptyAbacusAsWithTheRightBeads() {
    for (const bool conPalline : {false, true}) {
      BancoAbaco banco(3, BancoAbaco::caso(3, 12, 7));
      if (conPalline) {
        banco.metti("daa", 1);
        banco.metti("ua", 2);
      }
      banco.rispondi(QStringLiteral("12"));
      QVERIFY(banco.forma.ImgSi.isVisible());
      QVERIFY(!banco.forma.ImgNo.isVisible());
      QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
      QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
      QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
      QCOMPARE(banco.forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
      QVERIFY(banco.forma.PulsanteAvanti.isEnabled());
      QVERIFY(banco.forma.PulsanteAvanti.hasFocus());
      QVERIFY(!banco.forma.TestoInput.isEnabled());
      QCOMPARE(banco.forma.TestoStampa.text(),
               QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n 7 +  5 =  12\r\n"));
    }
  }

  void aWrongResultCountsAndPutsThePupilBackIntoTheNumber() {
    BancoAbaco banco(3, BancoAbaco::caso(3, 12, 7));
    banco.metti("ua", 2);
    banco.rispondi(QStringLiteral("13"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(banco.forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(banco.forma.ImgNo.isVisible());
    QVERIFY(!banco.forma.ImgSi.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/no.wav"))});
    QVERIFY(!banco.forma.PulsanteAvanti.isEnabled());
    QVERIFY(banco.forma.TestoInput.TestoInput.isVisible());
    QVERIFY(banco.forma.TestoInput.TestoInput.hasFocus());
    QCOMPARE(banco.forma.TestoInput.Text.get(), QStringLiteral("13"));
    QCOMPARE(banco.visti("u"), QStringLiteral("0 1"));
    banco.batti(Qt::Key_Backspace);
    banco.rispondi(QStringLiteral("2"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.forma.TestoStampa.text().count(QStringLiteral(" 7 +  5 =")), 1);
  }

  void goingOnClearsTheAbacusAndAsksTheNextCase() {
    BancoAbaco banco(3, BancoAbaco::caso(3, 12, 7));
    banco.metti("ua", 2);
    banco.rispondi(QStringLiteral("12"));
    banco.sorte.scrivi(BancoAbaco::caso(3, 82, 47));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.visti("u"), QString());
    QCOMPARE(banco.forma.TestoInput.Text.get(), QString());
    QVERIFY(banco.forma.TestoInput.isEnabled());
    QVERIFY(banco.forma.TestoInput.TestoInput.hasFocus());
    QVERIFY(!banco.forma.PulsanteAvanti.isEnabled());
    QVERIFY(banco.forma.ImgSi.isVisible());
    // The record keeps the case before.
    QVERIFY(banco.forma.TestoStampa.text().endsWith(QStringLiteral(" 7 +  5 =  12\r\n")));
  }

  void aSecondActivationStartsACaseAndARecordAnew() {
    BancoAbaco banco(3, BancoAbaco::caso(3, 12, 7));
    banco.metti("ua", 3);
    banco.rispondi(QStringLiteral("12"));
    banco.sorte.scrivi(BancoAbaco::caso(3, 82, 47));
    banco.mostra(somme::forme::kFormAbaco);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.forma.TestoStampa.text(), QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n"));
    QCOMPARE(banco.visti("u"), QString());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(!banco.forma.PulsanteAvanti.isEnabled());
  }

  void clearingTheCountKeepsTheAbacusAndTheCase() {
    BancoAbaco banco(3, BancoAbaco::caso(3, 82, 47));
    banco.rispondi(QStringLiteral("11"));
    banco.metti("ua", 2);
    banco.batti(Qt::Key_Z, Qt::AltModifier);
    QCOMPARE(banco.forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QCOMPARE(banco.visti("u"), QStringLiteral("0 1"));
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QVERIFY(banco.forma.ImgNo.isVisible());
  }

  void withoutItsMovieTheExerciseGoesOn() {
    BancoAbaco banco(3, BancoAbaco::caso(3, 82, 47));
    QVERIFY(QFile::remove(banco.percorso(QStringLiteral("swf/abaco.swf"))));
    banco.sorte.scrivi(BancoAbaco::caso(3, 12, 7));
    banco.mostra(somme::forme::kFormAbaco);
    banco.clicca(banco.forma.PulsanteCestino);
    banco.clicca(banco.forma.TestoInput);
    banco.rispondi(QStringLiteral("12"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void anUnknownLevelLeavesTheCaseAndWhatTheLevelBeforeShowed() {
    BancoAbaco banco(11, BancoAbaco::caso(11, 300, 120));
    banco.tocca("ua", 0);
    banco.ambiente->stato.TipoEsercizio = 24;
    banco.clicca(banco.forma.PulsanteCestino);
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("ha"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("ka"), QString());
    QVERIFY(banco.forma.PulsanteCambioUDa.isVisible());
    QCOMPARE(int(banco.forma.TestoInput.MaxLength.get()), 3);
    banco.rispondi(QStringLiteral("300"));
    banco.clicca(banco.forma.PulsanteAvanti);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 120 +  180 = "));
  }
};

const prova::Iscrizione<SommaAbacoTastieraTest, QApplication> kIscritta;

}  // namespace somma_abaco_tastiera_test

#include "somma_abaco_tastiera_test.moc"
