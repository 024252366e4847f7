#include "cases/livelli.h"

namespace somme {

QStringView NomeGruppo(Gruppo gruppo) {
  constexpr std::array<QStringView, 5> nomi = {u"Entro 10", u"Entro 20", u"Entro 99", u"Entro 999",
                                               u"Entro 9.999"};
  return nomi[static_cast<std::size_t>(gruppo)];
}

}  // namespace somme
