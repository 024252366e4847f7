#include "platform/base/numbers.h"

#include <QTest>
#include <cmath>
#include <limits>

#include "platform/base/chance.h"
#include "support/iscrizione.h"

namespace numbers_test {

using platform::RunTimeError;

namespace {

template <typename Call>
int errorOf(Call call) {
  try {
    static_cast<void>(call());
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace

class NumbersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theLeadingBlankFormPutsOneBlankOrTheMinusSignBeforeTheDigits() {
    QCOMPARE(platform::leadingBlank(7), QStringLiteral(" 7"));
    QCOMPARE(platform::leadingBlank(0), QStringLiteral(" 0"));
    QCOMPARE(platform::leadingBlank(-2), QStringLiteral("-2"));
    QCOMPARE(platform::leadingBlank(12345), QStringLiteral(" 12345"));
    QCOMPARE(platform::leadingBlank(std::numeric_limits<qint64>::min()),
             QStringLiteral("-9223372036854775808"));
  }

  void thePlainFormIsTheDigitsAlone() {
    QCOMPARE(platform::plain(7), QStringLiteral("7"));
    QCOMPARE(platform::plain(-7), QStringLiteral("-7"));
  }

  void aPictureGivesTheValueItsForm_data() {
    QTest::addColumn<QString>("picture");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* picture, double value, const char* text) {
      QTest::addRow("%s of %.17g", picture, value)
          << QString::fromUtf8(picture) << value << QString::fromUtf8(text);
    };
    row("# ##0", 7, " 7");
    row("# ##0", 0, " 0");
    row("# ##0", 42, " 42");
    row("# ##0", 999, " 999");
    row("# ##0", 1234, "1 234");
    row("# ##0", 1000, "1 000");
    row("# ##0", 12345, "12 345");
    row("# ##0", 1234567, "1234 567");
    row("### ###", 7, " 7");
    row("### ###", 0, " ");
    row("### ###", 1234, "1 234");
    row("### ###", 1234567, "1234 567");
    row("### ### ##0", 7, "  7");
    row("### ### ##0", 1234567, "1 234 567");
    row("### ### ##0", 1234567890, "1234 567 890");
    row("##0.00", 1, "1.00");
    row("##0.00", 0.5, "0.50");
    row("##0.00", 99.999, "100.00");
    row("##0.00", 999.999, "1000.00");
    row("### ### ##0.###", 12.5, "  12.5");
    row("### ### ##0.###", 12, "  12.");
    row("### ### ##0.###", 12.3456, "  12.346");
    row("### ### ##0.###", 12.305, "  12.305");
    row("###.###", 1234, "1234.");
    row("###.###", 0, ".");
    row("###.###", 0.25, ".25");
    row("0.0#", 1.5, "1.5");
    row("0.#0", 1.5, "1.50");
    row("0.#0", 1, "1.00");
    row(".00", 12.5, "12.50");
    row("000", 7, "007");
    row("0##", 7, "007");
    row("n. 0", 7.5, "n7. 5");
    row("x", 7, "x");
    row("", 7, "");
  }

  void aPictureGivesTheValueItsForm() {
    QFETCH(QString, picture);
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(platform::formatPicture(value, picture), text);
  }

  void aNegativeNumberHasItsMinusSignInFrontOfThePicture() {
    QCOMPARE(platform::formatPicture(-7, u"# ##0"), QStringLiteral("- 7"));
    QCOMPARE(platform::formatPicture(-1234, u"# ##0"), QStringLiteral("-1 234"));
    QCOMPARE(platform::formatPicture(-1.5, u"##0.00"), QStringLiteral("-1.50"));
  }

  void whatRoundsToZeroHasNoMinusSign() {
    QCOMPARE(platform::formatPicture(-0.004, u"0.00"), QStringLiteral("0.00"));
    QCOMPARE(platform::formatPicture(-0.0, u"0"), QStringLiteral("0"));
    QCOMPARE(platform::formatPicture(-0.005, u"0.00"), QStringLiteral("-0.01"));
  }

  void decimalsAreRoundedHalfAwayFromZeroAsTheyAreWritten() {
    QCOMPARE(platform::formatPicture(0.5, u"0"), QStringLiteral("1"));
    QCOMPARE(platform::formatPicture(1.5, u"0"), QStringLiteral("2"));
    QCOMPARE(platform::formatPicture(2.5, u"0"), QStringLiteral("3"));
    QCOMPARE(platform::formatPicture(-2.5, u"0"), QStringLiteral("-3"));
    QCOMPARE(platform::formatPicture(1.005, u"0.00"), QStringLiteral("1.01"));
    QCOMPARE(platform::formatPicture(0.4999, u"0"), QStringLiteral("0"));
    QCOMPARE(platform::formatPicture(9.5, u"#"), QStringLiteral("10"));
    QCOMPARE(platform::formatPicture(0.95, u"#.#"), QStringLiteral("1."));
  }

  void everyFiniteValueHasAPicture() {
    QCOMPARE(platform::formatPicture(std::numeric_limits<double>::max(), u"0").size(), 309);
    QCOMPARE(platform::formatPicture(std::numeric_limits<double>::denorm_min(), u"0.00"),
             QStringLiteral("0.00"));
    platform::SeededChance chance(7);
    for (int i = 0; i < 2000; ++i) {
      const double value = std::ldexp(double{chance.fraction()} - 0.5,
                                      static_cast<int>(chance.fraction() * 2000) - 1000);
      const QString text = platform::formatPicture(value, u"### ### ##0.###");
      QVERIFY(text.contains(u'.'));
    }
  }

  void aValueWithoutDigitsIsAnOverflow() {
    QCOMPARE(errorOf([] { return platform::formatPicture(kInfinity, u"0"); }), 6);
    QCOMPARE(errorOf([] { return platform::formatPicture(kNotANumber, u"0"); }), 6);
  }

  void theLeadingNumberIsWhatATextBeginsWith_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    const auto row = [](const char* text, double value) {
      QTest::addRow("'%s'", text) << QString::fromUtf8(text) << value;
    };
    row("12,5", 12);
    row(" 1 2", 12);
    row("", 0);
    row("   ", 0);
    row("007", 7);
    row("12.5", 12.5);
    row("1 2 . 2 5 ", 12.25);
    row(".5", 0.5);
    row("5.", 5);
    row(".", 0);
    row("1.2.3", 1.2);
    row("-3", -3);
    row(" - 3", -3);
    row("+3", 3);
    row("-", 0);
    row("--3", 0);
    row("3-2", 3);
    row("1e5", 1);
    row("12abc", 12);
    row("abc", 0);
    row("\t12", 0);
    row("inf", 0);
    row("nan", 0);
    row("0x10", 0);
    row("٣", 0);
    row("99999999999999999999", 1e20);
  }

