#include "exercises/core/con_helpikeys.h"

#include <utility>
#include <vector>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/core/disegno_comune.h"
#include "exercises/core/forma_esercizio.h"
#include "support/banco.h"
#include "support/controfigura.h"

using prova::Banco;
using prova::ReteDiProva;
using namespace somme;

namespace {

constexpr std::string_view kNome = "FormDiProva";
constexpr std::string_view kFoglio = forme::kFormStampaLU;

constexpr TastieraHelpiKeys kTastiera{.mappa = kMappaBlocchi, .foglio = kFoglio};

// A touch form of the test's own: it writes down its life and its keys.
class FormDiProva final : public ConHelpiKeys<FormaEsercizio> {
 public:
  explicit FormDiProva(Ambiente& ambiente);

  platform::MenuItem mnuStampaHK{*this};

  void InterpretaSegnale(int tasto) override {
    tasti.push_back(tasto);
    if (alTasto) alTasto();
  }
  using Form::newCase;

  std::vector<int> tasti;
  std::function<void()> alTasto;
  int attivazioni = 0;
  int casi = 0;
  bool HelpiKeysAllAttivazione = false;

 protected:
  void DopoLaRichiesta() override {
    ++attivazioni;
    HelpiKeysAllAttivazione = HelpiKeysConnesso();
  }
  void NuovoCaso() override {
    newCase();
    ++casi;
  }
};

constexpr auto kRighe = std::to_array<platform::Row>({
    disegno::Connessione<FormDiProva>(),
    platform::item<&FormDiProva::mnuStampaHK>({.caption = "Foglio"}),
    platform::item<&FormDiProva::mnuEsci>({.caption = "Esci"}),
});
constexpr std::array<std::span<const platform::Row>, 1> kTavole{kRighe};
constexpr platform::FormDesign kDisegno{
    .name = kNome, .caption = "", .width = 9000, .height = 6000, .tables = kTavole};

FormDiProva::FormDiProva(Ambiente& ambiente)
    : ConHelpiKeys(kTastiera, ambiente, kDisegno, forme::kFormMenuPLU) {
  OffriFoglio(mnuStampaHK);
}

// The program with the touch form of the test, and a stand-in for its keyboard sheet.
std::shared_ptr<platform::Form> crea(Ambiente& ambiente, std::string_view nome) {
  if (nome == kNome) return std::make_shared<FormDiProva>(ambiente);
  if (nome == kFoglio) return std::make_shared<prova::Controfigura>(ambiente, kFoglio);
  return CreaForma(ambiente, nome);
}

struct Scena : Banco {
  Scena() : Banco({800, 600}, crea) {}
  FormDiProva& apri() { return Banco::apri<FormDiProva>(kNome); }
  // The form after HelpiKeys has answered.
  FormDiProva& apriPronta() {
    FormDiProva& forma = apri();
    rete.manda("OK");
    messaggi.mostrati.clear();
    return forma;
  }
  [[nodiscard]] QString errore() const {
    return messaggi.mostrati.empty() ? QString() : messaggi.mostrati.back().text;
  }
};

}  // namespace

// The link of a touch form with HelpiKeys, over its life.
class ConHelpiKeysTest : public QObject {
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
        const int atteso = kMappaBlocchi.Tasto(colonna, riga);
        QCOMPARE(int(forma.tasti.size()), atteso == 0 ? 0 : 1);
        if (atteso != 0) QCOMPARE(forma.tasti[0], atteso);
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
    QVERIFY(forma.tasti == std::vector<int>{1});
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
    QVERIFY(forma.tasti == std::vector<int>{1});
    scena.rete.manda("JB1");
    QVERIFY((forma.tasti == std::vector<int>{1, 2}));
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
    QVERIFY(forma.tasti == std::vector<int>{1});
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

  void aTouchThatIsQueuedWhenTheFormIsLeftDoesNothing() {
    Scena scena;
    FormDiProva& forma = scena.apriPronta();
    const auto resta = forma.shared_from_this();
    scena.rete.accoda("BB1");
    forma.mnuEsci.click();
    QCoreApplication::processEvents();
    QVERIFY(forma.tasti.empty());
  }

  void aFurtherActivationAsksAgainAndItsOkClearsTheFlipUntilTheNext() {
    Scena scena;
    scena.rete.aOgniRichiesta = "OK";
    FormDiProva& forma = scena.apri();
    QVERIFY(forma.HelpiKeysConnesso());
    scena.messaggi.rispondi(platform::BoxAnswer::Yes);
    forma.mnuStampaHK.click();
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormStampaLU"));
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
    QVERIFY(forma.tasti == std::vector<int>{1});
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
    QVERIFY(forma.tasti == std::vector<int>{1});
    QCOMPARE(scena.nomeForma(), QStringLiteral("FormStampaLU"));
  }

  void touchesGoOnWhileTheBoxOfTheOkStandsOpen() {
    Scena scena;
    FormDiProva& forma = scena.apri();
    scena.messaggi.mentreAperto = [&scena] { scena.rete.manda("BB1"); };
    scena.rete.manda("OK");
    QVERIFY(forma.tasti == std::vector<int>{1});
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
    QVERIFY((forma.tasti == std::vector<int>{1, 2}));
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

QTEST_MAIN(ConHelpiKeysTest)
#include "con_helpikeys_test.moc"
