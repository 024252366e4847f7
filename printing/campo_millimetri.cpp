#include "printing/campo_millimetri.h"

#include <algorithm>

#include "platform/base/numbers.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/controls/up_down.h"
#include "platform/forms/keys/key_codes.h"

namespace somme::inline stampa {

namespace {

void Cambia(const CampoMillimetri& campo) {
  const double letto = platform::leadingNumber(campo.testo.text());
  const double ammesso = std::clamp<double>(letto, campo.minimo, kMassimoCampo);
  const auto numero = static_cast<qint32>(platform::roundHalfEven(ammesso));
  if (ammesso != letto) {
    campo.testo.setText(platform::plain(numero));
    return;  // the new text has come through here itself
  }
  campo.valore = numero;
}

// keyAscii: 0 drops the key.
void Filtra(const CampoMillimetri& campo, int& keyAscii) {
  const bool cifra = keyAscii >= u'0' && keyAscii <= u'9';
  // Esc is for the dialog and never becomes text.
  if (cifra || keyAscii == platform::kKeyBackspace || keyAscii == platform::kKeyEscape) return;
  const platform::TextBox& testo = campo.testo;
  const bool tutto = testo.selLength() == testo.text().size();
  const bool inTesta = testo.selStart() == 0 && !testo.text().startsWith(u'-');
  if (campo.minimo < 0 && keyAscii == u'-' && (inTesta || tutto)) return;
  keyAscii = 0;
}

}  // namespace

void PreparaCampo(const CampoMillimetri& campo) {
  campo.testo.onKeyPress([campo](int& keyAscii) { Filtra(campo, keyAscii); });
  campo.testo.onChange([campo] { Cambia(campo); });
  campo.freccia.bind(campo.testo, campo.minimo, kMassimoCampo);
}

}  // namespace somme::inline stampa
