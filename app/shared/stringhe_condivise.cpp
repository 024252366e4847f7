#include "app/shared/stringhe_condivise.h"

#include <algorithm>
#include <array>

#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "cases/chiavi.h"
#include "cases/livelli.h"

namespace somme::inline condiviso {

namespace {

// Where a shared string comes from: a key of the language file, or the program itself.
struct Riga {
  QString StringheCondivise::*stringa;
  std::string_view chiave;
  const char* letterale = nullptr;
};

constexpr auto kRighe = std::to_array<Riga>({
    {&StringheCondivise::TestoErrati, chiavi::kErrati},
    {&StringheCondivise::TestoEsatti, chiavi::kEsatti},
    {&StringheCondivise::Spazio, {}, " "},
    {&StringheCondivise::MessaggioHelpiKeys, chiavi::kMessaggioHelpiKeys},
    {&StringheCondivise::TitoloBarre, chiavi::kTitoloBarre},
    {&StringheCondivise::Trattino, {}, " - "},
    {&StringheCondivise::TitoloFinoAl10, chiavi::kTitoloFinoAl10},
    {&StringheCondivise::TitoloFinoAl20, chiavi::kTitoloFinoAl20},
    {&StringheCondivise::TitoloPLUEntro999, chiavi::kTitoloPLUEntro999},
    {&StringheCondivise::TipoSenzaCambio, chiavi::kTipoSenzaCambio},
    {&StringheCondivise::TipoUnCambio, chiavi::kTipoUnCambio},
    {&StringheCondivise::TipoDueCambi, chiavi::kTipoDueCambi},
    {&StringheCondivise::TipoConESenzaCambi, chiavi::kTipoConESenzaCambi},
    {&StringheCondivise::TitoloPLUEntro99, chiavi::kTitoloPLUEntro99},
    {&StringheCondivise::TipoSoloUnita, chiavi::kTipoSoloUnita},
    {&StringheCondivise::TipoConCambio, chiavi::kTipoConCambio},
    {&StringheCondivise::TipoSoloDecine, chiavi::kTipoSoloDecine},
    {&StringheCondivise::TipoSoloCentinaia, chiavi::kTipoSoloCentinaia},
    {&StringheCondivise::TipoCambioUnita, chiavi::kTipoCambioUnita},
    {&StringheCondivise::TipoCambioDecine, chiavi::kTipoCambioDecine},
    {&StringheCondivise::SegnoPiu, {}, " + "},
    {&StringheCondivise::SegnoUguale, {}, " = "},
    {&StringheCondivise::FormatoNumeri, {}, "# ##0"},
    {&StringheCondivise::DomandaStampaTastiera, chiavi::kDomandaStampaTastiera},
    {&StringheCondivise::ConsegnaBarre1, chiavi::kConsegnaBarre1},
    {&StringheCondivise::ConsegnaBarre2, chiavi::kConsegnaBarre2},
    {&StringheCondivise::ConsegnaBarre3, chiavi::kConsegnaBarre3},
});

}  // namespace

QString StringheCondivise::NomeDelLivello(std::string_view chiave) const {
  const auto riga = std::ranges::find(kRighe, chiave, &Riga::chiave);
  if (riga != kRighe.end()) return this->*riga->stringa;
  const auto altro = AltriTipi.find(chiave);
  return altro == AltriTipi.end() ? QString() : altro->second;
}

void CaricaStringhe(Ambiente& ambiente) {
  StringheCondivise& stringhe = ambiente.stringhe;
  for (const Riga& riga : kRighe) {
    stringhe.*riga.stringa = riga.letterale == nullptr ? TestoLingua(ambiente, riga.chiave)
                                                       : QString(QLatin1String(riga.letterale));
  }
  for (const Livello& livello : kLivelli) {
    const std::string_view chiave = livello.blocchi.registro;
    if (chiave.empty() || std::ranges::count(kRighe, chiave, &Riga::chiave) > 0) continue;
    stringhe.AltriTipi[chiave] = TestoLingua(ambiente, chiave);
  }
}

}  // namespace somme::inline condiviso
