#include "abaco_giocato.h"

#include "support/iscrizione.h"

namespace cambi_abaco_test {

using namespace somme;
using prova::ConFrecce;
using prova::ConTasti;
using prova::DaSe;

class CambiAbacoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theTenthBeadEnablesItsArrowAndOneLessDisablesIt() {
    for (const Posto posto : {Posto::Unita, Posto::Decine, Posto::Centinaia}) {
      ConFrecce gioco;
      gioco.inserisci(posto, 9);
      QVERIFY(!gioco.partita.FrecciaAttiva(posto));
      gioco.inserisci(posto, 1);
      QVERIFY(gioco.partita.FrecciaAttiva(posto));
      for (const Posto altro : prova::kTuttiIPosti) {
        QVERIFY(altro == posto || !gioco.partita.FrecciaAttiva(altro));
      }
      gioco.partita.Rimuovi(posto);
      QVERIFY(!gioco.partita.FrecciaAttiva(posto));
    }
  }

  void theThousandsHaveNoArrow() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Migliaia, 10);
    for (const Posto posto : prova::kTuttiIPosti) QVERIFY(!gioco.partita.FrecciaAttiva(posto));
    gioco.partita.Rimuovi(Posto::Migliaia);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.migliaia = 9}));
  }

  void anEleventhBeadLeavesTheArrowUntilLessThanTenStand() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 10);
    gioco.partita.Inserisci(Posto::Unita, 0);
    gioco.partita.Rimuovi(Posto::Unita);
    QVERIFY(gioco.partita.FrecciaAttiva(Posto::Unita));
    gioco.partita.Rimuovi(Posto::Unita);
    QVERIFY(!gioco.partita.FrecciaAttiva(Posto::Unita));
  }

  void emptyingLeavesAnArrowAsItIs() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 10);
    gioco.partita.Svuota();
    gioco.nuovo(3, 4);
    QVERIFY(gioco.partita.FrecciaAttiva(Posto::Unita));
  }

  void aCarryGivesTenBackAndPassesOneOn() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 10);
    gioco.inserisci(Posto::Decine, 3);
    QVERIFY(gioco.partita.IniziaCambio(Posto::Unita));
    QVERIFY(!gioco.partita.FrecciaAttiva(Posto::Unita));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 3, .unita = 10}));
    QCOMPARE(gioco.inAttesa(Posto::Unita), QString());
    const auto passaggio = gioco.partita.Passa(Posto::Unita);
    QCOMPARE(passaggio.nuova, 3);
    QCOMPARE(passaggio.presa, 9);
    QCOMPARE(gioco.inAttesa(Posto::Unita), QStringLiteral("0123456789"));
    QCOMPARE(gioco.inAttesa(Posto::Decine), QStringLiteral("345678"));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 3, .unita = 10}));
    QVERIFY(!gioco.partita.FinisciCambio(Posto::Unita));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 4}));
    QVERIFY(!gioco.partita.FrecciaAttiva(Posto::Decine));
  }

  void theLastBeadThatWaitsIsTheOneThatPasses() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 10);
    gioco.partita.Inserisci(Posto::Decine, 9);
    gioco.partita.Inserisci(Posto::Decine, 7);
    gioco.partita.IniziaCambio(Posto::Unita);
    QCOMPARE(gioco.partita.Passa(Posto::Unita).presa, 8);
    ConFrecce altro;
    altro.inserisci(Posto::Unita, 10);
    for (int i = 9; i >= 1; --i) altro.partita.Inserisci(Posto::Decine, i);
    altro.partita.IniziaCambio(Posto::Unita);
    QCOMPARE(altro.partita.Passa(Posto::Unita).presa, 0);
  }

  void aCarryThatFillsTheNextSpikeEnablesItsArrow() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 10);
    gioco.inserisci(Posto::Decine, 9);
    QVERIFY(!gioco.cambia(Posto::Unita));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 10}));
    QVERIFY(gioco.partita.FrecciaAttiva(Posto::Decine));
    QVERIFY(!gioco.partita.FrecciaAttiva(Posto::Unita));
    (void)gioco.cambia(Posto::Decine);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.centinaia = 1}));
  }

  void theTenthThousandThatACarryBringsHasNoArrow() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Centinaia, 10);
    gioco.inserisci(Posto::Migliaia, 9);
    QVERIFY(!gioco.cambia(Posto::Centinaia));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.migliaia = 10}));
    QVERIFY(!gioco.partita.FrecciaAttiva(Posto::Migliaia));
  }

  void anArrowRefusesWithLessThanTenOrAFullNextSpike() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 9);
    QVERIFY(!gioco.partita.IniziaCambio(Posto::Unita));
    gioco.inserisci(Posto::Unita, 1);
    gioco.inserisci(Posto::Decine, 10);
    QVERIFY(!gioco.partita.IniziaCambio(Posto::Unita));
    QVERIFY(gioco.partita.FrecciaAttiva(Posto::Unita));
    QVERIFY(!gioco.partita.CambioInCorso());
    // One more than ten is no full spike to an arrow: what comes by accident goes on.
    gioco.partita.Inserisci(Posto::Decine, 0);
    QVERIFY(gioco.partita.IniziaCambio(Posto::Unita));
  }

  void aCarryEndsOnTheStateThatItFinds() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 10);
    gioco.inserisci(Posto::Decine, 3);
    gioco.partita.IniziaCambio(Posto::Unita);
    // The bin, and a new case.
    gioco.partita.Svuota();
    gioco.nuovo(3, 4);
    const auto passaggio = gioco.partita.Passa(Posto::Unita);
    QCOMPARE(passaggio.nuova, 0);
    QCOMPARE(passaggio.presa, 9);
    gioco.inserisci(Posto::Unita, 2);
    gioco.partita.Inserisci(Posto::Decine, 0);
    gioco.partita.FinisciCambio(Posto::Unita);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 2}));
  }

  void withNoBeadWaitingOnePassesAllTheSame() {
    ConFrecce gioco;
    gioco.inserisci(Posto::Unita, 10);
    gioco.inserisci(Posto::Decine, 9);
    gioco.partita.IniziaCambio(Posto::Unita);
    gioco.inserisci(Posto::Decine, 1);
    const auto passaggio = gioco.partita.Passa(Posto::Unita);
    QCOMPARE(passaggio.nuova, 10);
    QVERIFY(!passaggio.presa);
    gioco.partita.FinisciCambio(Posto::Unita);
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 11}));
    QVERIFY(gioco.partita.FrecciaAttiva(Posto::Decine));  // since the tenth came
  }

  void onlyBeadsThatCarryByThemselvesDoSoAndNeverTheThousands() {
    for (const Posto posto : prova::kTuttiIPosti) {
      DaSe daSe;
      daSe.inserisci(posto, 9);
      QVERIFY(!daSe.partita.CambiaDaSe(posto));
      daSe.inserisci(posto, 1);
      QCOMPARE(daSe.partita.CambiaDaSe(posto), posto != Posto::Migliaia);
      ConTasti conTasti;
      conTasti.inserisci(posto, 10);
      QVERIFY(!conTasti.partita.CambiaDaSe(posto));
      ConFrecce conFrecce;
      conFrecce.inserisci(posto, 10);
      QVERIFY(!conFrecce.partita.CambiaDaSe(posto));
    }
  }

  void oneCarryFollowsAnotherByItselfUpToTheThousands() {
    DaSe gioco;
    gioco.inserisciDaTasto(Posto::Decine, 9);
    gioco.inserisciDaTasto(Posto::Centinaia, 9);
    gioco.inserisciDaTasto(Posto::Migliaia, 9);
    gioco.inserisciDaTasto(Posto::Unita, 10);
    QCOMPARE(gioco.cambia(Posto::Unita), Posto::Decine);
    QCOMPARE(gioco.cambia(Posto::Decine), Posto::Centinaia);
    QVERIFY(!gioco.cambia(Posto::Centinaia));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.migliaia = 10}));
  }

  void aCarryThatLeavesRoomIsFollowedByNone() {
    DaSe gioco;
    gioco.inserisciDaTasto(Posto::Decine, 8);
    gioco.inserisciDaTasto(Posto::Unita, 10);
    QVERIFY(!gioco.cambia(Posto::Unita));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 9}));
  }

  void byThemselvesTheBeadOfTheCountersNumberPasses() {
    DaSe gioco;
    gioco.inserisciDaTasto(Posto::Decine, 3);
    gioco.inserisciDaTasto(Posto::Unita, 10);
    QVERIFY(gioco.partita.IniziaCambio(Posto::Unita));
    const auto passaggio = gioco.partita.Passa(Posto::Unita);
    QCOMPARE(passaggio.nuova, 3);
    QCOMPARE(passaggio.presa, 3);
    QCOMPARE(gioco.inAttesa(Posto::Decine), QStringLiteral("456789"));
    // It is not searched for, and past the last there is none.
    DaSe pieno;
    pieno.inserisciDaTasto(Posto::Decine, 9);
    QCOMPARE(pieno.partita.Passa(Posto::Unita).presa, 9);
    pieno.partita.Svuota();
    pieno.inserisciDaTasto(Posto::Decine, 10);
    QVERIFY(!pieno.partita.Passa(Posto::Unita).presa);
  }

  void byThemselvesBeadsDoNotPassOntoAFullSpike() {
    DaSe gioco;
    gioco.inserisciDaTasto(Posto::Centinaia, 10);
    gioco.inserisciDaTasto(Posto::Decine, 10);
    QVERIFY(!gioco.partita.IniziaCambio(Posto::Decine));
    QVERIFY(!gioco.partita.CambioInCorso());
  }

  void aCarryThatIsCalledForByNameNeedsNoTenWhereBeadsCarryByThemselves() {
    DaSe gioco;
    gioco.inserisciDaTasto(Posto::Unita, 3);
    QVERIFY(gioco.partita.IniziaCambio(Posto::Unita));
    QVERIFY(!gioco.partita.CambioInCorso());
  }

  void aKeyCarriesTenAndDropsTheKeysMeanwhile() {
    ConTasti gioco;
    gioco.inserisciDaTasto(Posto::Unita, 9);
    QVERIFY(!gioco.partita.IniziaCambio(Posto::Unita));
    QVERIFY(!gioco.partita.CambioInCorso());
    gioco.inserisciDaTasto(Posto::Unita, 1);
    QVERIFY(gioco.partita.IniziaCambio(Posto::Unita));
    QVERIFY(gioco.partita.CambioInCorso());
    QCOMPARE(gioco.partita.Passa(Posto::Unita).presa, 9);
    QVERIFY(gioco.partita.CambioInCorso());
    QVERIFY(!gioco.partita.FinisciCambio(Posto::Unita));
    QVERIFY(!gioco.partita.CambioInCorso());
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 1}));
  }

  void aKeyThatFindsTheNextSpikeFullDropsTheKeysUntilTheNextCase() {
    ConTasti gioco;
    gioco.inserisciDaTasto(Posto::Unita, 10);
    gioco.inserisciDaTasto(Posto::Decine, 10);
    QVERIFY(!gioco.partita.IniziaCambio(Posto::Unita));
    QVERIFY(gioco.partita.CambioInCorso());
    gioco.partita.Svuota();
    QVERIFY(gioco.partita.CambioInCorso());
    gioco.nuovo(3, 4);
    QVERIFY(!gioco.partita.CambioInCorso());
  }

  void aKeyThatFillsTheNextSpikeIsFollowedByNoOtherCarry() {
    ConTasti gioco;
    gioco.inserisciDaTasto(Posto::Unita, 10);
    gioco.inserisciDaTasto(Posto::Decine, 9);
    QVERIFY(!gioco.cambia(Posto::Unita));
    QCOMPARE(gioco.partita.Inserite(), (Quantita{.decine = 10}));
  }
};

const prova::Iscrizione<CambiAbacoTest> kIscritta;

}  // namespace cambi_abaco_test

#include "cambi_abaco_test.moc"
