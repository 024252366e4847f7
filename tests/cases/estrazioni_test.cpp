// Every routine against its rule written down once more, as plainly as it can be told: fed with the
// same chances both must draw as often and make the same case. Half of the chances are those at the
// edges between two numbers, where a bound that is off by one gives another.
#include <QTest>
#include <cmath>
#include <functional>
#include <vector>

#include "cases/casuale.h"
#include "cases/modulo_somme.h"
#include "scripted_chance.h"
#include "support/iscrizione.h"

namespace estrazioni_test {

using namespace somme;

namespace {

constexpr int kCasi = 20'000;
constexpr int kPazienza = 400;  // draws after which a case spins for ever

// Gives a case up that has drawn for too long.
class Filo final : public platform::Chance {
 public:
  explicit Filo(std::uint64_t seme) : chance_(seme) {}

  [[nodiscard]] int estratti() const { return estratti_; }

  [[nodiscard]] float fraction() override {
    if (++estratti_ > kPazienza) throw EndOfScript();
    const float libera = chance_.fraction();
    if (chance_.fraction() < 0.5F) return libera;
    // The bounds of the draws that the rules name; of the sums any will do.
    static constexpr auto kDiQuanti = std::to_array<float>(
        {2, 3, 9, 10, 11, 20, 79, 88, 98, 99, 988, 8999, 9888, 9899, 9989, 9999});
    const float n = kDiQuanti[std::size_t(chance_.fraction() * float(kDiQuanti.size()))];
    const float orlo = std::floor(libera * n) / n;
    const float dentro = std::nextafterf(orlo, chance_.fraction() < 0.5F ? 0.0F : 1.0F);
    return dentro >= 0 && dentro < 1 ? dentro : 0;
  }

 private:
  platform::SeededChance chance_;
  int estratti_ = 0;
};

using Tira = std::function<int(int)>;
struct Somma {
  int primo;
  int secondo;
};
using Regola = std::function<Somma(const Tira&)>;

// A sum that is split anywhere; n: the sum is 1 to n.
Regola dividi(int n) {
  return [n](const Tira& tira) {
    const int somma = tira(n) + 1;
    const int primo = tira(somma);
    return Somma{primo, somma - primo};
  };
}
Regola dividiProprio(int somma) {
  return [somma](const Tira& tira) {
    const int primo = tira(somma);
    return Somma{primo, somma - primo};
  };
}

Regola unPosto(int n, int posto, int limite, int postoPoi) {
  return [=](const Tira& tira) {
    for (int p = posto;; p = postoPoi) {
      const int primo = tira(n) + 1;
      const int secondo = tira(10) * p;
      if (primo + secondo <= limite) return Somma{primo, secondo};
    }
  };
}

// minima: of the highest digit of the sum.
Regola senzaCambio(int cifre, int minima) {
  return [=](const Tira& tira) {
    std::vector<int> somma;
    int totale = 0;
    do {
      somma.clear();
      totale = 0;
      for (int i = 0; i < cifre; ++i) {
        somma.push_back(i == 0 ? tira(10 - minima) + minima : tira(10));
        totale = totale * 10 + somma.back();
      }
    } while (totale == 0);
    int primo = 0;
    do {
      primo = 0;
      for (const int cifra : somma) primo = primo * 10 + tira(cifra);
    } while (primo == 0);
    return Somma{primo, totale - primo};
  };
}

// Three columns: how many digits each draws from, and what is added to them; 10 where it carries.
struct Colonna3 {
  int quante;
  int piu;
};
Somma treColonne(const Tira& tira, const std::vector<Colonna3>& colonne) {
  std::vector<int> somma;
  int totale = 0;
  for (const auto& [quante, piu] : colonne) {
    somma.push_back(tira(quante) + piu);
    totale = totale * 10 + somma.back();
  }
  int primo = 0;
  do {
    primo = 0;
    for (const int colonna : somma) {
      int cifra = tira(colonna);
      while (colonna >= 10 && (cifra > 9 || colonna - cifra > 9)) cifra = tira(colonna);
      primo = primo * 10 + cifra;
    }
  } while (primo == 0);
  return {primo, totale - primo};
}
const std::vector<Colonna3> kCambioUnita{{10, 0}, {9, 0}, {9, 10}};
const std::vector<Colonna3> kCambioDecine{{9, 0}, {9, 10}, {10, 0}};
const std::vector<Colonna3> kDueCambi{{9, 0}, {9, 10}, {9, 10}};

Regola colonne(const std::vector<Colonna3>& quali) {
  return [quali](const Tira& tira) { return treColonne(tira, quali); };
}

// Four pairs of digits, from the units on, and for each what their sum must be: "+" at least 10,
// "9" at most 9, "8" at most 8.
Somma coppie(const Tira& tira, const char* condizioni) {
  Somma somma{0, 0};
  int posto = 1;
  for (const char* c = condizioni; *c != 0; ++c, posto *= 10) {
    int a = 0;
    int b = 0;
    const auto va = [&] { return *c == '+' ? a + b >= 10 : a + b <= *c - '0'; };
    do {
      a = tira(10);
      b = tira(10);
    } while (!va());
    somma.primo += a * posto;
    somma.secondo += b * posto;
  }
  return somma;
}
Regola unaDiTre(const char* prima, const char* seconda, const char* terza) {
  return [=](const Tira& tira) {
    const int k = tira(3);
    return coppie(tira, k == 0 ? prima : k == 1 ? seconda : terza);
  };
}

Somma dueCifreConCambio(const Tira& tira) {
  for (;;) {
    const int totale = tira(79) + 20;
    const int primo = tira(totale - 10) + 5;
    if (primo % 10 + (totale - primo) % 10 > 9) return {primo, totale - primo};
  }
}
Somma addendoMaggiore(const Tira& tira) {
  for (;;) {
    const int primo = tira(10) + 10;
    const int secondo = tira(10);
    if (primo + secondo <= 20) return {primo, secondo};
  }
}
Somma unCambioDiTre(const Tira& tira) {
  return tira(2) == 0 ? treColonne(tira, kCambioUnita) : treColonne(tira, kCambioDecine);
}
Somma entro20(const Tira& tira) {
  const int primo = tira(11);
  return {primo, tira(11)};
}
Somma dieciPiu(const Tira& tira) {
  return {10, tira(11)};
}

}  // namespace

}  // namespace estrazioni_test

