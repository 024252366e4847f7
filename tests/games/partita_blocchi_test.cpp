#include "blocchi_giocati.h"
#include "platform/base/run_time_error.h"
#include "support/iscrizione.h"

namespace partita_blocchi_test {

using namespace somme;
using prova::GiocoHLU;
using prova::GiocoLU;
using Fase = PartitaBlocchi::Fase;
using Tavola = PartitaBlocchi::Tavola;
using prova::kUDa;

class PartitaBlocchiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCaseIsWrittenIntoTheStateThatTheGameWasGiven() {
    GiocoLU gioco;
    gioco.nuovo(24, 13);
    QCOMPARE(gioco.caso, prova::caso(24, 13));
    QCOMPARE(gioco.partita.fase(), Fase::PrimoAddendo);
    QCOMPARE(gioco.partita.InUso(), Tavola::Prima);
  }

  void anExerciseWithoutALevelLeavesTheCaseAndEmptiesTheBoards() {
    for (const int tipo : {0, 6}) {
      GiocoLU gioco;
      gioco.unisci(24, 13);
      ScriptedChance sorte = prova::nessunaSorte();
      gioco.partita.NuovoCaso(tipo, sorte);
      QCOMPARE(gioco.caso, prova::caso(24, 13));
      QCOMPARE(gioco.partita.fase(), Fase::PrimoAddendo);
      QCOMPARE(gioco.partita.Su(Tavola::Prima), Quantita{});
      QCOMPARE(gioco.partita.Su(Tavola::Seconda), Quantita{});
      QCOMPARE(gioco.partita.Uniti().Quanti(), Quantita{});
    }
  }

  void aWholeCaseWithoutACarry() {
    GiocoLU gioco;
    gioco.nuovo(24, 13);
    gioco.costruisci(24);
    QCOMPARE(gioco.partita.Conferma(), Esito::PassoGiusto);
    QCOMPARE(gioco.partita.fase(), Fase::SecondoAddendo);
    QCOMPARE(gioco.partita.InUso(), Tavola::Seconda);
    gioco.costruisci(13);
    QCOMPARE(gioco.partita.Conferma(), Esito::PassoGiusto);
    QCOMPARE(gioco.partita.fase(), Fase::Unione);
    QVERIFY(!gioco.partita.InUso());
    QCOMPARE(gioco.partita.Uniti().Quanti(), Quantita{});
    gioco.partita.Unisci();
    QCOMPARE(gioco.partita.Uniti().Quanti(), (Quantita{.decine = 3, .unita = 7}));
    QCOMPARE(gioco.partita.fase(), Fase::Unione);
    gioco.partita.Prosegui();
    QVERIFY(!gioco.partita.CambioDaChiedere());
    QCOMPARE(gioco.partita.fase(), Fase::Risultato);
    QCOMPARE(gioco.partita.Rispondi(37), Esito::Risolto);
    QCOMPARE(gioco.partita.fase(), Fase::Risolto);
  }

  void aBlockIsNumberedByHowManyStandThere() {
    GiocoHLU gioco;
    gioco.nuovo(24, 13);
    QCOMPARE(gioco.partita.Metti(Posto::Unita), 1);
    QCOMPARE(gioco.partita.Metti(Posto::Unita), 2);
    QCOMPARE(gioco.partita.Metti(Posto::Decine), 1);
    QCOMPARE(gioco.partita.Metti(Posto::Centinaia), 1);
    QCOMPARE(gioco.partita.Su(Tavola::Prima), (Quantita{.centinaia = 1, .decine = 1, .unita = 2}));
    QCOMPARE(gioco.partita.Su(Tavola::Seconda), Quantita{});
  }

  void aBoardHoldsNineOfAKindAndNoMore() {
    GiocoHLU gioco;
    gioco.nuovo(24, 13);
    for (const Posto specie : kSpecieBlocchi) {
      gioco.metti(specie, 8);
      QCOMPARE(gioco.partita.Metti(specie), 9);
      QVERIFY(!gioco.partita.Metti(specie));
    }
    QCOMPARE(gioco.partita.Su(Tavola::Prima).Valore(), 999);
  }

