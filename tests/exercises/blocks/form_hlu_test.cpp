#include "exercises/blocks/form_hlu.h"

#include <cmath>

#include "blocchi_di_prova.h"

using namespace prova;
using somme::FormHLU;

Q_DECLARE_METATYPE(std::vector<prova::SorteDiProva::Estrazione>)

namespace {

constexpr qint16 kConESenzaCambi = 6;
const QString kSpecie = QStringLiteral("h da u");

}  // namespace

// Flats, longs and units up to 999, as a pupil uses them.
class FormHLUTest : public QObject {
  Q_OBJECT

  static std::vector<SorteDiProva::Estrazione> caso(int addendo1, int addendo2) {
    const int totale = addendo1 + addendo2;
    return {{totale - 1, 988}, {addendo1, totale}};
  }
  static FormHLU& apri(Banco& banco, int addendo1, int addendo2) {
    banco.ambiente->stato.TipoEsercizio = kConESenzaCambi;
    banco.sorte.scrivi(caso(addendo1, addendo2));
    return banco.apri<FormHLU>(somme::forme::kFormHLU);
  }
  static double adesso(const Banco& banco) { return banco.tempo.secondsSinceMidnight(); }
  static bool siVede(const FormHLU& forma, const QString& clip) {
    return Banco::siVede(forma.ShockwaveFlash3, clip);
  }
  // Blocks of a kind on the joined board after its first ten have gone.
  static int avanzati(const FormHLU& forma, const QString& clip) {
    for (int i = 1; i <= 10; ++i) {
      if (siVede(forma, clip + QString::number(i))) return -1;
    }
    return blocchi(forma.ShockwaveFlash3, clip, 11);
  }

