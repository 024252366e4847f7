#pragma once

#include <string_view>
#include <vector>

#include "support/banco.h"

namespace prova {

// Draws of `GeneraEntro10` for a sum of 7 = 3 + 4.
inline const std::vector<SorteDiProva::Estrazione> kTrePiuQuattro{{6, 10}, {3, 7}};

// A form of the numbers as its menu shows it: tipo is the level, titolo stands above the record.
template <class F>
F& apriNumeri(Banco& banco, std::string_view nome, qint16 tipo, const char* titolo,
              const std::vector<SorteDiProva::Estrazione>& estrazioni) {
  banco.ambiente->stato.TipoEsercizio = tipo;
  banco.ambiente->stato.TitoloEsercizio = QString::fromUtf8(titolo);
  banco.sorte.scrivi(estrazioni);
  return banco.apri<F>(nome);
}

}  // namespace prova