  void theLeadingNumberIsWhatATextBeginsWith() {
    QFETCH(QString, text);
    QFETCH(double, value);
    QCOMPARE(platform::leadingNumber(text), value);
  }

  void aVeryLongRowOfDigitsIsAWrongAnswerAndNoError() {
    QCOMPARE(platform::leadingNumber(QString(5000, u'9')), kInfinity);
    QCOMPARE(platform::leadingNumber(QLatin1Char('-') + QString(5000, u'9')), -kInfinity);
    QCOMPARE(platform::leadingNumber(QStringLiteral("0.") + QString(5000, u'0') + u'1'), 0.0);
    QCOMPARE(platform::leadingNumber(QString(5000, u'0') + u'7'), 7.0);
  }

  void nothingReadableIsAPositiveZero() {
    QVERIFY(!std::signbit(platform::leadingNumber(u"-0")));
    QVERIFY(!std::signbit(platform::leadingNumber(u"-")));
  }

  void onlyZeroToNineAreNumericCharacters() {
    for (char16_t character = 0; character < 0xFFFF; ++character) {
      QCOMPARE(platform::isNumericCharacter(QChar(character)),
               character >= u'0' && character <= u'9');
    }
  }

  void trimmingTakesBlanksAndNothingElse() {
    QCOMPARE(platform::trimBlanks(u"  1 2  "), QStringLiteral("1 2"));
    QCOMPARE(platform::trimBlanks(u"    "), QString());
    QCOMPARE(platform::trimBlanks(u""), QString());
    QCOMPARE(platform::trimBlanks(u" \t1\u00A0 "), QStringLiteral("\t1\u00A0"));
  }

