#include "filmati_altrui.h"

#include <QApplication>

#include "blocchi_toccati.h"
#include "exercises/blocks/forma_blocchi_tastiera.h"
#include "support/iscrizione.h"

namespace filmati_altrui_test {

using namespace prova;
using namespace prova::toccati;
using somme::FormaBlocchiTastiera;

namespace {

// A form on which the joined board is another artist's.
FormaBlocchiTastiera& apriLUCon(Banco& banco, const QByteArray& filmato, int addendo1,
                                int addendo2) {
  banco.metti(kUnione, filmato);
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambio;
  banco.sorte.scrivi(casoLU(addendo1, addendo2));
  return banco.apri<FormaBlocchiTastiera>(somme::forme::kFormLU);
}
FormaBlocchiTastiera& apriHLUCon(Banco& banco, const QByteArray& filmato, int addendo1,
                                 int addendo2) {
  banco.metti(kUnioneHDU, filmato);
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambi;
  banco.sorte.scrivi(casoHLU(addendo1, addendo2));
  return banco.apri<FormaBlocchiTastiera>(somme::forme::kFormHLU);
}

bool siVede(const platform::Board& tavola, const char* clip) {
  return Banco::siVede(tavola, QString::fromLatin1(clip));
}
QString detto(const platform::Board& tavola) {
  return tavola.widget()->accessibleDescription();
}

}  // namespace

// The blocks with movies of another hand: whatever the frames of the joined board take away and
// bring back, it shows the blocks of its own case.
class FilmatiAltruiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCarryBrokenOffLeavesNoUnitsOnTheNextCasesBoard() {
    Banco banco;
    banco.metti(kUnione, cheToglieLeDieci(3));
    auto& forma = apriLU(banco, 27, 15);
    unisciToccando(banco);
    bool tolte = false;
    banco.tempo.after(1, [&] {
      tolte = Banco::proprieta(forma.ShockwaveFlash3, QStringLiteral("u1"),
                               platform::Board::Property::Visible)
                  .isEmpty();
      banco.sorte.scrivi(casoLU(21, 4));
      premi(banco, kAvanti);
    });
    premi(banco, kCambioUDa);
    banco.tempo.advance(10);
    QVERIFY(tolte);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("0da 0u"));
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("2da 5u"));
    QCOMPARE(detto(forma.ShockwaveFlash3), QStringLiteral("2 decine, 5 unità"));
  }

  void aNewCaseBetweenTheWordAndTheEndOfTheWaitLeavesNoTraceEither() {
    Banco banco;
    banco.metti(kUnioneHDU, cheRimetteDopoLaParola(10));
    auto& forma = apriHLU(banco, 167, 258);
    unisciToccando(banco);
    // The word comes after 0.8 seconds, the ten come back 0.4 seconds later.
    banco.tempo.after(1, [&] {
      QVERIFY(siVede(forma.ShockwaveFlash3, "da12"));
      banco.sorte.scrivi(casoHLU(21, 4));
      premi(banco, kAvanti);
    });
    premi(banco, kCambioUDa);
    banco.tempo.advance(10);
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, QStringLiteral("da u")), QStringLiteral("2da 5u"));
  }

  void aStretchThatIsLongerThanItsWaitIsBrokenOffByTheNextCase() {
    Banco banco;
    FormaBlocchiTastiera& forma = apriLUCon(banco, cheToglieLeDieci(6), 27, 15);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambio);
    QVERIFY(forma.TestoInput.isVisible());
    banco.sorte.scrivi(casoLU(21, 4));
    rispondi(banco, forma, QStringLiteral("42"));
    banco.clicca(forma.PulsanteAvanti);
    banco.tempo.advance(10);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("0da 0u"));
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("2da 5u"));
  }

  void afterACarryTheBoardShowsWhatIsLeftThoughAllBlocksComeBackWithTheFirstFrame() {
    Banco banco;
    FormaBlocchiTastiera& forma = apriLUCon(banco, cheToglieTutto(), 27, 15);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 12u"));
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, QStringLiteral("da")), QStringLiteral("4da"));
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u")), -1);
    QVERIFY(!siVede(forma.ShockwaveFlash3, "u10"));
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u"), 11), 2);
    QCOMPARE(detto(forma.ShockwaveFlash3), QStringLiteral("4 decine, 2 unità"));
    // And so in the next case.
    banco.sorte.scrivi(casoLU(38, 9));
    rispondi(banco, forma, QStringLiteral("42"));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 17u"));
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u"), 11), 7);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, QStringLiteral("da")), QStringLiteral("4da"));
  }

  void tenThatComeBackAfterTheWordAreHiddenWhenTheWaitIsOver() {
    Banco banco;
    FormaBlocchiTastiera& forma = apriHLUCon(banco, cheRimetteDopoLaParola(2), 167, 258);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambioUDa);
    QVERIFY(!siVede(forma.ShockwaveFlash3, "u1"));
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u"), 11), 5);
    banco.clicca(*forma.PulsanteCambioDaH);
    QVERIFY(!siVede(forma.ShockwaveFlash3, "da10"));
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da"), 11), 2);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(detto(forma.ShockwaveFlash3), QStringLiteral("4 centinaia, 2 decine, 5 unità"));
  }

  void aSecondStretchThatBeginsWithTheWholeBoardShowsNoUnitsThatAreGone() {
    Banco banco;
    FormaBlocchiTastiera& forma = apriHLUCon(banco, cheRicominciaIntero(), 167, 258);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambioUDa);
    bool inCorso = false;
    banco.tempo.after(0.4, [&] {
      inCorso = Banco::filmato(forma.ShockwaveFlash3).currentFrame() > 51;
      QVERIFY(!siVede(forma.ShockwaveFlash3, "u1"));
      QVERIFY(!siVede(forma.ShockwaveFlash3, "u10"));
      QVERIFY(!siVede(forma.ShockwaveFlash3, "u19"));
    });
    banco.clicca(*forma.PulsanteCambioDaH);
    QVERIFY(inCorso);
    QVERIFY(!siVede(forma.ShockwaveFlash3, "u1"));
  }

  void flatsThatStayFromCaseToCaseStayThoughTheMovieHasBroughtOthers() {
    Banco banco;
    banco.metti(kUnioneHDU, cheScambiaIPiatti());
    auto& forma = apriHLU(banco, 213, 219);
    unisciToccando(banco);
    banco.tempo.after(1, [&] {
      banco.sorte.scrivi(casoHLU(101, 112));
      premi(banco, kAvanti);
    });
    premi(banco, kCambioUDa);
    banco.tempo.advance(10);
    QCOMPARE(detto(forma.ShockwaveFlash3), QStringLiteral("4 centinaia"));
    unisciToccando(banco);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieHLU), QStringLiteral("4h 1da 3u"));
    QCOMPARE(detto(forma.ShockwaveFlash3), QStringLiteral("4 centinaia, 1 decina, 3 unità"));
  }

  void aMovieWithoutASingleNameIsPlayedToItsEnd() {
    Banco banco;
    FormaBlocchiTastiera& forma = apriLUCon(banco, senzaNomi(), 27, 15);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(detto(forma.ShockwaveFlash3), QStringLiteral("4 decine, 2 unità"));
    rispondi(banco, forma, QStringLiteral("42"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void wordsThatComeTwiceCarryOnce() {
    Banco banco;
    FormaBlocchiTastiera& forma = apriLUCon(banco, cheParlaTroppo(), 27, 15);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(detto(forma.ShockwaveFlash3), QStringLiteral("4 decine, 2 unità"));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, QStringLiteral("da")), QStringLiteral("4da"));
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u"), 11), 2);
  }

  void aWordThatAClipOfTheMovieSaysInALaterCaseIsNoCarryOfIt() {
    Banco banco;
    FormaBlocchiTastiera& forma = apriLUCon(banco, conUnEco(), 27, 15);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambio);
    banco.sorte.scrivi(casoLU(2, 3));
    rispondi(banco, forma, QStringLiteral("42"));
    banco.clicca(forma.PulsanteAvanti);
    unisci(banco, forma);
    banco.tempo.advance(10);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("0da 5u"));
    QCOMPARE(detto(forma.ShockwaveFlash3), QStringLiteral("5 unità"));
  }
};

const prova::Iscrizione<FilmatiAltruiTest, QApplication> kIscritta;

}  // namespace filmati_altrui_test

#include "filmati_altrui_test.moc"
