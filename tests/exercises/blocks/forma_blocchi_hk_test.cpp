#include "exercises/blocks/forma_blocchi_hk.h"

#include <QApplication>
#include <cmath>

#include "blocchi_toccati.h"
#include "support/iscrizione.h"

namespace forma_blocchi_hk_test {

using namespace prova;
using namespace prova::toccati;
using somme::FormaBlocchiHK;
using somme::Tasto;

// The blocks by touch: what each key does and when, and the digits of the result.
class FormaBlocchiHKTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensAsThePlainFormWithButtonsAndNoBoxForTheResult() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 24, 13);
    QVERIFY(forma.withoutRow().empty());
    QVERIFY(forma.HelpiKeysConnesso());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
    QVERIFY(forma.pulsanti.PicturePulsanti.isVisible());
    QVERIFY(forma.PulsanteAvanti.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(cifre(forma), QStringLiteral("..."));
    QCOMPARE(
        forma.TestoStampa.text(),
        QStringLiteral("\r\n     Piatti, lunghi, unità: entro 99 - con e senza cambi\r\n\r\n"));
  }

  void theDigitsStandSideBySideWhereTheBoxIsOnThePlainForms() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 24, 13);
    QCOMPARE(forma.Label4.count(), 3);
    const double x = forma.Label1.left() / 840;
    const double y = forma.Label1.top() / 1320;
    const double posti[] = {4080, 5040, 6000};
    for (int i = 0; i < 3; ++i) {
      QVERIFY(std::abs(forma.Label4[i].left() / x - posti[i]) < 1);
      QVERIFY(std::abs(forma.Label4[i].width() / x - 975) < 1);
      QVERIFY(std::abs(forma.Label4[i].top() / y - 5520) < 1);
    }
  }

  void theKeyOfACarryDoesNothingWhileNoneIsAskedFor() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 24, 13);
    premi(banco, kCambioUDa);
    premi(banco, kDa, 2);
    premi(banco, kCambioUDa);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("2da 0u"));
    premi(banco, kU, 4);
    premi(banco, kConferma);
    costruisciToccando(banco, 13);
    const double prima = banco.tempo.secondsSinceMidnight();
    premi(banco, kCambioUDa);
    QCOMPARE(banco.tempo.secondsSinceMidnight(), prima);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 7u"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theKeysThatTheFormUpTo99DoesNotHaveDoNothing() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 24, 13);
    banco.rete.manda("BB1");  // column 2, row 2: the first key
    for (const int posto : {1, 4, 5}) tocca(banco, posto);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("0da 0u"));
    costruisciToccando(banco, 24);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    costruisciToccando(banco, 13);
    for (const int posto : {1, 4, 5}) tocca(banco, posto);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theFourthKeyDoesNothingUpTo999Either() {
    Banco banco;
    FormaBlocchiHK& forma = apriHLU(banco, 213, 45);
    tocca(banco, 4);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("0h 0da 0u"));
    premi(banco, kH, 11);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("9h 0da 0u"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void binAndConfirmActAsTheButtons() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 24, 13);
    premi(banco, kU, 3);
    premi(banco, kConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(forma.ImgNo.isVisible());
    premi(banco, kCestino);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("0da 0u"));
    costruisciToccando(banco, 24);
    QVERIFY(incorniciata(forma, forma.Label2));
    QCOMPARE(forma.pulsanti.PicturePulsanti.left(), forma.Label2.left());
  }

  void afterTheBoardsAreJoinedTheKeysOfTheBlocksDoNothing() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 27, 15);
    unisciToccando(banco);
    // Hidden with the box that holds it; its own flag says nothing of that.
    QVERIFY(!forma.pulsanti.PicturePulsanti.isVisible());
    QVERIFY(forma.pulsanti.PulsanteU.isVisible());
    for (const Tasto tasto : {kDa, kU, kCestino, kConferma}) premi(banco, tasto);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 12u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("2da 7u"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void aHiddenButtonKeepsItsKeyFromActing() {
    Banco banco;
    FormaBlocchiHK& forma = apriHLU(banco, 213, 45);
    for (platform::Button* pulsante :
         {&*forma.pulsanti.PulsanteH, &forma.pulsanti.PulsanteDa, &forma.pulsanti.PulsanteU,
          &forma.pulsanti.PulsanteConferma, &forma.PulsanteAvanti}) {
      pulsante->setVisible(false);
    }
    for (const Tasto tasto : {kH, kDa, kU, kConferma, kAvanti}) premi(banco, tasto);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("0h 0da 0u"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 213 +  45 = "));
    forma.pulsanti.PulsanteU.setVisible(true);
    premi(banco, kU, 2);
    forma.pulsanti.PulsanteCestino.setVisible(false);
    premi(banco, kCestino);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("0h 0da 2u"));
  }

  void theDigitsAreWrittenAsSoonAsTheCaseIsMade_data() {
    QTest::addColumn<bool>("piatti");
    QTest::addColumn<int>("addendo1");
    QTest::addColumn<int>("addendo2");
    QTest::addColumn<QString>("attese");
    QTest::addColumn<QString>("mostrate");
    const auto riga = [](const char* nome, bool piatti, int addendo1, int addendo2,
                         const char* attese, const char* mostrate) {
      QTest::newRow(nome) << piatti << addendo1 << addendo2 << QString::fromLatin1(attese)
                          << QString::fromLatin1(mostrate);
    };
    riga("99: 7", false, 3, 4, "||7", ".-7");
    riga("99: 9", false, 4, 5, "||9", ".-9");
    riga("99: 30", false, 10, 20, "|3|0", ".30");
    riga("99: 37", false, 24, 13, "|3|7", ".37");
    riga("999: 7", true, 3, 4, "||7", "--7");
    riga("999: 99", true, 45, 54, "|9|9", "-99");
    riga("999: 204", true, 101, 103, "2|0|4", "204");
    riga("999: 258", true, 213, 45, "2|5|8", "258");
  }
  void theDigitsAreWrittenAsSoonAsTheCaseIsMade() {
    QFETCH(bool, piatti);
    QFETCH(int, addendo1);
    QFETCH(int, addendo2);
    QFETCH(QString, attese);
    QFETCH(QString, mostrate);
    Banco banco;
    FormaBlocchiHK& forma =
        piatti ? apriHLU(banco, addendo1, addendo2) : apriLU(banco, addendo1, addendo2);
    QCOMPARE(scritte(forma), attese);
    QCOMPARE(cifre(forma), QStringLiteral("..."));
    unisciToccando(banco);
    QCOMPARE(cifre(forma), mostrate);
  }

  void upTo99TheTensTakeAllThatIsAboveTheUnits() {
    Banco banco;
    banco.ambiente->stato.Totale = 123;
    banco.ambiente->stato.TipoEsercizio = 99;  // no level: the numbers stay as they were
    FormaBlocchiHK& forma = apriPronta<FormaBlocchiHK>(banco, somme::forme::kFormLUHK);
    QCOMPARE(forma.Label4[1].caption(), QStringLiteral("12"));
    QCOMPARE(forma.Label4[2].caption(), QStringLiteral("3"));
  }

  void theMouseStillWorksTheButtonsAndNotTheDisabledWayOn() {
    Banco banco;
    FormaBlocchiHK& forma = apriLU(banco, 27, 15);
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 27 +  15 = "));
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(cifre(forma), QStringLiteral(".42"));
    banco.sorte.scrivi(casoLU(24, 13));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
  }

  void thePointersFollowTheSetting() {
    for (const bool diSistema : {false, true}) {
      Banco banco;
      banco.ambiente->stato.CursoreDiSistema = diSistema;
      QCOMPARE(apriLU(banco, 24, 13).PulsanteCambio->mousePointer(), diSistema ? 0 : 99);
    }
  }

  void theWayOutGivesTheTouchesBack() {
    Banco banco;
    apriLU(banco, 24, 13).mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuPLU"));
    QCOMPARE(banco.rete.ricevuti.count("02#REQ-DEFAULT"), 1);
  }
};

const prova::Iscrizione<FormaBlocchiHKTest, QApplication> kIscritta;

}  // namespace forma_blocchi_hk_test

#include "forma_blocchi_hk_test.moc"
