#include "tools/swf/scrittore_byte.h"

#include <QTest>

#include "support/iscrizione.h"

namespace scrittore_byte_test {

using somme::swf::ScrittoreByte;
using Byte = std::vector<std::uint8_t>;

class ScrittoreByteTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wholeNumbersHaveTheirLowByteFirst() {
    ScrittoreByte b;
    b.u16(0x1234);
    b.u32(0x89ABCDEF);
    QCOMPARE(b.byte(), (Byte{0x34, 0x12, 0xEF, 0xCD, 0xAB, 0x89}));
  }

  void bitsFillAByteFromItsTop() {
    ScrittoreByte b;
    b.bit(0b101, 3);
    b.bit(0b0110011, 7);
    QCOMPARE(b.byte(), (Byte{0b10101100, 0b11000000}));
  }

  void aByteAfterBitsStartsAtAWholeByte() {
    ScrittoreByte b;
    b.bit(1, 1);
    b.u8(0x7F);
    b.bit(1, 1);
    QCOMPARE(b.byte(), (Byte{0x80, 0x7F, 0x80}));
  }

  void aNegativeNumberStandsInTwosComplement() {
    ScrittoreByte b;
    b.bitConSegno(-3, 4);
    b.bitConSegno(3, 4);
    QCOMPARE(b.byte(), (Byte{0b11010011}));
  }

  void aNumberTooLargeForItsFieldIsRefused() {
    ScrittoreByte b;
    b.bitConSegno(7, 4);
    b.bitConSegno(-8, 4);
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, b.bitConSegno(8, 4));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, b.bitConSegno(-9, 4));
  }

  void bitsNeededCountTheSign_data() {
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("bits");
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("1") << 1 << 2;
    QTest::newRow("-1") << -1 << 1;
    QTest::newRow("127") << 127 << 8;
    QTest::newRow("128") << 128 << 9;
    QTest::newRow("-128") << -128 << 8;
    QTest::newRow("lowest") << INT32_MIN << 32;
  }

  void bitsNeededCountTheSign() {
    QFETCH(int, value);
    QFETCH(int, bits);
    QCOMPARE(ScrittoreByte::bitOccorrenti(value), bits);
  }

  void aTextEndsWithAZeroAndHoldsNone() {
    ScrittoreByte b;
    b.testo("da1");
    QCOMPARE(b.byte(), (Byte{'d', 'a', '1', 0}));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, b.testo(std::string_view("a\0b", 3)));
  }
};

const prova::Iscrizione<ScrittoreByteTest> kIscritta;

}  // namespace scrittore_byte_test

#include "scrittore_byte_test.moc"
