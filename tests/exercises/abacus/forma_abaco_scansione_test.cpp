#include "abaco_scandito.h"

#include <QApplication>

#include "support/iscrizione.h"

namespace forma_abaco_scansione_test {

using namespace prova;
using somme::FormaAbacoScansione;

// The keyboard of place values: beads, carries, and what happens in their middle.
class FormaAbacoScansioneTest : public QObject {
  Q_OBJECT

  // The levels by the first key that their keyboard shows.
  static void livelli() {
    QTest::addColumn<int>("tipo");
    QTest::addColumn<int>("primo");
    QTest::newRow("up to 99") << 3 << int(Valori::kDecine);
    QTest::newRow("up to 999") << 11 << int(Valori::kCentinaia);
    QTest::newRow("up to 9999") << 19 << int(Valori::kMigliaia);
  }

 private Q_SLOTS:
  void itOpensWithAQuestionAnEmptyAbacusAndTheKeyboardOfPlaceValues() {
    BancoScansione banco(3, BancoScansione::caso(3, 82, 47));
    FormaAbacoScansione& forma = banco.forma;
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n"));
    QVERIFY(banco.solaSulloSchermo(banco.valori));
    QVERIFY(!banco.valori.ScansioneAutomatica.get());
    QVERIFY(!banco.cifre.AiutoVisibile.get());
    QVERIFY(!banco.cifre.AvantiAttivo.get());
    QVERIFY(forma.TestoInput.isVisible());
    QCOMPARE(forma.TestoInput.top(), forma.EtOperazione.top());
    QCOMPARE(forma.TestoInput.left(), forma.EtOperazione.left() + forma.EtOperazione.width() - 20);
    QCOMPARE(banco.visti("u") + banco.visti("da"), QString());
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QVERIFY(!forma.Label1.isVisible());
    QVERIFY(!forma.LabelDimensioneTastiera.isVisible());
    QVERIFY(forma.withoutRow().empty());
  }

  void theKeyboardsTakeTheirPlacesAtTheActivation() {
    for (const QSize lato : {QSize(400, 300), QSize(900, 500)}) {
      BancoScansione banco(19);
      banco.ridimensiona(lato);
      banco.mostra(somme::forme::kFormAbacoScansione);
      const auto& forma = banco.forma;
      QCOMPARE(qRound(banco.valori.left()), qRound(forma.LabelDimensioneTastiera.left()));
      QCOMPARE(qRound(banco.valori.top()), qRound(forma.LabelDimensioneTastiera.top()));
      QCOMPARE(qRound(banco.valori.width()), qRound(forma.LabelDimensioneTastiera.width()));
      QCOMPARE(qRound(banco.cifre.top()), qRound(banco.valori.top()));
      QCOMPARE(qRound(banco.cifre.left()), 100);
      QCOMPARE(qRound(banco.cifre.width()), qRound(forma.width() - 200));
    }
  }

  void theLevelSettlesTheKeysOfTheKeyboard_data() {
    QTest::addColumn<int>("tipo");
    for (int tipo = 1; tipo <= 23; ++tipo) QTest::addRow("level %d", tipo) << tipo;
  }
  void theLevelSettlesTheKeysOfTheKeyboard() {
    QFETCH(int, tipo);
    BancoScansione banco(qint16(tipo), BancoScansione::casoDelLivello(tipo));
    QCOMPARE(banco.valori.KVisibile.get(), tipo >= 15);
    QCOMPARE(banco.valori.HVisibile.get(), tipo >= 6);
    QCOMPARE(banco.forma.TestoInput.MaxLength.get(), qint16(tipo < 6 ? 2 : tipo < 15 ? 3 : 5));
  }

