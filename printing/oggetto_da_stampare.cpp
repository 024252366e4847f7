#include "printing/oggetto_da_stampare.h"

#include "platform/forms/form.h"
#include "printing/errore_di_stampa.h"

namespace somme::inline stampa {

FinestraDaStampare FinestraDi(const OggettoDaStampare& oggetto) {
  if (auto* const* forma = std::get_if<platform::Form*>(&oggetto); forma != nullptr && *forma) {
    const platform::Page* pagina = (*forma)->page();
    return {(*forma)->name(), pagina == nullptr ? nullptr : pagina->canvas()};
  }
  if (auto* const* controllo = std::get_if<platform::Control*>(&oggetto);
      controllo != nullptr && *controllo) {
    return {(*controllo)->name(), (*controllo)->widget()};
  }
  throw ErroreDiStampa{ErroreDiStampa::kOggettoErrato,
                       QStringLiteral("L' oggetto da stampare\ne' di tipo errato.")};
}

}  // namespace somme::inline stampa
