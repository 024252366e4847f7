#include "cases/modulo_somme.h"

#include <array>
#include <span>

#include "cases/casuale.h"
#include "platform/base/numbers.h"

namespace somme::inline casi {

using platform::Chance;

namespace {

void ScriviAddendi(Caso& caso, int addendo1, int addendo2) {
  caso.Totale = platform::toInt16(addendo1 + addendo2);
  caso.Addendo1 = platform::toInt16(addendo1);
  caso.Addendo2 = platform::toInt16(addendo2);
}

void ScriviTotale(Caso& caso, int totale, int addendo1) {
  ScriviAddendi(caso, addendo1, totale - addendo1);
}

// The number that digits make, the highest place first. A digit of 10 to 18 counts as it stands.
int Numero(std::span<const int> cifre) {
  int numero = 0;
  for (const int cifra : cifre) numero = numero * 10 + cifra;
  return numero;
}

// Rule 1: a sum is split anywhere. The first addend can be 0, the second cannot.
void DividiSomma(Caso& caso, Chance& chance, int totale) {
  ScriviTotale(caso, totale, Casuale(chance, totale));
}

// Rule 2: a number, and one digit in one place that is added to it. While the sum passes the limit,
// both are drawn again.
struct UnSoloPosto {
  int quanti;                // the first addend is 1 to this
  int posto;                 // 1, 10, 100 or 1000
  int limite;                // of the sum
  int postoDiNuovo = posto;  // the place of what is drawn again
};

void AggiungiInUnPosto(Caso& caso, Chance& chance, const UnSoloPosto& regola) {
  int addendo1 = Casuale(chance, regola.quanti) + 1;
  int addendo2 = Casuale(chance, 10) * regola.posto;
  while (addendo1 + addendo2 > regola.limite) {
    addendo1 = Casuale(chance, regola.quanti) + 1;
    addendo2 = Casuale(chance, 10) * regola.postoDiNuovo;
  }
  ScriviAddendi(caso, addendo1, addendo2);
}

// One column of a sum that is drawn digit by digit. A column that carries has a minimum of 10: its
// digit is the column's sum before the carry is taken away.
struct Colonna {
  int quante;  // how many digits there are to choose from
  int minima = 0;
};

constexpr Colonna kQualsiasi{10};
constexpr Colonna kNonZero{9, 1};
constexpr Colonna kPrimaDelCambio{9};  // 0 to 8: the carry that comes in makes no other
constexpr Colonna kConCambio{9, 10};

template <std::size_t N>
std::array<int, N> EstraiColonne(Chance& chance, const std::array<Colonna, N>& colonne) {
  std::array<int, N> cifre{};
  for (std::size_t i = 0; i < N; ++i) {
    cifre[i] = Casuale(chance, colonne[i].quante) + colonne[i].minima;
  }
  return cifre;
}

// Rule 3: the digits of the sum, then for each place a digit of the first addend below it, so that
// no column carries. A sum with digits of 0 and 1 alone leaves nothing but 0 for the first addend,
// and the search for another goes on for ever.
template <std::size_t N>
void SenzaCambio(Caso& caso, Chance& chance, const std::array<Colonna, N>& colonne) {
  std::array<int, N> somma{};
  do {
    somma = EstraiColonne(chance, colonne);
  } while (Numero(somma) == 0);
  std::array<int, N> primo{};
  do {
    for (std::size_t i = 0; i < N; ++i) primo[i] = Casuale(chance, somma[i]);
  } while (Numero(primo) == 0);
  ScriviTotale(caso, Numero(somma), Numero(primo));
}

// A digit of the first addend that leaves the second a true digit, too: only a carrying column
// (10 to 18) can need more than one draw.
int CifraDelPrimo(Chance& chance, int colonna) {
  int cifra = 0;
  do {
    cifra = Casuale(chance, colonna);
  } while (cifra > 9 || colonna - cifra > 9);
  return cifra;
}

// Rule 4: the columns of the sum, some of them carrying, then the first addend digit by digit. The
// tests of both numbers never fail with the columns that are in use.
void ColonneDellaSomma(Caso& caso, Chance& chance, const std::array<Colonna, 3>& colonne) {
  std::array<int, 3> somma{};
  do {
    somma = EstraiColonne(chance, colonne);
  } while (Numero(somma) == 0 || Numero(somma) > 999);
  std::array<int, 3> primo{};
  do {
    for (std::size_t i = 0; i < primo.size(); ++i) primo[i] = CifraDelPrimo(chance, somma[i]);
  } while (Numero(primo) == 0);
  ScriviTotale(caso, Numero(somma), Numero(primo));
}

// Rule 5: pairs of digits, from the units to the thousands, each pair drawn again until its sum
// fits the column.
struct SommaDellaCoppia {
  int minima;
  int massima;
};

constexpr SommaDellaCoppia kCambio{10, 18};
constexpr SommaDellaCoppia kSenza{0, 9};
constexpr SommaDellaCoppia kDopoCambio{0, 8};  // a carry comes in and must not make another

// From the units to the thousands.
using Coppie = std::array<SommaDellaCoppia, 4>;

void CoppieDiCifre(Caso& caso, Chance& chance, const Coppie& coppie) {
  int addendo1 = 0;
  int addendo2 = 0;
  int posto = 1;
  for (const SommaDellaCoppia& coppia : coppie) {
    int prima = 0;
    int seconda = 0;
    do {
      prima = Casuale(chance, 10);
      seconda = Casuale(chance, 10);
    } while (prima + seconda < coppia.minima || prima + seconda > coppia.massima);
    addendo1 += prima * posto;
    addendo2 += seconda * posto;
    posto *= 10;
  }
  ScriviAddendi(caso, addendo1, addendo2);
}

constexpr std::array<Coppie, 3> kUnCambio = {{{kCambio, kDopoCambio, kSenza, kSenza},
                                              {kSenza, kCambio, kDopoCambio, kSenza},
                                              {kSenza, kSenza, kCambio, kDopoCambio}}};
constexpr std::array<Coppie, 3> kDueCambi = {{{kCambio, kCambio, kDopoCambio, kSenza},
                                              {kSenza, kCambio, kCambio, kDopoCambio},
                                              {kCambio, kDopoCambio, kCambio, kDopoCambio}}};
constexpr Coppie kTreCambi = {kCambio, kCambio, kCambio, kDopoCambio};

void CoppieAScelta(Caso& caso, Chance& chance, const std::array<Coppie, 3>& scelte) {
  const int k = Casuale(chance, 3);
  CoppieDiCifre(caso, chance, scelte[static_cast<std::size_t>(k)]);
}

// Rule 6: a sum of 20 to 98, split until the units carry. The tens of such a sum cannot.
void CambioAlleUnita(Caso& caso, Chance& chance) {
  int totale = 0;
  int addendo1 = 0;
  do {
    totale = Casuale(chance, 79) + 20;
    addendo1 = Casuale(chance, totale - 10) + 5;
  } while (addendo1 % 10 + (totale - addendo1) % 10 <= 9);
  ScriviTotale(caso, totale, addendo1);
}

}  // namespace

void GeneraEntro10(Caso& caso, Chance& chance) {
  DividiSomma(caso, chance, Casuale(chance, 10) + 1);
}

void GeneraTotale10(Caso& caso, Chance& chance) {
  DividiSomma(caso, chance, 10);
}

void GeneraEntro20(Caso& caso, Chance& chance) {
  const int addendo1 = Casuale(chance, 11);
  const int addendo2 = Casuale(chance, 11);
  ScriviAddendi(caso, addendo1, addendo2);
}

void GeneraDieciPiu(Caso& caso, Chance& chance) {
  ScriviAddendi(caso, 10, Casuale(chance, 11));
}

void GeneraAddendoMaggiore10(Caso& caso, Chance& chance) {
  int addendo1 = 0;
  int addendo2 = 0;
  do {
    addendo1 = Casuale(chance, 10) + 10;
    addendo2 = Casuale(chance, 10);
  } while (addendo1 + addendo2 >= 21);
  ScriviAddendi(caso, addendo1, addendo2);
}

void GeneraTotale20(Caso& caso, Chance& chance) {
  DividiSomma(caso, chance, 20);
}

void GeneraEntro99SenzaCambio(Caso& caso, Chance& chance) {
  SenzaCambio(caso, chance, std::array{kQualsiasi, kQualsiasi});
}

void GeneraEntro99ConCambio(Caso& caso, Chance& chance) {
  CambioAlleUnita(caso, chance);
}

void GeneraEntro99ConESenzaCambio(Caso& caso, Chance& chance) {
  DividiSomma(caso, chance, Casuale(chance, 99) + 1);
}

// What is drawn again adds tens, unlike in its namesakes of three and four digits: kept
// (docs/oddities.md).
void GeneraEntro99SoloUnita(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 98, .posto = 1, .limite = 99, .postoDiNuovo = 10});
}