  void upToNinetyNineThereAreNoFlats() {
    GiocoLU gioco;
    gioco.nuovo(24, 13);
    QVERIFY(!gioco.partita.Metti(Posto::Centinaia));
    QVERIFY(!gioco.partita.Metti(Posto::Migliaia));
    QCOMPARE(gioco.partita.Su(Tavola::Prima), Quantita{});
  }

  void eachBoardKeepsItsOwnBlocks() {
    GiocoLU gioco;
    gioco.nuovo(24, 13);
    gioco.costruisci(24);
    gioco.partita.Conferma();
    QCOMPARE(gioco.partita.Metti(Posto::Decine), 1);
    QCOMPARE(gioco.partita.Su(Tavola::Prima), (Quantita{.decine = 2, .unita = 4}));
    QCOMPARE(gioco.partita.Su(Tavola::Seconda), (Quantita{.decine = 1}));
  }

  void theBinEmptiesTheBoardInUseAlone() {
    GiocoLU gioco;
    gioco.nuovo(24, 13);
    gioco.costruisci(57);
    QCOMPARE(gioco.partita.Svuota(), Tavola::Prima);
    QCOMPARE(gioco.partita.Su(Tavola::Prima), Quantita{});
    gioco.costruisci(24);
    gioco.partita.Conferma();
    gioco.costruisci(31);
    QCOMPARE(gioco.partita.Svuota(), Tavola::Seconda);
    QCOMPARE(gioco.partita.Su(Tavola::Prima), (Quantita{.decine = 2, .unita = 4}));
    QCOMPARE(gioco.partita.Su(Tavola::Seconda), Quantita{});
    QCOMPARE(gioco.partita.fase(), Fase::SecondoAddendo);
  }

  void aWrongBoardStaysAsItIsAndCanBeMended() {
    GiocoLU gioco;
    gioco.nuovo(24, 13);
    gioco.costruisci(23);
    QCOMPARE(gioco.partita.Conferma(), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Conferma(), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::PrimoAddendo);
    QCOMPARE(gioco.partita.Su(Tavola::Prima), (Quantita{.decine = 2, .unita = 3}));
    gioco.metti(Posto::Unita, 1);
    QCOMPARE(gioco.partita.Conferma(), Esito::PassoGiusto);
    gioco.costruisci(14);
    QCOMPARE(gioco.partita.Conferma(), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::SecondoAddendo);
    gioco.partita.Svuota();
    gioco.costruisci(13);
    QCOMPARE(gioco.partita.Conferma(), Esito::PassoGiusto);
    QCOMPARE(gioco.partita.fase(), Fase::Unione);
  }

  void eachBoardIsComparedWithItsOwnAddend() {
    GiocoLU gioco;
    gioco.nuovo(24, 13);
    gioco.costruisci(13);
    QCOMPARE(gioco.partita.Conferma(), Esito::Sbagliato);
    gioco.partita.Svuota();
    gioco.costruisci(24);
    QCOMPARE(gioco.partita.Conferma(), Esito::PassoGiusto);
    gioco.costruisci(24);
    QCOMPARE(gioco.partita.Conferma(), Esito::Sbagliato);
  }

  void anEmptyBoardIsRightForAnAddendOfZero() {
    GiocoLU gioco;
    gioco.nuovo(0, 7);
    QCOMPARE(gioco.partita.Conferma(), Esito::PassoGiusto);
  }

  void onceTheBoardsAreRightNothingCanBePutEmptiedOrJudgedThere() {
    GiocoLU gioco;
    gioco.unisci(24, 13);
    QVERIFY(!gioco.partita.Metti(Posto::Unita));
    QVERIFY(!gioco.partita.Svuota());
    QCOMPARE(gioco.partita.Conferma(), Esito::Ignorato);
    QCOMPARE(gioco.partita.fase(), Fase::Unione);
    QCOMPARE(gioco.partita.Su(Tavola::Prima), (Quantita{.decine = 2, .unita = 4}));
    QCOMPARE(gioco.partita.Su(Tavola::Seconda), (Quantita{.decine = 1, .unita = 3}));
  }

