#include "app/shared/modulo_ini.h"

namespace somme::inline condiviso {

void ImpostaDefault(StatoCondiviso& stato) {
  const StatoCondiviso inizio{};
  stato.SuoniAttivi = inizio.SuoniAttivi;
  stato.CursoreDiSistema = inizio.CursoreDiSistema;
  stato.ModalitaInput = inizio.ModalitaInput;
  stato.TempoScansione = inizio.TempoScansione;
}

}  // namespace somme::inline condiviso
