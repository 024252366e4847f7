#include "exercises/blocks/forma_blocchi_hk.h"

#include <cmath>

#include "blocchi_di_prova.h"
#include "exercises/blocks/form_hlu_hk.h"
#include "exercises/blocks/form_lu_hk.h"
#include "support/tocchi.h"

using namespace prova;
using somme::FormaBlocchiHK;
using somme::FormHLUHK;
using somme::FormLUHK;
using somme::kMappaBlocchi;

namespace {

// Keys of the sheet.
constexpr int kH = 1;
constexpr int kDa = 2;
constexpr int kU = 3;
constexpr int kCambioDaH = 5;
constexpr int kCambioUDa = 6;
constexpr int kCestino = 7;
constexpr int kConferma = 8;
constexpr int kAvanti = 9;

const QString kSpecieLU = QStringLiteral("da u");
const QString kSpecieHLU = QStringLiteral("h da u");

std::vector<SorteDiProva::Estrazione> casoLU(int addendo1, int addendo2) {
  const int totale = addendo1 + addendo2;
  return {{totale - 1, 99}, {addendo1, totale}};
}
std::vector<SorteDiProva::Estrazione> casoHLU(int addendo1, int addendo2) {
  const int totale = addendo1 + addendo2;
  return {{totale - 1, 988}, {addendo1, totale}};
}
FormLUHK& apriLU(Banco& banco, int addendo1, int addendo2) {
  banco.ambiente->stato.TipoEsercizio = 3;
  banco.sorte.scrivi(casoLU(addendo1, addendo2));
  return apriPronta<FormLUHK>(banco, somme::forme::kFormLUHK);
}
FormHLUHK& apriHLU(Banco& banco, int addendo1, int addendo2) {
  banco.ambiente->stato.TipoEsercizio = 6;
  banco.sorte.scrivi(casoHLU(addendo1, addendo2));
  return apriPronta<FormHLUHK>(banco, somme::forme::kFormHLUHK);
}

void premi(Banco& banco, int tasto, int volte = 1) {
  for (int i = 0; i < volte; ++i) tocca(banco, kMappaBlocchi, tasto);
}
void costruisciToccando(Banco& banco, int numero) {
  premi(banco, kH, numero / 100);
  premi(banco, kDa, numero / 10 % 10);
  premi(banco, kU, numero % 10);
  premi(banco, kConferma);
}
void unisciToccando(Banco& banco) {
  costruisciToccando(banco, banco.ambiente->stato.Addendo1);
  costruisciToccando(banco, banco.ambiente->stato.Addendo2);
}
// The digits on the labels, with a point for one that is hidden and a dash for one that is empty.
QString cifre(FormaBlocchiHK& forma) {
  QString tutte;
  forma.Label4.forEach([&tutte](platform::Label& cifra) {
    tutte += !cifra.isVisible()          ? QStringLiteral(".")
             : cifra.caption().isEmpty() ? QStringLiteral("-")
                                         : cifra.caption();
  });
  return tutte;
}
QString scritte(FormaBlocchiHK& forma) {
  QStringList tutte;
  forma.Label4.forEach([&tutte](platform::Label& cifra) { tutte += cifra.caption(); });
  return tutte.join(u'|');
}

}  // namespace

// The blocks by touch.
class FormaBlocchiHKTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensAsThePlainFormWithButtonsAndNoBoxForTheResult() {
    Banco banco;
    FormLUHK& forma = apriLU(banco, 24, 13);
    QVERIFY(forma.withoutRow().empty());
    QVERIFY(forma.HelpiKeysConnesso());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
    QVERIFY(forma.PicturePulsanti.isVisible());
    QVERIFY(forma.PulsanteAvanti.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(cifre(forma), QStringLiteral("..."));
    QCOMPARE(
        forma.TestoStampa.text(),
        QStringLiteral("\r\n     Piatti, lunghi, unità: entro 99 - con e senza cambi\r\n\r\n"));
  }