  void theBoardsAreNotJoinedAndNothingIsAskedBeforeBothAreRight() {
    GiocoLU gioco;
    gioco.nuovo(24, 13);
    gioco.costruisci(24);
    gioco.partita.Unisci();
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.Uniti().Quanti(), Quantita{});
    QCOMPARE(gioco.partita.fase(), Fase::PrimoAddendo);
    gioco.partita.Conferma();
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.fase(), Fase::SecondoAddendo);
  }

  void aWrongResultCanBeGivenAgainAndABlankOneIsNone() {
    GiocoLU gioco;
    gioco.unisci(24, 13);
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.Rispondi(std::nullopt), Esito::Ignorato);
    QCOMPARE(gioco.partita.Rispondi(36), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(0), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::Risultato);
    QCOMPARE(gioco.partita.Rispondi(37), Esito::Risolto);
  }

  void theResultIsRoundedToAWholeNumber() {
    GiocoLU gioco;
    gioco.unisci(24, 13);
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.Rispondi(37.6), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(37.4), Esito::Risolto);
    GiocoLU altra;
    altra.unisci(24, 13);
    altra.partita.Prosegui();
    QVERIFY_THROWS_EXCEPTION(platform::RunTimeError, (void)altra.partita.Rispondi(40000));
  }

  void theResultIsJudgedOnlyWhileItIsAskedFor() {
    GiocoLU gioco;
    gioco.nuovo(27, 15);
    QCOMPARE(gioco.partita.Rispondi(42), Esito::Ignorato);
    QCOMPARE(gioco.partita.Risolvi(), Esito::Ignorato);
    gioco.unisci(27, 15);
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.Rispondi(42), Esito::Ignorato);
    QCOMPARE(gioco.partita.Risolvi(), Esito::Ignorato);
    gioco.cambia(kUDa);
    QCOMPARE(gioco.partita.Rispondi(42), Esito::Risolto);
    QCOMPARE(gioco.partita.Rispondi(42), Esito::Ignorato);
    QCOMPARE(gioco.partita.Risolvi(), Esito::Ignorato);
  }

  void whereNothingIsWrittenBoardsAndCarriesSolveTheCase() {
    GiocoLU gioco;
    gioco.unisci(24, 13);
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.Risolvi(), Esito::Risolto);
    QCOMPARE(gioco.partita.fase(), Fase::Risolto);
  }

  void theDigitsOfTheResultStandFromTheLargestKindOfBlock() {
    GiocoLU lu;
    lu.nuovo(3, 4);
    QCOMPARE(lu.partita.CifreDelRisultato(), (Cifre{7, std::nullopt, std::nullopt, std::nullopt}));
    lu.caso.Totale = 123;
    QCOMPARE(lu.partita.CifreDelRisultato(), (Cifre{3, 12, std::nullopt, std::nullopt}));
    GiocoHLU hlu;
    hlu.nuovo(204, 103);
    QCOMPARE(hlu.partita.CifreDelRisultato(), (Cifre{7, 0, 3, std::nullopt}));
  }

  void theLevelsUpTo999AreThoseOfThatGroup() {
    GiocoHLU gioco;
    // Level 9 adds hundreds.
    ScriptedChance sorte({{122, 988}, {3, 10}});
    gioco.partita.NuovoCaso(9, sorte);
    QCOMPARE(gioco.caso, prova::caso(123, 300));
  }

  void aNewCaseBeginsAtAnyMoment() {
    GiocoLU gioco;
    gioco.unisci(27, 15);
    gioco.partita.Prosegui();
    gioco.nuovo(3, 4);
    QCOMPARE(gioco.partita.fase(), Fase::PrimoAddendo);
    QVERIFY(!gioco.partita.CambioDaChiedere());
    QCOMPARE(gioco.partita.Su(Tavola::Prima), Quantita{});
    QCOMPARE(gioco.partita.Metti(Posto::Unita), 1);
  }
};

const prova::Iscrizione<PartitaBlocchiTest> kIscritta;

}  // namespace partita_blocchi_test

#include "partita_blocchi_test.moc"
