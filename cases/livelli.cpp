#include "cases/livelli.h"

#include "cases/livelli_coerenti.h"

namespace somme::inline casi::coerenti {

// Rows that contradict one another do not compile.
static_assert(InOrdine(kLivelli), "a level stands among those of another group");
static_assert(ConParole(kLivelli), "a level has no words");
static_assert(Offerti(kLivelli), "no family has a level, or it asks for sum and addend at once");
static_assert(NumeriDistinti(kLivelli), "two levels of a family have one number");
static_assert(CifreBastanti(kLivelli), "the box is too short for a sum of a level's group");
static_assert(AddendiConTitolo(kLivelli), "an addend has a number that no sum has");
static_assert(AbaciConFrecce(kLivelli), "a level of the abacus has an arrow that its group lacks");
static_assert(BlocchiCompleti(kLivelli), "a level of the blocks lacks board, button or record");

}  // namespace somme::inline casi::coerenti
