#include "exercises/abacus/form_abaco_hk.h"

#include <QAction>

#include "abaco_di_prova.h"
#include "platform/forms/menu_bar.h"
#include "support/tocchi.h"

using prova::kTutti;
using prova::nelPasso;
using somme::FormAbacoHK;

namespace {

struct BancoHK : prova::BancoDellAbaco<FormAbacoHK> {
  explicit BancoHK(qint16 tipo, const Caso& caso = {})
      : BancoDellAbaco(somme::forme::kFormAbacoHK, tipo, caso, 3, prova::kFinestraPiccola) {
    rete.manda("OK");
    messaggi.mostrati.clear();
  }

  // Keys of the sheet.
  enum Tasti {
    kMigliaio = 1,
    kCentinaio,
    kDecina,
    kUnita,
    kCambioHK = 6,
    kCambioDaH,
    kCambioUDa,
    kCestino = 10,
    kConferma,
    kAvanti,
  };
  void tasto(int quale, int volte = 1) {
    for (int i = 0; i < volte; ++i) prova::tocca(*this, somme::kMappaAbaco, quale);
  }
  // The digits of the sum that show, with a dot for each that does not.
  [[nodiscard]] QString cifre() const {
    QString testo;
    for (int i = 0; i < 4; ++i) {
      testo += forma.Label2[i].isVisible() ? forma.Label2[i].caption() : QStringLiteral(".");
    }
    return testo;
  }
};

}  // namespace

