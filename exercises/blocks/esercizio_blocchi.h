#pragma once

#include <QStringView>
#include <span>

#include "app/shared/stringhe_condivise.h"
#include "cases/famiglia.h"
#include "exercises/core/quantita.h"

namespace somme {

// A kind of block: what it is worth, how the movies call its clips ("da1", "da2", ...), and which
// of the numbers on a board counts it.
struct SpecieBlocchi {
  QStringView clip;
  int valore;
  int Quantita::*quanti;
};

namespace blocchi {

inline constexpr SpecieBlocchi kUnita{u"u", 1, &Quantita::unita};
inline constexpr SpecieBlocchi kLunghi{u"da", 10, &Quantita::decine};
inline constexpr SpecieBlocchi kPiatti{u"h", 100, &Quantita::centinaia};

// Of one kind on the board of an addend.
inline constexpr int kMassimoPerSpecie = 9;
// Of one kind that become one of the next.
inline constexpr int kDieci = 10;

}  // namespace blocchi

// A carry: ten blocks of a kind become one of the next, in a stretch of the joined board's movie
// that ends with the movie's word.
struct CambioBlocchi {
  const SpecieBlocchi& da;
  const SpecieBlocchi& a;
  int fotogramma;      // where the stretch begins
  QStringView parola;  // the argument of the movie's command
  bool tornaAlPrimo;   // the form sends the movie to frame 1 at the word; else it stops by itself
};

// Clips of a kind that a new case hides on the joined board, from the first on.
struct Sgombero {
  const SpecieBlocchi& specie;
  int quanti;
};

// In what the blocks up to 99 and those up to 999 differ.
struct EsercizioBlocchi {
  Famiglia famiglia;                   // of `TipoEsercizio`
  QString StringheCondivise::*titolo;  // of the record
  QStringView filmatoAddendo;          // from the program's folder
  QStringView filmatoUnione;
  std::span<const SpecieBlocchi* const> specie;  // in the order in which the boards are joined
  std::span<const Sgombero> sgombero;
  std::span<const CambioBlocchi> cambi;  // in the order in which they are asked for
};

extern const EsercizioBlocchi kBlocchiEntro99;
extern const EsercizioBlocchi kBlocchiEntro999;

}  // namespace somme
