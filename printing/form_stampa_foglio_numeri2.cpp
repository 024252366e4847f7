#include "printing/form_stampa_foglio_numeri2.h"

#include "printing/disegno_foglio_cifre.h"

namespace somme {

namespace {

constexpr auto kCornici =
    disegno_foglio::Cornici<posti::kCifre.quanti()>(posti::kCifre, {10, 11, 13});

constexpr std::array<std::span<const platform::Row>, 3> kTavole{
    kCornici, disegno_foglio::kRigheCifre, disegno_foglio::kSimboliCifre};
constexpr platform::FormDesign kDisegno = disegno_foglio::Foglio(
    "FormStampaFoglioNumeri2", "Foglio della tastiera HelpiKeys: numeri", kTavole);

}  // namespace

FormStampaFoglioNumeri2::FormStampaFoglioNumeri2(Ambiente& ambiente)
    : FoglioCifre(ambiente, kDisegno) {}

}  // namespace somme
