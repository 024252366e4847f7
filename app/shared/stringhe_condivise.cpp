#include "app/shared/stringhe_condivise.h"

#include <array>

#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"

namespace somme {

namespace {

// Where a shared string comes from: a key of the language file, or the program itself.
struct Riga {
  QString StringheCondivise::*stringa;
  const char* chiave;
  const char* letterale;
};

constexpr auto kRighe = std::to_array<Riga>({
    {&StringheCondivise::TestoErrati, "0002", nullptr},
    {&StringheCondivise::TestoEsatti, "0003", nullptr},
    {&StringheCondivise::Spazio, nullptr, " "},
    {&StringheCondivise::MessaggioHelpiKeys, "0004", nullptr},
    {&StringheCondivise::TitoloBarre, "0005", nullptr},
    {&StringheCondivise::Trattino, nullptr, " - "},
    {&StringheCondivise::TitoloFinoAl10, "0006", nullptr},
    {&StringheCondivise::TitoloFinoAl20, "0007", nullptr},
    {&StringheCondivise::TitoloPLUEntro999, "0008", nullptr},
    {&StringheCondivise::TipoSenzaCambio, "0009", nullptr},
    {&StringheCondivise::TipoUnCambio, "0010", nullptr},
    {&StringheCondivise::TipoDueCambi, "0011", nullptr},
    {&StringheCondivise::TipoConESenzaCambi, "0012", nullptr},
    {&StringheCondivise::TitoloPLUEntro99, "0013", nullptr},
    {&StringheCondivise::TipoSoloUnita, "0014", nullptr},
    {&StringheCondivise::TipoConCambio, "0015", nullptr},
    {&StringheCondivise::TipoSoloDecine, "0016", nullptr},
    {&StringheCondivise::TipoSoloCentinaia, "0017", nullptr},
    {&StringheCondivise::TipoCambioUnita, "0018", nullptr},
    {&StringheCondivise::TipoCambioDecine, "0019", nullptr},
    {&StringheCondivise::SegnoPiu, nullptr, " + "},
    {&StringheCondivise::SegnoUguale, nullptr, " = "},
    {&StringheCondivise::FormatoNumeri, nullptr, "# ##0"},
    {&StringheCondivise::DomandaStampaTastiera, "0020", nullptr},
    {&StringheCondivise::ConsegnaBarre1, "0021", nullptr},
    {&StringheCondivise::ConsegnaBarre2, "0022", nullptr},
    {&StringheCondivise::ConsegnaBarre3, "0023", nullptr},
});

}  // namespace

void CaricaStringhe(Ambiente& ambiente) {
  for (const Riga& riga : kRighe) {
    ambiente.stringhe.*riga.stringa = riga.chiave != nullptr
                                          ? TestoLingua(ambiente, QLatin1String(riga.chiave))
                                          : QLatin1String(riga.letterale);
  }
}

}  // namespace somme