  void theDigitsStandSideBySideWhereTheBoxIsOnThePlainForms() {
    Banco banco;
    FormLUHK& forma = apriLU(banco, 24, 13);
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

  void aWholeSumWithoutCarry() {
    Banco banco;
    FormLUHK& forma = apriLU(banco, 24, 13);
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

  void aCarryByItsKeyComesBeforeTheResult() {
    Banco banco;
    FormLUHK& forma = apriLU(banco, 27, 15);
    unisciToccando(banco);
    QVERIFY(forma.PulsanteCambio.isVisible());
    QCOMPARE(cifre(forma), QStringLiteral("..."));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    premi(banco, kCambioUDa);
    QVERIFY(!forma.PulsanteCambio.isVisible());
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 4);
    QCOMPARE(cifre(forma), QStringLiteral(".42"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void bothCarriesByTheirKeysComeBeforeTheResult() {
    Banco banco;
    FormHLUHK& forma = apriHLU(banco, 167, 258);
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieHLU), QStringLiteral("3h 11da 15u"));
    // The second carry is not asked for yet.
    premi(banco, kCambioDaH);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 3);
    premi(banco, kCambioUDa);
    QVERIFY(forma.PulsanteCambioDaH.isVisible());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    premi(banco, kCambioDaH);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(cifre(forma), QStringLiteral("425"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.PulsanteAvanti.hasFocus());
  }

  void twelveUnitsAndNineTensAskForOneCarryOnly() {
    Banco banco;
    FormHLUHK& forma = apriHLU(banco, 147, 255);
    unisciToccando(banco);
    premi(banco, kCambioUDa);
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
    QCOMPARE(cifre(forma), QStringLiteral("402"));
  }

  void theKeyOfACarryDoesNothingWhileNoneIsAskedFor() {
    Banco banco;
    FormLUHK& forma = apriLU(banco, 24, 13);
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
    FormLUHK& forma = apriLU(banco, 24, 13);
    banco.rete.manda("BB1");  // column 2, row 2: the first key
    for (const int tasto : {kH, 4, kCambioDaH}) premi(banco, tasto);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("0da 0u"));
    costruisciToccando(banco, 24);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    costruisciToccando(banco, 13);
    for (const int tasto : {kH, 4, kCambioDaH}) premi(banco, tasto);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theFourthKeyDoesNothingUpTo999Either() {
    Banco banco;
    FormHLUHK& forma = apriHLU(banco, 213, 45);
    premi(banco, 4);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("0h 0da 0u"));
    premi(banco, kH, 11);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("9h 0da 0u"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void binAndConfirmActAsTheButtons() {
    Banco banco;
    FormLUHK& forma = apriLU(banco, 24, 13);
    premi(banco, kU, 3);
    premi(banco, kConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(forma.ImgNo.isVisible());
    premi(banco, kCestino);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("0da 0u"));
    costruisciToccando(banco, 24);
    QVERIFY(incorniciata(forma, forma.Label2));
    QCOMPARE(forma.PicturePulsanti.left(), forma.Label2.left());
  }

  void afterTheBoardsAreJoinedTheKeysOfTheBlocksDoNothing() {
    Banco banco;
    FormLUHK& forma = apriLU(banco, 27, 15);
    unisciToccando(banco);
    // Hidden with the box that holds it; its own flag says nothing of that.
    QVERIFY(!forma.PicturePulsanti.isVisible());
    QVERIFY(forma.PulsanteU.isVisible());
    for (const int tasto : {kDa, kU, kCestino, kConferma}) premi(banco, tasto);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 12u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("2da 7u"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void aHiddenButtonKeepsItsKeyFromActing() {
    Banco banco;
    FormHLUHK& forma = apriHLU(banco, 213, 45);
    for (platform::Button* pulsante : {&forma.PulsanteH, &forma.PulsanteDa, &forma.PulsanteU,
                                       &forma.PulsanteConferma, &forma.PulsanteAvanti}) {
      pulsante->setVisible(false);
    }
    for (const int tasto : {kH, kDa, kU, kConferma, kAvanti}) premi(banco, tasto);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("0h 0da 0u"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 213 +  45 = "));
    forma.PulsanteU.setVisible(true);
    premi(banco, kU, 2);
    forma.PulsanteCestino.setVisible(false);
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
    FormaBlocchiHK& forma = piatti
                                ? static_cast<FormaBlocchiHK&>(apriHLU(banco, addendo1, addendo2))
                                : static_cast<FormaBlocchiHK&>(apriLU(banco, addendo1, addendo2));
    QCOMPARE(scritte(forma), attese);
    QCOMPARE(cifre(forma), QStringLiteral("..."));
    unisciToccando(banco);
    QCOMPARE(cifre(forma), mostrate);
  }

  void upTo99TheTensTakeAllThatIsAboveTheUnits() {
    Banco banco;
    banco.ambiente->stato.Totale = 123;
    banco.ambiente->stato.TipoEsercizio = 99;  // no level: the numbers stay as they were
    FormLUHK& forma = apriPronta<FormLUHK>(banco, somme::forme::kFormLUHK);
    QCOMPARE(forma.Label4[1].caption(), QStringLiteral("12"));
    QCOMPARE(forma.Label4[2].caption(), QStringLiteral("3"));
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
    FormLUHK& forma = apriLU(banco, 27, 15);
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
    QVERIFY(!forma.PulsanteCambio.isVisible());
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
    FormHLUHK& forma = apriHLU(banco, 167, 258);
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
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, QStringLiteral("da u")), QStringLiteral("11da 15u"));
    premi(banco, kCambioUDa);
    premi(banco, kCambioDaH);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aNewCaseAfterACarryThatHasEndedLeavesTheMovieWhereItStands() {
    Banco banco;
    FormHLUHK& forma = apriHLU(banco, 167, 258);
    unisciToccando(banco);
    premi(banco, kCambioUDa);
    const int fotogramma = Banco::filmato(forma.ShockwaveFlash3).currentFrame();
    QVERIFY(fotogramma > 1);
    banco.sorte.scrivi(casoHLU(213, 45));
    premi(banco, kAvanti);
    QCOMPARE(Banco::filmato(forma.ShockwaveFlash3).currentFrame(), fotogramma);
  }

  void theMouseStillWorksTheButtonsAndNotTheDisabledWayOn() {
    Banco banco;
    FormLUHK& forma = apriLU(banco, 27, 15);
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 27 +  15 = "));
    unisci(banco, forma);
    banco.clicca(forma.PulsanteCambio);
    QCOMPARE(cifre(forma), QStringLiteral(".42"));
    banco.sorte.scrivi(casoLU(24, 13));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
  }

  void thePointersFollowTheSetting() {
    for (const bool diSistema : {false, true}) {
      Banco banco;
      banco.ambiente->stato.CursoreDiSistema = diSistema;
      QCOMPARE(apriLU(banco, 24, 13).PulsanteCambio.mousePointer(), diSistema ? 0 : 99);
    }
  }

  void theWayOutGivesTheTouchesBack() {
    Banco banco;
    apriLU(banco, 24, 13).mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuPLU"));
    QCOMPARE(banco.rete.ricevuti.count("02#REQ-DEFAULT"), 1);
  }
};

QTEST_MAIN(FormaBlocchiHKTest)
#include "forma_blocchi_hk_test.moc"