void GeneraEntro99SoloDecine(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 88, .posto = 10, .limite = 99});
}

void GeneraEntro999SenzaCambio(Caso& caso, Chance& chance) {
  SenzaCambio(caso, chance, std::array{kNonZero, kQualsiasi, kQualsiasi});
}

void GeneraEntro999CambioUnita(Caso& caso, Chance& chance) {
  ColonneDellaSomma(caso, chance, {kQualsiasi, kPrimaDelCambio, kConCambio});
}

void GeneraEntro999CambioDecine(Caso& caso, Chance& chance) {
  ColonneDellaSomma(caso, chance, {kPrimaDelCambio, kConCambio, kQualsiasi});
}

void GeneraEntro999UnCambio(Caso& caso, Chance& chance) {
  const int quale = Casuale(chance, 2) + 1;
  if (quale == 1) {
    GeneraEntro999CambioUnita(caso, chance);
  } else {
    GeneraEntro999CambioDecine(caso, chance);
  }
}

void GeneraEntro999DueCambi(Caso& caso, Chance& chance) {
  ColonneDellaSomma(caso, chance, {kPrimaDelCambio, kConCambio, kConCambio});
}

void GeneraEntro999ConESenzaCambi(Caso& caso, Chance& chance) {
  DividiSomma(caso, chance, Casuale(chance, 988) + 1);
}

