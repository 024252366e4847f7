#include "games/blocchi_uniti.h"

#include <QTest>

#include "support/iscrizione.h"

namespace somme {

// How a comparison that fails shows what stands on a board.
static char* toString(const Quantita& q) {
  return QTest::toString(QStringLiteral("%1 %2 %3").arg(q.centinaia).arg(q.decine).arg(q.unita));
}

}  // namespace somme

namespace blocchi_uniti_test {

using namespace somme;

class BlocchiUnitiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theBoardShowsWhatBothAddendsHave() {
    BlocchiUniti uniti(kRegoleBlocchiEntro999);
    uniti.Unisci({.centinaia = 4, .decine = 11, .unita = 15});
    QCOMPARE(uniti.Quanti(), (Quantita{.centinaia = 4, .decine = 11, .unita = 15}));
    QCOMPARE(uniti.FinoA(Posto::Decine), 11);
    QCOMPARE(uniti.Tolti(Posto::Decine), 0);
  }

  void aKindThatTheExerciseDoesNotHaveIsNotShown() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    uniti.Unisci({.centinaia = 4, .decine = 1, .unita = 5});
    QCOMPARE(uniti.Quanti(), (Quantita{.decine = 1, .unita = 5}));
  }

  void aCarryTakesTheFirstTenAndBringsOneOfTheNextKind() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    uniti.Unisci({.decine = 3, .unita = 12});
    uniti.AvviaCambio();
    QVERIFY(uniti.Cambia(Posto::Unita, 4));
    QCOMPARE(uniti.Quanti(), (Quantita{.decine = 4, .unita = 2}));
    QCOMPARE(uniti.FinoA(Posto::Unita), 12);
    QCOMPARE(uniti.Tolti(Posto::Unita), 10);
    QCOMPARE(uniti.FinoA(Posto::Decine), 4);
    QCOMPARE(uniti.Tolti(Posto::Decine), 0);
  }

  void aNewCaseTakesOffWhatBothBoardsAndACarryCanBringButNoFlats() {
    QCOMPARE(kRegoleBlocchiEntro99.sgombero, (Quantita{.decine = 9, .unita = 19}));
    QCOMPARE(kRegoleBlocchiEntro999.sgombero, (Quantita{.decine = 19, .unita = 19}));
  }

  void aWordThatComesTwiceCarriesOnce() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    uniti.Unisci({.decine = 3, .unita = 12});
    uniti.AvviaCambio();
    QVERIFY(uniti.Cambia(Posto::Unita, 4));
    QVERIFY(uniti.Cambia(Posto::Unita, 4));
    QCOMPARE(uniti.Quanti(), (Quantita{.decine = 4, .unita = 2}));
  }

  void aWordWithoutACarryNeverLeavesLessThanNothing() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    uniti.Unisci({.decine = 3, .unita = 2});
    QVERIFY(uniti.Cambia(Posto::Unita, 2));
    QCOMPARE(uniti.Quanti(), (Quantita{.decine = 3, .unita = 0}));
  }

  void aNewCaseTakesTheBlocksOff() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    uniti.Unisci({.decine = 3, .unita = 12});
    uniti.AvviaCambio();
    uniti.Cambia(Posto::Unita, 4);
    uniti.Sgombra();
    QCOMPARE(uniti.Quanti(), Quantita{});
    QCOMPARE(uniti.FinoA(Posto::Unita), 0);
    QCOMPARE(uniti.Tolti(Posto::Unita), 0);
    uniti.Unisci({.decine = 2, .unita = 5});
    QCOMPARE(uniti.Quanti(), (Quantita{.decine = 2, .unita = 5}));
  }

  void flatsStayFromCaseToCaseUntilTheMovieIsLoadedAnew() {
    BlocchiUniti uniti(kRegoleBlocchiEntro999);
    uniti.Unisci({.centinaia = 4, .decine = 7, .unita = 8});
    uniti.Sgombra();
    QCOMPARE(uniti.Quanti(), (Quantita{.centinaia = 4}));
    uniti.Unisci({.centinaia = 2, .decine = 1, .unita = 3});
    QCOMPARE(uniti.Quanti(), (Quantita{.centinaia = 4, .decine = 1, .unita = 3}));
    uniti.Sgombra();
    uniti.Unisci({.centinaia = 6});
    QCOMPARE(uniti.Quanti(), (Quantita{.centinaia = 6}));
    uniti.Ricomincia();
    QCOMPARE(uniti.Quanti(), Quantita{});
  }

  void theMovieLoadedAnewForgetsWhatACarryHasTaken() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    uniti.Unisci({.decine = 3, .unita = 12});
    uniti.AvviaCambio();
    uniti.Cambia(Posto::Unita, 4);
    uniti.Ricomincia();
    QCOMPARE(uniti.Tolti(Posto::Unita), 0);
    QVERIFY(!uniti.CambioInterrotto());
  }

  void theWordOfACarryThatAnEarlierCaseWasLeftInIsNotListenedTo() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    uniti.Unisci({.decine = 3, .unita = 12});
    uniti.AvviaCambio();
    uniti.Sgombra();
    QVERIFY(!uniti.Cambia(Posto::Unita, 1));
    QCOMPARE(uniti.Quanti(), Quantita{});
    // Until this case carries, too, or the movie is loaded anew.
    uniti.Unisci({.decine = 1, .unita = 11});
    uniti.AvviaCambio();
    QVERIFY(uniti.Cambia(Posto::Unita, 2));
    uniti.Sgombra();
    QVERIFY(!uniti.Cambia(Posto::Unita, 1));
    uniti.Ricomincia();
    QVERIFY(uniti.Cambia(Posto::Unita, 1));
  }

  void aStretchIsOverOnceItsWordWasSaidAndItsTimeHasPassed() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    QVERIFY(!uniti.CambioInterrotto());
    uniti.FinisciAttesa();  // of no stretch
    QVERIFY(!uniti.CambioInterrotto());
    uniti.AvviaCambio();
    QVERIFY(uniti.CambioInterrotto());
    uniti.Cambia(Posto::Unita, 1);
    QVERIFY(uniti.CambioInterrotto());
    uniti.FinisciAttesa();
    QVERIFY(!uniti.CambioInterrotto());
  }

  void aStretchThatIsLongerThanItsTimeIsBrokenOffByTheNextCase() {
    BlocchiUniti uniti(kRegoleBlocchiEntro99);
    uniti.AvviaCambio();
    uniti.FinisciAttesa();
    QVERIFY(uniti.CambioInterrotto());
    uniti.Sgombra();
    uniti.Cambia(Posto::Unita, 1);
    QVERIFY(uniti.CambioInterrotto());
    uniti.AvviaCambio();
    uniti.Cambia(Posto::Unita, 1);
    uniti.FinisciAttesa();
    uniti.Sgombra();
    QVERIFY(!uniti.CambioInterrotto());
  }
};

const prova::Iscrizione<BlocchiUnitiTest> kIscritta;

}  // namespace blocchi_uniti_test

#include "blocchi_uniti_test.moc"
