#include "games/partita_barre.h"

#include <QTest>

#include "caso_di_prova.h"
#include "support/iscrizione.h"

namespace partita_barre_test {

using namespace somme;
using Fase = PartitaBarre::Fase;

namespace {

constexpr int kLimite = PartitaBarre::kFinoA10;

// A game with its case.
struct Gioco {
  explicit Gioco(PartitaBarre::Vuoto vuoto = PartitaBarre::Vuoto::NonRisponde)
      : partita(caso, vuoto) {}

  // A case of which the total is asked for.
  void chiediTotale(int addendo1, int addendo2) {
    ScriptedChance sorte(prova::sommaDivisa(addendo1, addendo2, kLimite));
    QVERIFY(partita.NuovoCaso(kTrovaRossa, kLimite, sorte));
    QVERIFY(sorte.isUsedUp());
  }
  // A case of a kind that draws before it does what it asks for.
  void chiedi(int tipo, std::vector<Draw> prima, int addendo1, int addendo2) {
    const auto poi = prova::sommaDivisa(addendo1, addendo2, kLimite);
    prima.insert(prima.end(), poi.begin(), poi.end());
    ScriptedChance sorte(prima);
    QVERIFY(partita.NuovoCaso(tipo, kLimite, sorte));
    QVERIFY(sorte.isUsedUp());
    QCOMPARE(caso, prova::caso(addendo1, addendo2));
  }

  Caso caso;
  PartitaBarre partita;
};

}  // namespace

class PartitaBarreTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theRedBarIsTheTotal() {
    Gioco gioco;
    gioco.chiediTotale(3, 4);
    QCOMPARE(gioco.caso, prova::caso(3, 4));
    QCOMPARE(gioco.partita.Chiesto(), Termine::Totale);
    QCOMPARE(gioco.partita.Atteso(), qint16(7));
    QCOMPARE(gioco.partita.fase(), Fase::Domanda);
  }

