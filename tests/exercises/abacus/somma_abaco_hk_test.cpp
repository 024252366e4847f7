#include "abaco_toccato.h"

#include <QApplication>

#include "support/iscrizione.h"
#include "support/letti.h"

namespace somma_abaco_hk_test {

using namespace prova;
using somme::FormaAbacoHK;
using somme::Tasto;

// Sums on the abacus by touch: the answer, the digits of the sum, what comes after.
class SommaAbacoHKTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void tenTensAndNoHundredAreRightForASumOfTheSameValue() {
    BancoHK banco(11, BancoHK::caso(11, 107, 100));
    const FormaAbacoHK& forma = banco.forma;
    banco.tasto(Tasto::Decine, 10);
    banco.tasto(Tasto::Unita, 7);
    banco.tasto(Tasto::Conferma);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.ImgSi.isVisible());
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(banco.suono.suonati, QStringList{banco.fileDelSuono("si")});
    QCOMPARE(banco.cifre(), QStringLiteral(".107"));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 100 +  7 = "));
    // The point of the picture stands behind every sum.
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n\r\n 100 +  7 =  107.\r\n")));
    QVERIFY(!forma.PulsanteConferma.isEnabled());
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
  }

  void theDigitsOfARightSumShowWithoutLeadingNoughts_data() {
    QTest::addColumn<int>("totale");
    QTest::addColumn<QString>("cifre");
    QTest::newRow("units") << 9 << "...9";
    QTest::newRow("from ten on") << 10 << "..10";
    QTest::newRow("below a hundred") << 99 << "..99";
    QTest::newRow("from a hundred on") << 100 << ".100";
    QTest::newRow("below a thousand") << 999 << ".999";
    QTest::newRow("from a thousand on") << 1000 << "1000";
    QTest::newRow("with noughts inside") << 8042 << "8042";
  }
  void theDigitsOfARightSumShowWithoutLeadingNoughts() {
    QFETCH(int, totale);
    QFETCH(QString, cifre);
    BancoHK banco(19, BancoHK::caso(19, totale, 5));
    QCOMPARE(banco.ambiente->stato.Totale, qint16(totale));
    QCOMPARE(banco.cifre(), QStringLiteral("...."));
    int valore = 1000;
    for (const Tasto tasto : {Tasto::Migliaia, Tasto::Centinaia, Tasto::Decine, Tasto::Unita}) {
      banco.tasto(tasto, totale / valore % 10);
      valore /= 10;
    }
    banco.tasto(Tasto::Conferma);
    QCOMPARE(banco.cifre(), cifre);
    // Read as one number.
    QStringList letture = letti(banco.forma.Label2);
    letture.removeAll(QString());
    QCOMPARE(letture, QStringList{QString::number(totale)});
    banco.tasto(Tasto::Avanti);
    QCOMPARE(banco.cifre(), QStringLiteral("...."));
  }

  void aWrongAbacusIsCountedAndCanBePutRight() {
    BancoHK banco(3, BancoHK::caso(3, 12, 7));
    const FormaAbacoHK& forma = banco.forma;
    banco.tasto(Tasto::Unita);
    banco.tasto(Tasto::Conferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{banco.fileDelSuono("no")});
    QCOMPARE(banco.cifre(), QStringLiteral("...."));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteConferma.isEnabled());
    QCOMPARE(banco.visti("u"), QStringLiteral("0"));
    banco.tasto(Tasto::Unita);
    banco.tasto(Tasto::Decine);
    banco.tasto(Tasto::Conferma);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void confirmationAndTheWayOnActOnlyWhileTheirButtonsAreEnabled() {
    BancoHK banco(3, BancoHK::caso(3, 12, 7));
    banco.tasto(Tasto::Avanti);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 7 +  5 = "));
    banco.tasto(Tasto::Decine);
    banco.tasto(Tasto::Unita, 2);
    banco.tasto(Tasto::Conferma);
    banco.tasto(Tasto::Conferma);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    banco.sorte.scrivi(BancoHK::caso(3, 82, 47));
    banco.tasto(Tasto::Avanti);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QVERIFY(banco.forma.PulsanteConferma.isEnabled());
    QVERIFY(!banco.forma.PulsanteAvanti.isEnabled());
  }

  void theBinClearsTheAbacusAloneByKeyAndByMouse() {
    BancoHK banco(3, BancoHK::caso(3, 12, 7));
    banco.tasto(Tasto::Conferma);
    for (const bool conIlMouse : {false, true}) {
      banco.tasto(Tasto::Unita, 3);
      if (conIlMouse) {
        banco.clicca(banco.forma.PulsanteCestino);
      } else {
        banco.tasto(Tasto::Cestino);
      }
      QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
      QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    }
    QCOMPARE(banco.forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 7 +  5 = "));
    QVERIFY(banco.forma.ImgNo.isVisible());
  }

  void theNextCaseByMouseInTheMiddleOfACarryFreesTheKeysAndTheCarryGoesOn() {
    BancoHK banco(3, BancoHK::caso(3, 10, 7));
    banco.tasto(Tasto::Unita, 10);
    banco.tasto(Tasto::Conferma);
    banco.sorte.scrivi(BancoHK::caso(3, 82, 47));
    banco.tempo.after(nelPasso(50), [&] {
      banco.clicca(banco.forma.PulsanteAvanti);
      QVERIFY(!banco.forma.partita().CambioInCorso());
      banco.tasto(Tasto::Decine, 2);
      QCOMPARE(banco.detto(), QStringLiteral("2 decine"));
    });
    banco.tasto(Tasto::CambioUDa);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.detto(), QStringLiteral("3 decine"));
    QVERIFY(!banco.forma.partita().CambioInCorso());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aSpikeThatFillsInTheMiddleOfACarryLeavesItNoWaitingBead() {
    BancoHK banco(3, BancoHK::caso(3, 10, 7));
    banco.tasto(Tasto::Unita, 10);
    banco.tasto(Tasto::Conferma);
    banco.tempo.after(nelPasso(50), [&] {
      banco.clicca(banco.forma.PulsanteAvanti);
      banco.tasto(Tasto::Decine, 10);
    });
    banco.tasto(Tasto::CambioUDa);
    QCOMPARE(banco.detto(), QStringLiteral("11 decine"));
    QCOMPARE(banco.visti("da"), QString::fromLatin1(kTutti));
    banco.tasto(Tasto::Cestino);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
  }

  void theMouseStaysFreeInTheMiddleOfACarry() {
    BancoHK banco(3, BancoHK::caso(3, 10, 7));
    banco.tasto(Tasto::Unita, 10);
    banco.tempo.after(nelPasso(50), [&] { banco.clicca(banco.forma.PulsanteConferma); });
    banco.tasto(Tasto::CambioUDa);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
  }

  void aSecondActivationStartsACaseAndARecordAnewAndTheNextOkTakesTheKeysAway() {
    BancoHK banco(3, BancoHK::caso(3, 10, 7));
    banco.tasto(Tasto::Decine);
    banco.tasto(Tasto::Conferma);
    banco.sorte.scrivi(BancoHK::caso(3, 82, 47));
    banco.mostra(somme::forme::kFormAbacoHK);
    QCOMPARE(banco.rete.ricevuti.count("02#REQ-TOUCH"), 2);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.forma.TestoStampa.text(), QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n"));
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    banco.tasto(Tasto::Unita);
    QCOMPARE(banco.detto(), QStringLiteral("1 unità"));
    banco.rete.manda("OK");
    banco.tasto(Tasto::Unita);
    QCOMPARE(banco.detto(), QStringLiteral("1 unità"));
    QVERIFY(banco.messaggi.mostrati.empty());
  }
};

const prova::Iscrizione<SommaAbacoHKTest, QApplication> kIscritta;

}  // namespace somma_abaco_hk_test

#include "somma_abaco_hk_test.moc"
