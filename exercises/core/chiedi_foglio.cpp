#include "exercises/core/chiedi_foglio.h"

#include "app/shared/ambiente.h"

namespace somme::inline nucleo {

void ChiediFoglio(Ambiente& ambiente, std::string_view foglio) {
  const platform::BoxAnswer risposta =
      ambiente.fondo.showBox({ambiente.stringhe.DomandaStampaTastiera, TitoloProgramma(),
                              platform::BoxIcon::Information, platform::BoxButtons::YesNo});
  if (risposta == platform::BoxAnswer::Yes) ambiente.fondo.forms().show(foglio);
}

}  // namespace somme::inline nucleo
