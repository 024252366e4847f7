#include "printing/form_stampa_foglio4.h"

#include "printing/disegno_foglio_calibrazione.h"

namespace somme {

namespace {

// Wide enough to be seen under the lines.
constexpr auto kCornici = disegno_foglio::Cornici<posti::kCifre.quanti()>(posti::kCifre, {}, 5);
constexpr std::array<std::span<const platform::Row>, 2> kTavole{kCornici,
                                                                disegno_foglio::kRigatura};
constexpr platform::FormDesign kDisegno = disegno_foglio::Foglio(
    "FormStampaFoglio4", "Foglio per regolare la tastiera HelpiKeys: 16 tasti", kTavole);

}  // namespace

FormStampaFoglio4::FormStampaFoglio4(Ambiente& ambiente)
    : FoglioCalibrazione(ambiente, kDisegno, posti::kCifre) {}

}  // namespace somme
