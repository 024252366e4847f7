#include "tools/swf/geometria.h"

#include <QTest>

#include "support/iscrizione.h"
#include "tests/tools/swf/passeggiata.h"

namespace geometria_test {

using namespace somme::swf;
using prove::bit;
using prove::Byte;

template <typename T>
static Byte scritto(const T& cosa) {
  ScrittoreByte b;
  scrivi(b, cosa);
  return b.byte();
}

class GeometriaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void lengthsAreRoundedToTwentieths() {
    QCOMPARE(twip(1), 20);
    QCOMPARE(twip(-0.524), -10);
    QCOMPARE(twip(0.526), 11);
  }

  void aLengthThatNoFieldHoldsIsRefused() {
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)twip(1e9));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)twip(std::nan("")));
  }

  // 15 bits a field: 01111, then 0, 11000, 0, 8000 twentieths.
  void factorsAndColorsThatNoFieldHoldsAreRefused() {
    QCOMPARE(scritto(Matrice{.a = 16000, .d = 1}).empty(), false);
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)scritto(Matrice{.a = 16384, .d = 1}));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)scritto(Matrice{.a = 1, .d = -1e6}));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range,
                             (void)scritto(TrasformaColore{.rosso = {.per = 16384}}));
  }

  void aStageOf550By400IsWrittenAsTheFormatSays() {
    QCOMPARE(scritto(Rettangolo{0, 0, 550, 400}),
             (Byte{0x78, 0x00, 0x05, 0x5F, 0x00, 0x00, 0x0F, 0xA0, 0x00}));
  }

  void aPlainMoveHasOnlyATranslation() {
    QCOMPARE(scritto(spostato({5, -3})), bit("0 0 01000 01100100 11000100"));
  }

  // A half is 0x8000 with 16 binary places, which takes 17 bits with its sign.
  void aScaleHasSixteenBinaryPlaces() {
    QCOMPARE(scritto(scalato(0.5)), bit("1 10001 01000000000000000 01000000000000000 0 00001 0 0"));
  }

  // What leads from x to y stands before what leads from y to x.
  void aQuarterTurnKeepsWhichWayIsWhich() {
    QCOMPARE(scritto(Matrice{.a = 0, .b = 1, .c = -1, .d = 0}),
             bit("1 00001 0 0 1 10010 010000000000000000 110000000000000000 00001 0 0"));
  }

  void aColorLeftAsItIsTakesOneByte() { QCOMPARE(scritto(TrasformaColore{}), (Byte{0})); }

  // Factors only, no summands.
  void halfOpaqueMultipliesTheFourthChannel() {
    QCOMPARE(scritto(velato(0.5)), bit("0 1 1010 0100000000 0100000000 0100000000 0010000000"));
  }

  void lighterScalesDownAndAddsTheRest() {
    const TrasformaColore t = schiarito(0.25);
    QCOMPARE(t.rosso.per, 192);
    QCOMPARE(t.blu.piu, 64);
    QCOMPARE(t.opacita.per, 256);
    QCOMPARE(t.opacita.piu, 0);
  }
};

const prova::Iscrizione<GeometriaTest> kIscritta;

}  // namespace geometria_test

#include "geometria_test.moc"
