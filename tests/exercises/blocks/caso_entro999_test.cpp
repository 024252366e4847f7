#include "blocchi_entro999.h"

#include <QApplication>

#include "support/iscrizione.h"

namespace caso_entro999_test {

using namespace prova;
using namespace prova::entro999;
using somme::FormaBlocchiTastiera;

// The cases of flats, longs and units: what each level draws, what the joined board keeps from case
// to case, and what becomes of a carry when the form is left or comes back.
class CasoEntro999Test : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void flatsOfAnEarlierCaseStayOnTheJoinedBoard() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 213, 211);  // 4 hundreds
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("424"));
    banco.sorte.scrivi(caso(101, 112));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("4h 1da 3u"));
    QVERIFY(Banco::siVede(forma.ShockwaveFlash3, QStringLiteral("h3")));
    QVERIFY(Banco::siVede(forma.ShockwaveFlash3, QStringLiteral("h4")));
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
    FormaBlocchiTastiera& forma = apri(banco, 162, 253);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambioDaH);
    rispondi(banco, forma, QStringLiteral("415"));
    banco.sorte.scrivi(caso(101, 12));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("4h 1da 3u"));
  }

  void flatsThatStayAreToldUntilTheMovieIsLoadedAgain() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 213, 45);
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
    FormaBlocchiTastiera& forma = apri(banco, 167, 258);
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
    banco.clicca(*forma.PulsanteCambioUDa);
    banco.clicca(*forma.PulsanteCambioDaH);
    rispondi(banco, forma, QStringLiteral("425"));
    banco.sorte.scrivi(caso(167, 258));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    QVERIFY(posti() == prima);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, QStringLiteral("da u")), QStringLiteral("11da 15u"));
  }

  void eachLevelDrawsItsKindOfCaseAndNamesItInTheRecord_data() {
    colonneDeiLivelli();
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
    provaLivello<FormaBlocchiTastiera>(somme::forme::kFormHLU, "Piatti, lunghi, unità: entro 999");
  }

  void aLevelThatTheTableDoesNotHaveKeepsCaseAndRecord() {
    Banco banco;
    const FormaBlocchiTastiera& forma = apri(banco, 213, 45);
    provaLivelloIgnoto(banco, forma, 10);
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
    FormaBlocchiTastiera& forma = apri(banco, 167, 258);
    unisci(banco, forma);
    if (secondo) banco.clicca(*forma.PulsanteCambioUDa);
    banco.tempo.after(dopo, [&] {
      if (esce) {
        forma.mnuEsci.click();
      } else {
        banco.sorte.scrivi(caso(213, 45));
        banco.riattiva();
      }
    });
    banco.clicca(secondo ? *forma.PulsanteCambioDaH : *forma.PulsanteCambioUDa);
    banco.tempo.advance(10);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QVERIFY(!banco.fine.stato);
    if (esce) {
      QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuPLU"));
      QVERIFY(!banco.tempo.anyTicker());
      return;
    }
    QVERIFY(!forma.PulsanteCambioUDa->isVisible());
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("0h 0da 0u"));
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("2h 5da 8u"));
  }
};

const prova::Iscrizione<CasoEntro999Test, QApplication> kIscritta;

}  // namespace caso_entro999_test

#include "caso_entro999_test.moc"