Q_DECLARE_METATYPE(estrazioni_test::Regola)

namespace estrazioni_test {

class EstrazioniTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyRoutineDrawsAsItsRuleSays_data() {
    QTest::addColumn<Generatore>("genera");
    QTest::addColumn<Regola>("regola");
    const auto riga = [](const char* nome, Generatore genera, const Regola& regola) {
      QTest::newRow(nome) << genera << regola;
    };
    riga("GeneraEntro10", GeneraEntro10, dividi(10));
    riga("GeneraTotale10", GeneraTotale10, dividiProprio(10));
    riga("GeneraEntro20", GeneraEntro20, entro20);
    riga("GeneraDieciPiu", GeneraDieciPiu, dieciPiu);
    riga("GeneraAddendoMaggiore10", GeneraAddendoMaggiore10, addendoMaggiore);
    riga("GeneraTotale20", GeneraTotale20, dividiProprio(20));
    riga("GeneraEntro99SenzaCambio", GeneraEntro99SenzaCambio, senzaCambio(2, 0));
    riga("GeneraEntro99ConCambio", GeneraEntro99ConCambio, dueCifreConCambio);
    riga("GeneraEntro99ConESenzaCambio", GeneraEntro99ConESenzaCambio, dividi(99));
    riga("GeneraEntro99SoloUnita", GeneraEntro99SoloUnita, unPosto(98, 1, 99, 10));
    riga("GeneraEntro99SoloDecine", GeneraEntro99SoloDecine, unPosto(88, 10, 99, 10));
    riga("GeneraEntro999SenzaCambio", GeneraEntro999SenzaCambio, senzaCambio(3, 1));
    riga("GeneraEntro999CambioUnita", GeneraEntro999CambioUnita, colonne(kCambioUnita));
    riga("GeneraEntro999CambioDecine", GeneraEntro999CambioDecine, colonne(kCambioDecine));
    riga("GeneraEntro999UnCambio", GeneraEntro999UnCambio, unCambioDiTre);
    riga("GeneraEntro999DueCambi", GeneraEntro999DueCambi, colonne(kDueCambi));
    riga("GeneraEntro999ConESenzaCambi", GeneraEntro999ConESenzaCambi, dividi(988));
    riga("GeneraEntro999SoloUnita", GeneraEntro999SoloUnita, unPosto(988, 1, 999, 1));
    riga("GeneraEntro999SoloDecine", GeneraEntro999SoloDecine, unPosto(988, 10, 999, 10));
    riga("GeneraEntro999SoloCentinaia", GeneraEntro999SoloCentinaia, unPosto(988, 100, 999, 100));
    riga("GeneraEntro9999SenzaCambio", GeneraEntro9999SenzaCambio, senzaCambio(4, 0));
    riga("GeneraEntro9999UnCambio", GeneraEntro9999UnCambio, unaDiTre("+899", "9+89", "99+8"));
    riga("GeneraEntro9999DueCambi", GeneraEntro9999DueCambi, unaDiTre("++89", "9++8", "+8+8"));
    riga("GeneraEntro9999TreCambi", GeneraEntro9999TreCambi,
         [](const Tira& tira) { return coppie(tira, "+++8"); });
    riga("GeneraEntro9999ConESenzaCambi", GeneraEntro9999ConESenzaCambi, dividi(9888));
    riga("GeneraEntro9999SoloUnita", GeneraEntro9999SoloUnita, unPosto(9999, 1, 9999, 1));
    riga("GeneraEntro9999SoloDecine", GeneraEntro9999SoloDecine, unPosto(9989, 10, 9999, 10));
    riga("GeneraEntro9999SoloCentinaia", GeneraEntro9999SoloCentinaia,
         unPosto(9899, 100, 9999, 100));
    riga("GeneraEntro9999SoloMigliaia", GeneraEntro9999SoloMigliaia,
         unPosto(8999, 1000, 9999, 1000));
  }
  void everyRoutineDrawsAsItsRuleSays() {
    QFETCH(Generatore, genera);
    QFETCH(Regola, regola);
    for (std::uint64_t seme = 1; seme <= kCasi; ++seme) {
      Filo suo(seme);
      Filo nostro(seme);
      // A case that spins for ever is none.
      Caso caso{.Totale = -1};
      Somma atteso{-1, 0};
      try {
        genera(caso, suo);
      } catch (const EndOfScript&) {
      }
      try {
        atteso = regola([&nostro](int n) { return Casuale(nostro, n); });
      } catch (const EndOfScript&) {
      }
      if (caso.Totale >= 0 || atteso.primo >= 0) {
        QCOMPARE(int(caso.Addendo1), atteso.primo);
        QCOMPARE(int(caso.Addendo2), atteso.secondo);
        QCOMPARE(int(caso.Totale), atteso.primo + atteso.secondo);
      }
      QCOMPARE(suo.estratti(), nostro.estratti());
    }
  }
};

const prova::Iscrizione<EstrazioniTest> kIscritta;

}  // namespace estrazioni_test

#include "estrazioni_test.moc"
