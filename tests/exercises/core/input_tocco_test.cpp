#include "exercises/core/input_tocco.h"

#include <QApplication>

#include "forma_toccata.h"
#include "support/iscrizione.h"

namespace input_tocco_test {

using namespace prova;
using namespace somme;

namespace {

// The keys at the first places of the form's sheet, which the cells of columns 2 and 10 in row 2
// are.
const std::vector<Tasto> kPrimo{Tasto::Centinaia};

}  // namespace

// The link of a touch form with HelpiKeys, over its life.
class InputToccoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aFormConnectsToPort1050OnceAndAsksForTouchesAtItsActivation() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    QVERIFY(scena.rete.porte == std::vector<quint16>{1050});
    QCOMPARE(scena.rete.ricevuti, QByteArrayList{"02#REQ-TOUCH"});
    QCOMPARE(forma.attivazioni, 1);
    QVERIFY(!forma.HelpiKeysConnesso());
    QVERIFY(scena.messaggi.mostrati.empty());
  }

  void theSocketThatStandsOnTheFormIsNotUsed() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    QCOMPARE(forma.ControlloConnessione.count(), 2);
    QVERIFY(!forma.ControlloConnessione[0].isConnected());
    QVERIFY(forma.ControlloConnessione[1].isConnected());
    QCOMPARE(forma.ControlloConnessione[1].name(), QStringLiteral("ControlloConnessione(1)"));
  }

  void whereNobodyListensTheLoadIsSilentAndTheActivationEndsTheProgram() {
    Scena scena;
    scena.rete.accoglienza = ReteDiProva::Accoglienza::Rifiuta;
    bool fuori = false;
    try {
      scena.mostra(kNome);
    } catch (const platform::Unwind&) {
      fuori = true;
    }
    QVERIFY(fuori);
    QCOMPARE(scena.messaggi.mostrati.size(), std::size_t(1));
    QCOMPARE(scena.errore(),
             QStringLiteral("Errore di run-time '40006':\n\nProtocollo o stato di "
                            "connessione errato per la transazione o la richiesta"));
    QVERIFY(scena.messaggi.mostrati[0].icon == platform::BoxIcon::Critical);
    QCOMPARE(scena.fine.stato, std::optional(1));
    QVERIFY(scena.rete.ricevuti.isEmpty());
  }

  void aServerThatStallsHoldsTheLoadForOneSecondAtMost() {
    Scena scena;
    scena.rete.accoglienza = ReteDiProva::Accoglienza::Tace;
    const double prima = scena.tempo.secondsSinceMidnight();
    try {
      scena.mostra(kNome);
    } catch (const platform::Unwind&) {
    }
    const double passati = scena.tempo.secondsSinceMidnight() - prima;
    QVERIFY(passati > 0.99 && passati < 1.01);
    QCOMPARE(scena.fine.stato, std::optional(1));
  }

  void aServerThatTakesTheConnectionLateButInTimeIsAsked() {
    Scena scena;
    scena.rete.accoglienza = ReteDiProva::Accoglienza::Tace;
    scena.tempo.after(0.7, [&scena] { scena.rete.accettaOra(); });
    scena.apri();
    QCOMPARE(scena.rete.ricevuti, QByteArrayList{"02#REQ-TOUCH"});
    QVERIFY(!scena.fine.stato);
  }

  void theWindowMayBeClosedWhileTheConnectionIsWaitedFor() {
    Scena scena;
    scena.rete.accoglienza = ReteDiProva::Accoglienza::Tace;
    scena.tempo.after(0.5, [&scena] { scena.ambiente->fondo.window().close(); });
    try {
      scena.mostra(kNome);
    } catch (const platform::Unwind&) {
    }
    QCOMPARE(scena.fine.stato, std::optional(0));
    QVERIFY(scena.messaggi.mostrati.empty());
  }

  void aConnectionThatTheOtherSideEndsIsMissedOnlyAtTheNextRequest() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    scena.rete.stacca();
    QCoreApplication::processEvents();
    QVERIFY(scena.messaggi.mostrati.empty());
    forma.mnuEsci.click();
    QVERIFY(scena.errore().contains(QStringLiteral("'40006'")));
    QCOMPARE(scena.fine.stato, std::optional(1));
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormDiProva"));
  }

  void theWayOutGivesTheTouchesBackClosesAndShowsTheMenu() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    forma.mnuEsci.click();
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormMenuPLU"));
    QCOMPARE(scena.rete.ricevuti.back(), QByteArray("02#REQ-DEFAULT"));
    QCOMPARE(scena.rete.ricevuti.size(), 2);
    QCOMPARE(scena.rete.chiusure, 1);
    QVERIFY(!scena.rete.collegata());
    QVERIFY(!scena.fine.stato);
  }

  void closingTheWindowGivesNothingBackButClosesTheConnection() {
    Scena scena;
    scena.apriPronta();
    scena.ambiente->fondo.window().close();
    QCOMPARE(scena.rete.ricevuti, QByteArrayList{"02#REQ-TOUCH"});
    QVERIFY(!scena.rete.collegata());
  }

  void howeverOftenHelpiKeysSaysOkThereIsOneBoxAtATime() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    int aperti = 0;
    int insieme = 0;
    scena.messaggi.mentreAperto = [&] {
      insieme = std::max(insieme, ++aperti);
      for (int i = 0; aperti == 1 && i < 1000; ++i) scena.rete.manda("OK");
      --aperti;
    };
    scena.rete.manda("OK");
    QCOMPARE(insieme, 1);
    QCOMPARE(scena.messaggi.mostrati.size(), std::size_t(1));
    // They have flipped it all the same: a thousand and one times.
    QVERIFY(forma.HelpiKeysConnesso());
    // Closed, the box comes again with the next that sets the flip.
    scena.messaggi.mentreAperto = {};
    scena.rete.manda("OK");
    QCOMPARE(scena.messaggi.mostrati.size(), std::size_t(1));
    scena.rete.manda("OK");
    QCOMPARE(scena.messaggi.mostrati.size(), std::size_t(2));
  }

  void aFurtherActivationAsksAgainAndItsOkClearsTheFlipUntilTheNext() {
    Scena scena;
    scena.rete.aOgniRichiesta = "OK";
    FormDiProva& forma = scena.apri();
    QVERIFY(forma.HelpiKeysConnesso());
    scena.messaggi.rispondi(platform::BoxAnswer::Yes);
    forma.mnuStampaHK.click();
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormStampaPLU"));
    scena.ambiente->fondo.forms().closeCurrent();
    QCoreApplication::processEvents();
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormDiProva"));
    QCOMPARE(forma.attivazioni, 2);
    QCOMPARE(scena.rete.ricevuti, QByteArrayList({"02#REQ-TOUCH", "02#REQ-TOUCH"}));
    QVERIFY(scena.rete.porte.size() == 1);
    QVERIFY(!forma.HelpiKeysConnesso());
    scena.rete.manda("BB1");
    QVERIFY(forma.tasti.empty());
    scena.rete.manda("OK");
    scena.rete.manda("BB1");
    QVERIFY(forma.tasti == kPrimo);
  }

  void theSheetIsAskedForInAYesNoBox() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    scena.messaggi.rispondi(platform::BoxAnswer::No);
    forma.mnuStampaHK.click();
    const platform::MessageBox& box = scena.messaggi.mostrati.back();
    QCOMPARE(box.text, QStringLiteral("Vuoi stampare il foglio per la tastiera HelpiKeys?"));
    QCOMPARE(box.title, QStringLiteral("Esercitazioni sulle somme"));
    QVERIFY(box.icon == platform::BoxIcon::Information);
    QVERIFY(box.buttons == platform::BoxButtons::YesNo);
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormDiProva"));
    QCOMPARE(forma.attivazioni, 1);
  }

  void theSheetIsShownThoughATouchBeganANewCaseWhileTheQuestionStoodOpen() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    forma.alTasto = [&forma] { forma.newCase(); };
    scena.messaggi.mentreAperto = [&scena] { scena.rete.manda("BB1"); };
    scena.messaggi.rispondi(platform::BoxAnswer::Yes);
    forma.mnuStampaHK.click();
    QVERIFY(forma.tasti == kPrimo);
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormStampaPLU"));
  }
};

const prova::Iscrizione<InputToccoTest, QApplication> kIscritta;

}  // namespace input_tocco_test

#include "input_tocco_test.moc"
