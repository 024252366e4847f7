#include "blocchi_entro99.h"

#include <QApplication>
#include <cmath>

#include "support/iscrizione.h"

namespace blocchi_entro99_test {

using namespace prova;
using namespace prova::entro99;
using somme::FormaBlocchiTastiera;

// Longs and units up to 99, as a pupil uses them: the boards, from the first block to the carry.
class BlocchiEntro99Test : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCaseBeginsWithTwoEmptyBoardsAndTheButtonsUnderTheFirst() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
    QVERIFY(forma.ShockwaveFlash1.isVisible());
    QVERIFY(forma.ShockwaveFlash2.isVisible());
    QVERIFY(!forma.ShockwaveFlash3.isVisible());
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("0da 0u"));
    QVERIFY(incorniciata(forma, forma.Label1));
    QCOMPARE(forma.pulsanti.PicturePulsanti.left(), forma.Label1.left());
    QVERIFY(forma.pulsanti.PicturePulsanti.isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    QVERIFY(!forma.PulsanteCambio->isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    // The verdict of no answer yet.
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
  }

  void theBoardsStandWhereTheirLabelsDo() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    const std::pair<platform::Board*, platform::Label*> coppie[] = {
        {&forma.ShockwaveFlash1, &forma.Label1},
        {&forma.ShockwaveFlash2, &forma.Label2},
        {&forma.ShockwaveFlash3, &forma.Label3}};
    for (const QSize lato : {QSize(1024, 768), QSize(700, 500)}) {
      banco.ridimensiona(lato);
      for (const auto& [tavola, ancora] : coppie) {
        QVERIFY(std::abs(tavola->left() - ancora->left()) < 1e-6);
        QVERIFY(std::abs(tavola->top() - ancora->top()) < 1e-6);
        QVERIFY(std::abs(tavola->width() - ancora->width()) < 1e-6);
        QVERIFY(std::abs(tavola->height() - ancora->height()) < 1e-6);
      }
    }
  }

  void noBlockIsEverPaintedBeforeThePupilPutsIt() {
    OcchioSuiBlocchi occhio(QStringLiteral("u1"));
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    forma.page()->grab();
    banco.riattiva();
    forma.page()->grab();
    QVERIFY(occhio.dipinti > 0);
    QCOMPARE(occhio.visti, 0);
    banco.clicca(forma.pulsanti.PulsanteU);
    forma.page()->grab();
    QVERIFY(occhio.visti > 0);
  }

  void eachPressPutsTheNextBlock() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    banco.clicca(forma.pulsanti.PulsanteDa);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("1da 0u"));
    ripeti(banco, forma.pulsanti.PulsanteU, 3);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("1da 3u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0da 0u"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void theTenthBlockIsSilentlyRefused() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    ripeti(banco, forma.pulsanti.PulsanteU, 10);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("0da 9u"));
    ripeti(banco, forma.pulsanti.PulsanteDa, 10);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("9da 9u"));
    QVERIFY(banco.suono.suonati.isEmpty());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void aRefusedBlockIsNotCounted() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 19, 13);
    banco.clicca(forma.pulsanti.PulsanteDa);
    ripeti(banco, forma.pulsanti.PulsanteU, 12);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(incorniciata(forma, forma.Label2));
  }

  void theBasketEmptiesTheBoardInUseAndCostsNothing() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    costruisci(banco, forma, 24);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    costruisci(banco, forma, 35);
    banco.clicca(forma.pulsanti.PulsanteCestino);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("2da 4u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0da 0u"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(banco.suono.suonati.size(), 1);
    costruisci(banco, forma, 13);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QVERIFY(forma.TestoInput.isVisible());
  }

  void aWrongBoardCountsAndKeepsItsBlocksToBeMended() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    costruisci(banco, forma, 23);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{suono(banco, "no")});
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("2da 3u"));
    QVERIFY(incorniciata(forma, forma.Label1));
    banco.clicca(forma.pulsanti.PulsanteU);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QVERIFY(incorniciata(forma, forma.Label2));
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
  }

  void everyWrongBoardCountsOnItsOwnWithoutLimit() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    ripeti(banco, forma.pulsanti.PulsanteConferma, 5);
    costruisci(banco, forma, 24);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    ripeti(banco, forma.pulsanti.PulsanteConferma, 2);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(7));
    QVERIFY(incorniciata(forma, forma.Label2));
  }

  void anEmptyBoardIsWrong() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
  }

  void anEmptyBoardIsRightForAnAddendOfNothing() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 0, 13);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(incorniciata(forma, forma.Label2));
  }

  void theRightFirstBoardLeadsToTheSecond() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    costruisci(banco, forma, 24);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.suono.suonati, QStringList{suono(banco, "si")});
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(forma.pulsanti.PicturePulsanti.left(), forma.Label2.left());
    QVERIFY(incorniciata(forma, forma.Label2));
    banco.clicca(forma.pulsanti.PulsanteU);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("2da 4u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0da 1u"));
  }

  void theRightSecondBoardIsJoinedWithTheFirstAfterTwoSeconds() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    costruisci(banco, forma, 24);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    costruisci(banco, forma, 13);
    bool guardato = false;
    banco.tempo.after(1.9, [&] {
      guardato = true;
      QVERIFY(forma.ShockwaveFlash1.isVisible());
      QVERIFY(!forma.ShockwaveFlash3.isVisible());
      QVERIFY(!forma.pulsanti.PicturePulsanti.isVisible());
      QVERIFY(incorniciata(forma, forma.Label3));
      QCOMPARE(banco.suono.suonati.size(), 2);
      QVERIFY(!forma.TestoInput.isVisible());
    });
    const double prima = adesso(banco);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QVERIFY(guardato);
    QVERIFY(std::abs(adesso(banco) - prima - 2) < 0.05);
    QVERIFY(!forma.ShockwaveFlash1.isVisible());
    QVERIFY(!forma.ShockwaveFlash2.isVisible());
    QVERIFY(forma.ShockwaveFlash3.isVisible());
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("3da 7u"));
    QVERIFY(forma.TestoInput.isVisible());
    QVERIFY(forma.TestoInput.hasFocus());
    QVERIFY(!forma.PulsanteCambio->isVisible());
  }

  void twelveUnitsAskForTheCarryAndTwoRemain() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("3da 12u"));
    QVERIFY(forma.PulsanteCambio->isVisible());
    QVERIFY(!forma.PulsanteCambio->hasFocus());
    QVERIFY(!forma.TestoInput.isVisible());
    bool guardato = false;
    banco.tempo.after(3.9, [&] {
      guardato = true;
      QVERIFY(!forma.PulsanteCambio->isVisible());
      QVERIFY(!forma.TestoInput.isVisible());
      // The movie has said its word inside the wait.
      QVERIFY(Banco::siVede(forma.ShockwaveFlash3, QStringLiteral("da4")));
    });
    const double prima = adesso(banco);
    banco.clicca(*forma.PulsanteCambio);
    QVERIFY(guardato);
    QVERIFY(std::abs(adesso(banco) - prima - 4) < 0.05);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 4);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u"), 11), 2);
    for (int i = 1; i <= 10; ++i) {
      QVERIFY(!Banco::siVede(forma.ShockwaveFlash3, QStringLiteral("u%1").arg(i)));
    }
    QCOMPARE(Banco::filmato(forma.ShockwaveFlash3).currentFrame(), 1);
    QVERIFY(forma.TestoInput.hasFocus());
    QCOMPARE(banco.suono.suonati.size(), 2);
    rispondi(banco, forma, QStringLiteral("42"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theFormDecidesOnTheArgumentOfTheJoinedBoardsWordAlone() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    unisci(banco, forma);
    const QString cambio = QStringLiteral("cambio");
    const QString altro = QStringLiteral("altro");
    Q_EMIT Banco::filmato(forma.ShockwaveFlash3).fsCommand(cambio, altro);
    Q_EMIT Banco::filmato(forma.ShockwaveFlash1).fsCommand(cambio, cambio);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("3da 12u"));
    Q_EMIT Banco::filmato(forma.ShockwaveFlash3).fsCommand(altro, cambio);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 4);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u"), 11), 2);
  }

  void eventsRunOnceBetweenTheJoiningAndTheButtonOfTheCarry() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    bool scorsi = false;
    bool primaDelCambio = false;
    const AlMostrarsi unite(forma.ShockwaveFlash3, [&] {
      QMetaObject::invokeMethod(
          qApp, [&] { scorsi = true; }, Qt::QueuedConnection);
    });
    const AlMostrarsi cambio(*forma.PulsanteCambio, [&] { primaDelCambio = scorsi; });
    unisci(banco, forma);
    QVERIFY(forma.PulsanteCambio->isVisible());
    QVERIFY(primaDelCambio);
  }

  void tenUnitsAreEnoughForTheCarryAndNoneRemains() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 5, 5);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("1da 0u"));
  }

  void nineUnitsHaveNoCarryAndTheBoxComesAtOnce() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 14, 25);
    unisci(banco, forma);
    QVERIFY(!forma.PulsanteCambio->isVisible());
    QVERIFY(forma.TestoInput.hasFocus());
  }

  void theTenCarriedUnitsStandInTheirPlacesAgainInTheNextCase() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    unisci(banco, forma);
    const auto posto = [&](int i) {
      return Banco::filmato(forma.ShockwaveFlash3).clipPlace(QStringLiteral("u%1").arg(i));
    };
    std::vector<QRectF> prima;
    for (int i = 1; i <= 10; ++i) prima.push_back(posto(i));
    banco.clicca(*forma.PulsanteCambio);
    rispondi(banco, forma, QStringLiteral("42"));
    banco.sorte.scrivi(caso(24, 13));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    for (int i = 1; i <= 10; ++i) QCOMPARE(posto(i), prima[std::size_t(i - 1)]);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("3da 7u"));
  }

  void aClickOnABlockDoesNothing() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    costruisci(banco, forma, 24);
    QSignalSpy comandi(&Banco::filmato(forma.ShockwaveFlash1),
                       &platform::flash::MovieView::fsCommand);
    banco.cliccaClip(forma.ShockwaveFlash1, QStringLiteral("da2"));
    banco.cliccaClip(forma.ShockwaveFlash1, QStringLiteral("u4"));
    QCOMPARE(comandi.size(), 0);
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("2da 4u"));
  }

  void withoutItsMoviesTheExerciseGoesOn() {
    Banco banco;
    togliFilmati(banco);
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambio);
    rispondi(banco, forma, QStringLiteral("42"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void whatStandsOnEachBoardIsToldInWords() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    const auto parole = [](const platform::Board& tavola) {
      return tavola.widget()->accessibleDescription();
    };
    QCOMPARE(forma.ShockwaveFlash1.widget()->accessibleName(), QStringLiteral("Primo addendo"));
    QCOMPARE(parole(forma.ShockwaveFlash1), QStringLiteral("vuoto"));
    banco.clicca(forma.pulsanti.PulsanteDa);
    forma.pulsanti.PulsanteU.setFocus();
    banco.clicca(forma.pulsanti.PulsanteU);
    QCOMPARE(parole(forma.ShockwaveFlash1), QStringLiteral("1 decina, 1 unità"));
    QCOMPARE(banco.annunci.detti.last(), QStringLiteral("1 decina, 1 unità"));
    banco.clicca(forma.pulsanti.PulsanteCestino);
    QCOMPARE(parole(forma.ShockwaveFlash1), QStringLiteral("vuoto"));
    unisci(banco, forma);
    QCOMPARE(parole(forma.ShockwaveFlash1), QStringLiteral("2 decine, 7 unità"));
    QCOMPARE(parole(forma.ShockwaveFlash2), QStringLiteral("1 decina, 5 unità"));
    QCOMPARE(parole(forma.ShockwaveFlash3), QStringLiteral("3 decine, 12 unità"));
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(parole(forma.ShockwaveFlash3), QStringLiteral("4 decine, 2 unità"));
  }

  void theBoardsSpeakTheLanguageInUse() {
    Banco banco;
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("English");
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    costruisci(banco, forma, 27);
    QCOMPARE(forma.ShockwaveFlash1.widget()->accessibleName(), QStringLiteral("First addend"));
    QCOMPARE(forma.ShockwaveFlash1.widget()->accessibleDescription(),
             QStringLiteral("2 tens, 7 units"));
  }

  void soundsOffKeepTheVerdictsSilent() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    banco.ambiente->stato.SuoniAttivi = false;
    banco.clicca(forma.pulsanti.PulsanteConferma);
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("37"));
    QVERIFY(banco.suono.suonati.isEmpty());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void thePointerIsTheSystemsArrowOnlyWhenTheSettingAsksForIt() {
    for (const bool diSistema : {false, true}) {
      Banco banco;
      banco.ambiente->stato.CursoreDiSistema = diSistema;
      FormaBlocchiTastiera& forma = apri(banco, 24, 13);
      for (const platform::Button* pulsante :
           {&forma.pulsanti.PulsanteDa, &forma.pulsanti.PulsanteU, &forma.pulsanti.PulsanteCestino,
            &forma.pulsanti.PulsanteConferma, &*forma.PulsanteCambio, &forma.PulsanteAvanti}) {
        QCOMPARE(pulsante->mousePointer(), diSistema ? 0 : 99);
      }
    }
  }
};

const prova::Iscrizione<BlocchiEntro99Test, QApplication> kIscritta;

}  // namespace blocchi_entro99_test

#include "blocchi_entro99_test.moc"