// The abacus by touch.
class FormAbacoHKTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itAsksForTheTouchesAndOpensWithAQuestionAndAnEmptyAbacus() {
    BancoHK banco(3, BancoHK::caso(3, 82, 47));
    const FormAbacoHK& forma = banco.forma;
    QCOMPARE(banco.rete.ricevuti, QByteArrayList{"02#REQ-TOUCH"});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n"));
    QCOMPARE(banco.cifre(), QStringLiteral("...."));
    QVERIFY(forma.PulsanteAvanti.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteConferma.isEnabled());
    QVERIFY(!forma.CambioInCorso);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QCOMPARE(forma.ShockwaveFlash1.width(), forma.Label1.width());
    QCOMPARE(forma.ShockwaveFlash1.top(), forma.Label1.top());
    QVERIFY(forma.withoutRow().empty());
  }

  void theFirstFourKeysPutBeadsOfTheirKindByNumber() {
    BancoHK banco(19, BancoHK::caso(19, 1234, 1000));
    banco.tasto(BancoHK::kMigliaio);
    banco.tasto(BancoHK::kCentinaio, 2);
    banco.tasto(BancoHK::kDecina, 3);
    banco.tasto(BancoHK::kUnita, 4);
    QCOMPARE(banco.detto(), QStringLiteral("1 migliaio, 2 centinaia, 3 decine, 4 unità"));
    QCOMPARE(banco.visti("u"), QStringLiteral("0 1 2 3"));
    QCOMPARE(banco.visti("ua"), QStringLiteral("4 5 6 7 8 9"));
    QCOMPARE(banco.visti("ka"), QStringLiteral("1 2 3 4 5 6 7 8 9"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void theKeysBetweenAndTheCellsOffTheKeysDoNothing() {
    BancoHK banco(3, BancoHK::caso(3, 12, 7));
    banco.tasto(5);
    banco.tasto(9);
    banco.rete.manda("FF1");
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QVERIFY(banco.suono.suonati.isEmpty());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void aKindThatTheSumHasNoUseForPlaysTheSoundOfNo() {
    BancoHK banco(19, BancoHK::caso(19, 99, 50));
    banco.tasto(BancoHK::kMigliaio);
    banco.tasto(BancoHK::kCentinaio);
    QCOMPARE(banco.suono.suonati,
             (QStringList{banco.fileDelSuono("no"), banco.fileDelSuono("no")}));
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.forma.ImgSi.isVisible());
  }

  void aHundredIsOfUseFromOneHundredOnAndAThousandFromOneThousand() {
    BancoHK cento(19, BancoHK::caso(19, 100, 50));
    cento.tasto(BancoHK::kMigliaio);
    cento.tasto(BancoHK::kCentinaio);
    QCOMPARE(cento.detto(), QStringLiteral("1 centinaio"));
    BancoHK quasi(19, BancoHK::caso(19, 999, 50));
    quasi.tasto(BancoHK::kMigliaio);
    QCOMPARE(quasi.detto(), QStringLiteral("vuoto"));
    BancoHK mille(19, BancoHK::caso(19, 1000, 50));
    mille.tasto(BancoHK::kMigliaio);
    QCOMPARE(mille.detto(), QStringLiteral("1 migliaio"));
  }

  void theNinthThousandIsTheLast() {
    BancoHK banco(19, BancoHK::caso(19, 9000, 4000));
    banco.tasto(BancoHK::kMigliaio, 10);
    QCOMPARE(banco.forma.MigliaiaInserite, qint16(9));
    QCOMPARE(banco.visti("ka"), QStringLiteral("9"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void tenBeadsStayOnTheirSpikeUntilAKeyCarriesThem() {
    BancoHK banco(3);
    const double prima = banco.adesso();
    banco.tasto(BancoHK::kUnita, 11);
    QCOMPARE(banco.adesso(), prima);
    QCOMPARE(banco.detto(), QStringLiteral("10 unità"));
    QCOMPARE(banco.visti("u"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("ua"), QString());
  }

  void aCarryOfFewerThanTenDoesNothing() {
    BancoHK banco(3);
    banco.tasto(BancoHK::kUnita, 9);
    const double prima = banco.adesso();
    for (const int tasto : {BancoHK::kCambioUDa, BancoHK::kCambioDaH, BancoHK::kCambioHK}) {
      banco.tasto(tasto);
      QVERIFY(!banco.forma.CambioInCorso);
    }
    QCOMPARE(banco.adesso(), prima);
    QCOMPARE(banco.detto(), QStringLiteral("9 unità"));
  }

  void theKeysOfTheCarriesCarryTenOfTheirKind_data() {
    QTest::addColumn<int>("metti");
    QTest::addColumn<int>("cambia");
    QTest::addColumn<QString>("detto");
    QTest::addColumn<QString>("attesa");
    QTest::newRow("units") << int(BancoHK::kUnita) << int(BancoHK::kCambioUDa) << "1 decina"
                           << "daa";
    QTest::newRow("tens") << int(BancoHK::kDecina) << int(BancoHK::kCambioDaH) << "1 centinaio"
                          << "ha";
    QTest::newRow("hundreds") << int(BancoHK::kCentinaio) << int(BancoHK::kCambioHK) << "1 migliaio"
                              << "ka";
  }
  void theKeysOfTheCarriesCarryTenOfTheirKind() {
    QFETCH(int, metti);
    QFETCH(int, cambia);
    QFETCH(QString, detto);
    QFETCH(QString, attesa);
    BancoHK banco(19, BancoHK::caso(19, 1234, 1000));
    banco.tasto(metti, 10);
    bool inCorso = false;
    banco.tempo.after(nelPasso(150), [&] { inCorso = banco.forma.CambioInCorso; });
    const double prima = banco.adesso();
    banco.tasto(cambia);
    QVERIFY(std::abs(banco.adesso() - prima - prova::kDurataDelCambio) < 1e-3);
    QVERIFY(inCorso);
    QVERIFY(!banco.forma.CambioInCorso);
    QCOMPARE(banco.detto(), detto);
    // Of the next kind the highest waiting bead goes.
    QVERIFY(!banco.vede(qPrintable(attesa), 9));
    QVERIFY(banco.vede(qPrintable(attesa), 8));
  }

  void everyKeyIsDroppedWhileACarryGoesOn() {
    BancoHK banco(19, BancoHK::caso(19, 1234, 1000));
    banco.tasto(BancoHK::kCentinaio, 10);
    banco.tasto(BancoHK::kUnita, 10);
    for (const int passo : {50, 150}) {
      banco.tempo.after(nelPasso(passo), [&] {
        for (int tasto = 1; tasto <= 12; ++tasto) banco.tasto(tasto);
      });
    }
    banco.tasto(BancoHK::kCambioUDa);
    QCOMPARE(banco.detto(), QStringLiteral("10 centinaia, 1 decina"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.suono.suonati.isEmpty());
    banco.tasto(BancoHK::kDecina);
    QCOMPARE(banco.detto(), QStringLiteral("10 centinaia, 2 decine"));
  }

  void aCarryOntoAFullSpikeSilencesTheKeysAndTheMouseAloneGoesOn() {
    BancoHK banco(11, BancoHK::caso(11, 110, 60));
    banco.tasto(BancoHK::kUnita, 10);
    banco.tasto(BancoHK::kDecina, 10);
    const double prima = banco.adesso();
    banco.tasto(BancoHK::kCambioUDa);
    QCOMPARE(banco.adesso(), prima);
    QVERIFY(banco.forma.CambioInCorso);
    QCOMPARE(banco.detto(), QStringLiteral("10 decine, 10 unità"));
    for (int tasto = 1; tasto <= 12; ++tasto) banco.tasto(tasto);
    QCOMPARE(banco.detto(), QStringLiteral("10 decine, 10 unità"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    banco.clicca(banco.forma.PulsanteConferma);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    banco.tasto(BancoHK::kAvanti);
    QVERIFY(banco.forma.CambioInCorso);
    banco.clicca(banco.forma.PulsanteAvanti);
    QVERIFY(!banco.forma.CambioInCorso);
    banco.tasto(BancoHK::kUnita);
    QCOMPARE(banco.detto(), QStringLiteral("1 unità"));
  }

  void tenTensAndNoHundredAreRightForASumOfTheSameValue() {
    BancoHK banco(11, BancoHK::caso(11, 107, 100));
    const FormAbacoHK& forma = banco.forma;
    banco.tasto(BancoHK::kDecina, 10);
    banco.tasto(BancoHK::kUnita, 7);
    banco.tasto(BancoHK::kConferma);
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
    for (int tasto = 1; tasto <= 4; ++tasto, valore /= 10) {
      banco.tasto(tasto, totale / valore % 10);
    }
    banco.tasto(BancoHK::kConferma);
    QCOMPARE(banco.cifre(), cifre);
    banco.tasto(BancoHK::kAvanti);
    QCOMPARE(banco.cifre(), QStringLiteral("...."));
  }

  void aWrongAbacusIsCountedAndCanBePutRight() {
    BancoHK banco(3, BancoHK::caso(3, 12, 7));
    const FormAbacoHK& forma = banco.forma;
    banco.tasto(BancoHK::kUnita);
    banco.tasto(BancoHK::kConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{banco.fileDelSuono("no")});
    QCOMPARE(banco.cifre(), QStringLiteral("...."));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteConferma.isEnabled());
    QCOMPARE(banco.visti("u"), QStringLiteral("0"));
    banco.tasto(BancoHK::kUnita);
    banco.tasto(BancoHK::kDecina);
    banco.tasto(BancoHK::kConferma);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void confirmationAndTheWayOnActOnlyWhileTheirButtonsAreEnabled() {
    BancoHK banco(3, BancoHK::caso(3, 12, 7));
    banco.tasto(BancoHK::kAvanti);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 7 +  5 = "));
    banco.tasto(BancoHK::kDecina);
    banco.tasto(BancoHK::kUnita, 2);
    banco.tasto(BancoHK::kConferma);
    banco.tasto(BancoHK::kConferma);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    banco.sorte.scrivi(BancoHK::caso(3, 82, 47));
    banco.tasto(BancoHK::kAvanti);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QVERIFY(banco.forma.PulsanteConferma.isEnabled());
    QVERIFY(!banco.forma.PulsanteAvanti.isEnabled());
  }

  void theBinClearsTheAbacusAloneByKeyAndByMouse() {
    BancoHK banco(3, BancoHK::caso(3, 12, 7));
    banco.tasto(BancoHK::kConferma);
    for (const bool conIlMouse : {false, true}) {
      banco.tasto(BancoHK::kUnita, 3);
      if (conIlMouse) {
        banco.clicca(banco.forma.PulsanteCestino);
      } else {
        banco.tasto(BancoHK::kCestino);
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
    banco.tasto(BancoHK::kUnita, 10);
    banco.tasto(BancoHK::kConferma);
    banco.sorte.scrivi(BancoHK::caso(3, 82, 47));
    banco.tempo.after(nelPasso(50), [&] {
      banco.clicca(banco.forma.PulsanteAvanti);
      QVERIFY(!banco.forma.CambioInCorso);
      banco.tasto(BancoHK::kDecina, 2);
      QCOMPARE(banco.detto(), QStringLiteral("2 decine"));
    });
    banco.tasto(BancoHK::kCambioUDa);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.detto(), QStringLiteral("3 decine"));
    QVERIFY(!banco.forma.CambioInCorso);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aSpikeThatFillsInTheMiddleOfACarryLeavesItNoWaitingBead() {
    BancoHK banco(3, BancoHK::caso(3, 10, 7));
    banco.tasto(BancoHK::kUnita, 10);
    banco.tasto(BancoHK::kConferma);
    banco.tempo.after(nelPasso(50), [&] {
      banco.clicca(banco.forma.PulsanteAvanti);
      banco.tasto(BancoHK::kDecina, 10);
    });
    banco.tasto(BancoHK::kCambioUDa);
    QCOMPARE(banco.detto(), QStringLiteral("11 decine"));
    QCOMPARE(banco.visti("da"), QString::fromLatin1(kTutti));
    banco.tasto(BancoHK::kCestino);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
  }

  void theMouseStaysFreeInTheMiddleOfACarry() {
    BancoHK banco(3, BancoHK::caso(3, 10, 7));
    banco.tasto(BancoHK::kUnita, 10);
    banco.tempo.after(nelPasso(50), [&] { banco.clicca(banco.forma.PulsanteConferma); });
    banco.tasto(BancoHK::kCambioUDa);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
  }

  void leavingInTheMiddleOfACarryEndsItThere() {
    BancoHK banco(3);
    banco.tasto(BancoHK::kUnita, 10);
    banco.tempo.after(nelPasso(120), [&] { banco.batti(Qt::Key_E, Qt::AltModifier); });
    const double prima = banco.adesso();
    banco.tasto(BancoHK::kCambioUDa);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
    QVERIFY(banco.adesso() - prima < nelPasso(121));
  }

  void closingTheWindowInTheMiddleOfACarryEndsTheProgram() {
    BancoHK banco(3);
    banco.tasto(BancoHK::kUnita, 10);
    banco.tempo.after(nelPasso(50), [&] { banco.ambiente->fondo.window().close(); });
    banco.tasto(BancoHK::kCambioUDa);
    QCOMPARE(banco.ambiente->fondo.forms().current(), nullptr);
  }

  void theWayOutGivesTheTouchesBackAndLeadsToTheMainMenu() {
    BancoHK banco(3);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
    QCOMPARE(banco.rete.ricevuti.last(), QByteArray("02#REQ-DEFAULT"));
    QVERIFY(!banco.rete.collegata());
  }

  void theFirstItemOfTheMenuAsksForTheSheet() {
    BancoHK banco(3);
    QCOMPARE(banco.forma.page()->menuBar()->actions().first()->objectName(),
             QStringLiteral("mnuStampaHP"));
    banco.messaggi.rispondi(platform::BoxAnswer::No);
    banco.forma.mnuStampaHP.click();
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(1));
    QCOMPARE(banco.messaggi.mostrati.front().text,
             QStringLiteral("Vuoi stampare il foglio per la tastiera HelpiKeys?"));
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormAbacoHK"));
  }

  void aSecondActivationStartsACaseAndARecordAnewAndTheNextOkTakesTheKeysAway() {
    BancoHK banco(3, BancoHK::caso(3, 10, 7));
    banco.tasto(BancoHK::kDecina);
    banco.tasto(BancoHK::kConferma);
    banco.sorte.scrivi(BancoHK::caso(3, 82, 47));
    banco.mostra(somme::forme::kFormAbacoHK);
    QCOMPARE(banco.rete.ricevuti.count("02#REQ-TOUCH"), 2);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.forma.TestoStampa.text(), QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n"));
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    banco.tasto(BancoHK::kUnita);
    QCOMPARE(banco.detto(), QStringLiteral("1 unità"));
    banco.rete.manda("OK");
    banco.tasto(BancoHK::kUnita);
    QCOMPARE(banco.detto(), QStringLiteral("1 unità"));
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  void aClickOnABeadMovesNothing() {
    BancoHK banco(3);
    banco.tasto(BancoHK::kUnita, 2);
    banco.tocca("ua", 5);
    banco.tocca("u", 0);
    QCOMPARE(banco.visti("u"), QStringLiteral("0 1"));
    QVERIFY(banco.vede("ua", 5));
    QCOMPARE(banco.detto(), QStringLiteral("2 unità"));
  }

  void thePointerIsLeftAloneUnlessTheSystemsIsWanted() {
    BancoHK banco(3);
    QCOMPARE(banco.forma.PulsanteCestino.mousePointer(), 99);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    banco.ambiente->stato.CursoreDiSistema = true;
    auto& forma = banco.apri<FormAbacoHK>(somme::forme::kFormAbacoHK);
    QCOMPARE(forma.PulsanteCestino.mousePointer(), 0);
  }
};

QTEST_MAIN(FormAbacoHKTest)
#include "form_abaco_hk_test.moc"