  void ofTheAddendsTheSecondOrTheFirstIsDrawnBeforeTheCase() {
    Gioco gioco;
    gioco.chiedi(kTrovaGiallaVerde, {{0, 2}}, 3, 5);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Secondo);
    QCOMPARE(gioco.partita.Atteso(), qint16(5));
    gioco.chiedi(kTrovaGiallaVerde, {{1, 2}}, 3, 5);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Primo);
    QCOMPARE(gioco.partita.Atteso(), qint16(3));
  }

  void ofAllBarsTheTotalIsAskedForInHalfOfTheCases() {
    Gioco gioco;
    gioco.chiedi(kTrovaUna, {{0, 2}}, 3, 5);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Totale);
    gioco.chiedi(kTrovaUna, {{1, 2}, {0, 2}}, 3, 5);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Secondo);
    gioco.chiedi(kTrovaUna, {{1, 2}, {1, 2}}, 3, 5);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Primo);
  }

  void chanceIsEvenBetweenTheTotalAndAnAddendAndBetweenTheAddends() {
    Gioco gioco;
    gioco.chiedi(kTrovaUna, {{49, 100}}, 3, 5);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Totale);
    gioco.chiedi(kTrovaUna, {{50, 100}, {49, 100}}, 3, 5);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Secondo);
    gioco.chiedi(kTrovaUna, {{50, 100}, {50, 100}}, 3, 5);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Primo);
  }

  void sumsGoFromOneToTheLimitAndTheSecondAddendIsNeverZero() {
    Gioco gioco;
    ScriptedChance minima({{0, 20}, {0, 1}});
    gioco.partita.NuovoCaso(kTrovaRossa, 20, minima);
    QCOMPARE(gioco.caso, prova::caso(0, 1));
    ScriptedChance massima({{19, 20}, {19, 20}});
    gioco.partita.NuovoCaso(kTrovaRossa, 20, massima);
    QCOMPARE(gioco.caso, prova::caso(19, 1));
    ScriptedChance tutta({{19, 20}, {0, 20}});
    gioco.partita.NuovoCaso(kTrovaRossa, 20, tutta);
    QCOMPARE(gioco.caso, prova::caso(0, 20));
  }

  void aKindThatDoesNotExistAsksForTheSameNumberAgain() {
    for (const int tipo : {0, 4}) {
      Gioco gioco;
      gioco.chiediTotale(3, 4);
      gioco.partita.Scegli(6);
      gioco.partita.Scegli(7);
      ScriptedChance sorte = prova::nessunaSorte();
      QVERIFY(!gioco.partita.NuovoCaso(tipo, kLimite, sorte));
      QCOMPARE(gioco.caso, prova::caso(3, 4));
      QCOMPARE(gioco.partita.Chiesto(), Termine::Totale);
      QCOMPARE(gioco.partita.fase(), Fase::Domanda);
      QVERIFY(gioco.partita.SiPuoScegliere(6));
      QCOMPARE(gioco.partita.Rispondi(7), Esito::Risolto);
    }
  }

  void beforeTheFirstCaseNothingIsAskedFor() {
    Gioco gioco;
    QVERIFY(!gioco.partita.Chiesto());
    QCOMPARE(gioco.partita.fase(), Fase::NessunCaso);
    QCOMPARE(gioco.partita.Atteso(), qint16(0));
    QVERIFY(gioco.partita.SiRisponde());
    QVERIFY(!gioco.partita.SiPuoScegliere(0));
  }

  void eachBarHasItsNumber() {
    Gioco gioco;
    gioco.chiediTotale(3, 5);
    QCOMPARE(gioco.partita.Numero(Termine::Primo), qint16(3));
    QCOMPARE(gioco.partita.Numero(Termine::Secondo), qint16(5));
    QCOMPARE(gioco.partita.Numero(Termine::Totale), qint16(8));
  }

  void aWrittenAnswerIsWrongAsOftenAsItIsGiven() {
    Gioco gioco;
    gioco.chiediTotale(3, 4);
    QCOMPARE(gioco.partita.Rispondi(6), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(6), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(std::nullopt), Esito::Ignorato);
    QCOMPARE(gioco.partita.Rispondi(7.5), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::Domanda);
    QVERIFY(gioco.partita.SiRisponde());
    QCOMPARE(gioco.partita.Rispondi(7), Esito::Risolto);
    QCOMPARE(gioco.partita.fase(), Fase::Risolto);
    QVERIFY(!gioco.partita.SiRisponde());
  }

  void anAnswerInTheLockedBoxOfASolvedCaseCountsAgain() {
    Gioco gioco;
    gioco.chiediTotale(3, 4);
    gioco.partita.Rispondi(7);
    QCOMPARE(gioco.partita.Rispondi(7), Esito::Risolto);
    QCOMPARE(gioco.partita.Rispondi(6), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::Risolto);
  }

  void anEmptyScannedBoxIsAZeroAndRightForOne() {
    Gioco gioco;
    gioco.chiedi(kTrovaGiallaVerde, {{1, 2}}, 0, 5);
    QCOMPARE(gioco.partita.Rispondi(0), Esito::Risolto);
    gioco.chiediTotale(3, 4);
    QCOMPARE(gioco.partita.Rispondi(0), Esito::Sbagliato);
  }

  void anEmptyBoxIsAZeroWhereTheGameIsToldSoAndElsewhereNoAnswer() {
    Gioco scritto;
    scritto.chiedi(kTrovaGiallaVerde, {{1, 2}}, 0, 5);
    QCOMPARE(scritto.partita.Rispondi(std::nullopt), Esito::Ignorato);
    Gioco scandito{PartitaBarre::Vuoto::Zero};
    scandito.chiedi(kTrovaGiallaVerde, {{1, 2}}, 0, 5);
    QCOMPARE(scandito.partita.Rispondi(std::nullopt), Esito::Risolto);
    scandito.chiediTotale(3, 4);
    QCOMPARE(scandito.partita.Rispondi(std::nullopt), Esito::Sbagliato);
  }

  void theWayOnIsOpenBeforeTheFirstCaseAndAfterARightAnswerUntilTheNextCase() {
    Gioco gioco;
    QVERIFY(gioco.partita.SiVaAvanti());
    gioco.chiediTotale(3, 4);
    QVERIFY(!gioco.partita.SiVaAvanti());
    gioco.partita.Rispondi(6);
    QVERIFY(!gioco.partita.SiVaAvanti());
    gioco.partita.Rispondi(7);
    QVERIFY(gioco.partita.SiVaAvanti());
    gioco.partita.Rispondi(6);
    QVERIFY(gioco.partita.SiVaAvanti());
    gioco.chiediTotale(2, 3);
    QVERIFY(!gioco.partita.SiVaAvanti());
  }

  void aWrongNumberCannotBeChosenAgainInTheSameCase() {
    Gioco gioco;
    gioco.chiediTotale(3, 4);
    QVERIFY(gioco.partita.SiPuoScegliere(6));
    QCOMPARE(gioco.partita.Scegli(6), Esito::Sbagliato);
    QVERIFY(!gioco.partita.SiPuoScegliere(6));
    QCOMPARE(gioco.partita.Scegli(6), Esito::Ignorato);
    QVERIFY(gioco.partita.SiPuoScegliere(5));
    QCOMPARE(gioco.partita.Scegli(5), Esito::Sbagliato);
    QVERIFY(!gioco.partita.SiPuoScegliere(6));
    QCOMPARE(gioco.partita.Scegli(7), Esito::Risolto);
    gioco.chiediTotale(2, 3);
    QVERIFY(gioco.partita.SiPuoScegliere(6));
  }

  void onceTheCaseIsSolvedNoNumberCanBeChosen() {
    Gioco gioco;
    gioco.chiediTotale(3, 4);
    gioco.partita.Scegli(7);
    for (int numero = 0; numero <= kLimite; ++numero) {
      QVERIFY(!gioco.partita.SiPuoScegliere(numero));
      QCOMPARE(gioco.partita.Scegli(numero), Esito::Ignorato);
    }
  }

  void theHelpMarksTheTenOfTheLargerExerciseAlone() {
    QVERIFY(PartitaBarre::HaIlSegno(20));
    QVERIFY(!PartitaBarre::HaIlSegno(10));
    QCOMPARE(PartitaBarre::kDecina, 10);
  }

  void theTotalOrAnAddendCanBeAskedForDirectly() {
    Gioco gioco;
    ScriptedChance sorte(prova::sommaDivisa(3, 4, kLimite));
    gioco.partita.ChiediTotale(kLimite, sorte);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Totale);
    ScriptedChance addendo({{1, 2}, {6, 10}, {3, 7}});
    gioco.partita.ChiediAddendo(kLimite, addendo);
    QCOMPARE(gioco.partita.Chiesto(), Termine::Primo);
    QCOMPARE(gioco.partita.Atteso(), qint16(3));
  }
};

const prova::Iscrizione<PartitaBarreTest> kIscritta;

}  // namespace partita_barre_test

#include "partita_barre_test.moc"
