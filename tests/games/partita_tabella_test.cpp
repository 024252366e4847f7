#include "games/partita_tabella.h"

#include <QTest>

#include "caso_di_prova.h"
#include "support/iscrizione.h"

namespace partita_tabella_test {

using namespace somme;
using Cella = PartitaTabella::Cella;
using Difficolta = PartitaTabella::Difficolta;

namespace {

// A game with its result.
struct Gioco {
  // The case `a` + 1.
  void nuovo(int a) {
    ScriptedChance sorte({{a, 98}});
    QCOMPARE(partita.NuovoCaso(0, sorte), (CasoTabella{a, 1, false, a + 1}));
    QVERIFY(sorte.isUsedUp());
  }
  [[nodiscard]] int daScegliere() const {
    int quante = 0;
    for (int i = 0; i < PartitaTabella::kCelle; ++i) quante += partita.SiPuoScegliere(i) ? 1 : 0;
    return quante;
  }

  qint32 risultato = 0;
  PartitaTabella partita{risultato};
};

}  // namespace

class PartitaTabellaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theCellToFindIsWrittenIntoTheStateThatTheGameWasGiven() {
    Gioco gioco;
    gioco.nuovo(56);
    QCOMPARE(gioco.risultato, 57);
    QCOMPARE(gioco.daScegliere(), 100);
    QCOMPARE(gioco.partita.Stato(57), Cella::Aperta);
  }

  void aWrongCellIsSpentAndTheCaseStays() {
    Gioco gioco;
    gioco.nuovo(56);
    QCOMPARE(gioco.partita.Scegli(58), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Stato(58), Cella::Sbagliata);
    QVERIFY(!gioco.partita.SiPuoScegliere(58));
    QCOMPARE(gioco.partita.Scegli(58), Esito::Ignorato);
    QCOMPARE(gioco.partita.Scegli(0), Esito::Sbagliato);
    QCOMPARE(gioco.daScegliere(), 98);
    QCOMPARE(gioco.risultato, 57);
    QCOMPARE(gioco.partita.Scegli(57), Esito::Risolto);
    QCOMPARE(gioco.partita.Stato(57), Cella::Giusta);
    QCOMPARE(gioco.partita.Stato(58), Cella::Sbagliata);
    QCOMPARE(gioco.partita.Stato(59), Cella::Aperta);
  }

  void aSolvedCaseHasNoCellLeft() {
    Gioco gioco;
    gioco.nuovo(56);
    gioco.partita.Scegli(57);
    QCOMPARE(gioco.daScegliere(), 0);
    QCOMPARE(gioco.partita.Scegli(57), Esito::Ignorato);
    QCOMPARE(gioco.partita.Scegli(58), Esito::Ignorato);
    QCOMPARE(gioco.partita.Stato(58), Cella::Aperta);
  }

  void aNewCaseOpensEveryCell() {
    Gioco gioco;
    gioco.nuovo(56);
    gioco.partita.Scegli(58);
    gioco.partita.Scegli(57);
    gioco.nuovo(10);
    QCOMPARE(gioco.daScegliere(), 100);
    QCOMPARE(gioco.partita.Stato(58), Cella::Aperta);
  }

  void aKindThatDoesNotExistAsksForTheSameCellAgain() {
    for (const int tipo : {-1, 13}) {
      Gioco gioco;
      gioco.nuovo(56);
      gioco.partita.Scegli(57);
      ScriptedChance sorte = prova::nessunaSorte();
      QVERIFY(!gioco.partita.NuovoCaso(tipo, sorte));
      QCOMPARE(gioco.risultato, 57);
      QCOMPARE(gioco.partita.Scegli(57), Esito::Risolto);
    }
  }

  void aCaseThatIsAskedForByItselfLeavesTheCells() {
    Gioco gioco;
    gioco.nuovo(56);
    gioco.partita.Scegli(58);
    ScriptedChance sorte({{10, 98}});
    QCOMPARE(gioco.partita.Chiedi(0, sorte), (CasoTabella{10, 1, false, 11}));
    QCOMPARE(gioco.partita.Stato(58), Cella::Sbagliata);
    QCOMPARE(gioco.partita.Scegli(57), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Scegli(11), Esito::Risolto);
  }

  void aCellThatDoesNotExistIsNeverFound() {
    Gioco gioco;
    ScriptedChance sorte({{0, 98}});
    gioco.partita.NuovoCaso(2, sorte);
    QCOMPARE(gioco.risultato, -2);
    for (int i = 0; i < PartitaTabella::kCelle; ++i) {
      QCOMPARE(gioco.partita.Scegli(i), Esito::Sbagliato);
    }
    QCOMPARE(gioco.daScegliere(), 0);
  }

  void theFirstCaseCanBeSkippedAndTheOthersOnceTheyAreSolved() {
    Gioco gioco;
    QVERIFY(gioco.partita.SiVaAvanti());
    gioco.nuovo(56);
    QVERIFY(gioco.partita.SiVaAvanti());
    gioco.partita.Avanti();
    gioco.nuovo(10);
    QVERIFY(!gioco.partita.SiVaAvanti());
    gioco.partita.Scegli(12);
    QVERIFY(!gioco.partita.SiVaAvanti());
    gioco.partita.Scegli(11);
    QVERIFY(gioco.partita.SiVaAvanti());
    // A case that comes while the way is open, as the print panel's closing brings it.
    gioco.nuovo(20);
    QVERIFY(gioco.partita.SiVaAvanti());
  }

  void theMediumTableNumbersItsFirstRowAndItsFirstColumn() {
    const Gioco gioco;
    QCOMPARE(gioco.partita.difficolta(), Difficolta::Media);
    for (int i = 0; i < PartitaTabella::kCelle; ++i) {
      QCOMPARE(gioco.partita.HaNumero(i), i < 10 || i % 10 == 0);
    }
  }

  void theEasyTableNumbersEveryCellAndTheHardOneNone() {
    Gioco gioco;
    gioco.nuovo(56);
    gioco.partita.Scegli(58);
    for (const Difficolta difficolta : {Difficolta::Facile, Difficolta::Difficile}) {
      gioco.partita.Cambia(difficolta);
      QCOMPARE(gioco.partita.difficolta(), difficolta);
      for (int i = 0; i < PartitaTabella::kCelle; ++i) {
        QCOMPARE(gioco.partita.HaNumero(i), difficolta == Difficolta::Facile);
      }
    }
    QCOMPARE(gioco.partita.Stato(58), Cella::Sbagliata);
    QCOMPARE(gioco.risultato, 57);
  }
};

const prova::Iscrizione<PartitaTabellaTest> kIscritta;

}  // namespace partita_tabella_test

#include "partita_tabella_test.moc"
