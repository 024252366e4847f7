#include "app/shared/stringhe_condivise.h"

#include <algorithm>
#include <array>

#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
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
    {&StringheCondivise::TestoErrati, "0002"},
    {&StringheCondivise::TestoEsatti, "0003"},
    {&StringheCondivise::Spazio, {}, " "},
    {&StringheCondivise::MessaggioHelpiKeys, "0004"},
    {&StringheCondivise::TitoloBarre, "0005"},
    {&StringheCondivise::Trattino, {}, " - "},
    {&StringheCondivise::TitoloFinoAl10, "0006"},
    {&StringheCondivise::TitoloFinoAl20, "0007"},
    {&StringheCondivise::TitoloPLUEntro999, "0008"},
    {&StringheCondivise::TipoSenzaCambio, "0009"},
    {&StringheCondivise::TipoUnCambio, "0010"},
    {&StringheCondivise::TipoDueCambi, "0011"},
    {&StringheCondivise::TipoConESenzaCambi, "0012"},
    {&StringheCondivise::TitoloPLUEntro99, "0013"},
    {&StringheCondivise::TipoSoloUnita, "0014"},
    {&StringheCondivise::TipoConCambio, "0015"},
    {&StringheCondivise::TipoSoloDecine, "0016"},
    {&StringheCondivise::TipoSoloCentinaia, "0017"},
    {&StringheCondivise::TipoCambioUnita, "0018"},
    {&StringheCondivise::TipoCambioDecine, "0019"},
    {&StringheCondivise::SegnoPiu, {}, " + "},
    {&StringheCondivise::SegnoUguale, {}, " = "},
    {&StringheCondivise::FormatoNumeri, {}, "# ##0"},
    {&StringheCondivise::DomandaStampaTastiera, "0020"},
    {&StringheCondivise::ConsegnaBarre1, "0021"},
    {&StringheCondivise::ConsegnaBarre2, "0022"},
    {&StringheCondivise::ConsegnaBarre3, "0023"},
});

QString Leggi(Ambiente& ambiente, std::string_view chiave) {
  return TestoLingua(ambiente, QString::fromLatin1(chiave.data(), qsizetype(chiave.size())));
}

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
    stringhe.*riga.stringa = riga.letterale == nullptr ? Leggi(ambiente, riga.chiave)
                                                       : QString(QLatin1String(riga.letterale));
  }
  for (const Livello& livello : kLivelli) {
    const std::string_view chiave = livello.blocchi.registro;
    if (chiave.empty() || std::ranges::count(kRighe, chiave, &Riga::chiave) > 0) continue;
    stringhe.AltriTipi[chiave] = Leggi(ambiente, chiave);
  }
}

}  // namespace somme::inline condiviso
