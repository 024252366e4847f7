#include "abaco_giocato.h"

#include "support/iscrizione.h"

namespace partita_abaco_test {

using namespace somme;
using prova::ConFrecce;
using prova::ConTasti;
using prova::DaSe;
using prova::GiocoAbaco;
using prova::kTuttiIPosti;
using Cambi = PartitaAbaco::Cambi;
using Fase = PartitaAbaco::Fase;

// Beads and verdicts; the carries have a test of their own.
class PartitaAbacoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCaseIsWrittenIntoTheStateThatTheGameWasGiven() {
    ConFrecce gioco;
    QCOMPARE(gioco.partita.fase(), Fase::NessunCaso);
    gioco.nuovo(1234, 567);
    QCOMPARE(gioco.caso, prova::caso(1234, 567));
    QCOMPARE(gioco.partita.fase(), Fase::Domanda);
  }

  void anExerciseWithoutALevelAsksForTheSameCaseAgain() {
    for (const int tipo : {0, 24}) {
      ConFrecce gioco;
      gioco.nuovo(24, 13);
      (void)gioco.partita.Rispondi(37);
      ScriptedChance sorte = prova::nessunaSorte();
      gioco.partita.NuovoCaso(tipo, sorte);
      QCOMPARE(gioco.caso, prova::caso(24, 13));
      QCOMPARE(gioco.partita.fase(), Fase::Domanda);
    }
  }

  void theFirstLevelIsTheFirstUpToNinetyNine() {
    ConFrecce gioco;
    ScriptedChance sorte({{36, 99}, {24, 37}});
    gioco.partita.NuovoCaso(3, sorte);
    QCOMPARE(gioco.caso, prova::caso(24, 13));
  }

