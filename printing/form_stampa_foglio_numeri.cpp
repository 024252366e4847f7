#include "printing/form_stampa_foglio_numeri.h"

#include "printing/disegno_foglio_cifre.h"

namespace somme {

namespace {

using F = FormStampaFoglioNumeri;

constexpr auto kCornici = disegno_foglio::Cornici<posti::kCifre.quanti()>(posti::kCifre, {10, 11});
constexpr auto kAiuto = std::to_array<platform::Row>(
    {disegno_foglio::Simbolo<&F::Image1>(posti::kCifre, 13, "aiuto", "Aiuto")});

constexpr std::array<std::span<const platform::Row>, 4> kTavole{
    kCornici, disegno_foglio::kRigheCifre, disegno_foglio::kSimboliCifre, kAiuto};
constexpr platform::FormDesign kDisegno = disegno_foglio::Foglio(
    "FormStampaFoglioNumeri", "Foglio della tastiera HelpiKeys: barre", kTavole);

}  // namespace

FormStampaFoglioNumeri::FormStampaFoglioNumeri(Ambiente& ambiente)
    : FoglioCifre(ambiente, kDisegno) {}

void FormStampaFoglioNumeri::Disponi(const Griglia& griglia) {
  FoglioCifre::Disponi(griglia);
  SopraIlTasto(Image1, 13);
}

}  // namespace somme
