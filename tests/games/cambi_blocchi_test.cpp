#include "blocchi_giocati.h"

#include "support/iscrizione.h"

namespace cambi_blocchi_test {

using namespace somme;
using prova::GiocoHLU;
using prova::GiocoLU;
using Fase = PartitaBlocchi::Fase;
using prova::kDaH;
using prova::kUDa;

class CambiBlocchiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aWholeCaseWithBothCarries() {
    GiocoHLU gioco;
    gioco.unisci(167, 258);
    QCOMPARE(gioco.partita.Uniti().Quanti(), (Quantita{.centinaia = 3, .decine = 11, .unita = 15}));
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.fase(), Fase::Cambio);
    QCOMPARE(gioco.partita.CambioDaChiedere(), kUDa);
    QVERIFY(gioco.partita.IniziaCambio(kUDa));
    QCOMPARE(gioco.partita.fase(), Fase::CambioInCorso);
    QVERIFY(!gioco.partita.CambioDaChiedere());
    QCOMPARE(gioco.partita.CambioDetto(kUDa), 12);
    QCOMPARE(gioco.partita.Uniti().Quanti(), (Quantita{.centinaia = 3, .decine = 12, .unita = 5}));
    gioco.partita.FinisciAttesa();
    QVERIFY(!gioco.partita.Uniti().CambioInterrotto());
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.CambioDaChiedere(), kDaH);
    QVERIFY(gioco.partita.IniziaCambio(kDaH));
    QVERIFY(gioco.partita.Uniti().CambioInterrotto());
    QCOMPARE(gioco.partita.CambioDetto(kDaH), 4);
    QCOMPARE(gioco.partita.Uniti().Quanti(), (Quantita{.centinaia = 4, .decine = 2, .unita = 5}));
    gioco.partita.FinisciAttesa();
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.fase(), Fase::Risultato);
    QCOMPARE(gioco.partita.Rispondi(425), Esito::Risolto);
  }

  void tenUnitsAskForACarryAndNineDoNot() {
    GiocoLU dieci;
    dieci.unisci(14, 26);
    dieci.partita.Prosegui();
    QCOMPARE(dieci.partita.CambioDaChiedere(), kUDa);
    GiocoLU nove;
    nove.unisci(14, 25);
    nove.partita.Prosegui();
    QVERIFY(!nove.partita.CambioDaChiedere());
    QCOMPARE(nove.partita.fase(), Fase::Risultato);
  }

  void upToNinetyNineTenLongsAskForNothing() {
    GiocoLU gioco;
    ScriptedChance sorte = prova::nessunaSorte();
    gioco.caso = prova::caso(60, 50);
    gioco.partita.NuovoCaso(0, sorte);
    gioco.costruisci(60);
    gioco.partita.Conferma();
    gioco.costruisci(50);
    gioco.partita.Conferma();
    gioco.partita.Unisci();
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.fase(), Fase::Risultato);
  }

  void tensAloneAreCarriedWithoutTheUnits() {
    GiocoHLU gioco;
    gioco.unisci(162, 253);
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.CambioDaChiedere(), kDaH);
    gioco.cambia(kDaH);
    QCOMPARE(gioco.partita.fase(), Fase::Risultato);
  }

  void nineLongsAndACarriedOneAskForNoFurtherCarry() {
    GiocoHLU gioco;
    gioco.unisci(146, 256);
    gioco.partita.Prosegui();
    gioco.cambia(kUDa);
    QCOMPARE(gioco.partita.Uniti().Quanti(), (Quantita{.centinaia = 3, .decine = 10, .unita = 2}));
    QVERIFY(!gioco.partita.CambioDaChiedere());
    QCOMPARE(gioco.partita.fase(), Fase::Risultato);
  }

  void aCarryThatIsNotAskedForCannotBeDone() {
    GiocoHLU gioco;
    gioco.nuovo(167, 258);
    QVERIFY(!gioco.partita.IniziaCambio(kUDa));
    gioco.unisci(167, 258);
    QVERIFY(!gioco.partita.IniziaCambio(kUDa));  // not asked for yet
    gioco.partita.Prosegui();
    QVERIFY(!gioco.partita.IniziaCambio(kDaH));
    QCOMPARE(gioco.partita.fase(), Fase::Cambio);
    QVERIFY(gioco.partita.IniziaCambio(kUDa));
    QVERIFY(!gioco.partita.IniziaCambio(kUDa));
    QVERIFY(!gioco.partita.IniziaCambio(kDaH));
    QCOMPARE(gioco.partita.fase(), Fase::CambioInCorso);
  }

  void nothingIsAskedForAnewWhileACarryWaitsForThePupil() {
    GiocoHLU gioco;
    gioco.unisci(167, 258);
    gioco.partita.Prosegui();
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.CambioDaChiedere(), kUDa);
    gioco.partita.Unisci();
    QCOMPARE(gioco.partita.CambioDaChiedere(), kUDa);
  }

  void aCarriedBlockStaysThoughTheJoiningIsAskedForAgain() {
    GiocoLU gioco;
    gioco.unisci(27, 15);
    gioco.partita.Prosegui();
    gioco.cambia(kUDa);
    gioco.partita.Unisci();
    QCOMPARE(gioco.partita.Uniti().Quanti(), (Quantita{.decine = 4, .unita = 2}));
  }

  void theNextCaseBeginsWithItsFirstCarry() {
    GiocoHLU gioco;
    gioco.unisci(167, 258);
    gioco.partita.Prosegui();
    gioco.cambia(kUDa);
    gioco.cambia(kDaH);
    gioco.partita.Rispondi(425);
    gioco.unisci(15, 17);
    gioco.partita.Prosegui();
    QCOMPARE(gioco.partita.CambioDaChiedere(), kUDa);
  }

  void theWordOfACarryThatAnEarlierCaseWasLeftInDoesNothing() {
    GiocoLU gioco;
    gioco.unisci(27, 15);
    gioco.partita.Prosegui();
    gioco.partita.IniziaCambio(kUDa);
    gioco.nuovo(21, 4);
    QVERIFY(!gioco.partita.CambioDetto(kUDa));
    QVERIFY(gioco.partita.Uniti().CambioInterrotto());
    QCOMPARE(gioco.partita.Uniti().Quanti(), Quantita{});
    gioco.partita.FilmatiCaricati();
    QVERIFY(!gioco.partita.Uniti().CambioInterrotto());
  }

  void flatsOfTheCaseBeforeStayOnTheJoinedBoard() {
    GiocoHLU gioco;
    gioco.unisci(213, 219);
    gioco.unisci(101, 112);
    QCOMPARE(gioco.partita.Uniti().Quanti(), (Quantita{.centinaia = 4, .decine = 1, .unita = 3}));
    gioco.partita.FilmatiCaricati();
    QCOMPARE(gioco.partita.Uniti().Quanti(), Quantita{});
  }
};

const prova::Iscrizione<CambiBlocchiTest> kIscritta;

}  // namespace cambi_blocchi_test

#include "cambi_blocchi_test.moc"
