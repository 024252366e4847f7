#include <QAction>
#include <QApplication>

#include "abaco_toccato.h"
#include "platform/forms/menu_bar.h"
#include "support/iscrizione.h"

namespace forma_abaco_hk_test {

using namespace prova;
using somme::FormaAbacoHK;
using somme::Tasto;

// The abacus by touch: its keys, the carries, and what becomes of them when the form is left.
class FormaAbacoHKTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itAsksForTheTouchesAndOpensWithAQuestionAndAnEmptyAbacus() {
    BancoHK banco(3, BancoHK::caso(3, 82, 47));
    const FormaAbacoHK& forma = banco.forma;
    QCOMPARE(banco.rete.ricevuti, QByteArrayList{"02#REQ-TOUCH"});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n"));
    QCOMPARE(banco.cifre(), QStringLiteral("...."));
    QVERIFY(forma.PulsanteAvanti.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteConferma.isEnabled());
    QVERIFY(!forma.partita().CambioInCorso());
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QCOMPARE(forma.ShockwaveFlash1.width(), forma.Label1.width());
    QCOMPARE(forma.ShockwaveFlash1.top(), forma.Label1.top());
    QVERIFY(forma.withoutRow().empty());
  }

  void theFirstFourKeysPutBeadsOfTheirKindByNumber() {
    BancoHK banco(19, BancoHK::caso(19, 1234, 1000));
    banco.tasto(Tasto::Migliaia);
    banco.tasto(Tasto::Centinaia, 2);
    banco.tasto(Tasto::Decine, 3);
    banco.tasto(Tasto::Unita, 4);
    QCOMPARE(banco.detto(), QStringLiteral("1 migliaio, 2 centinaia, 3 decine, 4 unità"));
    QCOMPARE(banco.visti("u"), QStringLiteral("0 1 2 3"));
    QCOMPARE(banco.visti("ua"), QStringLiteral("4 5 6 7 8 9"));
    QCOMPARE(banco.visti("ka"), QStringLiteral("1 2 3 4 5 6 7 8 9"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void theKeysBetweenAndTheCellsOffTheKeysDoNothing() {
    BancoHK banco(3, BancoHK::caso(3, 12, 7));
    banco.posto(5);
    banco.posto(9);
    banco.rete.manda("FF1");
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QVERIFY(banco.suono.suonati.isEmpty());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void aKindThatTheSumHasNoUseForPlaysTheSoundOfNo() {
    BancoHK banco(19, BancoHK::caso(19, 99, 50));
    banco.tasto(Tasto::Migliaia);
    banco.tasto(Tasto::Centinaia);
    QCOMPARE(banco.suono.suonati,
             (QStringList{banco.fileDelSuono("no"), banco.fileDelSuono("no")}));
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.forma.ImgSi.isVisible());
  }

  void aHundredIsOfUseFromOneHundredOnAndAThousandFromOneThousand() {
    BancoHK cento(19, BancoHK::caso(19, 100, 50));
    cento.tasto(Tasto::Migliaia);
    cento.tasto(Tasto::Centinaia);
    QCOMPARE(cento.detto(), QStringLiteral("1 centinaio"));
    BancoHK quasi(19, BancoHK::caso(19, 999, 50));
    quasi.tasto(Tasto::Migliaia);
    QCOMPARE(quasi.detto(), QStringLiteral("vuoto"));
    BancoHK mille(19, BancoHK::caso(19, 1000, 50));
    mille.tasto(Tasto::Migliaia);
    QCOMPARE(mille.detto(), QStringLiteral("1 migliaio"));
  }

  void theNinthThousandIsTheLast() {
    BancoHK banco(19, BancoHK::caso(19, 9000, 4000));
    banco.tasto(Tasto::Migliaia, 10);
    QCOMPARE(banco.forma.partita().Inserite().migliaia, 9);
    QCOMPARE(banco.visti("ka"), QStringLiteral("9"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void tenBeadsStayOnTheirSpikeUntilAKeyCarriesThem() {
    BancoHK banco(3);
    const double prima = banco.adesso();
    banco.tasto(Tasto::Unita, 11);
    QCOMPARE(banco.adesso(), prima);
    QCOMPARE(banco.detto(), QStringLiteral("10 unità"));
    QCOMPARE(banco.visti("u"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("ua"), QString());
  }

  void aCarryOfFewerThanTenDoesNothing() {
    BancoHK banco(3);
    banco.tasto(Tasto::Unita, 9);
    const double prima = banco.adesso();
    for (const Tasto tasto : {Tasto::CambioUDa, Tasto::CambioDaH, Tasto::CambioHK}) {
      banco.tasto(tasto);
      QVERIFY(!banco.forma.partita().CambioInCorso());
    }
    QCOMPARE(banco.adesso(), prima);
    QCOMPARE(banco.detto(), QStringLiteral("9 unità"));
  }

  void theKeysOfTheCarriesCarryTenOfTheirKind_data() {
    QTest::addColumn<Tasto>("metti");
    QTest::addColumn<Tasto>("cambia");
    QTest::addColumn<QString>("detto");
    QTest::addColumn<QString>("attesa");
    QTest::newRow("units") << Tasto::Unita << Tasto::CambioUDa << "1 decina"
                           << "daa";
    QTest::newRow("tens") << Tasto::Decine << Tasto::CambioDaH << "1 centinaio"
                          << "ha";
    QTest::newRow("hundreds") << Tasto::Centinaia << Tasto::CambioHK << "1 migliaio"
                              << "ka";
  }
  void theKeysOfTheCarriesCarryTenOfTheirKind() {
    QFETCH(Tasto, metti);
    QFETCH(Tasto, cambia);
    QFETCH(QString, detto);
    QFETCH(QString, attesa);
    BancoHK banco(19, BancoHK::caso(19, 1234, 1000));
    banco.tasto(metti, 10);
    bool inCorso = false;
    banco.tempo.after(nelPasso(150), [&] { inCorso = banco.forma.partita().CambioInCorso(); });
    const double prima = banco.adesso();
    banco.tasto(cambia);
    QVERIFY(std::abs(banco.adesso() - prima - kDurataDelCambio) < 1e-3);
    QVERIFY(inCorso);
    QVERIFY(!banco.forma.partita().CambioInCorso());
    QCOMPARE(banco.detto(), detto);
    // Of the next kind the highest waiting bead goes.
    QVERIFY(!banco.vede(qPrintable(attesa), 9));
    QVERIFY(banco.vede(qPrintable(attesa), 8));
  }

  void everyKeyIsDroppedWhileACarryGoesOn() {
    BancoHK banco(19, BancoHK::caso(19, 1234, 1000));
    banco.tasto(Tasto::Centinaia, 10);
    banco.tasto(Tasto::Unita, 10);
    for (const int passo : {50, 150}) {
      banco.tempo.after(nelPasso(passo), [&] {
        for (int posto = 1; posto <= 12; ++posto) banco.posto(posto);
      });
    }
    banco.tasto(Tasto::CambioUDa);
    QCOMPARE(banco.detto(), QStringLiteral("10 centinaia, 1 decina"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.suono.suonati.isEmpty());
    banco.tasto(Tasto::Decine);
    QCOMPARE(banco.detto(), QStringLiteral("10 centinaia, 2 decine"));
  }

  void aCarryOntoAFullSpikeSilencesTheKeysAndTheMouseAloneGoesOn() {
    BancoHK banco(11, BancoHK::caso(11, 110, 60));
    banco.tasto(Tasto::Unita, 10);
    banco.tasto(Tasto::Decine, 10);
    const double prima = banco.adesso();
    banco.tasto(Tasto::CambioUDa);
    QCOMPARE(banco.adesso(), prima);
    QVERIFY(banco.forma.partita().CambioInCorso());
    QCOMPARE(banco.detto(), QStringLiteral("10 decine, 10 unità"));
    for (int posto = 1; posto <= 12; ++posto) banco.posto(posto);
    QCOMPARE(banco.detto(), QStringLiteral("10 decine, 10 unità"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    banco.clicca(banco.forma.PulsanteConferma);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    banco.tasto(Tasto::Avanti);
    QVERIFY(banco.forma.partita().CambioInCorso());
    banco.clicca(banco.forma.PulsanteAvanti);
    QVERIFY(!banco.forma.partita().CambioInCorso());
    banco.tasto(Tasto::Unita);
    QCOMPARE(banco.detto(), QStringLiteral("1 unità"));
  }

  void leavingInTheMiddleOfACarryEndsItThere() {
    BancoHK banco(3);
    banco.tasto(Tasto::Unita, 10);
    banco.tempo.after(nelPasso(120), [&] { banco.batti(Qt::Key_E, Qt::AltModifier); });
    const double prima = banco.adesso();
    banco.tasto(Tasto::CambioUDa);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
    QVERIFY(banco.adesso() - prima < nelPasso(121));
  }

  void closingTheWindowInTheMiddleOfACarryEndsTheProgram() {
    BancoHK banco(3);
    banco.tasto(Tasto::Unita, 10);
    banco.tempo.after(nelPasso(50), [&] { banco.ambiente->fondo.window().close(); });
    banco.tasto(Tasto::CambioUDa);
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

  void aClickOnABeadMovesNothing() {
    BancoHK banco(3);
    banco.tasto(Tasto::Unita, 2);
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
    auto& forma = banco.apri<FormaAbacoHK>(somme::forme::kFormAbacoHK);
    QCOMPARE(forma.PulsanteCestino.mousePointer(), 0);
  }
};

const prova::Iscrizione<FormaAbacoHKTest, QApplication> kIscritta;

}  // namespace forma_abaco_hk_test

#include "forma_abaco_hk_test.moc"
