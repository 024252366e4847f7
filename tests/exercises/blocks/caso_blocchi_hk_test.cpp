#include "blocchi_toccati.h"

#include <QApplication>

#include "support/iscrizione.h"
#include "support/letti.h"

namespace caso_blocchi_hk_test {

using namespace prova;
using namespace prova::toccati;
using somme::FormaBlocchiHK;

// The course of a case of blocks by touch: whole sums with their carries, and the key that begins
// the next case at any moment.
class CasoBlocchiHKTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aWholeSumWithoutCarry() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 24, 13);
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 7u"));
    QCOMPARE(cifre(forma), QStringLiteral(".37"));
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(banco.suono.suonati.size(), 3);
    QCOMPARE(banco.suono.suonati.last(), banco.percorso(QStringLiteral("suoni/si.wav")));
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 =  37"));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n\r\n 24 +  13 =  37\r\n")));
    banco.sorte.scrivi(casoLU(27, 15));
    premi(banco, kAvanti);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 27 +  15 = "));
    QCOMPARE(cifre(forma), QStringLiteral("..."));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
  }

  void theDigitsOfTheResultAreReadAsOneNumber() {
    Banco banco;
    FormaBlocchiHK& forma = apriHLU(banco, 167, 211);
    QCOMPARE(letti(forma.Label4), (QStringList{{}, {}, {}}));
    unisciToccando(banco);
    QCOMPARE(cifre(forma), QStringLiteral("378"));
    QCOMPARE(letti(forma.Label4), (QStringList{QStringLiteral("378"), {}, {}}));
    banco.sorte.scrivi(casoHLU(12, 25));
    premi(banco, kAvanti);
    QCOMPARE(letti(forma.Label4), (QStringList{{}, {}, {}}));
    unisciToccando(banco);
    QCOMPARE(letti(forma.Label4), (QStringList{{}, QStringLiteral("37"), {}}));
  }

  void aCarryByItsKeyComesBeforeTheResult() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 27, 15);
    unisciToccando(banco);
    QVERIFY(forma.PulsanteCambio->isVisible());
    QCOMPARE(cifre(forma), QStringLiteral("..."));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    premi(banco, kCambioUDa);
    QVERIFY(!forma.PulsanteCambio->isVisible());
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 4);
    QCOMPARE(cifre(forma), QStringLiteral(".42"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void bothCarriesByTheirKeysComeBeforeTheResult() {
    Banco banco;
    FormaBlocchiHK& forma = apriHLU(banco, 167, 258);
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieHLU), QStringLiteral("3h 11da 15u"));
    // The second carry is not asked for yet.
    premi(banco, kCambioDaH);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 3);
    premi(banco, kCambioUDa);
    QVERIFY(forma.PulsanteCambioDaH->isVisible());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    premi(banco, kCambioDaH);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(cifre(forma), QStringLiteral("425"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.PulsanteAvanti.hasFocus());
  }

  void twelveUnitsAndNineTensAskForOneCarryOnly() {
    Banco banco;
    FormaBlocchiHK& forma = apriHLU(banco, 147, 255);
    unisciToccando(banco);
    premi(banco, kCambioUDa);
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    QCOMPARE(cifre(forma), QStringLiteral("402"));
  }

  void theLastKeyBeginsANewCaseAtAnyMoment_data() {
    QTest::addColumn<int>("quando");
    QTest::newRow("on the first board") << 0;
    QTest::newRow("on the second board") << 1;
    QTest::newRow("before the boards are joined") << 2;
    QTest::newRow("while a carry is asked for") << 3;
    QTest::newRow("early in the carry") << 4;
    QTest::newRow("late in the carry") << 5;
  }
  void theLastKeyBeginsANewCaseAtAnyMoment() {
    QFETCH(int, quando);
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 27, 15);
    const auto avanti = [&] {
      QVERIFY(!forma.PulsanteAvanti.isEnabled());
      banco.sorte.scrivi(casoLU(24, 13));
      premi(banco, kAvanti);
    };
    if (quando == 0) {
      premi(banco, kU, 3);
      avanti();
    } else if (quando <= 2) {
      costruisciToccando(banco, 27);
      if (quando == 2) banco.tempo.after(1, avanti);
      if (quando == 2) costruisciToccando(banco, 15);
      if (quando == 1) avanti();
    } else {
      unisciToccando(banco);
      if (quando == 4) banco.tempo.after(0.5, avanti);
      if (quando == 5) banco.tempo.after(3.9, avanti);
      if (quando == 3) avanti();
      if (quando != 3) premi(banco, kCambioUDa);
    }
    banco.tempo.advance(10);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
    QVERIFY(incorniciata(forma, forma.Label1));
    QVERIFY(!forma.ShockwaveFlash3.isVisible());
    QVERIFY(!forma.PulsanteCambio->isVisible());
    QCOMPARE(cifre(forma), QStringLiteral("..."));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("0da 0u"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 7u"));
    QCOMPARE(cifre(forma), QStringLiteral(".37"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aNewCaseInTheMiddleOfACarryLetsTheNextOneCarryAgain_data() {
    QTest::addColumn<bool>("secondo");
    QTest::newRow("the first carry") << false;
    QTest::newRow("the second carry") << true;
  }
  void aNewCaseInTheMiddleOfACarryLetsTheNextOneCarryAgain() {
    QFETCH(bool, secondo);
    Banco banco;
    FormaBlocchiHK& forma = apriHLU(banco, 167, 258);
    unisciToccando(banco);
    if (secondo) premi(banco, kCambioUDa);
    banco.tempo.after(1, [&] {
      banco.sorte.scrivi(casoHLU(167, 258));
      premi(banco, kAvanti);
      // The movie rests: what it would say belongs to a case that has gone.
      QCOMPARE(Banco::filmato(forma.ShockwaveFlash3).currentFrame(), 1);
    });
    premi(banco, secondo ? kCambioDaH : kCambioUDa);
    banco.tempo.advance(10);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieHLU), QStringLiteral("3h 0da 0u"));
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, QStringLiteral("da u")), QStringLiteral("11da 15u"));
    premi(banco, kCambioUDa);
    premi(banco, kCambioDaH);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aNewCaseAfterACarryThatHasEndedLeavesTheMovieWhereItStands() {
    Banco banco;
    FormaBlocchiHK& forma = apriHLU(banco, 167, 258);
    unisciToccando(banco);
    premi(banco, kCambioUDa);
    const int fotogramma = Banco::filmato(forma.ShockwaveFlash3).currentFrame();
    QVERIFY(fotogramma > 1);
    banco.sorte.scrivi(casoHLU(213, 45));
    premi(banco, kAvanti);
    QCOMPARE(Banco::filmato(forma.ShockwaveFlash3).currentFrame(), fotogramma);
  }
};

const prova::Iscrizione<CasoBlocchiHKTest, QApplication> kIscritta;

}  // namespace caso_blocchi_hk_test

#include "caso_blocchi_hk_test.moc"
