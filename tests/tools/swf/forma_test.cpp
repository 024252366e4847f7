#include "tools/swf/forma.h"

#include <QTest>

#include "support/iscrizione.h"
#include "tests/tools/swf/passeggiata.h"

namespace forma_test {

using namespace somme::swf;
using prove::bit;
using prove::Byte;

static Byte insieme(std::initializer_list<Byte> pezzi) {
  Byte esito;
  for (const auto& pezzo : pezzi) esito.insert(esito.end(), pezzo.begin(), pezzo.end());
  return esito;
}

class FormaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // A red square of one pixel: 20 twentieths a side.
  void aFilledSquareIsWrittenAsTheFormatSays() {
    const Forma forma =
        Forma().dipingi(Percorso().rettangolo({0, 0, 1, 1}), Riempimento::tinta({255, 0, 0}));
    QCOMPARE(forma.byte(),
             insieme({
                 bit("00110 000000 010100 000000 010100"),  // bounds, 6 bits each
                 Byte{1, 0x00, 255, 0, 0, 255},             // one fill: plain, opaque red
                 Byte{0},                                   // no pen
                 bit("0001 0000"                            // one bit for fills, none for pens
                     "0 00101 00000 1"                      // move to 0, 0; right side fill 1
                     "11 0100 0 0 010100"                   // across by 20
                     "11 0100 0 1 010100"                   // down by 20
                     "11 0100 0 0 101100"                   // back by 20
                     "11 0100 0 1 101100"                   // up by 20
                     "000000"),                             // end
             }));
  }

  void aLaterLayerLaysTheOldStylesDownAndBringsItsOwn() {
    const Percorso tratto = Percorso().vai({0, 0}).linea({1, 1});
    const Forma forma = Forma().traccia(tratto, {1, {9, 8, 7}}).traccia(tratto, {2, {1, 2, 3, 4}});
    QCOMPARE(
        forma.byte(),
        insieme({
            bit("00111 1101100 0101000 1101100 0101000"),  // from -1 to 2 pixels: the wider pen
            Byte{0, 1, 20, 0, 9, 8, 7, 255},               // no fill, one pen, a pixel wide
            bit("0000 0001"
                "0 01001 00000 1"          // move to 0, 0; pen 1
                "11 0100 1 010100 010100"  // across and down by 20
                "0 01000 0"                // pen down: 0
                "0 10000"),                // new styles
            Byte{0, 1, 40, 0, 1, 2, 3, 4},
            bit("0000 0001"
                "0 01001 00000 1"
                "11 0100 1 010100 010100"
                "000000"),
        }));
  }

  void aCurveIsControlThenEndEachFromTheLastPoint() {
    const Forma forma = Forma().dipingi(Percorso().vai({0, 0}).curva({1, 0}, {1, 1}).chiudi(),
                                        Riempimento::tinta({0, 0, 0}));
    const Byte byte = forma.byte();
    const Byte coda =
        bit("0001 0000"
            "0 00101 00000 1"
            "10 0100 010100 000000 000000 010100"
            "11 0100 1 101100 101100"
            "000000");
    QVERIFY(byte.size() > coda.size());
    QCOMPARE(Byte(byte.end() - static_cast<std::ptrdiff_t>(coda.size()), byte.end()), coda);
  }

  // The format's square has 32768 twentieths a side; 100 pixels are 2000, so x is scaled by
  // 2000 / 32768 = 0x0FA0 with 16 binary places, and its middle comes to 50 pixels.
  void aLinearGradientStretchesTheFormatsSquareBetweenItsEnds() {
    ScrittoreByte b;
    Riempimento::lineare({0, 0}, {100, 0}, {{0, {255, 255, 255}}, {1, {0, 0, 0, 128}}}).scrivi(b);
    QCOMPARE(b.byte(), insieme({Byte{0x10},
                                bit("1 01101 0111110100000 0111110100000"
                                    "0"
                                    "01011 01111101000 00000000000"),
                                Byte{2, 0, 255, 255, 255, 255, 255, 0, 0, 0, 128}}));
  }

  void aRadialGradientReachesItsRadii() {
    ScrittoreByte b;
    Riempimento::radiale({0, 0}, 819.2, 409.6, {{0.5, {1, 2, 3}}}).scrivi(b);
    // 16384 / 16384 is 1: 0x10000; half of it 0x8000.
    QCOMPARE(b.byte(), insieme({Byte{0x12},
                                bit("1 10010 010000000000000000 001000000000000000"
                                    "0"
                                    "00001 0 0"),
                                Byte{1, 128, 1, 2, 3, 255}}));
  }

  void aGradientHasOneToEightColors() {
    ScrittoreByte b;
    QVERIFY_THROWS_EXCEPTION(std::length_error, Riempimento::lineare({0, 0}, {1, 0}, {}).scrivi(b));
    const std::vector<Fermata> nove(9, Fermata{0, {}});
    QVERIFY_THROWS_EXCEPTION(std::length_error,
                             Riempimento::lineare({0, 0}, {1, 0}, nove).scrivi(b));
  }

  void anEmptyShapeIsRefused() {
    QVERIFY_THROWS_EXCEPTION(std::length_error, (void)Forma().byte());
  }

  void anEdgeThatNoFieldHoldsIsRefused() {
    // 65,535 twentieths are the most.
    const auto forma = [](const Percorso& percorso) { return Forma().traccia(percorso, {}); };
    (void)forma(Percorso().vai({0, 0}).linea({3276.75, 0})).byte();
    QVERIFY_THROWS_EXCEPTION(std::out_of_range,
                             (void)forma(Percorso().vai({0, 0}).linea({3276.8, 0})).byte());
    QVERIFY_THROWS_EXCEPTION(
        std::out_of_range,
        (void)forma(Percorso().vai({0, 0}).curva({0, -3280}, {10, -3280})).byte());
  }

  void aClosedPathClosesThoughItsPointsAreRounded() {
    // Steps of a third of a twentieth: rounding each step by itself would drift.
    Percorso p;
    p.vai({0, 0});
    for (int i = 1; i <= 300; ++i) p.linea({i / 60.0, 0});
    const Rettangolo r = Forma().traccia(p.chiudi(), {0, {}}).ingombro();
    QCOMPARE(twip(r.larghezza), 100);
    const Byte byte = Forma().traccia(p, {0, {}}).byte();
    // 100 steps of one twentieth and one back by 100, nothing for what rounds to no step.
    const std::size_t passi = 100 * 9 + (2 + 4 + 2 + 8);
    const std::size_t capo = 5 + 2 + 6 + 1;
    QVERIFY2(byte.size() * 8 < passi + 8 * (capo + 20), qPrintable(QString::number(byte.size())));
  }
};

const prova::Iscrizione<FormaTest> kIscritta;

}  // namespace forma_test

#include "forma_test.moc"
