#include "platform/base/run_time_error.h"

namespace platform::inline base {

QString RunTimeError::description() const {
  switch (number_) {
    case InvalidCall:
      return QStringLiteral("Chiamata di routine o argomento non validi");
    case Overflow:
      return QStringLiteral("Overflow");
    case FileNotFound:
      return QStringLiteral("Impossibile trovare il file");
    case PrinterError:
      return QStringLiteral("Errore della stampante");
    case ConnectionState:
      return QStringLiteral(
          "Protocollo o stato di connessione errato per la transazione o la richiesta");
  }
  return {};
}

QString RunTimeError::boxText() const {
  return QStringLiteral("Errore di run-time '%1':\n\n%2").arg(number_).arg(description());
}

}  // namespace platform::inline base
