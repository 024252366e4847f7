#pragma once

#include <QString>

#include "cases/caso.h"

namespace somme::inline condiviso {

// How the pupil answers.
enum ModalitaDiInput : qint16 {
  kMouseTastiera = 0,
  kScansioneManuale = 1,
  kScansioneAutomatica = 2,
  kHelpiKeys = 3,
};

// The values that cross forms, one flat block: the case (sum and addends), the counters, the
// exercise in progress, the settings. A form owns its private fields; everything else stands here.
// Nothing of it outlives the run but the language.
struct StatoCondiviso : Caso {
  qint16 ContaEsatti = 0;  // right answers since a family menu or the main menu was last loaded
  qint16 ContaErrati = 0;
  qint32 LimiteEsercizio = 0;   // the bars' range: 10 or 20
  QString TitoloEsercizio;      // heading of the record of the number and abacus forms
  qint16 TipoEsercizio = 0;     // index of the exercise inside its family menu
  qint32 RisultatoTabella = 0;  // the number to find on the addition table

  bool SuoniAttivi = true;
  bool CursoreDiSistema = false;
  qint16 ModalitaInput = kMouseTastiera;
  qint16 TempoScansione = 4;  // quarters of a second, 4 to 60
  QString LinguaCorrente;     // a language file's name without its extension
};

}  // namespace somme::inline condiviso
