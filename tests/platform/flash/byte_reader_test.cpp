#include "platform/flash/byte_reader.h"

#include <QTest>
#include <array>

#include "hand_made.h"
#include "platform/flash/bit_reader.h"
#include "platform/flash/movie_error.h"
#include "platform/flash/structures.h"
#include "support/iscrizione.h"

namespace byte_reader_test {

using namespace platform::flash;

class ByteReaderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void numbersAreLittleEndian() {
    constexpr std::array<std::uint8_t, 9> kBytes{0x7F, 0x34, 0x12, 0xFE, 0xFF,
                                                 0x78, 0x56, 0x34, 0x92};
    ByteReader reader(kBytes);
    QCOMPARE(reader.u8(), std::uint8_t(0x7F));
    QCOMPARE(reader.u16(), std::uint16_t(0x1234));
    QCOMPARE(reader.s16(), std::int16_t(-2));
    QCOMPARE(reader.u32(), 0x92345678U);
    QVERIFY(reader.atEnd());
  }

  void aDoubleHasItsHighHalfFirst() {
    // 2.5 is 0x4004000000000000.
    constexpr std::array<std::uint8_t, 8> kBytes{0x00, 0x00, 0x04, 0x40, 0, 0, 0, 0};
    QCOMPARE(ByteReader(kBytes).f64(), 2.5);
    constexpr std::array<std::uint8_t, 4> kSingle{0x00, 0x00, 0x40, 0x3F};
    QCOMPARE(ByteReader(kSingle).f32(), 0.75F);
  }

  void aTextEndsWithAZeroByteThatIsTaken() {
    constexpr std::array<std::uint8_t, 5> kBytes{'d', 'a', '3', 0, 9};
    ByteReader reader(kBytes);
    QCOMPARE(reader.string().toByteArray(), QByteArray("da3"));
    QCOMPARE(reader.u8(), std::uint8_t(9));
  }

  void nothingIsReadPastTheEnd() {
    constexpr std::array<std::uint8_t, 3> kBytes{1, 2, 3};
    ByteReader reader(kBytes);
    reader.skip(2);
    QVERIFY_THROWS_EXCEPTION(MovieError, (void)reader.u16());
    QVERIFY_THROWS_EXCEPTION(MovieError, (void)reader.u32());
    QVERIFY_THROWS_EXCEPTION(MovieError, (void)reader.bytes(SIZE_MAX));
    QVERIFY_THROWS_EXCEPTION(MovieError, (void)reader.string());
    QVERIFY_THROWS_EXCEPTION(MovieError, reader.seek(4));
    QCOMPARE(reader.u8(), std::uint8_t(3));
    QVERIFY_THROWS_EXCEPTION(MovieError, (void)reader.u8());
  }

  void theErrorTellsWhere() {
    constexpr std::array<std::uint8_t, 3> kBytes{1, 2, 3};
    ByteReader reader(kBytes);
    reader.skip(2);
    try {
      (void)reader.u16();
      QFAIL("nothing thrown");
    } catch (const MovieError& error) {
      QCOMPARE(error.offset(), std::size_t(2));
      QCOMPARE(error.tag(), -1);
      QCOMPARE(error.inTag(26, 100).offset(), std::size_t(102));
      QCOMPARE(error.inTag(26, 100).tag(), 26);
    }
  }

  void bitsComeHighestFirstAndNegativesAreTwosComplement() {
    constexpr std::array<std::uint8_t, 3> kBytes{0b10110010, 0b01111111, 0b11000000};
    ByteReader reader(kBytes);
    BitReader bits(reader);
    QVERIFY(bits.flag());
    QCOMPARE(bits.unsignedBits(3), 3U);
    QCOMPARE(bits.signedBits(3), 1);
    QCOMPARE(bits.unsignedBits(0), 0U);
    QCOMPARE(bits.signedBits(2), 0);
    QCOMPARE(bits.signedBits(9), -1);
    QCOMPARE(bits.unsignedBits(6), 0U);
    QVERIFY_THROWS_EXCEPTION(MovieError, (void)bits.unsignedBits(1));
  }

  void thirtyTwoBitsFitAndFixedPointHasSixteenBehindThePoint() {
    constexpr std::array<std::uint8_t, 8> kBytes{0xFF, 0xFF, 0xFF, 0xFE, 0x01, 0x80, 0x00, 0xFF};
    ByteReader reader(kBytes);
    BitReader bits(reader);
    QCOMPARE(bits.signedBits(32), -2);
    QCOMPARE(bits.fixedBits(24), 98304 / 65536.0);
  }

  void alignDropsTheRestOfAByte() {
    constexpr std::array<std::uint8_t, 2> kBytes{0xFF, 0x80};
    ByteReader reader(kBytes);
    BitReader bits(reader);
    (void)bits.unsignedBits(3);
    bits.align();
    QCOMPARE(bits.unsignedBits(1), 1U);
    QCOMPARE(bits.unsignedBits(1), 0U);
  }

  void aRectangleIsLeftRightTopBottom() {
    // Five bits: 00101; then -5, 10, 3, -16 in five bits each.
    constexpr std::array<std::uint8_t, 4> kBytes{0b00101110, 0b11010100, 0b00111000, 0b00000000};
    ByteReader reader(kBytes);
    const QRectF rect = readRect(reader);
    QCOMPARE(rect.left(), -5.0);
    QCOMPARE(rect.right(), 10.0);
    QCOMPARE(rect.top(), 3.0);
    QCOMPARE(rect.bottom(), -16.0);
  }

  void aMatrixHoldsScalesSkewsAndTheShift() {
    // Scales in 18 bits: 1.5 and 0.5; skews in 18 bits: 0.25 and -0.25; shift in 4 bits: 5, -8.
    const QByteArray bytes = hand_made::Bits()
                                 .raw("1 10010 011000000000000000 001000000000000000")
                                 .raw("1 10010 000100000000000000 111100000000000000")
                                 .raw("00100 0101 1000")
                                 .bytes();
    ByteReader reader(hand_made::bytesOf(bytes));
    const QTransform m = readMatrix(reader);
    QCOMPARE(m.m11(), 1.5);
    QCOMPARE(m.m22(), 0.5);
    QCOMPARE(m.m12(), 0.25);
    QCOMPARE(m.m21(), -0.25);
    QCOMPARE(m.dx(), 5.0);
    QCOMPARE(m.dy(), -8.0);
  }

  void aColorTransformHoldsFactorsThenSummands() {
    // Both present, 10 bits, three channels: factors 256, 128, 0; summands 1, -1, 255.
    const QByteArray bytes = hand_made::Bits()
                                 .raw("1 1 1010 0100000000 0010000000 0000000000")
                                 .raw("0000000001 1111111111 0011111111")
                                 .bytes();
    ByteReader reader(hand_made::bytesOf(bytes));
    const ColorTransform color = readColorTransform(reader, false);
    QCOMPARE(color.multiply, (std::array<double, 4>{1, 0.5, 0, 1}));
    QCOMPARE(color.add, (std::array<double, 4>{1, -1, 255, 0}));
  }
};

const prova::Iscrizione<ByteReaderTest> kIscritta;

}  // namespace byte_reader_test

#include "byte_reader_test.moc"
