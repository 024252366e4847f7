#include "tools/swf/filmato.h"

#include <QTest>

#include "support/iscrizione.h"
#include "tests/tools/swf/passeggiata.h"

namespace filmato_test {

using namespace somme::swf;
using prove::leggi;

static Forma quadrato() {
  return Forma().dipingi(Percorso().rettangolo({0, 0, 10, 10}), Riempimento::tinta({1, 2, 3}));
}

static Filmato semplice() {
  Filmato filmato(
      {.larghezza = 210, .altezza = 90, .fotogrammiAlSecondo = 12.5, .sfondo = {10, 20, 30}});
  const auto forma = filmato.definisci(quadrato());
  LineaTempo clip;
  clip.poni(1, forma).mostra(2);
  filmato.scena().poni(1, filmato.definisci(clip), {.nome = "pezzo"}).mostra(3);
  return filmato;
}

class FilmatoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theHeadTellsStageRateFramesAndLength() {
    const auto byte = semplice().byte();
    const auto letto = leggi(byte);
    QCOMPARE(letto.firma, std::string("CWS"));
    QCOMPARE(letto.versione, 6);
    QCOMPARE(letto.lunghezza, letto.disteso);
    QCOMPARE(letto.palco.xMassimo, 4200);
    QCOMPARE(letto.palco.yMassimo, 1800);
    QCOMPARE(letto.cadenza, 12.5);
    QCOMPARE(letto.scena.dichiarati, 3);
    QCOMPARE(letto.scena.mostrati, 3);
  }

  void withoutCompressionTheSameFollowsInTheClear() {
    const auto chiaro = leggi(semplice().byte(Filmato::Compressione::Nessuna));
    const auto compresso = leggi(semplice().byte());
    QCOMPARE(chiaro.firma, std::string("FWS"));
    QCOMPARE(chiaro.lunghezza, compresso.lunghezza);
    QCOMPARE(chiaro.etichette.size(), compresso.etichette.size());
  }

  void theBackgroundComesFirstAndTheEndLast() {
    const auto letto = leggi(semplice().byte());
    QCOMPARE(letto.etichette.front().codice, 9);
    QCOMPARE(letto.etichette.front().corpo, (prove::Byte{10, 20, 30}));
    QCOMPARE(letto.etichette.back().codice, 0);
  }

  void aClipHasFramesAndAnEndOfItsOwn() {
    const auto letto = leggi(semplice().byte());
    const auto posto = letto.posto("pezzo");
    QVERIFY(posto.has_value());
    const auto& clip = letto.clip.at(posto->carattere);
    QCOMPARE(clip.dichiarati, 2);
    QCOMPARE(clip.mostrati, 2);
    QCOMPARE(clip.posti.size(), std::size_t(1));
    QVERIFY(letto.forme.contains(clip.posti[0].carattere));
  }

  void theSameMovieGivesTheSameBytes() { QCOMPARE(semplice().byte(), semplice().byte()); }

  void withoutAFrameThereIsNoMovieAndNoClip() {
    Filmato filmato({.larghezza = 1, .altezza = 1});
    QVERIFY_THROWS_EXCEPTION(std::length_error, (void)filmato.byte());
    QVERIFY_THROWS_EXCEPTION(std::length_error, filmato.definisci(LineaTempo()));
  }
};

const prova::Iscrizione<FilmatoTest> kIscritta;

}  // namespace filmato_test

#include "filmato_test.moc"
