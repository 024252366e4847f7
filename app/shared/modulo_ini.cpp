#include "app/shared/modulo_ini.h"

namespace somme::inline condiviso {

void ImpostaDefault(StatoCondiviso& stato) {
  stato.SuoniAttivi = true;
  stato.CursoreDiSistema = false;
  stato.ModalitaInput = kMouseTastiera;
  stato.TempoScansione = 4;
}

}  // namespace somme::inline condiviso
