#pragma once

#include <functional>

#include "exercises/core/modo_input.h"
#include "exercises/core/tasti_cifre.h"
#include "games/quantita.h"
#include "input/tastiera_hdu_scansione.h"
#include "input/tastiera_numerica_scansione.h"

namespace somme::inline nucleo {

class FormaEsercizio;

// What the keys of a keyboard of place values lead to on a form.
struct AzioniValori {
  std::function<void(Posto posto)> metti;
  std::function<void()> cestino;
  std::function<void()> conferma;
};

// Scanning, as a form holds it: the keyboard of digits and what its keys lead to, and on some forms
// the keyboard of place values beside it; only one of the two is on the screen at a time. The
// keyboards are the form's own controls, with rows in its design (see disegno_scansione.h), and so
// are the hidden labels that carry their places.
//
// - At its activation the form calls `PosaTastiera` for each keyboard, and shows it.
// - At the start of each case it calls `Attiva` of the keyboard and `MettiModoScansione`, in its
//   own order, and `DisattivaAvanti` of that of digits; after a right answer `AttivaAvanti`.
//
// Opening the print panel silences the keyboards. Closing it wakes none: that differs from form to
// form, in `ChiudiPannelloStampa`.
class InputScansione final : public ModoInput {
 public:
  InputScansione(FormaEsercizio& forma, TastieraNumericaScansione& cifre, AzioniCifre azioni);
  // hdu: the keyboard of place values.
  InputScansione(FormaEsercizio& forma, TastieraNumericaScansione& cifre, AzioniCifre azioni,
                 TastieraHDUScansione& hdu, AzioniValori valori);

  // Names the keys that show a picture in the current language.
  void AlCaricamento() override;
  void AlPannelloStampa() override;

 private:
  void TastoNumerico(qint16 tasto);
  void TastoHDU(qint16 tasto) const;

  FormaEsercizio& forma_;
  TastiCifre tasti_;
  TastieraNumericaScansione& cifre_;
  TastieraHDUScansione* hdu_ = nullptr;
  AzioniValori valori_;
};

}  // namespace somme::inline nucleo
