#include <QApplication>
#include <utility>

#include "forma_toccata.h"
#include "support/iscrizione.h"

namespace tocchi_helpikeys_test {

using namespace prova;
using namespace somme;

namespace {

// The keys at the first places of the form's sheet, which the cells of columns 2 and 10 in row 2
// are.
const std::vector<Tasto> kPrimo{Tasto::Centinaia};
const std::vector<Tasto> kPrimiDue{Tasto::Centinaia, Tasto::Decine};

}  // namespace

// What HelpiKeys says to a touch form: the OK that makes it ready, and the touches.
class TocchiHelpiKeysTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFirstOkIsToldInABoxWithTheTitleOfTheProgram() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    scena.rete.manda("OK");
    QVERIFY(forma.HelpiKeysConnesso());
    QCOMPARE(scena.messaggi.mostrati.size(), std::size_t(1));
    const platform::MessageBox& box = scena.messaggi.mostrati[0];
    QCOMPARE(box.text, QStringLiteral("La tastiera HelpiKeys è pronta."));
    QCOMPARE(box.title, QStringLiteral("Esercitazioni sulle somme"));
    QVERIFY(box.icon == platform::BoxIcon::Information);
    QVERIFY(box.buttons == platform::BoxButtons::Ok);
  }

  void okTwiceInARowEndsWithTheFlipOffAndNoSecondBox() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    scena.rete.manda("OK");
    scena.rete.manda("OK");
    QVERIFY(!forma.HelpiKeysConnesso());
    QCOMPARE(scena.messaggi.mostrati.size(), std::size_t(1));
    scena.rete.manda("BB1");
    QVERIFY(forma.tasti.empty());
  }

  void anOkMayComeBeforeTheActivationHasFinished() {
    Scena scena;
    scena.rete.aOgniRichiesta = "OK";
    FormDiProva& forma = scena.apri();
    QVERIFY(forma.HelpiKeysConnesso());
    QVERIFY(forma.HelpiKeysAllAttivazione);
    QCOMPARE(scena.messaggi.mostrati.size(), std::size_t(1));
  }

  void aReportBeforeTheFirstOkIsDropped() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    scena.rete.manda("BB1");
    scena.rete.manda("B");
    QVERIFY(forma.tasti.empty());
    QVERIFY(scena.messaggi.mostrati.empty());
  }

  void everyCellOfAKeyGivesItsKeyAndTheCellsBetweenGiveNothing() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    for (int colonna = 0; colonna <= 24; ++colonna) {
      for (int riga = 0; riga <= 23; ++riga) {
        forma.tasti.clear();
        QByteArray rapporto("..1");
        rapporto[0] = char(64 + colonna);
        rapporto[1] = char(64 + riga);
        scena.rete.manda(rapporto);
        const FoglioTasti& foglio = FoglioDi(kFoglio);
        const int atteso = foglio.tastiera.Posto(colonna, riga);
        QCOMPARE(int(forma.tasti.size()), atteso == 0 ? 0 : 1);
        if (atteso != 0) QVERIFY(forma.tasti[0] == foglio.TastoDi(atteso).tasto);
        QCOMPARE(forma.DecodificaSegnali(colonna, riga), atteso);
      }
    }
  }

  void aReportWithTheThirdCharacterTwoIsDroppedOnAValidCell() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    scena.rete.manda("BB2");
    QVERIFY(forma.tasti.empty());
    scena.rete.manda("BB");
    QVERIFY(forma.tasti == kPrimo);
  }

  void aReportOfOneCharacterEndsTheProgramWithTheBoxOfTheRunTime() {
    Scena scena;
    scena.apriPronta();
    scena.rete.manda("B");
    QCOMPARE(scena.errore(), QStringLiteral("Errore di run-time '5':\n\nChiamata di routine o "
                                            "argomento non validi"));
    QCOMPARE(scena.fine.stato, std::optional(1));
  }

  void twoReportsThatArriveTogetherAreOneTouch() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    scena.rete.accoda("BB1");
    scena.rete.accoda("JB1");
    QCoreApplication::processEvents();
    QVERIFY(forma.tasti == kPrimo);
    scena.rete.manda("JB1");
    QVERIFY((forma.tasti == kPrimiDue));
  }

  void anOkInTwoPiecesIsNoOk() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    scena.rete.manda("O");
    scena.rete.manda("K");
    QVERIFY(!forma.HelpiKeysConnesso());
    QVERIFY(!scena.fine.stato);
  }

  void bytesOfZeroAnd255AndAMegabyteDoNothing() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    scena.rete.manda(QByteArray(3, '\0'));
    scena.rete.manda(QByteArray(3, '\xff'));
    scena.rete.manda(QByteArray(1 << 20, '\xff'));
    QVERIFY(forma.tasti.empty());
    QVERIFY(!scena.fine.stato);
    scena.rete.manda(QByteArray(1 << 20, 'B'));
    QVERIFY(forma.tasti == kPrimo);
  }

  void aTouchThatIsQueuedWhenTheFormIsLeftDoesNothing() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    const auto resta = forma.shared_from_this();
    scena.rete.accoda("BB1");
    forma.mnuEsci.click();
    QCoreApplication::processEvents();
    QVERIFY(forma.tasti.empty());
  }

  void touchesGoOnWhileTheBoxOfTheOkStandsOpen() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    scena.messaggi.mentreAperto = [&scena] { scena.rete.manda("BB1"); };
    scena.rete.manda("OK");
    QVERIFY(forma.tasti == kPrimo);
  }

  void aFormThatIsLeftWhileTheBoxStandsOpenGoesQuietly() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    scena.messaggi.mentreAperto = [&forma] { forma.mnuEsci.click(); };
    scena.rete.manda("OK");
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormMenuPLU"));
    QVERIFY(!scena.fine.stato);
  }

  void aKeyThatWaitsLetsFurtherTouchesIn() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    bool gia = false;
    forma.alTasto = [&] {
      if (std::exchange(gia, true)) return;
      scena.rete.accoda("JB1");
      forma.letEventsRun();
    };
    scena.rete.manda("BB1");
    QVERIFY((forma.tasti == kPrimiDue));
  }

  void theFlipStartsAnewWithTheForm() {
    Scena scena;
    scena.apriPronta();
    scena.mostra(forme::kFormMenuPLU);
    auto& menu = *scena.ambiente->fondo.forms().current();
    for (const auto& forma : scena.ambiente->fondo.forms().all()) {
      if (forma.get() != &menu) scena.ambiente->fondo.forms().unload(*forma);
    }
    QCoreApplication::processEvents();
    FormDiProva& nuova = scena.apri();
    QVERIFY(!nuova.HelpiKeysConnesso());
    scena.rete.manda("BB1");
    QVERIFY(nuova.tasti.empty());
  }
};

const prova::Iscrizione<TocchiHelpiKeysTest, QApplication> kIscritta;

}  // namespace tocchi_helpikeys_test

#include "tocchi_helpikeys_test.moc"
