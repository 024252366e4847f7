#include "platform/base/twips.h"

#include <QTest>

#include "support/iscrizione.h"

namespace twips_test {

using platform::Twips;

class TwipsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anInchIsAsLongInEveryUnit() {
    QCOMPARE(Twips::inches(1).count(), 1440.0);
    QCOMPARE(Twips::millimetres(25.4), Twips::inches(1));
    QCOMPARE(Twips::points(72), Twips::inches(1));
  }

  void aPointIsTwentyTwips() { QCOMPARE(Twips::points(8.25).count(), 165.0); }

  void aLengthDividedByAnotherIsANumber() {
    QCOMPARE(Twips::inches(1) / Twips(15), 96.0);
    QCOMPARE(Twips(30) * 2.5 / Twips(15), 5.0);
  }

  void anotherUnitDoesNotBecomeTwipsByItself() {
    QVERIFY(!(std::is_convertible_v<double, Twips>));
    QVERIFY(!(std::is_convertible_v<Twips, double>));
  }
};

const prova::Iscrizione<TwipsTest> kIscritta;

}  // namespace twips_test

#include "twips_test.moc"