void GeneraEntro999SoloUnita(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 988, .posto = 1, .limite = 999});
}

void GeneraEntro999SoloDecine(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 988, .posto = 10, .limite = 999});
}

void GeneraEntro999SoloCentinaia(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 988, .posto = 100, .limite = 999});
}

void GeneraEntro9999SenzaCambio(Caso& caso, Chance& chance) {
  SenzaCambio(caso, chance, std::array{kQualsiasi, kQualsiasi, kQualsiasi, kQualsiasi});
}

void GeneraEntro9999UnCambio(Caso& caso, Chance& chance) {
  CoppieAScelta(caso, chance, kUnCambio);
}

void GeneraEntro9999DueCambi(Caso& caso, Chance& chance) {
  CoppieAScelta(caso, chance, kDueCambi);
}

void GeneraEntro9999TreCambi(Caso& caso, Chance& chance) {
  CoppieDiCifre(caso, chance, kTreCambi);
}

void GeneraEntro9999ConESenzaCambi(Caso& caso, Chance& chance) {
  DividiSomma(caso, chance, Casuale(chance, 9888) + 1);
}

void GeneraEntro9999SoloUnita(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 9999, .posto = 1, .limite = 9999});
}

void GeneraEntro9999SoloDecine(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 9989, .posto = 10, .limite = 9999});
}

void GeneraEntro9999SoloCentinaia(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 9899, .posto = 100, .limite = 9999});
}

void GeneraEntro9999SoloMigliaia(Caso& caso, Chance& chance) {
  AggiungiInUnPosto(caso, chance, {.quanti = 8999, .posto = 1000, .limite = 9999});
}

}  // namespace somme::inline casi
