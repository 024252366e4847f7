#include "printing/form_stampa_foglio1.h"

#include "printing/disegno_foglio_calibrazione.h"

namespace somme {

namespace {

// Wide enough to be seen under the lines.
constexpr auto kCornici = disegno_foglio::Cornici<posti::kSei.quanti()>(posti::kSei, {}, 5);
constexpr std::array<std::span<const platform::Row>, 2> kTavole{kCornici,
                                                                disegno_foglio::kRigatura};
constexpr platform::FormDesign kDisegno = disegno_foglio::Foglio(
    "FormStampaFoglio1", "Foglio per regolare la tastiera HelpiKeys: 6 tasti", kTavole);

}  // namespace

FormStampaFoglio1::FormStampaFoglio1(Ambiente& ambiente)
    : FoglioCalibrazione(ambiente, kDisegno, posti::kSei) {}

}  // namespace somme
