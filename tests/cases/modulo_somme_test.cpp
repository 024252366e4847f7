// Every routine against what its kind promises, over a hundred thousand cases of a seeded source.
#include "cases/modulo_somme.h"

#include <QTest>
#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "scripted_chance.h"
#include "support/iscrizione.h"

namespace modulo_somme_test {

using namespace somme;

namespace {

constexpr int kQuantiCasi = 100'000;

// A seeded source that gives up a case for which it was drawn from too often: only a rule that
// spins for ever does so.
class PatientChance final : public platform::Chance {
 public:
  explicit PatientChance(std::uint64_t seed) : chance_(seed) {}

  void newCase() { drawn_ = 0; }
  [[nodiscard]] int drawn() const { return drawn_; }

  [[nodiscard]] float fraction() override {
    if (++drawn_ > 2000) throw EndOfScript();
    return chance_.fraction();
  }

 private:
  platform::SeededChance chance_;
  int drawn_ = 0;
};

struct Limiti {
  int minimo;
  int massimo;

  [[nodiscard]] bool contiene(int valore) const { return valore >= minimo && valore <= massimo; }
};

// Which columns carry when the addends are written one under the other, as bits: 1 the units, 2 the
// tens, 4 the hundreds, 8 the thousands.
unsigned cambiDi(const Caso& caso) {
  unsigned cambi = 0;
  int riporto = 0;
  int primo = caso.Addendo1;
  int secondo = caso.Addendo2;
  for (unsigned colonna = 1; colonna <= 8; colonna *= 2) {
    riporto = primo % 10 + secondo % 10 + riporto > 9 ? 1 : 0;
    if (riporto == 1) cambi |= colonna;
    primo /= 10;
    secondo /= 10;
  }
  return cambi;
}

// What a kind of case promises.
struct Promessa {
  Limiti somma;
  Limiti primo;
  Limiti secondo;
  std::set<unsigned> cambi;   // the columns that may carry together; empty: any
  int posto = 0;              // the second addend is one digit in this place; 0: any number
  double giri = 0;            // the share of cases that spin
  bool estremiVisti = false;  // both ends of the sum's range must have come up
};

constexpr Limiti alMeno(int minimo) {
  return {minimo, 9999};
}

}  // namespace

class ModuloSommeTest : public QObject {
  Q_OBJECT

