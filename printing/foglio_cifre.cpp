#include "printing/foglio_cifre.h"

#include "platform/base/numbers.h"

namespace somme {

FoglioCifre::FoglioCifre(Ambiente& ambiente, const platform::FormDesign& disegno)
    : FoglioTastiera(ambiente, disegno, posti::kCifre) {}

void FoglioCifre::onLoad() {
  FoglioTastiera::onLoad();
  for (int i = 0; i < Label1.count(); ++i) Label1[i].setCaption(platform::plain(i));
}

void FoglioCifre::Disponi(const Griglia& /*griglia*/) {
  for (int i = 0; i < Label1.count(); ++i) InMezzoAlTasto(Label1[i], i);
  SopraIlTasto(Image4, 12);
  SopraIlTasto(Image2, 14);
  SopraIlTasto(Image3, 15);
}

}  // namespace somme
