#include "platform/base/currency.h"

#include <QTest>
#include <limits>

#include "platform/base/run_time_error.h"
#include "support/iscrizione.h"

namespace currency_test {

using platform::Currency;
using platform::RunTimeError;

class CurrencyTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aFreshOneIsZero() {
    QVERIFY(Currency() == 0);
    QVERIFY(Currency().isWhole());
  }

  void fourDecimalsAreKeptAndAHalfGoesToTheEvenNeighbour() {
    QCOMPARE(Currency::fromDouble(12.3456).toDouble(), 12.3456);
    QCOMPARE(Currency::fromDouble(0.03125).toDouble(), 0.0312);
    QCOMPARE(Currency::fromDouble(0.09375).toDouble(), 0.0938);
    QCOMPARE(Currency::fromDouble(-0.03125).toDouble(), -0.0312);
    QVERIFY(Currency::fromDouble(0.00004) == 0);
  }

  void theWholePartIsCutTowardsZero() {
    QCOMPARE(Currency::fromDouble(12.9999).wholePart(), 12);
    QCOMPARE(Currency::fromDouble(-12.9999).wholePart(), -12);
    QVERIFY(Currency::fromDouble(12).isWhole());
    QVERIFY(!Currency::fromDouble(12.0001).isWhole());
    QVERIFY(Currency::fromDouble(12.00001).isWhole());
  }

  void comparingWithAWholeNumberIsExact() {
    QVERIFY(Currency::fromDouble(12) == 12);
    QVERIFY(12 == Currency::fromDouble(12));
    QVERIFY(Currency::fromDouble(12.0001) != 12);
    QVERIFY(Currency::fromDouble(12.0001) > 12);
    QVERIFY(Currency::fromDouble(-0.5) < 0);
    QVERIFY(Currency::fromDouble(-0.5) > -1);
    QVERIFY(Currency::fromDouble(-1.5) < -1);
    QVERIFY(Currency::fromDouble(5) == qint16{5});
    QVERIFY(Currency::fromDouble(922337203685477.0) < std::numeric_limits<qint64>::max());
    QVERIFY(Currency::fromDouble(-922337203685477.0) > std::numeric_limits<qint64>::min());
  }

  void twoOfThemAreOrdered() {
    QVERIFY(Currency::fromDouble(1.5) == Currency::fromDouble(1.50000001));
    QVERIFY(Currency::fromDouble(1.5) < Currency::fromDouble(1.5001));
  }

  void whatIsOutOfRangeIsAnOverflow_data() {
    QTest::addColumn<double>("value");
    QTest::newRow("too large") << 922337203685478.0;
    QTest::newRow("too small") << -922337203685478.0;
    QTest::newRow("a long row of digits") << 1e30;
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
  }

  void whatIsOutOfRangeIsAnOverflow() {
    QFETCH(double, value);
    try {
      static_cast<void>(Currency::fromDouble(value));
      QFAIL("no error");
    } catch (const RunTimeError& error) {
      QCOMPARE(error.number(), 6);
    }
  }
};

const prova::Iscrizione<CurrencyTest> kIscritta;

}  // namespace currency_test

#include "currency_test.moc"
