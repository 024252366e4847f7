#include "exercises/abacus/forma_abaco_tastiera.h"

#include <QAccessible>
#include <QApplication>

#include "abaco_di_prova.h"
#include "platform/flash/hand_made.h"
#include "platform/flash/movie_view.h"
#include "support/iscrizione.h"

namespace forma_abaco_tastiera_test {

using prova::BancoAbaco;
using prova::kTutti;

// The abacus as an aid to a sum, as a pupil with a mouse uses it; the carry has its own tests.
class FormaAbacoTastieraTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithAQuestionAnEmptyAbacusAndTheBoxBehindTheOperation() {
    BancoAbaco banco(3, BancoAbaco::caso(3, 82, 47));
    somme::FormaAbacoTastiera& forma = banco.forma;
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n"));
    QVERIFY(forma.TestoInput.isVisible());
    QVERIFY(forma.TestoInput.TestoInput.hasFocus());
    QCOMPARE(forma.TestoInput.Text.get(), QString());
    QCOMPARE(forma.TestoInput.top(), forma.EtOperazione.top());
    QCOMPARE(forma.TestoInput.left(), forma.EtOperazione.left() + forma.EtOperazione.width() - 20);
    QCOMPARE(forma.TestoInput.width(), std::floor(std::round(forma.EtOperazione.width()) / 2));
    QCOMPARE(forma.TestoInput.height(), forma.EtOperazione.height());
    QCOMPARE(forma.TestoInput.DimensioneTesto.get(),
             qint16(std::lrint(forma.EtOperazione.fontSize())));
    QVERIFY(forma.PulsanteAvanti.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QVERIFY(!forma.Label1.isVisible());
    QVERIFY(forma.withoutRow().empty());
  }

  void theAbacusLiesWhereItsHiddenLabelLiesAtEverySize() {
    BancoAbaco banco(3);
    const auto& forma = banco.forma;
    banco.ridimensiona({1500, 1100});
    QCOMPARE(forma.ShockwaveFlash1.left(), forma.Label1.left());
    QCOMPARE(forma.ShockwaveFlash1.top(), forma.Label1.top());
    QCOMPARE(forma.ShockwaveFlash1.width(), forma.Label1.width());
    QCOMPARE(forma.ShockwaveFlash1.height(), forma.Label1.height());
  }