  void aNewCaseLeavesTheBeadsToWhoeverEmptiesTheAbacus() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 3);
    gioco.nuovo(24, 13);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.unita = 3}));
  }

  void beforeTheAbacusIsEmptiedForTheFirstTimeNoBeadWaits() {
    Caso caso;
    const PartitaAbaco partita(caso, Cambi::Frecce);
    for (const Posto posto : kTuttiIPosti) QVERIFY(!partita.InAttesa(posto, 0));
  }

  void emptyingPutsAllTenOfEveryPlaceBack() {
    ConFrecce gioco;
    for (const Posto posto : kTuttiIPosti) gioco.inserisci(posto, 4);
    QCOMPARE(gioco.partita.Inserite().Valore(), 4444);
    gioco.partita.Svuota();
    QCOMPARE(gioco.partita.Inserite(), Quantita{});
    for (const Posto posto : kTuttiIPosti) {
      QCOMPARE(gioco.inAttesa(posto), QStringLiteral("0123456789"));
    }
  }

  void aBeadThatIsTakenBecomesTheNextOnItsSpike() {
    ConFrecce gioco;
    QCOMPARE(gioco.partita.Inserisci(Posto::Decine, 7), 0);
    QCOMPARE(gioco.partita.Inserisci(Posto::Decine, 2), 1);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 2}));
    QCOMPARE(gioco.inAttesa(Posto::Decine), QStringLiteral("01345689"));
    QCOMPARE(gioco.inAttesa(Posto::Unita), QStringLiteral("0123456789"));
  }

  void aBeadThatIsTakenAwayWaitsAtTheFirstFreePlace() {
    ConFrecce gioco;
    gioco.partita.Inserisci(Posto::Unita, 7);
    gioco.partita.Inserisci(Posto::Unita, 2);
    const auto tolta = gioco.partita.Rimuovi(Posto::Unita);
    QVERIFY(tolta);
    QCOMPARE(tolta->dalFerro, 1);
    QCOMPARE(tolta->inAttesa, 2);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.unita = 1}));
    QCOMPARE(gioco.inAttesa(Posto::Unita), QStringLiteral("012345689"));
    QCOMPARE(gioco.partita.Rimuovi(Posto::Unita)->inAttesa, 7);
  }

  void theFirstAndTheLastPlaceOfTheTenAreFilledToo() {
    ConFrecce gioco;
    gioco.partita.Inserisci(Posto::Unita, 0);
    QCOMPARE(gioco.partita.Rimuovi(Posto::Unita)->inAttesa, 0);
    gioco.partita.Inserisci(Posto::Unita, 9);
    QCOMPARE(gioco.partita.Rimuovi(Posto::Unita)->inAttesa, 9);
    QCOMPARE(gioco.inAttesa(Posto::Unita), QStringLiteral("0123456789"));
  }

  void nothingIsTakenFromAnEmptySpike() {
    ConFrecce gioco;
    QVERIFY(!gioco.partita.Rimuovi(Posto::Unita));
    QCOMPARE(gioco.partita.Inserite(), Quantita{});
  }

  void aBeadThatNoFreePlaceWaitsForGoesAllTheSame() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 1);
    gioco.inserisci(Posto::Unita, 9);
    // The carry puts ten back although one comes onto the spike meanwhile.
    QVERIFY(gioco.partita.IniziaCambio(Posto::Unita));
    (void)gioco.partita.Passa(Posto::Unita);
    const auto tolta = gioco.partita.Rimuovi(Posto::Unita);
    QCOMPARE(tolta->dalFerro, 9);
    QVERIFY(!tolta->inAttesa);
  }

  void theThousandsFirstWaitingBeadIsNeverSeenThoughItCounts() {
    QVERIFY(!PartitaAbaco::SiVedeInAttesa(Posto::Migliaia, 0));
    QVERIFY(PartitaAbaco::SiVedeInAttesa(Posto::Migliaia, 1));
    QVERIFY(PartitaAbaco::SiVedeInAttesa(Posto::Centinaia, 0));
    ConFrecce gioco;
    QVERIFY(gioco.partita.InAttesa(Posto::Migliaia, 0));
  }

  void oneMoreThanTenComesOntoASpikeAndNoOther() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Decine, 10);
    QCOMPARE(gioco.partita.Inserisci(Posto::Decine, 0), 10);
    QVERIFY(!gioco.partita.Inserisci(Posto::Decine, 0));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 11}));
  }

  void keysTakeTheWaitingBeadOfTheSameNumber() {
    DaSe gioco;
    QCOMPARE(gioco.partita.InserisciDaTasto(Posto::Centinaia), 0);
    QCOMPARE(gioco.partita.InserisciDaTasto(Posto::Centinaia), 1);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.centinaia = 2}));
    QCOMPARE(gioco.inAttesa(Posto::Centinaia), QStringLiteral("23456789"));
  }

  void keysPutTenOnASpikeAndNineThousands() {
    for (const Posto posto : kTuttiIPosti) {
      ConTasti gioco;
      const int quante = posto == Posto::Migliaia ? 9 : 10;
      gioco.inserisciDaTasto(posto, quante);
      QVERIFY(!gioco.partita.InserisciDaTasto(posto));
      QCOMPARE(gioco.partita.Inserite()[posto], quante);
    }
  }

  void thousandsAndHundredsHaveAUseOnlyForSumsThatReachThem() {
    ConTasti gioco;
    gioco.nuovo(90, 9);
    QVERIFY(gioco.partita.HaUso(Posto::Unita));
    QVERIFY(gioco.partita.HaUso(Posto::Decine));
    QVERIFY(!gioco.partita.HaUso(Posto::Centinaia));
    gioco.nuovo(90, 10);
    QVERIFY(gioco.partita.HaUso(Posto::Centinaia));
    QVERIFY(!gioco.partita.HaUso(Posto::Migliaia));
    gioco.nuovo(999, 1);
    QVERIFY(gioco.partita.HaUso(Posto::Migliaia));
    gioco.nuovo(3, 4);
    QVERIFY(gioco.partita.HaUso(Posto::Decine));
    gioco.caso.Totale = 0;
    QVERIFY(gioco.partita.HaUso(Posto::Unita));
  }

  void aWrittenSumIsJudgedWhateverTheBeadsSay() {
    ConFrecce gioco;
    gioco.nuovo(24, 13);
    gioco.inserisci(Posto::Unita, 1);
    QCOMPARE(gioco.partita.Rispondi(36), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(36), Esito::Sbagliato);
    QCOMPARE(gioco.partita.Rispondi(37.5), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::Domanda);
    QCOMPARE(gioco.partita.Rispondi(37), Esito::Risolto);
    QCOMPARE(gioco.partita.fase(), Fase::Risolto);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.unita = 1}));
    QCOMPARE(gioco.partita.Rispondi(36), Esito::Sbagliato);
    QCOMPARE(gioco.partita.fase(), Fase::Risolto);
  }

  void theValueOfTheBeadsIsJudgedAlsoWithTenOnASpike() {
    ConTasti gioco;
    gioco.nuovo(1234, 5);
    gioco.inserisciDaTasto(Posto::Unita, 9);
    gioco.inserisciDaTasto(Posto::Decine, 3);
    gioco.inserisciDaTasto(Posto::Centinaia, 2);
    QCOMPARE(gioco.partita.Conferma(), Esito::Sbagliato);
    gioco.inserisciDaTasto(Posto::Migliaia, 1);
    QCOMPARE(gioco.partita.Conferma(), Esito::Risolto);
    gioco.partita.Svuota();
    gioco.nuovo(60, 40);
    gioco.inserisciDaTasto(Posto::Decine, 10);
    QCOMPARE(gioco.partita.Conferma(), Esito::Risolto);
  }

  void aSolvedAbacusIsNotJudgedAgainAndTheWayOnIsOpen() {
    ConTasti gioco;
    QVERIFY(gioco.partita.SiConferma());
    QVERIFY(gioco.partita.SiVaAvanti());
    gioco.nuovo(3, 4);
    QVERIFY(gioco.partita.SiConferma());
    QVERIFY(!gioco.partita.SiVaAvanti());
    QCOMPARE(gioco.partita.Conferma(), Esito::Sbagliato);
    QVERIFY(!gioco.partita.SiVaAvanti());
    gioco.inserisciDaTasto(Posto::Unita, 7);
    QCOMPARE(gioco.partita.Conferma(), Esito::Risolto);
    QVERIFY(!gioco.partita.SiConferma());
    QVERIFY(gioco.partita.SiVaAvanti());
    QCOMPARE(gioco.partita.Conferma(), Esito::Ignorato);
    gioco.nuovo(3, 4);
    QVERIFY(gioco.partita.SiConferma());
  }

  void theDigitsOfTheSumAreThoseThatItHas() {
    ConTasti gioco;
    gioco.nuovo(1000, 207);
    QCOMPARE(gioco.partita.CifreDelTotale(), (Cifre{7, 0, 2, 1}));
    gioco.nuovo(3, 4);
    QCOMPARE(gioco.partita.CifreDelTotale(), (Cifre{7, {}, {}, {}}));
  }
};

const prova::Iscrizione<PartitaAbacoTest> kIscritta;

}  // namespace partita_abaco_test

#include "partita_abaco_test.moc"