  void theKeysOfTheKeyboardAreSettledOnceAtTheActivation() {
    BancoScansione banco(3, BancoScansione::caso(3, 12, 7));
    banco.ambiente->stato.TipoEsercizio = 19;
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.rispondi("12"));
    QVERIFY(banco.scegli(Cifre::kAvanti));
    QVERIFY(!banco.valori.KVisibile.get());
    QVERIFY(!banco.valori.HVisibile.get());
    banco.mostra(somme::forme::kFormAbacoScansione);
    QVERIFY(banco.valori.KVisibile.get());
  }

  void theKeysPutBeadsAndTheWaitingOnesGoByTheirNumber() {
    BancoScansione banco(19);
    QVERIFY(banco.scegli(Valori::kMigliaia));
    QVERIFY(banco.scegli(Valori::kCentinaia, 2));
    QVERIFY(banco.scegli(Valori::kDecine, 3));
    QVERIFY(banco.scegli(Valori::kUnita, 4));
    QCOMPARE(banco.visti("k"), QStringLiteral("0"));
    QCOMPARE(banco.visti("h"), QStringLiteral("0 1"));
    QCOMPARE(banco.visti("da"), QStringLiteral("0 1 2"));
    QCOMPARE(banco.visti("u"), QStringLiteral("0 1 2 3"));
    QCOMPARE(banco.visti("ka"), QStringLiteral("1 2 3 4 5 6 7 8 9"));
    QCOMPARE(banco.visti("ha"), QStringLiteral("2 3 4 5 6 7 8 9"));
    QCOMPARE(banco.visti("daa"), QStringLiteral("3 4 5 6 7 8 9"));
    QCOMPARE(banco.visti("ua"), QStringLiteral("4 5 6 7 8 9"));
    QVERIFY(!banco.forma.partita().InAttesa(somme::Posto::Unita, 3));
    QVERIFY(banco.forma.partita().InAttesa(somme::Posto::Unita, 4));
    QCOMPARE(banco.detto(), QStringLiteral("1 migliaio, 2 centinaia, 3 decine, 4 unità"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void theNinthThousandIsTheLast() {
    BancoScansione banco(19);
    QVERIFY(banco.scegli(Valori::kMigliaia, 10));
    QCOMPARE(banco.forma.partita().Inserite().migliaia, 9);
    QCOMPARE(banco.visti("k"), QStringLiteral("0 1 2 3 4 5 6 7 8"));
    QCOMPARE(banco.visti("ka"), QStringLiteral("9"));
    QVERIFY(banco.solaSulloSchermo(banco.valori));
  }

  void theTenthUnitCarriesByItselfAndTheKeyboardIsAwayMeanwhile_data() { livelli(); }
  void theTenthUnitCarriesByItselfAndTheKeyboardIsAwayMeanwhile() {
    QFETCH(int, tipo);
    QFETCH(int, primo);
    BancoScansione banco{qint16(tipo)};
    QVERIFY(banco.scegli(Valori::kUnita, 9));
    QVERIFY(banco.valori.isVisible());
    int via = 0;
    for (const int passo : {0, 99, 100, 199}) {
      banco.tempo.after(nelPasso(passo), [&] { via += banco.valori.isVisible() ? 0 : 1; });
    }
    const double prima = banco.adesso();
    QVERIFY(banco.scegli(Valori::kUnita));
    QVERIFY(std::abs(banco.adesso() - prima - kDurataDelCambio) < 1e-3);
    QCOMPARE(via, 4);
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
    QCOMPARE(banco.visti("u"), QString());
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    QVERIFY(banco.solaSulloSchermo(banco.valori));
    QCOMPARE(int(banco.valori.pulsanteAcceso()), primo);
    QVERIFY(banco.valori.Pulsante[primo].backColor() == (platform::Rgb{255, 0, 0}));
    QVERIFY(banco.valori.Pulsante[Valori::kUnita].backColor() == (platform::Rgb{224, 224, 224}));
  }

  void theCarryTakesTheWaitingBeadThatTheCounterNames() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kDecine, 2));
    QVERIFY(banco.scegli(Valori::kUnita, 10));
    QCOMPARE(banco.visti("da"), QStringLiteral("0 1 2"));
    QCOMPARE(banco.visti("daa"), QStringLiteral("3 4 5 6 7 8 9"));
    QVERIFY(!banco.forma.partita().InAttesa(somme::Posto::Decine, 2));
    QVERIFY(banco.forma.partita().InAttesa(somme::Posto::Decine, 9));
  }

