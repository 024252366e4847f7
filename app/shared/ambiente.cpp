#include "app/shared/ambiente.h"

namespace somme {

QString TitoloProgramma() {
  return QStringLiteral("Esercitazioni sulle somme");
}

Ambiente::Ambiente(const Servizi& dati, platform::Forms::Factory forme)
    : servizi(dati),
      fondo({dati.tempo, dati.messaggi, dati.fine, dati.annunci, &dati.rete}, TitoloProgramma(),
            QStringLiteral(":/immagini"), QStringLiteral("puntatore"), std::move(forme)) {}

}  // namespace somme
