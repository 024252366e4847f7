#include "exercises/numbers/casella_posata.h"

#include "platform/base/numbers.h"

namespace somme::inline numeri {

void CasellaPosata::Mostra() {
  casella_.DimensioneTesto.set(platform::toInt16(posto_.fontSize()));
  casella_.setTop(posto_.top());
  casella_.setLeft(posto_.left());
  casella_.setWidth(posto_.width());
  casella_.setHeight(posto_.height());
  casella_.setVisible(true);
}

}  // namespace somme::inline numeri
