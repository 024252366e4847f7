// The order of draws of each rule, and what each does at its edges, on scripted sources.
#include <QTest>
#include <algorithm>
#include <string>

#include "cases/modulo_somme.h"
#include "caso_di_prova.h"
#include "scripted_chance.h"
#include "support/iscrizione.h"

namespace somme {

// How a comparison that fails shows a case.
static char* toString(const Caso& caso) {
  return QTest::toString(
      QStringLiteral("%1 + %2 = %3").arg(caso.Addendo1).arg(caso.Addendo2).arg(caso.Totale));
}

}  // namespace somme

namespace regole_test {

using namespace somme;
using prova::caso;

namespace {

// The case that a routine makes of a script, all of which it must use; totale -1 where it does not.
Caso casoDi(Generatore genera, std::initializer_list<Draw> draws) {
  ScriptedChance chance(draws);
  Caso caso;
  try {
    genera(caso, chance);
  } catch (const EndOfScript&) {
    return {.Totale = -1};
  }
  return chance.isUsedUp() ? caso : Caso{.Totale = -1};
}

// Whether a routine of Rule 3 is still drawing after so many draws, for one sum of so many digits.
bool gira(Generatore genera, int somma, int cifre, float poi, int draws) {
  std::vector<Draw> script;
  int posto = 1;
  for (int i = 1; i < cifre; ++i) posto *= 10;
  // The highest place of three digits is drawn from 1 to 9.
  const bool senzaZero = cifre == 3;
  for (bool prima = true; posto > 0; posto /= 10, prima = false) {
    const int cifra = somma / posto % 10;
    script.push_back(prima && senzaZero ? Draw{cifra - 1, 9} : Draw{cifra, 10});
  }
  ScriptedChance chance(script);
  chance.thenEver(poi, draws);
  Caso risultato;
  try {
    genera(risultato, chance);
  } catch (const EndOfScript&) {
    return chance.drawn() == draws;
  }
  return false;
}

bool soloZeriEUni(int somma) {
  const std::string cifre = std::to_string(somma);
  return std::all_of(cifre.begin(), cifre.end(), [](char c) { return c == '0' || c == '1'; });
}

constexpr float kAlmostOne = 1.0F - 0x1.0p-24F;

}  // namespace

class RegoleTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aSplitDrawsTheSumAndThenTheFirstAddend() {
    QCOMPARE(casoDi(GeneraEntro10, {{6, 10}, {2, 7}}), caso(2, 5));
    QCOMPARE(casoDi(GeneraEntro99ConESenzaCambio, {{98, 99}, {98, 99}}), caso(98, 1));
    QCOMPARE(casoDi(GeneraEntro999ConESenzaCambi, {{987, 988}, {0, 988}}), caso(0, 988));
    QCOMPARE(casoDi(GeneraEntro9999ConESenzaCambi, {{9887, 9888}, {1234, 9888}}), caso(1234, 8654));
  }

  void aSplitOfAFixedSumDrawsTheFirstAddendOnly() {
    QCOMPARE(casoDi(GeneraTotale10, {{9, 10}}), caso(9, 1));
    QCOMPARE(casoDi(GeneraTotale10, {{0, 10}}), caso(0, 10));
    QCOMPARE(casoDi(GeneraTotale20, {{19, 20}}), caso(19, 1));
  }

  void withSumsUpToTenTheSecondAddendIsNeverZeroAndTheFirstNeverTen() {
    for (int totale = 1; totale <= 10; ++totale) {
      for (int addendo1 = 0; addendo1 < totale; ++addendo1) {
        QCOMPARE(casoDi(GeneraEntro10, {{totale - 1, 10}, {addendo1, totale}}),
                 caso(addendo1, totale - addendo1));
      }
    }
    QCOMPARE(casoDi(GeneraEntro10, {{9, 10}, {9, 10}}), caso(9, 1));
  }

  void generaEntro20CanGiveZeroPlusZero() {
    QCOMPARE(casoDi(GeneraEntro20, {{0, 11}, {0, 11}}), caso(0, 0));
    QCOMPARE(casoDi(GeneraEntro20, {{3, 11}, {10, 11}}), caso(3, 10));
  }

  void generaDieciPiuGoesFromTenPlusZeroToTenPlusTen() {
    QCOMPARE(casoDi(GeneraDieciPiu, {{0, 11}}), caso(10, 0));
    QCOMPARE(casoDi(GeneraDieciPiu, {{10, 11}}), caso(10, 10));
  }

