#include "games/livelli_abaco.h"

#include <QTest>

#include "support/iscrizione.h"

namespace livelli_abaco_test {

using namespace somme;

namespace {

constexpr int kUltimo = 23;

// The arrows of a level as "UDa DaH HK", or "-" for a level that does not exist.
QString frecce(int tipo) {
  const std::optional<PerFreccia> mostrate = FrecceDelLivello(tipo);
  if (!mostrate) return QStringLiteral("-");
  QStringList nomi;
  if ((*mostrate)[0]) nomi += QStringLiteral("UDa");
  if ((*mostrate)[1]) nomi += QStringLiteral("DaH");
  if ((*mostrate)[2]) nomi += QStringLiteral("HK");
  return nomi.join(u' ');
}

}  // namespace

class LivelliAbacoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void tensAndUnitsWaitAtEveryLevelAndWithoutOne() {
    for (int tipo = 0; tipo <= kUltimo + 1; ++tipo) {
      QCOMPARE(HaPalline(tipo, Posto::Unita), true);
      QCOMPARE(HaPalline(tipo, Posto::Decine), true);
    }
  }

  void hundredsWaitFromTheSixthLevelOnAndThousandsFromTheFifteenth() {
    for (int tipo = 1; tipo <= kUltimo; ++tipo) {
      QCOMPARE(HaPalline(tipo, Posto::Centinaia), tipo >= 6);
      QCOMPARE(HaPalline(tipo, Posto::Migliaia), tipo >= 15);
    }
  }

  void aLevelThatDoesNotExistSaysNothing() {
    for (const int tipo : {-1, 0, kUltimo + 1}) {
      QVERIFY(!HaPalline(tipo, Posto::Centinaia));
      QVERIFY(!HaPalline(tipo, Posto::Migliaia));
      QVERIFY(!CifreDellaRisposta(tipo));
      QCOMPARE(frecce(tipo), QStringLiteral("-"));
    }
  }

  void theAnswerHasTwoThreeOrFiveDigits() {
    for (int tipo = 1; tipo <= kUltimo; ++tipo) {
      QCOMPARE(CifreDellaRisposta(tipo), qint16(tipo <= 5 ? 2 : tipo <= 14 ? 3 : 5));
    }
  }

  void aLevelShowsTheArrowsOfTheCarriesThatItAsksFor() {
    for (const int tipo : {1, 6, 15}) QCOMPARE(frecce(tipo), QString());
    for (const int tipo : {2, 3, 4, 5, 7}) QCOMPARE(frecce(tipo), QStringLiteral("UDa"));
    QCOMPARE(frecce(8), QStringLiteral("DaH"));
    for (int tipo = 9; tipo <= 14; ++tipo) QCOMPARE(frecce(tipo), QStringLiteral("UDa DaH"));
    for (int tipo = 16; tipo <= kUltimo; ++tipo) {
      QCOMPARE(frecce(tipo), QStringLiteral("UDa DaH HK"));
    }
  }
};

const prova::Iscrizione<LivelliAbacoTest> kIscritta;

}  // namespace livelli_abaco_test

#include "livelli_abaco_test.moc"
