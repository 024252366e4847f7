#include "games/quantita.h"

#include <QTest>

#include "support/iscrizione.h"

namespace quantita_test {

using namespace somme;

namespace {

// Digits from the thousands to the units, "-" for none.
QString scritte(const Cifre& cifre) {
  QString testo;
  for (std::size_t i = kPosti; i-- > 0;) {
    testo += cifre[i] ? QString::number(*cifre[i]) : QStringLiteral("-");
  }
  return testo;
}

}  // namespace

class QuantitaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void eachPlaceIsWorthTenOfTheOneBeforeIt() {
    QCOMPARE(ValoreDi(Posto::Unita), 1);
    for (const Posto posto : {Posto::Unita, Posto::Decine, Posto::Centinaia}) {
      QCOMPARE(ValoreDi(Superiore(posto)), kDieci * ValoreDi(posto));
    }
    QCOMPARE(Superiore(Posto::Centinaia), Posto::Migliaia);
  }

  void aQuantityIsReachedByItsPlace() {
    Quantita quantita{.migliaia = 1, .centinaia = 2, .decine = 3, .unita = 4};
    const Quantita& letta = quantita;
    QCOMPARE(letta[Posto::Migliaia], 1);
    QCOMPARE(letta[Posto::Centinaia], 2);
    QCOMPARE(letta[Posto::Decine], 3);
    QCOMPARE(letta[Posto::Unita], 4);
    quantita[Posto::Decine] = 9;
    QCOMPARE(quantita.decine, 9);
  }

  void tenOfAPlaceCountAsOneOfTheNext() {
    QCOMPARE((Quantita{.migliaia = 1, .centinaia = 2, .decine = 3, .unita = 4}).Valore(), 1234);
    QCOMPARE((Quantita{.centinaia = 10, .decine = 10, .unita = 10}).Valore(), 1110);
    QCOMPARE(Quantita{}.Valore(), 0);
  }

  void theDigitsOfANumberStandInTheirPlaces() {
    QCOMPARE(scritte(CifreDi(9876, Posto::Migliaia)), QStringLiteral("9876"));
    QCOMPARE(scritte(CifreDi(407, Posto::Centinaia)), QStringLiteral("-407"));
    QCOMPARE(scritte(CifreDi(42, Posto::Decine)), QStringLiteral("--42"));
  }

  void aPlaceThatTheNumberDoesNotReachHasNoDigitButTheUnitsHave() {
    QCOMPARE(scritte(CifreDi(100, Posto::Migliaia)), QStringLiteral("-100"));
    QCOMPARE(scritte(CifreDi(99, Posto::Centinaia)), QStringLiteral("--99"));
    QCOMPARE(scritte(CifreDi(10, Posto::Centinaia)), QStringLiteral("--10"));
    QCOMPARE(scritte(CifreDi(9, Posto::Decine)), QStringLiteral("---9"));
    QCOMPARE(scritte(CifreDi(1, Posto::Decine)), QStringLiteral("---1"));
    QCOMPARE(scritte(CifreDi(0, Posto::Migliaia)), QStringLiteral("---0"));
  }

  void theFirstPlaceTakesAllThatIsAboveIt() {
    QCOMPARE(scritte(CifreDi(123, Posto::Decine)), QStringLiteral("--123"));
    QCOMPARE(scritte(CifreDi(12, Posto::Unita)), QStringLiteral("---12"));
  }
};

const prova::Iscrizione<QuantitaTest> kIscritta;

}  // namespace quantita_test

#include "quantita_test.moc"