  void generaAddendoMaggiore10CanGiveTenPlusZero() {
    QCOMPARE(casoDi(GeneraAddendoMaggiore10, {{0, 10}, {0, 10}}), caso(10, 0));
  }

  void generaAddendoMaggiore10DrawsBothAgainFrom21On() {
    QCOMPARE(casoDi(GeneraAddendoMaggiore10, {{9, 10}, {1, 10}}), caso(19, 1));
    QCOMPARE(
        casoDi(GeneraAddendoMaggiore10, {{9, 10}, {2, 10}, {4, 10}, {7, 10}, {4, 10}, {6, 10}}),
        caso(14, 6));
  }

  void addingInOnePlaceDrawsTheNumberAndThenTheDigit() {
    QCOMPARE(casoDi(GeneraEntro99SoloDecine, {{7, 88}, {3, 10}}), caso(8, 30));
    QCOMPARE(casoDi(GeneraEntro999SoloCentinaia, {{98, 988}, {9, 10}}), caso(99, 900));
    QCOMPARE(casoDi(GeneraEntro9999SoloMigliaia, {{8998, 8999}, {0, 10}}), caso(8999, 0));
  }

  void addingInOnePlaceCanAddNothingToOne() {
    QCOMPARE(casoDi(GeneraEntro9999SoloUnita, {{0, 9999}, {0, 10}}), caso(1, 0));
    QCOMPARE(casoDi(GeneraEntro9999SoloDecine, {{0, 9989}, {0, 10}}), caso(1, 0));
    QCOMPARE(casoDi(GeneraEntro9999SoloCentinaia, {{0, 9899}, {0, 10}}), caso(1, 0));
    QCOMPARE(casoDi(GeneraEntro9999SoloMigliaia, {{0, 8999}, {0, 10}}), caso(1, 0));
  }

  void addingInOnePlaceDrawsBothAgainPastTheLimit() {
    QCOMPARE(casoDi(GeneraEntro99SoloDecine, {{87, 88}, {2, 10}, {87, 88}, {1, 10}}), caso(88, 10));
    QCOMPARE(casoDi(GeneraEntro99SoloDecine, {{8, 88}, {9, 10}}), caso(9, 90));
    QCOMPARE(casoDi(GeneraEntro999SoloDecine, {{987, 988}, {2, 10}, {0, 988}, {9, 10}}),
             caso(1, 90));
    QCOMPARE(casoDi(GeneraEntro9999SoloUnita, {{9998, 9999}, {1, 10}, {9998, 9999}, {0, 10}}),
             caso(9999, 0));
    QCOMPARE(casoDi(GeneraEntro9999SoloCentinaia, {{9898, 9899}, {2, 10}, {9898, 9899}, {1, 10}}),
             caso(9899, 100));
  }

  void generaEntro99SoloUnitaAddsTensAfterARetry() {
    QCOMPARE(casoDi(GeneraEntro99SoloUnita, {{97, 98}, {1, 10}}), caso(98, 1));
    QCOMPARE(casoDi(GeneraEntro99SoloUnita, {{97, 98}, {5, 10}, {19, 98}, {7, 10}}), caso(20, 70));
    QCOMPARE(
        casoDi(GeneraEntro99SoloUnita, {{97, 98}, {5, 10}, {97, 98}, {1, 10}, {0, 98}, {9, 10}}),
        caso(1, 90));
  }

  void generaEntro999SoloUnitaNeverRetries() {
    QCOMPARE(casoDi(GeneraEntro999SoloUnita, {{987, 988}, {9, 10}}), caso(988, 9));
  }

  void generaEntro9999SoloUnitaAddsUnitsAfterARetry() {
    QCOMPARE(casoDi(GeneraEntro9999SoloUnita, {{9998, 9999}, {9, 10}, {9, 9999}, {7, 10}}),
             caso(10, 7));
  }

  void withoutACarryTheSumIsDrawnFromTheHighestDigitAndSoIsTheFirstAddend() {
    QCOMPARE(casoDi(GeneraEntro99SenzaCambio, {{7, 10}, {4, 10}, {5, 7}, {3, 4}}), caso(53, 21));
    QCOMPARE(casoDi(GeneraEntro999SenzaCambio, {{8, 9}, {0, 10}, {6, 10}, {8, 9}, {0, 1}, {2, 6}}),
             caso(802, 104));
    QCOMPARE(casoDi(GeneraEntro9999SenzaCambio,
                    {{9, 10}, {8, 10}, {7, 10}, {6, 10}, {1, 9}, {2, 8}, {3, 7}, {4, 6}}),
             caso(1234, 8642));
  }