  void aCarryThatFillsTheNextSpikeLeadsToTheNextCarry() {
    BancoScansione banco(19);
    QVERIFY(banco.scegli(Valori::kCentinaia, 9));
    QVERIFY(banco.scegli(Valori::kDecine, 9));
    QVERIFY(banco.scegli(Valori::kUnita, 9));
    const double prima = banco.adesso();
    banco.tempo.after(1.5 * kDurataDelCambio, [&] { QVERIFY(!banco.valori.isVisible()); });
    QVERIFY(banco.scegli(Valori::kUnita));
    QVERIFY(std::abs(banco.adesso() - prima - 3 * kDurataDelCambio) < 1e-2);
    QCOMPARE(banco.detto(), QStringLiteral("1 migliaio"));
    QVERIFY(banco.solaSulloSchermo(banco.valori));
    QCOMPARE(banco.valori.pulsanteAcceso(), qint16(Valori::kMigliaia));
  }

  void tensAndHundredsCarryAtEveryLevel() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kDecine, 10));
    QCOMPARE(banco.detto(), QStringLiteral("1 centinaio"));
    QCOMPARE(banco.visti("h"), QStringLiteral("0"));
    BancoScansione altro(11);
    QVERIFY(altro.scegli(Valori::kCentinaia, 10));
    QCOMPARE(altro.detto(), QStringLiteral("1 migliaio"));
    QCOMPARE(altro.visti("k"), QStringLiteral("0"));
  }

  void theTenthThousandComesByACarryAndTheKeyboardComesBack() {
    BancoScansione banco(19);
    QVERIFY(banco.scegli(Valori::kMigliaia, 9));
    QVERIFY(banco.scegli(Valori::kCentinaia, 10));
    QCOMPARE(banco.forma.partita().Inserite().migliaia, 10);
    QVERIFY(banco.solaSulloSchermo(banco.valori));
    // Ten hundreds more find the thousands full.
    QVERIFY(banco.scegli(Valori::kCentinaia, 10));
    QCOMPARE(banco.detto(), QStringLiteral("10 migliaia, 10 centinaia"));
    QVERIFY(!banco.valori.isVisible());
    QVERIFY(!banco.cifre.isVisible());
  }

  void aCarryOntoAFullSpikeLeavesThePupilTheMenuAlone() {
    BancoScansione banco(19);
    QVERIFY(banco.scegli(Valori::kMigliaia, 9));
    QVERIFY(banco.scegli(Valori::kDecine, 9));
    QVERIFY(banco.scegli(Valori::kCentinaia, 10));
    // The tenth hundred finds the thousands full, and the tenth ten the hundreds.
    QVERIFY(banco.scegli(Valori::kCentinaia, 9));
    banco.forma.InserisciCentinaio();
    const double prima = banco.adesso();
    banco.forma.InserisciDecina();
    QCOMPARE(banco.adesso(), prima);
    QCOMPARE(banco.forma.partita().Inserite().decine, 10);
    QVERIFY(!banco.valori.isVisible());
    banco.tempo.advance(5);
    for (const int tasto : {Qt::Key_Space, Qt::Key_Return}) banco.batti(tasto);
    QVERIFY(!banco.valori.isVisible());
    QVERIFY(!banco.cifre.isVisible());
    QCOMPARE(banco.forma.partita().Inserite().decine, 10);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
  }

  void theKeyboardComesBackOnTheFirstKeyThatTheLevelShows_data() { livelli(); }
  void theKeyboardComesBackOnTheFirstKeyThatTheLevelShows() {
    QFETCH(int, tipo);
    QFETCH(int, primo);
    BancoScansione banco{qint16(tipo)};
    banco.batti(Qt::Key_Space);
    banco.valori.setVisible(false);
    banco.forma.RiattivaTastiera();
    QVERIFY(banco.solaSulloSchermo(banco.valori));
    QCOMPARE(int(banco.valori.PulsanteCorrente.get()), primo);
  }

  void theHiddenHundredsAloneCountOneForTheLight() {
    BancoScansione banco(19);
    banco.valori.HVisibile.set(false);
    banco.forma.RiattivaTastiera();
    QCOMPARE(banco.valori.PulsanteCorrente.get(), qint16(1));
    QCOMPARE(banco.valori.PrimoPulsante(), qint16(2));
  }

  void theBinKeyClearsTheAbacusAndNothingElse() {
    BancoScansione banco(3, BancoScansione::caso(3, 82, 47));
    QVERIFY(banco.scegli(Valori::kDecine, 3));
    QVERIFY(banco.scegli(Valori::kCestino));
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QCOMPARE(banco.visti("daa"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QVERIFY(banco.solaSulloSchermo(banco.valori));
    QCOMPARE(banco.valori.pulsanteAcceso(), qint16(Valori::kCestino));
  }

  void theKeysDoNothingWhileACarryGoesOn() {
    BancoScansione banco(3, BancoScansione::caso(3, 12, 7));
    QVERIFY(banco.scegli(Valori::kUnita, 9));
    for (const int passo : {10, 110}) {
      banco.tempo.after(nelPasso(passo), [&] {
        for (const int tasto : {Qt::Key_Space, Qt::Key_Return}) banco.batti(tasto);
      });
    }
    QVERIFY(banco.scegli(Valori::kUnita));
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
    QCOMPARE(banco.valori.pulsanteAcceso(), qint16(Valori::kDecine));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void leavingInTheMiddleOfACarryEndsItThere() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kUnita, 9));
    banco.tempo.after(nelPasso(120), [&] { banco.batti(Qt::Key_E, Qt::AltModifier); });
    const double prima = banco.adesso();
    QVERIFY(banco.scegli(Valori::kUnita));
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
    QVERIFY(banco.adesso() - prima < nelPasso(121));
  }

  void closingTheWindowInTheMiddleOfACarryEndsTheProgram() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kUnita, 9));
    banco.tempo.after(nelPasso(50), [&] { banco.ambiente->fondo.window().close(); });
    QVERIFY(banco.scegli(Valori::kUnita));
    QCOMPARE(banco.ambiente->fondo.forms().current(), nullptr);
  }

  void anActivationInTheMiddleOfACarryBeginsACaseAndTheCarryGoesOn() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kUnita, 9));
    banco.sorte.scrivi(BancoScansione::caso(3, 82, 47));
    banco.tempo.after(nelPasso(50), [&] { banco.mostra(somme::forme::kFormAbacoScansione); });
    QVERIFY(banco.scegli(Valori::kUnita));
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
    QVERIFY(banco.solaSulloSchermo(banco.valori));
  }

  void aClickOnABeadMovesNothing() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kUnita, 2));
    banco.tocca("ua", 5);
    banco.tocca("u", 0);
    QCOMPARE(banco.visti("u"), QStringLiteral("0 1"));
    QVERIFY(banco.vede("ua", 5));
    QCOMPARE(banco.forma.partita().Inserite().unita, 2);
    banco.tempo.advance(0.02);
    QVERIFY(banco.valori.PictureScansione.hasFocus());
  }
};

const prova::Iscrizione<FormaAbacoScansioneTest, QApplication> kIscritta;

}  // namespace forma_abaco_scansione_test

#include "forma_abaco_scansione_test.moc"
