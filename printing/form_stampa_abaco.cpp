#include "printing/form_stampa_abaco.h"

#include "printing/disegno_foglio.h"

namespace somme {

namespace {

using disegno_foglio::Parola;
using disegno_foglio::Simbolo;
using F = FormStampaAbaco;

constexpr auto kCornici = disegno_foglio::Cornici<posti::kAbaco.quanti()>(posti::kAbaco, {4, 8});
constexpr auto kTasti = std::to_array<platform::Row>({
    Parola<&F::Label3>(posti::kAbaco, 0, "k"),
    Parola<&F::Label3>(posti::kAbaco, 1, "h"),
    Parola<&F::Label3>(posti::kAbaco, 2, "da"),
    Parola<&F::Label3>(posti::kAbaco, 3, "u"),
    Simbolo<&F::Image6>(posti::kAbaco, 5, "cambio_h_k", "Cambio: dieci centinaia, un migliaio"),
    Simbolo<&F::Image5>(posti::kAbaco, 6, "cambio_da_h", "Cambio: dieci decine, un centinaio"),
    Simbolo<&F::Image4>(posti::kAbaco, 7, "cambio_u_da", "Cambio: dieci unità, una decina"),
    Simbolo<&F::Image1>(posti::kAbaco, 9, "cestino", "Cestino"),
    Simbolo<&F::Image2>(posti::kAbaco, 10, "conferma", "Conferma"),
    Simbolo<&F::Image3>(posti::kAbaco, 11, "avanti", "Avanti"),
});

constexpr std::array<std::span<const platform::Row>, 2> kTavole{kCornici, kTasti};
constexpr platform::FormDesign kDisegno =
    disegno_foglio::Foglio("FormStampaAbaco", "Foglio della tastiera HelpiKeys: abaco", kTavole);

}  // namespace

FormStampaAbaco::FormStampaAbaco(Ambiente& ambiente)
    : FoglioTastiera(ambiente, kDisegno, posti::kAbaco) {}

void FormStampaAbaco::Disponi(const Griglia& /*griglia*/) {
  for (const int i : {0, 1, 2, 3}) SopraIlTasto(Label3[i], i);
  SopraIlTasto(Image6, 5);
  SopraIlTasto(Image5, 6);
  SopraIlTasto(Image4, 7);
  SopraIlTasto(Image1, 9);
  SopraIlTasto(Image2, 10);
  SopraIlTasto(Image3, 11);
}

}  // namespace somme