  void aSumOfZeroIsDrawnAgain() {
    QCOMPARE(casoDi(GeneraEntro99SenzaCambio, {{0, 10}, {0, 10}, {0, 10}, {2, 10}, {0, 1}, {1, 2}}),
             caso(1, 1));
  }

  void aFirstAddendOfZeroIsDrawnAgainFromTheSameSum() {
    QCOMPARE(casoDi(GeneraEntro99SenzaCambio,
                    {{2, 10}, {3, 10}, {0, 2}, {0, 3}, {0, 2}, {0, 3}, {0, 2}, {2, 3}}),
             caso(2, 21));
  }

  void sumsOfZerosAndOnesSpinForEver_data() {
    QTest::addColumn<Generatore>("genera");
    QTest::addColumn<int>("cifre");
    QTest::addColumn<int>("somma");
    for (int somma = 1; somma <= 1111; ++somma) {
      if (!soloZeriEUni(somma)) continue;
      if (somma <= 11) {
        QTest::addRow("99: %d", somma) << Generatore(GeneraEntro99SenzaCambio) << 2 << somma;
      }
      if (somma >= 100 && somma <= 111) {
        QTest::addRow("999: %d", somma) << Generatore(GeneraEntro999SenzaCambio) << 3 << somma;
      }
      QTest::addRow("9999: %d", somma) << Generatore(GeneraEntro9999SenzaCambio) << 4 << somma;
    }
  }

  void sumsOfZerosAndOnesSpinForEver() {
    QFETCH(Generatore, genera);
    QFETCH(int, cifre);
    QFETCH(int, somma);
    QVERIFY(gira(genera, somma, cifre, kAlmostOne, 1'000'000));
  }

  void noOtherSumSpins() {
    int quantiGirano = 0;
    for (int somma = 1; somma <= 9999; ++somma) {
      const bool atteso = soloZeriEUni(somma);
      quantiGirano += atteso ? 1 : 0;
      QCOMPARE(gira(GeneraEntro9999SenzaCambio, somma, 4, kAlmostOne, 100), atteso);
      if (somma >= 100 && somma <= 999) {
        QCOMPARE(gira(GeneraEntro999SenzaCambio, somma, 3, kAlmostOne, 100), atteso);
      }
      if (somma <= 99) {
        QCOMPARE(gira(GeneraEntro99SenzaCambio, somma, 2, kAlmostOne, 100), atteso);
      }
    }
    QCOMPARE(quantiGirano, 15);
  }

  void columnsAreDrawnFromTheHundredsAndSoIsTheFirstAddend() {
    // Columns 4, 7 and 10 + 3 make 483.
    QCOMPARE(casoDi(GeneraEntro999CambioUnita, {{4, 10}, {7, 9}, {3, 9}, {2, 4}, {6, 7}, {8, 13}}),
             caso(268, 215));
    // Columns 5, 10 + 2 and 6 make 626.
    QCOMPARE(casoDi(GeneraEntro999CambioDecine, {{5, 9}, {2, 9}, {6, 10}, {1, 5}, {9, 12}, {0, 6}}),
             caso(190, 436));
    // Columns 0, 10 + 0 and 10 + 8 make 118.
    QCOMPARE(casoDi(GeneraEntro999DueCambi, {{0, 9}, {0, 9}, {8, 9}, {0, 1}, {4, 10}, {9, 18}}),
             caso(49, 69));
  }

  void aCarryingColumnIsDrawnAgainAtOnceUntilBothDigitsAreTrue() {
    // Columns 1, 10 + 5 and 10 + 8: of 15 only 6 to 9 do, of 18 only 9.
    QCOMPARE(casoDi(GeneraEntro999DueCambi, {{1, 9},
                                             {5, 9},
                                             {8, 9},
                                             {0, 1},
                                             {5, 15},
                                             {10, 15},
                                             {6, 15},
                                             {8, 18},
                                             {17, 18},
                                             {9, 18}}),
             caso(69, 199));
  }

  void oneCarryOfThreeDigitsDrawsItsColumnFirst() {
    QCOMPARE(
        casoDi(GeneraEntro999UnCambio, {{0, 2}, {4, 10}, {7, 9}, {3, 9}, {2, 4}, {6, 7}, {8, 13}}),
        caso(268, 215));
    QCOMPARE(
        casoDi(GeneraEntro999UnCambio, {{1, 2}, {5, 9}, {2, 9}, {6, 10}, {1, 5}, {9, 12}, {0, 6}}),
        caso(190, 436));
  }

