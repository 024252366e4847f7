#include "games/partita_numeri.h"

#include <QTest>

#include "caso_di_prova.h"
#include "support/iscrizione.h"

namespace partita_numeri_test {

using namespace somme;
using Fase = PartitaNumeri::Fase;
using Zero = PartitaNumeri::Zero;

namespace {

// The levels that take any sum up to 10.
constexpr int kSomme = 1;
constexpr int kTrovaUnAddendo = 2;

// A game with its case.
struct Gioco {
  explicit Gioco(const RegoleNumeri& regole, Zero zero = Zero::SiGiudica)
      : partita(caso, regole, zero),
        livello(regole.cercato == &Caso::Totale ? kSomme : kTrovaUnAddendo) {}

  void nuovo(int addendo1, int addendo2) {
    ScriptedChance sorte(prova::sommaDivisa(addendo1, addendo2, 10));
    QCOMPARE(partita.NuovoCaso(livello, sorte), qint16(2));
    QVERIFY(sorte.isUsedUp());
  }

  Caso caso;
  PartitaNumeri partita;
  int livello;
};

}  // namespace

class PartitaNumeriTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCaseIsWrittenIntoTheStateThatTheGameWasGiven() {
    Gioco gioco(kRegoleTotale);
    QCOMPARE(gioco.partita.fase(), Fase::NessunCaso);
    gioco.nuovo(3, 4);
    QCOMPARE(gioco.caso, prova::caso(3, 4));
    QCOMPARE(gioco.partita.fase(), Fase::Domanda);
  }

  void theSumIsToBeFoundOrTheSecondAddend() {
    Gioco totale(kRegoleTotale);
    totale.nuovo(3, 4);
    QCOMPARE(totale.partita.Cercato(), qint16(7));
    Gioco addendo(kRegoleAddendo);
    addendo.nuovo(3, 5);
    QCOMPARE(addendo.partita.Cercato(), qint16(5));
    QCOMPARE(addendo.partita.Rispondi(3), Esito::Sbagliato);
    QCOMPARE(addendo.partita.Rispondi(8), Esito::Sbagliato);
    QCOMPARE(addendo.partita.Rispondi(5), Esito::Risolto);
  }

  void twoWrongAnswersAndARightOneSolveTheCase() {
    Gioco gioco(kRegoleTotale);
    gioco.nuovo(3, 4);
    QCOMPARE(gioco.partita.Rispondi(6), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(8), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::Domanda);
    QCOMPARE(gioco.caso, prova::caso(3, 4));
    QCOMPARE(gioco.partita.Rispondi(7), Esito::Risolto);
    QCOMPARE(gioco.partita.fase(), Fase::Risolto);
  }

  void aLevelSaysHowManyDigitsTheAnswerMayHave() {
    Gioco gioco(kRegoleTotale);
    ScriptedChance centinaia({{6, 988}, {3, 7}});
    QCOMPARE(gioco.partita.NuovoCaso(15, centinaia), qint16(3));
    ScriptedChance migliaia({{6, 9888}, {3, 7}});
    QCOMPARE(gioco.partita.NuovoCaso(23, migliaia), qint16(5));
    QCOMPARE(gioco.caso, prova::caso(3, 4));
  }

  void anExerciseWithoutALevelAsksForTheSameCaseAgain() {
    for (const int tipo : {-1, 0, 28}) {
      Gioco gioco(kRegoleTotale);
      gioco.nuovo(3, 4);
      gioco.partita.Rispondi(7);
      ScriptedChance sorte = prova::nessunaSorte();
      QVERIFY(!gioco.partita.NuovoCaso(tipo, sorte));
      QCOMPARE(gioco.caso, prova::caso(3, 4));
      QCOMPARE(gioco.partita.fase(), Fase::Domanda);
    }
  }

  void thereAreFourLevelsForAnAddend() {
    Gioco gioco(kRegoleAddendo);
    ScriptedChance sorte({{13, 20}});
    QVERIFY(gioco.partita.NuovoCaso(4, sorte));
    QCOMPARE(gioco.caso, prova::caso(13, 7));
    ScriptedChance nessuna = prova::nessunaSorte();
    QVERIFY(!gioco.partita.NuovoCaso(5, nessuna));
  }

  void theWayOnIsOpenWhileNothingIsAsked() {
    Gioco gioco(kRegoleTotale);
    QVERIFY(gioco.partita.SiVaAvanti());
    QVERIFY(!gioco.partita.SiRisponde());
    gioco.nuovo(3, 4);
    QVERIFY(!gioco.partita.SiVaAvanti());
    QVERIFY(gioco.partita.SiRisponde());
    gioco.partita.Rispondi(6);
    QVERIFY(!gioco.partita.SiVaAvanti());
    gioco.partita.Rispondi(7);
    QVERIFY(gioco.partita.SiVaAvanti());
    QVERIFY(!gioco.partita.SiRisponde());
    gioco.nuovo(1, 1);
    QVERIFY(gioco.partita.SiRisponde());
  }

  void aSolvedCaseThatIsAnsweredAgainIsJudgedAndStaysSolved() {
    Gioco gioco(kRegoleTotale);
    gioco.nuovo(3, 4);
    gioco.partita.Rispondi(7);
    QCOMPARE(gioco.partita.Rispondi(6), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::Risolto);
    QCOMPARE(gioco.partita.Rispondi(7), Esito::Risolto);
  }

  void aZeroIsAnAnswerWhereItIsTypedOrScanned() {
    Gioco gioco(kRegoleTotale);
    ScriptedChance zero({{0, 11}, {0, 11}});
    gioco.partita.NuovoCaso(2, zero);
    QCOMPARE(gioco.partita.Rispondi(0), Esito::Risolto);
    gioco.nuovo(3, 4);
    QCOMPARE(gioco.partita.Rispondi(0), Esito::Sbagliato);
  }

  void aZeroIsNotJudgedByTouchAlsoWhereItIsRight() {
    Gioco gioco(kRegoleTotale, Zero::NonSiGiudica);
    ScriptedChance zero({{0, 11}, {0, 11}});
    gioco.partita.NuovoCaso(2, zero);
    QCOMPARE(gioco.partita.Rispondi(0), Esito::Ignorato);
    QCOMPARE(gioco.partita.fase(), Fase::Domanda);
    gioco.nuovo(3, 4);
    QCOMPARE(gioco.partita.Rispondi(0), Esito::Ignorato);
    QCOMPARE(gioco.partita.Rispondi(1), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(7), Esito::Risolto);
  }

  void aNumberThatIsNoWholeOneOrTooLargeIsWrong() {
    Gioco gioco(kRegoleTotale);
    gioco.nuovo(3, 4);
    QCOMPARE(gioco.partita.Rispondi(7.0001), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(65536 + 7), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(1e30), Esito::Sbagliato);
  }
};

const prova::Iscrizione<PartitaNumeriTest> kIscritta;

}  // namespace partita_numeri_test

#include "partita_numeri_test.moc"
