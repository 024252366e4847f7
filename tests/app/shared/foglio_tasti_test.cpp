#include "app/shared/foglio_tasti.h"

#include <QTest>
#include <set>
#include <stdexcept>
#include <string_view>

#include "support/iscrizione.h"

namespace foglio_tasti_test {

using somme::FoglioDi;
using somme::FoglioTasti;
using somme::kTastieraAbaco;
using somme::kTastieraBlocchi;
using somme::kTastieraCifre;
using somme::Tastiera;
using somme::Tasto;

namespace {

struct Riga {
  const char* nome;
  const Tastiera* tastiera;
  int tasti;
};
constexpr Riga kTastiere[] = {{"digits", &kTastieraCifre, 16},
                              {"blocks", &kTastieraBlocchi, 9},
                              {"abacus", &kTastieraAbaco, 12}};

}  // namespace

// Which key of a sheet a touch falls on.
class FoglioTastiTest : public QObject {
  Q_OBJECT

  static void tastiere() {
    QTest::addColumn<int>("quale");
    for (int i = 0; i < int(std::size(kTastiere)); ++i) QTest::newRow(kTastiere[i].nome) << i;
  }

 private Q_SLOTS:
  void theKeysCountFromLeftToRightAndFromTheTop() {
    QCOMPARE(kTastieraCifre.Posto(2, 2), 1);
    QCOMPARE(kTastieraCifre.Posto(8, 2), 2);
    QCOMPARE(kTastieraCifre.Posto(23, 6), 4);
    QCOMPARE(kTastieraCifre.Posto(2, 7), 5);
    QCOMPARE(kTastieraCifre.Posto(11, 16), 10);
    QCOMPARE(kTastieraCifre.Posto(20, 22), 16);
    QCOMPARE(kTastieraBlocchi.Posto(10, 2), 2);
    QCOMPARE(kTastieraBlocchi.Posto(7, 14), 4);
    QCOMPARE(kTastieraBlocchi.Posto(23, 21), 9);
    QCOMPARE(kTastieraAbaco.Posto(14, 10), 7);
    QCOMPARE(kTastieraAbaco.Posto(23, 22), 12);
  }

  void theFirstTwoRowsOfDigitsTouchAndTheRowsTwelveAndSeventeenLieBetweenKeys() {
    QCOMPARE(kTastieraCifre.Posto(2, 6), 1);
    QCOMPARE(kTastieraCifre.Posto(2, 7), 5);
    QCOMPARE(kTastieraCifre.Posto(2, 12), 0);
    QCOMPARE(kTastieraCifre.Posto(2, 17), 0);
    QCOMPARE(kTastieraCifre.Posto(2, 1), 0);
    QCOMPARE(kTastieraCifre.Posto(2, 23), 0);
  }

  void everyCellOfTheGridIsTheKeyThatTheSheetHasThere() {
    // The grid from its first column (24 of them) and row (23) on: which key across and which down,
    // "." for none.
    struct Foglio {
      const Tastiera& tastiera;
      std::string_view colonne;
      std::string_view righe;
      int perRiga;
    };
    const Foglio fogli[] = {
        {kTastieraCifre, ".1111..2222..3333..4444.", ".1111122222.3333.44444.", 4},
        {kTastieraBlocchi, ".111111..222222..333333.", ".111111.222222.333333..", 3},
        {kTastieraAbaco, ".1111..2222..3333..4444.", ".111111..22222..333333.", 4},
    };
    for (const Foglio& foglio : fogli) {
      for (int colonna = 1; colonna <= int(foglio.colonne.size()); ++colonna) {
        for (int riga = 1; riga <= int(foglio.righe.size()); ++riga) {
          const char diTraverso = foglio.colonne[std::size_t(colonna - 1)];
          const char inGiu = foglio.righe[std::size_t(riga - 1)];
          const bool tra = diTraverso == '.' || inGiu == '.';
          QCOMPARE(foglio.tastiera.Posto(colonna, riga),
                   tra ? 0 : (inGiu - '1') * foglio.perRiga + (diTraverso - '0'));
        }
      }
    }
  }

  void aColumnOfSixOrSevenLiesBetweenKeys() {
    for (int riga = 0; riga <= 24; ++riga) {
      QCOMPARE(kTastieraCifre.Posto(6, riga), 0);
      QCOMPARE(kTastieraCifre.Posto(7, riga), 0);
    }
  }

  void theCornersOfEveryKeyAreTheKeyAndTheCellsAroundItAreNotIt_data() { tastiere(); }
  void theCornersOfEveryKeyAreTheKeyAndTheCellsAroundItAreNotIt() {
    QFETCH(int, quale);
    const Tastiera& tastiera = *kTastiere[quale].tastiera;
    QCOMPARE(tastiera.Posti(), kTastiere[quale].tasti);
    for (int tasto = 1; tasto <= tastiera.Posti(); ++tasto) {
      const auto [colonne, righe] = tastiera.CelleDi(tasto);
      for (const int colonna : {colonne.da, colonne.a}) {
        for (const int riga : {righe.da, righe.a}) QCOMPARE(tastiera.Posto(colonna, riga), tasto);
      }
      QVERIFY(tastiera.Posto(colonne.da - 1, righe.da) != tasto);
      QVERIFY(tastiera.Posto(colonne.a + 1, righe.da) != tasto);
      QVERIFY(tastiera.Posto(colonne.da, righe.da - 1) != tasto);
      QVERIFY(tastiera.Posto(colonne.da, righe.a + 1) != tasto);
    }
  }