 private:
  static void verifica(Generatore genera, const Promessa& promessa) {
    PatientChance chance(20071013);
    Limiti visti{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    std::set<unsigned> cambiVisti;
    int giri = 0;
    for (int i = 0; i < kQuantiCasi; ++i) {
      Caso caso;
      chance.newCase();
      try {
        genera(caso, chance);
      } catch (const EndOfScript&) {
        ++giri;
        continue;
      }
      const bool mantenuta =
          caso.Totale == caso.Addendo1 + caso.Addendo2 && promessa.somma.contiene(caso.Totale) &&
          promessa.primo.contiene(caso.Addendo1) && promessa.secondo.contiene(caso.Addendo2) &&
          (promessa.cambi.empty() || promessa.cambi.contains(cambiDi(caso))) &&
          (promessa.posto == 0 ||
           (caso.Addendo2 % promessa.posto == 0 && caso.Addendo2 / promessa.posto <= 9));
      if (!mantenuta) {
        QFAIL(qPrintable(
            QStringLiteral("%1 + %2 = %3").arg(caso.Addendo1).arg(caso.Addendo2).arg(caso.Totale)));
      }
      visti = {std::min<int>(visti.minimo, caso.Totale), std::max<int>(visti.massimo, caso.Totale)};
      cambiVisti.insert(cambiDi(caso));
    }
    // Six times the standard deviation on either side.
    const double scarto = 6 * std::sqrt(kQuantiCasi * promessa.giri * (1 - promessa.giri));
    QVERIFY2(std::abs(giri - kQuantiCasi * promessa.giri) <= scarto,
             qPrintable(QString::number(giri)));
    if (!promessa.cambi.empty()) QVERIFY(cambiVisti == promessa.cambi);
    if (promessa.estremiVisti) {
      QCOMPARE(visti.minimo, promessa.somma.minimo);
      QCOMPARE(visti.massimo, promessa.somma.massimo);
    }
  }

 private Q_SLOTS:
  void generaEntro10() { verifica(GeneraEntro10, {{1, 10}, {0, 9}, {1, 10}, {0, 1}, 0, 0, true}); }
  void generaTotale10() {
    verifica(GeneraTotale10, {{10, 10}, {0, 9}, {1, 10}, {0, 1}, 0, 0, true});
  }
  void generaEntro20() { verifica(GeneraEntro20, {{0, 20}, {0, 10}, {0, 10}, {0, 1}, 0, 0, true}); }
  void generaDieciPiu() {
    verifica(GeneraDieciPiu, {{10, 20}, {10, 10}, {0, 10}, {0}, 0, 0, true});
  }
  void generaAddendoMaggiore10() {
    verifica(GeneraAddendoMaggiore10, {{10, 20}, {10, 19}, {0, 9}, {0, 1}, 0, 0, true});
  }
  void generaTotale20() {
    verifica(GeneraTotale20, {{20, 20}, {0, 19}, {1, 20}, {0, 1}, 0, 0, true});
  }

  void generaEntro99SenzaCambio() {
    // Three of 99 sums spin. The smallest that does not is 2, the largest first digit 9.
    verifica(GeneraEntro99SenzaCambio, {{2, 99}, alMeno(1), alMeno(1), {0}, 0, 3.0 / 99, true});
  }
  void generaEntro99ConCambio() {
    verifica(GeneraEntro99ConCambio, {{20, 98}, {5, 92}, {6, 93}, {1}, 0, 0, true});
  }
  void generaEntro99ConESenzaCambio() {
    verifica(GeneraEntro99ConESenzaCambio, {{1, 99}, {0, 98}, {1, 99}, {0, 1}, 0, 0, true});
  }
  void generaEntro99SoloUnita() {
    verifica(GeneraEntro99SoloUnita, {{1, 99}, {1, 98}, {0, 90}, {}, 0, 0, true});
  }
  void generaEntro99SoloUnitaAddsADigitOrAMultipleOfTenAfterARetryOnly() {
    PatientChance chance(1);
    int diNuovo = 0;
    for (int i = 0; i < kQuantiCasi; ++i) {
      Caso caso;
      chance.newCase();
      GeneraEntro99SoloUnita(caso, chance);
      const bool primaVolta = chance.drawn() == 2;
      diNuovo += primaVolta ? 0 : 1;
      QVERIFY(primaVolta ? caso.Addendo2 <= 9 : caso.Addendo2 % 10 == 0);
    }
    // Some 36 of 980 first draws pass the limit.
    QVERIFY(diNuovo > 3'000 && diNuovo < 4'400);
  }
  void generaEntro99SoloDecine() {
    verifica(GeneraEntro99SoloDecine, {{1, 99}, {1, 88}, {0, 90}, {0}, 10, 0, true});
  }

  void generaEntro999SenzaCambio() {
    verifica(GeneraEntro999SenzaCambio,
             {{102, 999}, alMeno(1), alMeno(1), {0}, 0, 4.0 / 900, false});
  }
  void generaEntro999CambioUnita() {
    verifica(GeneraEntro999CambioUnita, {{10, 998}, alMeno(1), alMeno(1), {1}, 0, 0, true});
  }
  void generaEntro999CambioDecine() {
    verifica(GeneraEntro999CambioDecine, {{100, 989}, alMeno(1), alMeno(1), {2}, 0, 0, true});
  }
  void generaEntro999UnCambio() {
    verifica(GeneraEntro999UnCambio, {{10, 998}, alMeno(1), alMeno(1), {1, 2}, 0, 0, true});
  }
  void generaEntro999DueCambi() {
    verifica(GeneraEntro999DueCambi, {{110, 998}, alMeno(1), alMeno(1), {3}, 0, 0, true});
  }
  void generaEntro999ConESenzaCambi() {
    verifica(GeneraEntro999ConESenzaCambi,
             {{1, 988}, {0, 987}, {1, 988}, {0, 1, 2, 3}, 0, 0, true});
  }
  void generaEntro999SoloUnita() {
    verifica(GeneraEntro999SoloUnita, {{1, 997}, {1, 988}, {0, 9}, {0, 1, 3}, 1, 0, true});
  }
  void generaEntro999SoloDecine() {
    verifica(GeneraEntro999SoloDecine, {{1, 999}, {1, 988}, {0, 90}, {0, 2}, 10, 0, true});
  }
  void generaEntro999SoloCentinaia() {
    verifica(GeneraEntro999SoloCentinaia, {{1, 999}, {1, 988}, {0, 900}, {0}, 100, 0, true});
  }

  void generaEntro9999SenzaCambio() {
    verifica(GeneraEntro9999SenzaCambio,
             {{2, 9999}, alMeno(1), alMeno(1), {0}, 0, 15.0 / 9999, false});
  }
  void generaEntro9999UnCambio() {
    verifica(GeneraEntro9999UnCambio, {{10, 9999}, alMeno(0), alMeno(0), {1, 2, 4}, 0, 0, false});
  }
  void generaEntro9999DueCambi() {
    verifica(GeneraEntro9999DueCambi, {{110, 9999}, alMeno(0), alMeno(0), {3, 6, 5}, 0, 0, false});
  }
  void generaEntro9999TreCambi() {
    verifica(GeneraEntro9999TreCambi, {{1110, 9998}, alMeno(0), alMeno(0), {7}, 0, 0, false});
  }
  void generaEntro9999TreCambiHasThousandsOfEightAtMost() {
    PatientChance chance(3);
    for (int i = 0; i < kQuantiCasi; ++i) {
      Caso caso;
      chance.newCase();
      GeneraEntro9999TreCambi(caso, chance);
      QVERIFY(caso.Addendo1 / 1000 + caso.Addendo2 / 1000 <= 8);
    }
  }
  void generaEntro9999ConESenzaCambi() {
    verifica(GeneraEntro9999ConESenzaCambi,
             {{1, 9888}, {0, 9887}, {1, 9888}, {0, 1, 2, 3, 4, 5, 6, 7}, 0, 0, true});
  }
  void generaEntro9999SoloUnita() {
    verifica(GeneraEntro9999SoloUnita, {{1, 9999}, {1, 9999}, {0, 9}, {0, 1, 3, 7}, 1, 0, false});
  }
  void generaEntro9999SoloDecine() {
    verifica(GeneraEntro9999SoloDecine, {{1, 9999}, {1, 9989}, {0, 90}, {0, 2, 6}, 10, 0, false});
  }
  void generaEntro9999SoloCentinaia() {
    verifica(GeneraEntro9999SoloCentinaia, {{1, 9999}, {1, 9899}, {0, 900}, {0, 4}, 100, 0, false});
  }
  void generaEntro9999SoloMigliaia() {
    verifica(GeneraEntro9999SoloMigliaia, {{1, 9999}, {1, 8999}, {0, 9000}, {0}, 1000, 0, false});
  }

  void theFirstAddendHasDigitsBelowTheSumsWhereNoColumnCarries() {
    PatientChance chance(5);
    for (const Generatore genera :
         {GeneraEntro99SenzaCambio, GeneraEntro999SenzaCambio, GeneraEntro9999SenzaCambio}) {
      for (int i = 0; i < 10'000; ++i) {
        Caso caso;
        chance.newCase();
        try {
          genera(caso, chance);
        } catch (const EndOfScript&) {
          continue;
        }
        for (int somma = caso.Totale, primo = caso.Addendo1; somma > 0; somma /= 10, primo /= 10) {
          QVERIFY(primo % 10 < somma % 10 || primo % 10 == 0);
        }
      }
    }
  }

  void carryAtTheUnitsMakesThemTenTo18AndLeavesTheTensAtEight() {
    PatientChance chance(4);
    for (int i = 0; i < kQuantiCasi; ++i) {
      Caso caso;
      chance.newCase();
      GeneraEntro999CambioUnita(caso, chance);
      const int unita = caso.Addendo1 % 10 + caso.Addendo2 % 10;
      QVERIFY(unita >= 10 && unita <= 18);
      QVERIFY(caso.Addendo1 / 10 % 10 + caso.Addendo2 / 10 % 10 <= 8);
    }
  }

  void aCaseHasNoMemoryOfTheOneBefore() {
    for (const Caso& prima : {Caso{}, Caso{.Totale = 9, .Addendo1 = 4, .Addendo2 = 5}}) {
      platform::SeededChance chance(6);
      Caso caso = prima;
      GeneraEntro10(caso, chance);
      platform::SeededChance stessa(6);
      Caso altro;
      GeneraEntro10(altro, stessa);
      QCOMPARE(caso, altro);
    }
  }
};

const prova::Iscrizione<ModuloSommeTest> kIscritta;

}  // namespace modulo_somme_test

#include "modulo_somme_test.moc"
