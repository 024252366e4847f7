#include "printing/form_stampa_lu.h"

#include "printing/disegno_foglio.h"

namespace somme {

namespace {

using disegno_foglio::Parola;
using disegno_foglio::Simbolo;
using F = FormStampaLU;

constexpr auto kCornici =
    disegno_foglio::Cornici<posti::kBlocchi.quanti()>(posti::kBlocchi, {0, 3, 4});
constexpr auto kTasti = std::to_array<platform::Row>({
    Parola<&F::Label3>(posti::kBlocchi, 1, "da"),
    Parola<&F::Label3>(posti::kBlocchi, 2, "u"),
    Simbolo<&F::Image4>(posti::kBlocchi, 5, "cambio_u_da", "Cambio: dieci unità, una decina"),
    Simbolo<&F::Image1>(posti::kBlocchi, 6, "cestino", "Cestino"),
    Simbolo<&F::Image2>(posti::kBlocchi, 7, "conferma", "Conferma"),
    Simbolo<&F::Image3>(posti::kBlocchi, 8, "avanti", "Avanti"),
});

constexpr std::array<std::span<const platform::Row>, 2> kTavole{kCornici, kTasti};
constexpr platform::FormDesign kDisegno = disegno_foglio::Foglio(
    "FormStampaLU", "Foglio della tastiera HelpiKeys: decine e unità", kTavole);

}  // namespace

FormStampaLU::FormStampaLU(Ambiente& ambiente)
    : FoglioTastiera(ambiente, kDisegno, posti::kBlocchi) {}

void FormStampaLU::Disponi(const Griglia& /*griglia*/) {
  for (const int i : {1, 2}) SopraIlTasto(Label3[i], i);
  SopraIlTasto(Image4, 5);
  SopraIlTasto(Image1, 6);
  SopraIlTasto(Image2, 7);
  SopraIlTasto(Image3, 8);
}

}  // namespace somme
