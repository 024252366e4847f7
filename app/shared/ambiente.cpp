#include "app/shared/ambiente.h"

namespace somme::inline condiviso {

QString TitoloProgramma() {
  return QString::fromLatin1(kTitoloProgramma.data(), qsizetype(kTitoloProgramma.size()));
}

Ambiente::Ambiente(const Servizi& dati, TabellaForme tabella)
    : Ambiente(dati, tabella, [this](std::string_view nome) { return CreaForma(*this, nome); }) {}

Ambiente::Ambiente(const Servizi& dati, TabellaForme tabella, platform::Forms::Factory crea)
    : servizi(dati),
      forme(tabella),
      fondo({dati.tempo, dati.messaggi, dati.fine, dati.annunci, dati.immagini, &dati.rete,
             dati.moto},
            TitoloProgramma(), QStringLiteral("puntatore"), std::move(crea)) {}

std::shared_ptr<platform::Form> CreaForma(Ambiente& ambiente, std::string_view nome) {
  const SchedaForma scheda = SchedaDi(ambiente.forme, nome);
  return scheda.crea == nullptr ? nullptr : scheda.crea(ambiente, nome);
}

}  // namespace somme::inline condiviso
