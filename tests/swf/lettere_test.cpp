#include "swf/lettere.h"

#include <QTest>
#include <cmath>

#include "support/iscrizione.h"

namespace lettere_test {

using somme::filmati::scritta;

class LettereTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everySignStandsInTheMiddleOfItsPlace_data() {
    QTest::addColumn<QString>("sign");
    for (const char* segno : {"k", "h", "da", "u"}) {
      QTest::newRow(segno) << QString::fromLatin1(segno);
    }
  }

  void everySignStandsInTheMiddleOfItsPlace() {
    QFETCH(QString, sign);
    const auto r = scritta(sign.toStdString(), 10, {100, 50}).ingombro();
    QVERIFY(std::abs(r.sinistra + r.larghezza / 2 - 100) < 0.5);
    QVERIFY2(std::abs(r.alto + r.altezza - 55) < 0.5, "letters stand on the line below the middle");
  }

  void tallLettersRiseAboveTheSmallOnes() {
    const auto alta = scritta("h", 10, {0, 0}).ingombro();
    const auto bassa = scritta("u", 10, {0, 0}).ingombro();
    QVERIFY(alta.altezza > bassa.altezza * 1.4);
  }

  void aLetterThatNoSignHasIsRefused() {
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)scritta("x", 10, {0, 0}));
  }
};

const prova::Iscrizione<LettereTest> kIscritta;

}  // namespace lettere_test

#include "lettere_test.moc"
