#pragma once

#include "exercises/blocks/disegno_blocchi.h"
#include "exercises/blocks/forma_blocchi_scansione.h"
#include "exercises/core/disegno_scansione.h"

// Rows that the scanning blocks forms share.
namespace somme::disegno {

inline constexpr TwipsRect kPostoHDUBlocchi{840, 5400, 4335, 722};
inline constexpr TwipsRect kPostoNumericaBlocchi{2640, 6480, 6255, 447};

constexpr Row RisultatoScandito(TwipsRect posto, int cifre) {
  Row riga = row<&FormaBlocchiScansione::TestoInput>(posto, ScrittaRisultato(cifre));
  riga.look.toolTip = "Il numero scelto con la tastiera";
  return riga;
}

// The counters stand right of the keyboard of digits, where other forms have the way on.
inline constexpr auto kTastiereBlocchi = std::to_array<Row>({
    row<&FormaBlocchiScansione::LabelDimensioneTastiera>(kPostoHDUBlocchi, {.hidden = true}),
    row<&FormaBlocchiScansione::LabelPerTastieraNumerica>(kPostoNumericaBlocchi, {.hidden = true}),
    TastieraNumerica<FormaBlocchiScansione>(kPostoNumericaBlocchi, true, kSenzaAiuto),
    Esatti({9000, 6720, 2055, 375}),
    Errati({9000, 7125, 2055, 375}),
});

}  // namespace somme::disegno
