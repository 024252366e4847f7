#include "input/mappa_tasti.h"

#include <QTest>
#include <set>

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