 private Q_SLOTS:
  void aCaseBeginsWithTwoEmptyBoards() {
    Banco banco;
    FormHLU& forma = apri(banco, 213, 45);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 213 +  45 = "));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("0h 0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0h 0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("0h 0da 0u"));
    QCOMPARE(forma.PicturePulsanti.left(), forma.Label1.left());
    QVERIFY(incorniciata(forma, forma.Label1));
    QVERIFY(!forma.PulsanteCambioUDa.isVisible());
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
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
    FormHLU& forma = apri(banco, 213, 45);
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
    FormHLU& forma = apri(banco, 213, 45);
    ripeti(banco, forma.PulsanteH, 11);
    ripeti(banco, forma.PulsanteDa, 11);
    ripeti(banco, forma.PulsanteU, 11);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("9h 9da 9u"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void theBasketEmptiesAllKindsOfTheBoardInUse() {
    Banco banco;
    FormHLU& forma = apri(banco, 213, 45);
    costruisci(banco, forma, 213);
    banco.clicca(forma.PulsanteConferma);
    costruisci(banco, forma, 999);
    banco.clicca(forma.PulsanteCestino);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("2h 1da 3u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0h 0da 0u"));
    costruisci(banco, forma, 45);
    banco.clicca(forma.PulsanteConferma);
    QVERIFY(forma.TestoInput.hasFocus());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void theFlatsCountInTheValueOfABoard() {
    Banco banco;
    FormHLU& forma = apri(banco, 213, 45);
    costruisci(banco, forma, 113);
    banco.clicca(forma.PulsanteConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    banco.clicca(forma.PulsanteH);
    banco.clicca(forma.PulsanteConferma);
    QVERIFY(incorniciata(forma, forma.Label2));
    QCOMPARE(forma.PicturePulsanti.left(), forma.Label2.left());
  }

  void aSumWithoutCarriesGoesStraightToTheResult() {
    Banco banco;
    FormHLU& forma = apri(banco, 213, 45);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("2h 5da 8u"));
    QVERIFY(!forma.PulsanteCambioUDa.isVisible());
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
    QVERIFY(forma.TestoInput.hasFocus());
    rispondi(banco, forma, QStringLiteral("258"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral(" 213 +  45 =  258\r\n")));
  }

  void bothCarriesComeOneAfterTheOtherAndThenTheResult() {
    Banco banco;
    FormHLU& forma = apri(banco, 167, 258);  // 15 units, 11 tens
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("3h 11da 15u"));
    QVERIFY(forma.PulsanteCambioUDa.isVisible());
    QVERIFY(!forma.PulsanteCambioUDa.hasFocus());
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    const double prima = adesso(banco);
    banco.clicca(forma.PulsanteCambioUDa);
    QVERIFY(std::abs(adesso(banco) - prima - 4) < 0.05);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 12);
    QCOMPARE(avanzati(forma, QStringLiteral("u")), 5);
    QVERIFY(!forma.PulsanteCambioUDa.isVisible());
    QVERIFY(forma.PulsanteCambioDaH.isVisible());
    QVERIFY(!forma.PulsanteCambioDaH.hasFocus());
    QVERIFY(!forma.TestoInput.isVisible());
    // The movie stands where it said its word: the form leaves its frame alone.
    QVERIFY(Banco::filmato(forma.ShockwaveFlash3).currentFrame() > 1);
    banco.clicca(forma.PulsanteCambioDaH);
    QVERIFY(std::abs(adesso(banco) - prima - 8) < 0.05);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(avanzati(forma, QStringLiteral("da")), 2);
    QCOMPARE(avanzati(forma, QStringLiteral("u")), 5);
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
    QVERIFY(forma.TestoInput.hasFocus());
    rispondi(banco, forma, QStringLiteral("425"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void tenTensAloneAskForTheSecondCarryOnly() {
    Banco banco;
    FormHLU& forma = apri(banco, 162, 253);
    unisci(banco, forma);
    QVERIFY(!forma.PulsanteCambioUDa.isVisible());
    QVERIFY(forma.PulsanteCambioDaH.isVisible());
    bool guardato = false;
    banco.tempo.after(3.9, [&] {
      guardato = true;
      QVERIFY(siVede(forma, QStringLiteral("h4")));
      QVERIFY(!forma.TestoInput.isVisible());
    });
    banco.clicca(forma.PulsanteCambioDaH);
    QVERIFY(guardato);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(avanzati(forma, QStringLiteral("da")), 1);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u")), 5);
    QVERIFY(forma.TestoInput.hasFocus());
  }

  void twelveUnitsAndNineTensAskForOneCarryOnly() {
    Banco banco;
    FormHLU& forma = apri(banco, 147, 255);  // 12 units, 9 tens
    unisci(banco, forma);
    QVERIFY(forma.PulsanteCambioUDa.isVisible());
    banco.clicca(forma.PulsanteCambioUDa);
    // Ten longs stand there, and no second carry is asked for.
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 10);
    QCOMPARE(avanzati(forma, QStringLiteral("u")), 2);
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
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
    FormHLU& forma = apri(banco, addendo1, addendo2);
    unisci(banco, forma);
    const auto cifra = [&](int posto) { return addendo1 / posto % 10 + addendo2 / posto % 10; };
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie),
             QStringLiteral("%1h %2da %3u").arg(cifra(100)).arg(cifra(10)).arg(cifra(1)));
    if (forma.PulsanteCambioUDa.isVisible()) banco.clicca(forma.PulsanteCambioUDa);
    if (forma.PulsanteCambioDaH.isVisible()) banco.clicca(forma.PulsanteCambioDaH);
    const int centinaia = cifra(100) + (cifra(10) >= 10 ? 1 : 0);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), centinaia);
    rispondi(banco, forma, QString::number(addendo1 + addendo2));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void flatsOfAnEarlierCaseStayOnTheJoinedBoard() {
    Banco banco;
    FormHLU& forma = apri(banco, 213, 211);  // 4 hundreds
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("424"));
    banco.sorte.scrivi(caso(101, 112));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("4h 1da 3u"));
    QVERIFY(siVede(forma, QStringLiteral("h3")));
    QVERIFY(siVede(forma, QStringLiteral("h4")));
    QCOMPARE(forma.ShockwaveFlash3.widget()->accessibleDescription(),
             QStringLiteral("4 centinaia, 1 decina, 3 unità"));
    // Until the movie is loaded again.
    banco.sorte.scrivi(caso(101, 112));
    banco.riattiva();
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("2h 1da 3u"));
  }

  void theFlatOfACarryStaysToo() {
    Banco banco;
    FormHLU& forma = apri(banco, 162, 253);
    unisci(banco, forma);
    banco.clicca(forma.PulsanteCambioDaH);
    rispondi(banco, forma, QStringLiteral("415"));
    banco.sorte.scrivi(caso(101, 12));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("4h 1da 3u"));
  }

  void flatsThatStayAreToldUntilTheMovieIsLoadedAgain() {
    Banco banco;
    FormHLU& forma = apri(banco, 213, 45);
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("258"));
    const auto parole = [&] { return forma.ShockwaveFlash3.widget()->accessibleDescription(); };
    banco.sorte.scrivi(caso(213, 45));
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(parole(), QStringLiteral("2 centinaia"));
    banco.sorte.scrivi(caso(213, 45));
    banco.riattiva();
    QCOMPARE(parole(), QStringLiteral("vuoto"));
  }

  void whatHasBeenChangedStandsInItsPlaceAgainInTheNextCase() {
    Banco banco;
    FormHLU& forma = apri(banco, 167, 258);
    unisci(banco, forma);
    const auto posti = [&] {
      std::vector<QRectF> tutti;
      for (const char* clip : {"da", "u"}) {
        for (int i = 1; i <= 19; ++i) {
          tutti.push_back(Banco::filmato(forma.ShockwaveFlash3)
                              .clipPlace(QStringLiteral("%1%2").arg(QLatin1String(clip)).arg(i)));
        }
      }
      return tutti;
    };
    const std::vector<QRectF> prima = posti();
    banco.clicca(forma.PulsanteCambioUDa);
    banco.clicca(forma.PulsanteCambioDaH);
    rispondi(banco, forma, QStringLiteral("425"));
    banco.sorte.scrivi(caso(167, 258));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    QVERIFY(posti() == prima);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, QStringLiteral("da u")), QStringLiteral("11da 15u"));
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
    auto& forma = banco.apri<FormHLU>(somme::forme::kFormHLU);
    costruisci(banco, forma, 123);
    banco.clicca(forma.PulsanteConferma);
    costruisci(banco, forma, 111);
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("1h 1da 1u"));
    banco.clicca(forma.PulsanteCestino);
    costruisci(banco, forma, aggiunta);
    banco.clicca(forma.PulsanteConferma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), unite);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void eachLevelDrawsItsKindOfCaseAndNamesItInTheRecord_data() {
    QTest::addColumn<std::vector<SorteDiProva::Estrazione>>("sorte");
    QTest::addColumn<QString>("operazione");
    QTest::addColumn<QString>("nome");
    using Sorte = std::vector<SorteDiProva::Estrazione>;
    const auto livello = [](const char* tipo, const Sorte& sorte, const char* operazione,
                            const char* nome) {
      QTest::newRow(tipo) << sorte << QString::fromUtf8(operazione) << QString::fromUtf8(nome);
    };
    livello("1", {{2, 9}, {5, 10}, {8, 10}, {2, 3}, {1, 5}, {3, 8}},
            " 213 +  145 = ", "senza cambio");
    livello("2", {{4, 10}, {5, 9}, {2, 9}, {1, 4}, {2, 5}, {5, 12}},
            " 125 +  337 = ", "cambio alle unità");
    livello("3", {{4, 9}, {1, 9}, {5, 10}, {1, 4}, {6, 11}, {2, 5}},
            " 162 +  353 = ", "cambio alle decine");
    livello("4", {{1, 2}, {4, 9}, {1, 9}, {5, 10}, {1, 4}, {6, 11}, {2, 5}},
            " 162 +  353 = ", "con un cambio");
    livello("5", {{4, 9}, {1, 9}, {2, 9}, {1, 4}, {6, 11}, {5, 12}},
            " 165 +  357 = ", "con due cambi");
    livello("6", caso(213, 45), " 213 +  45 = ", "con e senza cambi");
    livello("7", {{122, 988}, {4, 10}}, " 123 +  4 = ", "aggiungi solo unità");
    livello("8", {{122, 988}, {4, 10}}, " 123 +  40 = ", "aggiungi solo decine");
    livello("9", {{122, 988}, {4, 10}}, " 123 +  400 = ", "aggiungi solo centinaia");
  }
  void eachLevelDrawsItsKindOfCaseAndNamesItInTheRecord() {
    QFETCH(std::vector<SorteDiProva::Estrazione>, sorte);
    QFETCH(QString, operazione);
    QFETCH(QString, nome);
    Banco banco;
    banco.ambiente->stato.TipoEsercizio = qint16(QByteArray(QTest::currentDataTag()).toInt());
    banco.sorte.scrivi(sorte);
    banco.sorte.finisci();
    auto& forma = banco.apri<FormHLU>(somme::forme::kFormHLU);
    QCOMPARE(banco.sorte.rimaste(), std::size_t(0));
    QCOMPARE(forma.EtOperazione.caption(), operazione);
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\n     Piatti, lunghi, unità: entro 999 - %1\r\n\r\n").arg(nome));
  }

  void aLevelThatTheTableDoesNotHaveKeepsCaseAndRecord() {
    Banco banco;
    FormHLU& forma = apri(banco, 213, 45);
    const QString elenco = forma.TestoStampa.text();
    banco.ambiente->stato.TipoEsercizio = 10;
    banco.riattiva();
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 213 +  45 = "));
    QCOMPARE(forma.TestoStampa.text(), elenco);
  }

  void comingBackOrLeavingInTheMiddleOfACarryEndsIt_data() {
    QTest::addColumn<bool>("secondo");
    QTest::addColumn<double>("dopo");
    QTest::addColumn<bool>("esce");
    for (const bool secondo : {false, true}) {
      for (const double dopo : {0.1, 1.5, 3.9}) {
        for (const bool esce : {false, true}) {
          QTest::addRow("carry %d after %g s, %s", secondo ? 2 : 1, dopo, esce ? "leaving" : "back")
              << secondo << dopo << esce;
        }
      }
    }
  }
  void comingBackOrLeavingInTheMiddleOfACarryEndsIt() {
    QFETCH(bool, secondo);
    QFETCH(double, dopo);
    QFETCH(bool, esce);
    Banco banco;
    FormHLU& forma = apri(banco, 167, 258);
    unisci(banco, forma);
    if (secondo) banco.clicca(forma.PulsanteCambioUDa);
    banco.tempo.after(dopo, [&] {
      if (esce) {
        forma.mnuEsci.click();
      } else {
        banco.sorte.scrivi(caso(213, 45));
        banco.riattiva();
      }
    });
    banco.clicca(secondo ? forma.PulsanteCambioDaH : forma.PulsanteCambioUDa);
    banco.tempo.advance(10);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QVERIFY(!banco.fine.stato);
    if (esce) {
      QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuPLU"));
      QVERIFY(!banco.tempo.anyTicker());
      return;
    }
    QVERIFY(!forma.PulsanteCambioUDa.isVisible());
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("0h 0da 0u"));
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("2h 5da 8u"));
  }

  void whatStandsOnTheJoinedBoardIsToldThroughBothCarries() {
    Banco banco;
    FormHLU& forma = apri(banco, 167, 258);
    const auto parole = [&] { return forma.ShockwaveFlash3.widget()->accessibleDescription(); };
    unisci(banco, forma);
    QCOMPARE(parole(), QStringLiteral("3 centinaia, 11 decine, 15 unità"));
    banco.clicca(forma.PulsanteCambioUDa);
    QCOMPARE(parole(), QStringLiteral("3 centinaia, 12 decine, 5 unità"));
    banco.clicca(forma.PulsanteCambioDaH);
    QCOMPARE(parole(), QStringLiteral("4 centinaia, 2 decine, 5 unità"));
  }

  void withoutItsMoviesTheExerciseGoesOn() {
    Banco banco;
    QDir(banco.percorso(QStringLiteral("swf"))).removeRecursively();
    for (int i = 0; i < 3; ++i) {
      QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be shown")));
    }
    FormHLU& forma = apri(banco, 167, 258);
    unisci(banco, forma);
    banco.clicca(forma.PulsanteCambioUDa);
    banco.clicca(forma.PulsanteCambioDaH);
    rispondi(banco, forma, QStringLiteral("425"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }
};

QTEST_MAIN(FormHLUTest)
#include "form_hlu_test.moc"
