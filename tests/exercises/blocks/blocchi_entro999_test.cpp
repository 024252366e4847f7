#include "blocchi_entro999.h"

#include <QApplication>
#include <cmath>

#include "support/iscrizione.h"

namespace blocchi_entro999_test {

using namespace prova;
using namespace prova::entro999;
using somme::FormaBlocchiTastiera;

// Flats, longs and units up to 999, as a pupil uses them: the boards, from the first block to the
// result.
class BlocchiEntro999Test : public QObject {
  Q_OBJECT

  static bool siVede(const FormaBlocchiTastiera& forma, const QString& clip) {
    return Banco::siVede(forma.ShockwaveFlash3, clip);
  }
  // Blocks of a kind on the joined board after its first ten have gone.
  static int avanzati(const FormaBlocchiTastiera& forma, const QString& clip) {
    for (int i = 1; i <= 10; ++i) {
      if (siVede(forma, clip + QString::number(i))) return -1;
    }
    return blocchi(forma.ShockwaveFlash3, clip, 11);
  }

 private Q_SLOTS:
  void aCaseBeginsWithTwoEmptyBoards() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 213, 45);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 213 +  45 = "));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("0h 0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0h 0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("0h 0da 0u"));
    QCOMPARE(forma.pulsanti.PicturePulsanti.left(), forma.Label1.left());
    QVERIFY(incorniciata(forma, forma.Label1));
    QVERIFY(!forma.PulsanteCambioUDa->isVisible());
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    QCOMPARE(forma.TestoInput.maxLength(), 3);
  }

  void noBlockIsEverPaintedBeforeThePupilPutsIt_data() {
    QTest::addColumn<QString>("clip");
    for (const char* clip : {"h1", "da1", "u1"}) QTest::newRow(clip) << QString::fromLatin1(clip);
  }
  void noBlockIsEverPaintedBeforeThePupilPutsIt() {
    QFETCH(QString, clip);
    OcchioSuiBlocchi occhio(clip);
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 213, 45);
    forma.page()->grab();
    forma.ShockwaveFlash3.widget()->grab();
    banco.riattiva();
    forma.page()->grab();
    forma.ShockwaveFlash3.widget()->grab();
    QVERIFY(occhio.dipinti > 0);
    QCOMPARE(occhio.visti, 0);
  }

  void everyKindStopsAtNine() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 213, 45);
    ripeti(banco, *forma.pulsanti.PulsanteH, 11);
    ripeti(banco, forma.pulsanti.PulsanteDa, 11);
    ripeti(banco, forma.pulsanti.PulsanteU, 11);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("9h 9da 9u"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void theBasketEmptiesAllKindsOfTheBoardInUse() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 213, 45);
    costruisci(banco, forma, 213);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    costruisci(banco, forma, 999);
    banco.clicca(forma.pulsanti.PulsanteCestino);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("2h 1da 3u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0h 0da 0u"));
    costruisci(banco, forma, 45);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QVERIFY(forma.TestoInput.hasFocus());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void theFlatsCountInTheValueOfABoard() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 213, 45);
    costruisci(banco, forma, 113);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    banco.clicca(*forma.pulsanti.PulsanteH);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QVERIFY(incorniciata(forma, forma.Label2));
    QCOMPARE(forma.pulsanti.PicturePulsanti.left(), forma.Label2.left());
  }

  void aSumWithoutCarriesGoesStraightToTheResult() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 213, 45);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("2h 5da 8u"));
    QVERIFY(!forma.PulsanteCambioUDa->isVisible());
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    QVERIFY(forma.TestoInput.hasFocus());
    rispondi(banco, forma, QStringLiteral("258"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral(" 213 +  45 =  258\r\n")));
  }

  void bothCarriesComeOneAfterTheOtherAndThenTheResult() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 167, 258);  // 15 units, 11 tens
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("3h 11da 15u"));
    QVERIFY(forma.PulsanteCambioUDa->isVisible());
    QVERIFY(!forma.PulsanteCambioUDa->hasFocus());
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    const double prima = adesso(banco);
    banco.clicca(*forma.PulsanteCambioUDa);
    QVERIFY(std::abs(adesso(banco) - prima - 4) < 0.05);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 12);
    QCOMPARE(avanzati(forma, QStringLiteral("u")), 5);
    QVERIFY(!forma.PulsanteCambioUDa->isVisible());
    QVERIFY(forma.PulsanteCambioDaH->isVisible());
    QVERIFY(!forma.PulsanteCambioDaH->hasFocus());
    QVERIFY(!forma.TestoInput.isVisible());
    // The movie stands where it said its word: the form leaves its frame alone.
    QVERIFY(Banco::filmato(forma.ShockwaveFlash3).currentFrame() > 1);
    banco.clicca(*forma.PulsanteCambioDaH);
    QVERIFY(std::abs(adesso(banco) - prima - 8) < 0.05);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(avanzati(forma, QStringLiteral("da")), 2);
    QCOMPARE(avanzati(forma, QStringLiteral("u")), 5);
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    QVERIFY(forma.TestoInput.hasFocus());
    rispondi(banco, forma, QStringLiteral("425"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void tenTensAloneAskForTheSecondCarryOnly() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 162, 253);
    unisci(banco, forma);
    QVERIFY(!forma.PulsanteCambioUDa->isVisible());
    QVERIFY(forma.PulsanteCambioDaH->isVisible());
    bool guardato = false;
    banco.tempo.after(3.9, [&] {
      guardato = true;
      QVERIFY(siVede(forma, QStringLiteral("h4")));
      QVERIFY(!forma.TestoInput.isVisible());
    });
    banco.clicca(*forma.PulsanteCambioDaH);
    QVERIFY(guardato);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(avanzati(forma, QStringLiteral("da")), 1);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u")), 5);
    QVERIFY(forma.TestoInput.hasFocus());
  }

  void twelveUnitsAndNineTensAskForOneCarryOnly() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 147, 255);  // 12 units, 9 tens
    unisci(banco, forma);
    QVERIFY(forma.PulsanteCambioUDa->isVisible());
    banco.clicca(*forma.PulsanteCambioUDa);
    // Ten longs stand there, and no second carry is asked for.
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 10);
    QCOMPARE(avanzati(forma, QStringLiteral("u")), 2);
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    QVERIFY(forma.TestoInput.hasFocus());
    rispondi(banco, forma, QStringLiteral("402"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theFullestSumsFindTheirBlocksOnTheJoinedBoard_data() {
    QTest::addColumn<int>("addendo1");
    QTest::addColumn<int>("addendo2");
    QTest::newRow("988 with all carries") << 499 << 489;
    QTest::newRow("nine hundreds") << 400 << 588;
    QTest::newRow("eighteen tens and units") << 399 << 499;
    QTest::newRow("one and the rest") << 1 << 987;
  }
  void theFullestSumsFindTheirBlocksOnTheJoinedBoard() {
    QFETCH(int, addendo1);
    QFETCH(int, addendo2);
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, addendo1, addendo2);
    unisci(banco, forma);
    const auto cifra = [&](int posto) { return addendo1 / posto % 10 + addendo2 / posto % 10; };
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie),
             QStringLiteral("%1h %2da %3u").arg(cifra(100)).arg(cifra(10)).arg(cifra(1)));
    if (forma.PulsanteCambioUDa->isVisible()) banco.clicca(*forma.PulsanteCambioUDa);
    if (forma.PulsanteCambioDaH->isVisible()) banco.clicca(*forma.PulsanteCambioDaH);
    const int centinaia = cifra(100) + (cifra(10) >= 10 ? 1 : 0);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), centinaia);
    rispondi(banco, forma, QString::number(addendo1 + addendo2));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theOtherButtonsWorkAlsoWhereOneKindIsAdded_data() {
    QTest::addColumn<int>("tipo");
    QTest::addColumn<int>("aggiunta");
    QTest::addColumn<QString>("unite");
    QTest::newRow("units") << 7 << 4 << QStringLiteral("1h 2da 7u");
    QTest::newRow("tens") << 8 << 40 << QStringLiteral("1h 6da 3u");
    QTest::newRow("hundreds") << 9 << 400 << QStringLiteral("5h 2da 3u");
  }
  void theOtherButtonsWorkAlsoWhereOneKindIsAdded() {
    QFETCH(int, tipo);
    QFETCH(int, aggiunta);
    QFETCH(QString, unite);
    Banco banco;
    banco.ambiente->stato.TipoEsercizio = qint16(tipo);
    banco.sorte.scrivi({{122, 988}, {4, 10}});
    auto& forma = banco.apri<FormaBlocchiTastiera>(somme::forme::kFormHLU);
    costruisci(banco, forma, 123);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    costruisci(banco, forma, 111);
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("1h 1da 1u"));
    banco.clicca(forma.pulsanti.PulsanteCestino);
    costruisci(banco, forma, aggiunta);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), unite);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void whatStandsOnTheJoinedBoardIsToldThroughBothCarries() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 167, 258);
    const auto parole = [&] { return forma.ShockwaveFlash3.widget()->accessibleDescription(); };
    unisci(banco, forma);
    QCOMPARE(parole(), QStringLiteral("3 centinaia, 11 decine, 15 unità"));
    banco.clicca(*forma.PulsanteCambioUDa);
    QCOMPARE(parole(), QStringLiteral("3 centinaia, 12 decine, 5 unità"));
    banco.clicca(*forma.PulsanteCambioDaH);
    QCOMPARE(parole(), QStringLiteral("4 centinaia, 2 decine, 5 unità"));
  }

  void withoutItsMoviesTheExerciseGoesOn() {
    Banco banco;
    togliFilmati(banco);
    FormaBlocchiTastiera& forma = apri(banco, 167, 258);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambioUDa);
    banco.clicca(*forma.PulsanteCambioDaH);
    rispondi(banco, forma, QStringLiteral("425"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }
};

const prova::Iscrizione<BlocchiEntro999Test, QApplication> kIscritta;

}  // namespace blocchi_entro999_test

#include "blocchi_entro999_test.moc"