  void aHalfGoesToTheEvenNeighbour() {
    QCOMPARE(platform::roundHalfEven(0.5), 0);
    QCOMPARE(platform::roundHalfEven(1.5), 2);
    QCOMPARE(platform::roundHalfEven(2.5), 2);
    QCOMPARE(platform::roundHalfEven(26.25), 26);
    QCOMPARE(platform::roundHalfEven(-0.5), 0);
    QCOMPARE(platform::roundHalfEven(-1.5), -2);
    QCOMPARE(platform::roundHalfEven(-2.5), -2);
    QCOMPARE(platform::roundHalfEven(-2.6), -3);
    QCOMPARE(platform::roundHalfEven(std::nextafter(0.5, 0.0)), 0);
    QCOMPARE(platform::roundHalfEven(std::nextafter(0.5, 1.0)), 1);
    QCOMPARE(platform::roundHalfEven(4503599627370497.5), 4503599627370498);
  }

  void whatSixtyFourBitsCannotHoldIsAnOverflow() {
    QCOMPARE(platform::roundHalfEven(-0x1p63), std::numeric_limits<qint64>::min());
    QCOMPARE(errorOf([] { return platform::roundHalfEven(0x1p63); }), 6);
    QCOMPARE(errorOf([] { return platform::roundHalfEven(-0x1.0000000000001p63); }), 6);
    QCOMPARE(errorOf([] { return platform::roundHalfEven(kInfinity); }), 6);
    QCOMPARE(errorOf([] { return platform::roundHalfEven(-kInfinity); }), 6);
    QCOMPARE(errorOf([] { return platform::roundHalfEven(kNotANumber); }), 6);
  }

  void sixteenBitsEndAtTheirBounds() {
    QCOMPARE(platform::toInt16(32767), 32767);
    QCOMPARE(platform::toInt16(-32768), -32768);
    QCOMPARE(platform::toInt16(32767.4), 32767);
    QCOMPARE(platform::toInt16(-32768.5), -32768);
    QCOMPARE(errorOf([] { return platform::toInt16(32768); }), 6);
    QCOMPARE(errorOf([] { return platform::toInt16(-32769); }), 6);
    QCOMPARE(errorOf([] { return platform::toInt16(32767.5); }), 6);
    QCOMPARE(errorOf([] { return platform::toInt16(-32768.6); }), 6);
    QCOMPARE(errorOf([] { return platform::toInt16(1e300); }), 6);
    QCOMPARE(errorOf([] { return platform::toInt16(kNotANumber); }), 6);
    QCOMPARE(errorOf([] { return platform::toInt16(std::numeric_limits<quint64>::max()); }), 6);
  }

  void thirtyTwoBitsEndAtTheirBounds() {
    QCOMPARE(platform::toInt32(2147483647.25), 2147483647);
    QCOMPARE(platform::toInt32(qint64{-2147483648}), std::numeric_limits<qint32>::min());
    QCOMPARE(errorOf([] { return platform::toInt32(2147483647.5); }), 6);
    QCOMPARE(errorOf([] { return platform::toInt32(qint64{2147483648}); }), 6);
    QCOMPARE(errorOf([] { return platform::toInt32(kInfinity); }), 6);
  }
};

const prova::Iscrizione<NumbersTest> kIscritta;

}  // namespace numbers_test

#include "numbers_test.moc"