  void everyCellIsOneKeyOrNoneAndEveryKeyHasCells_data() { tastiere(); }
  void everyCellIsOneKeyOrNoneAndEveryKeyHasCells() {
    QFETCH(int, quale);
    const Tastiera& tastiera = *kTastiere[quale].tastiera;
    std::set<int> trovati;
    for (int colonna = -70; colonna <= 200; ++colonna) {
      for (int riga = -70; riga <= 200; ++riga) {
        const int tasto = tastiera.Posto(colonna, riga);
        QVERIFY(tasto >= 0 && tasto <= tastiera.Posti());
        if (tasto == 0) continue;
        trovati.insert(tasto);
        QVERIFY(colonna >= 2 && colonna <= 23 && riga >= 2 && riga <= 22);
      }
    }
    QCOMPARE(int(trovati.size()), tastiera.Posti());
  }

  void theKeysOfEachSheetByTheirWords_data() {
    QTest::addColumn<QByteArray>("foglio");
    QTest::addColumn<QByteArray>("parole");
    const auto riga = [](const char* foglio, const char* parole) {
      QTest::newRow(foglio) << QByteArray(foglio) << QByteArray(parole);
    };
    riga("FormStampaFoglioNumeri", "0,1,2,3,4,5,6,7,8,9,,,cestino,aiuto,conferma,avanti");
    riga("FormStampaFoglioNumeri2", "0,1,2,3,4,5,6,7,8,9,,,cestino,,conferma,avanti");
    riga("FormStampaLU", ",da,u,,,u → da,cestino,conferma,avanti");
    riga("FormStampaPLU", "h,da,u,,da → h,u → da,cestino,conferma,avanti");
    riga("FormStampaAbaco", "k,h,da,u,,h → k,da → h,u → da,,cestino,conferma,avanti");
    riga("FormStampaFoglio4", ",,,,,,,,,,,,,,,");
    riga("FormStampaFoglio1", ",,,,,");
  }
  void theKeysOfEachSheetByTheirWords() {
    QFETCH(QByteArray, foglio);
    QFETCH(QByteArray, parole);
    const FoglioTasti& vero = FoglioDi(foglio.toStdString());
    QByteArrayList lette;
    for (int posto = 1; posto <= vero.tastiera.Posti(); ++posto) {
      const std::string_view parola = somme::SegnoDi(vero.TastoDi(posto).tasto).parola;
      lette.append(QByteArray(parola.data(), qsizetype(parola.size())));
    }
    QCOMPARE(lette.join(','), parole);
  }

  void theKeyOfEveryPlaceIsFoundAtThatPlaceAndNowhereElse() {
    for (const FoglioTasti& foglio : somme::kFogliTasti) {
      for (int i = 1; i <= int(somme::kUltimoTasto); ++i) {
        const int posto = foglio.PostoDi(Tasto(i));
        if (posto != 0) QVERIFY(foglio.TastoDi(posto).tasto == Tasto(i));
      }
      for (const Tasto tasto : foglio.senza) QCOMPARE(foglio.PostoDi(tasto), 0);
      for (const int posto : {-1, 0, foglio.tastiera.Posti() + 1}) {
        QVERIFY(foglio.TastoDi(posto).tasto == Tasto::Nessuno);
      }
      QCOMPARE(foglio.PostoDi(Tasto::Nessuno), 0);
    }
    QCOMPARE(FoglioDi("FormStampaPLU").PostoDi(Tasto::Centinaia), 1);
    QCOMPARE(FoglioDi("FormStampaAbaco").PostoDi(Tasto::Avanti), 12);
  }

  void aDigitsKeyWritesItsDigit() {
    for (int cifra = 0; cifra <= 9; ++cifra) {
      QVERIFY(somme::ECifra(somme::TastoCifra(cifra)));
      QCOMPARE(somme::CifraDi(somme::TastoCifra(cifra)), cifra);
      QCOMPARE(FoglioDi("FormStampaFoglioNumeri").PostoDi(somme::TastoCifra(cifra)), cifra + 1);
    }
    for (const Tasto tasto : {Tasto::Nessuno, Tasto::Migliaia, Tasto::Avanti}) {
      QVERIFY(!somme::ECifra(tasto));
    }
  }

  void aSheetThatThereIsNotIsAMistake() {
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)FoglioDi("FormStampa"));
  }
};

const prova::Iscrizione<FoglioTastiTest> kIscritta;

}  // namespace foglio_tasti_test

#include "foglio_tasti_test.moc"