  void theFirstLevelHasTensAndUnitsAloneAndTenUnitsStayTenUnits() {
    BancoAbaco banco(1, {{8, 10}, {6, 10}, {4, 8}, {3, 6}});
    QCOMPARE(banco.visti("k") + banco.visti("ka") + banco.visti("h") + banco.visti("ha"),
             QString());
    QCOMPARE(banco.visti("daa"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    banco.metti("ua", 10);
    QCOMPARE(banco.forma.partita().Inserite().unita, 10);
    QCOMPARE(banco.visti("u"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("ua"), QString());
    QVERIFY(!banco.forma.PulsanteCambioUDa.isVisible());
    QVERIFY(!banco.forma.PulsanteCambioDaH.isVisible());
    QVERIFY(!banco.forma.PulsanteCambioHK.isVisible());
  }

  void theTenthUnitEnablesItsArrowAndTakingOneAwayDisablesIt() {
    BancoAbaco banco(3);
    banco.metti("ua", 9);
    QVERIFY(!banco.forma.PulsanteCambioUDa.isEnabled());
    banco.tocca("ua", 9);
    QVERIFY(banco.forma.PulsanteCambioUDa.isEnabled());
    QVERIFY(!banco.forma.PulsanteCambioDaH.isEnabled());
    banco.tocca("u", 4);
    QVERIFY(!banco.forma.PulsanteCambioUDa.isEnabled());
    QCOMPARE(banco.forma.partita().Inserite().unita, 9);
  }

  void eachKindEnablesItsOwnArrowAndTheThousandsNone() {
    BancoAbaco banco(19);
    banco.metti("daa", 10);
    QVERIFY(banco.forma.PulsanteCambioDaH.isEnabled());
    QVERIFY(!banco.forma.PulsanteCambioHK.isEnabled());
    banco.metti("ha", 10);
    QVERIFY(banco.forma.PulsanteCambioHK.isEnabled());
    QVERIFY(!banco.forma.PulsanteCambioUDa.isEnabled());
    banco.metti("ka", 9, 1);
    QCOMPARE(banco.forma.partita().Inserite().migliaia, 9);
    QVERIFY(!banco.forma.PulsanteCambioUDa.isEnabled());
    banco.tocca("h", 0);
    QVERIFY(!banco.forma.PulsanteCambioHK.isEnabled());
    QVERIFY(banco.forma.PulsanteCambioDaH.isEnabled());
  }

  void aClickedBeadGoesToTheTopOfTheSpikeWhicheverItWas() {
    BancoAbaco banco(3);
    banco.tocca("ua", 7);
    QCOMPARE(banco.visti("u"), QStringLiteral("0"));
    QCOMPARE(banco.visti("ua"), QStringLiteral("0 1 2 3 4 5 6 8 9"));
    banco.tocca("ua", 2);
    QCOMPARE(banco.visti("u"), QStringLiteral("0 1"));
    QCOMPARE(banco.visti("ua"), QStringLiteral("0 1 3 4 5 6 8 9"));
    QCOMPARE(banco.forma.partita().Inserite().unita, 2);
    QVERIFY(!banco.forma.partita().InAttesa(somme::Posto::Unita, 2));
    QVERIFY(!banco.forma.partita().InAttesa(somme::Posto::Unita, 7));
    QVERIFY(banco.forma.partita().InAttesa(somme::Posto::Decine, 2));
    QCOMPARE(banco.alfa("u", 1), 100);
  }

  void aSecondClickThatFollowsAtOnceFindsTheBeadGone() {
    BancoAbaco banco(3);
    const auto cliccaDueVolte = [&](const char* nome, int numero) {
      const auto& tavola = banco.forma.ShockwaveFlash1;
      const QRectF posto = BancoAbaco::filmato(tavola).clipPlace(BancoAbaco::clip(nome, numero));
      for (int i = 0; i < 2; ++i) {
        QTest::mouseClick(tavola.widget(), Qt::LeftButton, {}, posto.center().toPoint());
      }
      QCoreApplication::processEvents();
    };
    cliccaDueVolte("ua", 4);
    QCOMPARE(banco.forma.partita().Inserite().unita, 1);
    QCOMPARE(banco.visti("u"), QStringLiteral("0"));
    cliccaDueVolte("u", 0);
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
  }

  void aClickOnAnyBeadOfASpikeTakesTheTopmostAndFillsTheFirstPlace() {
    BancoAbaco banco(3);
    for (const int i : {7, 2, 5}) banco.tocca("daa", i);
    banco.tocca("da", 0);
    QCOMPARE(banco.visti("da"), QStringLiteral("0 1"));
    QCOMPARE(banco.visti("daa"), QStringLiteral("0 1 2 3 4 6 8 9"));
    QCOMPARE(banco.forma.partita().Inserite().decine, 2);
    QVERIFY(banco.forma.partita().InAttesa(somme::Posto::Decine, 2));
    banco.tocca("da", 1);
    banco.tocca("da", 0);
    QCOMPARE(banco.visti("da"), QString());
    QCOMPARE(banco.visti("daa"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.forma.partita().Inserite().decine, 0);
  }

  void theLevelsShowTheirBeadsTheirArrowsAndTakeTheirDigits_data() {
    QTest::addColumn<int>("tipo");
    QTest::addColumn<bool>("centinaia");
    QTest::addColumn<bool>("migliaia");
    QTest::addColumn<int>("cifre");
    QTest::addColumn<QString>("frecce");
    for (int tipo = 1; tipo <= 23; ++tipo) {
      const bool due = tipo <= 5;
      const bool quattro = tipo >= 15;
      const QString frecce = tipo == 1 || tipo == 6 || tipo == 15 ? QStringLiteral("---")
                             : due || tipo == 7                   ? QStringLiteral("u--")
                             : tipo == 8                          ? QStringLiteral("-d-")
                             : quattro                            ? QStringLiteral("udh")
                                                                  : QStringLiteral("ud-");
      QTest::addRow("%d", tipo) << tipo << !due << quattro << (due ? 2 : quattro ? 5 : 3) << frecce;
    }
  }
  void theLevelsShowTheirBeadsTheirArrowsAndTakeTheirDigits() {
    QFETCH(int, tipo);
    QFETCH(bool, centinaia);
    QFETCH(bool, migliaia);
    BancoAbaco banco(qint16(tipo), BancoAbaco::casoDelLivello(tipo));
    const auto& forma = banco.forma;
    QCOMPARE(banco.visti("u") + banco.visti("da") + banco.visti("h") + banco.visti("k"), QString());
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("daa"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("ha"), centinaia ? QString::fromLatin1(kTutti) : QString());
    QCOMPARE(banco.visti("ka"), migliaia ? QStringLiteral("1 2 3 4 5 6 7 8 9") : QString());
    QTEST(int(forma.TestoInput.MaxLength.get()), "cifre");
    QString frecce;
    frecce += forma.PulsanteCambioUDa.isVisible() ? u'u' : u'-';
    frecce += forma.PulsanteCambioDaH.isVisible() ? u'd' : u'-';
    frecce += forma.PulsanteCambioHK.isVisible() ? u'h' : u'-';
    QTEST(frecce, "frecce");
    for (const prova::Ferro& ferro : prova::kFerri) {
      for (int i = 0; i < 10; ++i) QVERIFY(forma.partita().InAttesa(ferro.posto, i));
    }
  }

  void theBinClearsTheAbacusAndNothingElse() {
    BancoAbaco banco(3, BancoAbaco::caso(3, 82, 47));
    banco.rispondi(QStringLiteral("81"));
    banco.metti("ua", 10);
    banco.metti("daa", 4);
    banco.clicca(banco.forma.PulsanteCestino);
    QCOMPARE(banco.visti("u") + banco.visti("da"), QString());
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.visti("daa"), QString::fromLatin1(kTutti));
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    QCOMPARE(banco.forma.partita().Inserite().decine, 0);
    QCOMPARE(banco.forma.TestoInput.Text.get(), QStringLiteral("81"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(banco.forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    // Its arrow stays enabled and refuses.
    QVERIFY(banco.forma.PulsanteCambioUDa.isEnabled());
    const double prima = banco.tempo.secondsSinceMidnight();
    banco.clicca(banco.forma.PulsanteCambioUDa);
    QCOMPARE(banco.tempo.secondsSinceMidnight(), prima);
    QCOMPARE(banco.forma.partita().Inserite().decine, 0);
    QVERIFY(banco.forma.PulsanteCambioUDa.isEnabled());
  }

  void theBeadOfNumberNoughtOfTheThousandsNeverShows() {
    BancoAbaco banco(19);
    QVERIFY(!banco.vede("ka", 0));
    banco.metti("ka", 9, 1);
    banco.clicca(banco.forma.PulsanteCestino);
    QVERIFY(!banco.vede("ka", 0));
    // A click where it would stand does nothing.
    banco.tocca("ka", 0);
    QCOMPARE(banco.forma.partita().Inserite().migliaia, 0);
    // The tenth thousand comes by a carry and takes it; given back, it is not seen either.
    banco.metti("ka", 9, 1);
    banco.metti("ha", 10);
    banco.clicca(banco.forma.PulsanteCambioHK);
    QCOMPARE(banco.forma.partita().Inserite().migliaia, 10);
    QCOMPARE(banco.visti("k"), QString::fromLatin1(kTutti));
    QVERIFY(!banco.vede("ka", 0));
    banco.tocca("k", 0);
    QCOMPARE(banco.forma.partita().Inserite().migliaia, 9);
    QCOMPARE(banco.visti("ka"), QString());
    banco.tocca("k", 0);
    QCOMPARE(banco.visti("ka"), QStringLiteral("1"));
  }

  void theWayOutLeadsToTheMainMenu() {
    BancoAbaco banco(3);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
  }

  void thePrintPanelCoversTheAbacus() {
    BancoAbaco banco(3);
    banco.batti(Qt::Key_S, Qt::AltModifier);
    QVERIFY(banco.forma.PictureStampa.isVisible());
    banco.tocca("ua", 0);
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    banco.clicca(banco.forma.CommandChiudi);
    banco.tocca("ua", 0);
    QCOMPARE(banco.forma.partita().Inserite().unita, 1);
  }

  void whatStandsOnTheAbacusIsToldInTheWordsOfTheLanguage() {
    BancoAbaco banco(19);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    banco.metti("daa", 3);
    banco.metti("ua", 4);
    QCOMPARE(banco.detto(), QStringLiteral("3 decine, 4 unità"));
    banco.metti("ka", 1, 5);
    banco.tocca("da", 0);
    QCOMPARE(banco.detto(), QStringLiteral("1 migliaio, 2 decine, 4 unità"));
    QAccessibleInterface* voce =
        QAccessible::queryAccessibleInterface(banco.forma.ShockwaveFlash1.widget());
    QCOMPARE(voce->text(QAccessible::Name), QStringLiteral("Abaco"));
    QCOMPARE(voce->text(QAccessible::Description), banco.detto());
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("English");
    banco.clicca(banco.forma.PulsanteCestino);
    QCOMPARE(banco.detto(), QStringLiteral("empty"));
  }

  void eachBeadIsAButtonOfAssistiveTechnologyNamedByWhatItDoes() {
    BancoAbaco banco(7);
    QAccessibleInterface* abaco =
        QAccessible::queryAccessibleInterface(banco.forma.ShockwaveFlash1.widget());
    QMap<QString, int> presenti;
    for (int i = 0; i < abaco->childCount(); ++i) {
      if (!abaco->child(i)->state().invisible) ++presenti[abaco->child(i)->text(QAccessible::Name)];
    }
    QCOMPARE(presenti, (QMap<QString, int>{{QStringLiteral("1 centinaio da mettere"), 10},
                                           {QStringLiteral("1 decina da mettere"), 10},
                                           {QStringLiteral("1 unità da mettere"), 10}}));
    banco.premiPallina(banco.forma, QStringLiteral("1 centinaio da mettere"));
    banco.premiPallina(banco.forma, QStringLiteral("1 decina da mettere"));
    banco.premiPallina(banco.forma, QStringLiteral("1 decina da mettere"));
    banco.premiPallina(banco.forma, QStringLiteral("1 unità da mettere"));
    QCOMPARE(banco.detto(), QStringLiteral("1 centinaio, 2 decine, 1 unità"));
    QCOMPARE(banco.visti("da"), QStringLiteral("0 1"));
    QCOMPARE(banco.visti("daa"), QStringLiteral("2 3 4 5 6 7 8 9"));
    banco.premiPallina(banco.forma, QStringLiteral("1 decina da togliere"));
    banco.premiPallina(banco.forma, QStringLiteral("1 unità da togliere"));
    QCOMPARE(banco.detto(), QStringLiteral("1 centinaio, 1 decina"));
    QVERIFY(!banco.premiPallina(banco.forma, QStringLiteral("1 unità da togliere")));
    QVERIFY(!banco.premiPallina(banco.forma, QStringLiteral("1 migliaio da mettere")));
  }

  void aBeadIsCalledInTheLanguageOfTheForm() {
    BancoAbaco banco(19);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("English");
    const auto& forma = banco.apri<somme::FormaAbacoTastiera>(somme::forme::kFormAbaco);
    QVERIFY(BancoAbaco::premiPallina(forma, QStringLiteral("1 thousand to put on")));
    QCOMPARE(forma.partita().Inserite().migliaia, 1);
    QVERIFY(BancoAbaco::premiPallina(forma, QStringLiteral("1 thousand to take off")));
    QCOMPARE(forma.partita().Inserite().migliaia, 0);
  }

  void aWordThatIsNoneOfTheEightChangesNothingAndAWordWithoutAClipHidesNone() {
    using namespace hand_made;
    const auto dice = [](unsigned id, const QByteArray& parole) {
      return tag(7, u16(id) + u8(9) + u16(1) + u16(1) + shift(0, 0) + u8(0) + parole + u8(0));
    };
    BancoAbaco banco(3);
    banco.Banco::metti(
        QStringLiteral("swf/abaco.swf"),
        file(square(1, 10, 0xFF0000) +
             dice(2, tell("ua1", "UnitaInAttesa") + tell("ua1", "altro") + tell("ua1")) +
             dice(3, tell("", "unitainattesa")) + sprite(4, place(1, 2) + showFrame()) +
             sprite(5, place(1, 3) + showFrame()) + sprite(6, place(1, 1) + showFrame()) +
             place(1, 4, 0, 0, "altre") + place(2, 5, 30, 0, "senza") + place(3, 6, 60, 0, "ua1") +
             place(4, 6, 80, 0, "u0") + showFrame()));
    banco.mostra(somme::forme::kFormAbaco);
    const auto& tavola = banco.forma.ShockwaveFlash1;
    banco.cliccaClip(tavola, QStringLiteral("altre"));
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    QVERIFY(banco.vede("ua", 1));
    QVERIFY(banco.forma.partita().InAttesa(somme::Posto::Unita, 1));
    banco.cliccaClip(tavola, QStringLiteral("senza"));
    QCOMPARE(banco.forma.partita().Inserite().unita, 1);
    QVERIFY(banco.vede("u", 0));
    QCOMPARE(BancoAbaco::proprieta(tavola, {}, platform::Board::Property::Visible),
             QStringLiteral("1"));
  }

  void thePointerIsLeftAloneUnlessTheSystemsIsWanted() {
    BancoAbaco banco(3);
    QCOMPARE(banco.forma.PulsanteCestino.mousePointer(), 99);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    banco.ambiente->stato.CursoreDiSistema = true;
    auto& forma = banco.apri<somme::FormaAbacoTastiera>(somme::forme::kFormAbaco);
    QCOMPARE(forma.PulsanteCestino.mousePointer(), 0);
  }
};

const prova::Iscrizione<FormaAbacoTastieraTest, QApplication> kIscritta;

}  // namespace forma_abaco_tastiera_test

#include "forma_abaco_tastiera_test.moc"
