#include "input/segnali_helpikeys.h"

#include "platform/base/run_time_error.h"

namespace somme::inline ingresso {

namespace {

constexpr int kPrimaDellaGriglia = 64;  // column 2 arrives as "B"
constexpr qsizetype kStato = 2;
constexpr char kDaIgnorare = '2';

int Codice(QByteArrayView messaggio, qsizetype indice) {
  if (indice >= messaggio.size()) {
    throw platform::RunTimeError(platform::RunTimeError::InvalidCall);
  }
  return static_cast<unsigned char>(messaggio[indice]);
}

}  // namespace

SegnaliHelpiKeys::Segnale SegnaliHelpiKeys::Leggi(QByteArrayView messaggio) {
  if (messaggio == QByteArrayView("OK")) {
    HelpiKeysConnesso = !HelpiKeysConnesso;
    return {HelpiKeysConnesso ? Tipo::Pronta : Tipo::Nulla, {}};
  }
  if (!HelpiKeysConnesso) return {};
  // A report without a third character counts.
  if (messaggio.size() > kStato && messaggio[kStato] == kDaIgnorare) return {};
  return {Tipo::Tocco,
          {Codice(messaggio, 0) - kPrimaDellaGriglia, Codice(messaggio, 1) - kPrimaDellaGriglia}};
}

}  // namespace somme::inline ingresso
