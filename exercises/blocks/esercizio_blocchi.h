#pragma once

#include <QStringView>
#include <span>

#include "app/shared/stringhe_condivise.h"
#include "exercises/blocks/tavola_unita.h"
#include "games/regole_blocchi.h"

namespace platform::inline forms {
class Button;
template <class T>
class OptionalControl;
}

namespace somme::inline blocchi {

class FormaBlocchi;

// A carry of the rules on a form.
struct CambioBlocchi {
  TrattoDelCambio tratto;
  platform::OptionalControl<platform::Button> FormaBlocchi::*
      pulsante;  // with which the pupil carries
};

// In what the blocks up to 99 and those up to 999 differ.
struct EsercizioBlocchi {
  const RegoleBlocchi& regole;
  QString StringheCondivise::*titolo;  // of the record
  QStringView filmatoAddendo;          // from the program's folder
  QStringView filmatoUnione;
  std::span<const CambioBlocchi> cambi;  // one for each of the rules'
};

extern const EsercizioBlocchi kBlocchiEntro99;
extern const EsercizioBlocchi kBlocchiEntro999;

}  // namespace somme::inline blocchi