  void pairsAreDrawnFromTheUnitsAndTheFirstAddendsDigitFirst() {
    QCOMPARE(casoDi(GeneraEntro9999TreCambi,
                    {{9, 10}, {1, 10}, {8, 10}, {2, 10}, {7, 10}, {3, 10}, {6, 10}, {2, 10}}),
             caso(6789, 2321));
  }

  void aPairThatDoesNotFitItsColumnIsDrawnAgainAlone() {
    QCOMPARE(casoDi(GeneraEntro9999TreCambi, {{4, 10},
                                              {5, 10},
                                              {5, 10},
                                              {5, 10},
                                              {9, 10},
                                              {9, 10},
                                              {9, 10},
                                              {0, 10},
                                              {1, 10},
                                              {9, 10},
                                              {0, 10},
                                              {9, 10},
                                              {8, 10},
                                              {0, 10}}),
             caso(8195, 995));
  }

  // For each choice the largest pair that fits each column, after one that is just too large.
  void oneCarryOfFourDigitsIsWhereTheChoiceSays() {
    QCOMPARE(casoDi(GeneraEntro9999UnCambio, {{0, 3},
                                              {9, 10},
                                              {1, 10},
                                              {8, 10},
                                              {1, 10},
                                              {8, 10},
                                              {0, 10},
                                              {9, 10},
                                              {1, 10},
                                              {9, 10},
                                              {0, 10},
                                              {0, 10},
                                              {9, 10}}),
             caso(989, 9001));
    QCOMPARE(casoDi(GeneraEntro9999UnCambio, {{1, 3},
                                              {0, 10},
                                              {9, 10},
                                              {1, 10},
                                              {9, 10},
                                              {9, 10},
                                              {0, 10},
                                              {8, 10},
                                              {0, 10},
                                              {9, 10},
                                              {0, 10}}),
             caso(9810, 99));
    QCOMPARE(casoDi(GeneraEntro9999UnCambio, {{2, 3},
                                              {0, 10},
                                              {9, 10},
                                              {9, 10},
                                              {0, 10},
                                              {1, 10},
                                              {9, 10},
                                              {9, 10},
                                              {0, 10},
                                              {8, 10},
                                              {0, 10}}),
             caso(8190, 909));
  }

  void twoCarriesOfFourDigitsAreWhereTheChoiceSays() {
    QCOMPARE(casoDi(GeneraEntro9999DueCambi, {{0, 3},
                                              {5, 10},
                                              {5, 10},
                                              {5, 10},
                                              {5, 10},
                                              {9, 10},
                                              {0, 10},
                                              {4, 10},
                                              {4, 10},
                                              {9, 10},
                                              {0, 10}}),
             caso(9455, 455));
    QCOMPARE(casoDi(GeneraEntro9999DueCambi, {{1, 3},
                                              {9, 10},
                                              {0, 10},
                                              {5, 10},
                                              {5, 10},
                                              {5, 10},
                                              {5, 10},
                                              {9, 10},
                                              {0, 10},
                                              {4, 10},
                                              {4, 10}}),
             caso(4559, 4550));
    QCOMPARE(casoDi(GeneraEntro9999DueCambi, {{2, 3},
                                              {5, 10},
                                              {5, 10},
                                              {9, 10},
                                              {0, 10},
                                              {4, 10},
                                              {4, 10},
                                              {5, 10},
                                              {5, 10},
                                              {9, 10},
                                              {0, 10},
                                              {0, 10},
                                              {8, 10}}),
             caso(545, 8545));
  }

  void oneCarryOfFourDigitsCanHaveAddendsOfFewerDigits() {
    QCOMPARE(
        casoDi(GeneraEntro9999UnCambio,
               {{0, 3}, {5, 10}, {5, 10}, {0, 10}, {0, 10}, {0, 10}, {0, 10}, {0, 10}, {0, 10}}),
        caso(5, 5));
  }

  void carryOfTwoDigitsDrawsTheSumAndThenTheFirstAddendUntilTheUnitsCarry() {
    QCOMPARE(casoDi(GeneraEntro99ConCambio, {{14, 79}, {3, 24}}), caso(8, 26));
    // 44 as 12 + 32 does not carry; both are drawn again.
    QCOMPARE(casoDi(GeneraEntro99ConCambio, {{24, 79}, {7, 34}, {78, 79}, {34, 88}}), caso(39, 59));
  }
};

const prova::Iscrizione<RegoleTest> kIscritta;

}  // namespace regole_test

#include "regole_test.moc"
