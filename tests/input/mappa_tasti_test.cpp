#include "input/mappa_tasti.h"

#include <QTest>
#include <set>
#include <string_view>

using somme::kMappaAbaco;
using somme::kMappaBlocchi;
using somme::kMappaCifre;
using somme::MappaTasti;

namespace {

struct Mappa {
  const char* nome;
  const MappaTasti* mappa;
  int tasti;
};
constexpr Mappa kMappe[] = {
    {"digits", &kMappaCifre, 16}, {"blocks", &kMappaBlocchi, 9}, {"abacus", &kMappaAbaco, 12}};

}  // namespace

// Which key of a sheet a touch falls on.
class MappaTastiTest : public QObject {
  Q_OBJECT

  static void mappe() {
    QTest::addColumn<int>("quale");
    for (int i = 0; i < int(std::size(kMappe)); ++i) QTest::newRow(kMappe[i].nome) << i;
  }

 private Q_SLOTS:
  void theKeysCountFromLeftToRightAndFromTheTop() {
    QCOMPARE(kMappaCifre.Tasto(2, 2), 1);
    QCOMPARE(kMappaCifre.Tasto(8, 2), 2);
    QCOMPARE(kMappaCifre.Tasto(23, 6), 4);
    QCOMPARE(kMappaCifre.Tasto(2, 7), 5);
    QCOMPARE(kMappaCifre.Tasto(11, 16), 10);
    QCOMPARE(kMappaCifre.Tasto(20, 22), 16);
    QCOMPARE(kMappaBlocchi.Tasto(10, 2), 2);
    QCOMPARE(kMappaBlocchi.Tasto(7, 14), 4);
    QCOMPARE(kMappaBlocchi.Tasto(23, 21), 9);
    QCOMPARE(kMappaAbaco.Tasto(14, 10), 7);
    QCOMPARE(kMappaAbaco.Tasto(23, 22), 12);
  }

  void theFirstTwoRowsOfDigitsTouchAndTheRowsTwelveAndSeventeenLieBetweenKeys() {
    QCOMPARE(kMappaCifre.Tasto(2, 6), 1);
    QCOMPARE(kMappaCifre.Tasto(2, 7), 5);
    QCOMPARE(kMappaCifre.Tasto(2, 12), 0);
    QCOMPARE(kMappaCifre.Tasto(2, 17), 0);
    QCOMPARE(kMappaCifre.Tasto(2, 1), 0);
    QCOMPARE(kMappaCifre.Tasto(2, 23), 0);
  }

  void everyCellOfTheGridIsTheKeyThatTheSheetHasThere() {
    // The grid from its first column (24 of them) and row (23) on: which key across and which down,
    // "." for none.
    struct Foglio {
      const MappaTasti& mappa;
      std::string_view colonne;
      std::string_view righe;
      int perRiga;
    };
    const Foglio fogli[] = {
        {kMappaCifre, ".1111..2222..3333..4444.", ".1111122222.3333.44444.", 4},
        {kMappaBlocchi, ".111111..222222..333333.", ".111111.222222.333333..", 3},
        {kMappaAbaco, ".1111..2222..3333..4444.", ".111111..22222..333333.", 4},
    };
    for (const Foglio& foglio : fogli) {
      for (int colonna = 1; colonna <= int(foglio.colonne.size()); ++colonna) {
        for (int riga = 1; riga <= int(foglio.righe.size()); ++riga) {
          const char diTraverso = foglio.colonne[std::size_t(colonna - 1)];
          const char inGiu = foglio.righe[std::size_t(riga - 1)];
          const bool tra = diTraverso == '.' || inGiu == '.';
          QCOMPARE(foglio.mappa.Tasto(colonna, riga),
                   tra ? 0 : (inGiu - '1') * foglio.perRiga + (diTraverso - '0'));
        }
      }
    }
  }

  void aColumnOfSixOrSevenLiesBetweenKeys() {
    for (int riga = 0; riga <= 24; ++riga) {
      QCOMPARE(kMappaCifre.Tasto(6, riga), 0);
      QCOMPARE(kMappaCifre.Tasto(7, riga), 0);
    }
  }

  void theCornersOfEveryKeyAreTheKeyAndTheCellsAroundItAreNotIt_data() { mappe(); }
  void theCornersOfEveryKeyAreTheKeyAndTheCellsAroundItAreNotIt() {
    QFETCH(int, quale);
    const MappaTasti& mappa = *kMappe[quale].mappa;
    QCOMPARE(mappa.Tasti(), kMappe[quale].tasti);
    for (int tasto = 1; tasto <= mappa.Tasti(); ++tasto) {
      const somme::Fascia colonne = mappa.ColonneDi(tasto);
      const somme::Fascia righe = mappa.RigheDi(tasto);
      for (const int colonna : {colonne.da, colonne.a}) {
        for (const int riga : {righe.da, righe.a}) QCOMPARE(mappa.Tasto(colonna, riga), tasto);
      }
      QVERIFY(mappa.Tasto(colonne.da - 1, righe.da) != tasto);
      QVERIFY(mappa.Tasto(colonne.a + 1, righe.da) != tasto);
      QVERIFY(mappa.Tasto(colonne.da, righe.da - 1) != tasto);
      QVERIFY(mappa.Tasto(colonne.da, righe.a + 1) != tasto);
    }
  }

  void everyCellIsOneKeyOrNoneAndEveryKeyHasCells_data() { mappe(); }
  void everyCellIsOneKeyOrNoneAndEveryKeyHasCells() {
    QFETCH(int, quale);
    const MappaTasti& mappa = *kMappe[quale].mappa;
    std::set<int> trovati;
    for (int colonna = -70; colonna <= 200; ++colonna) {
      for (int riga = -70; riga <= 200; ++riga) {
        const int tasto = mappa.Tasto(colonna, riga);
        QVERIFY(tasto >= 0 && tasto <= mappa.Tasti());
        if (tasto == 0) continue;
        trovati.insert(tasto);
        QVERIFY(colonna >= 2 && colonna <= 23 && riga >= 2 && riga <= 22);
      }
    }
    QCOMPARE(int(trovati.size()), mappa.Tasti());
  }
};

QTEST_APPLESS_MAIN(MappaTastiTest)
#include "mappa_tasti_test.moc"
