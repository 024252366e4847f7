#include "exercises/blocks/tavola_unita.h"

#include <array>
#include <ranges>

namespace somme::inline blocchi {

void MostraBlocchi(platform::Board& filmato, Posto specie, int da, int a, bool visibili) {
  // How the movies call the clips of a kind: "da1", "da2", ...
  constexpr std::array<QStringView, 3> kClip{u"u", u"da", u"h"};
  const QStringView clip = kClip.at(static_cast<std::size_t>(specie));
  const QString valore = visibili ? QStringLiteral("1") : QStringLiteral("0");
  for (int i = da; i <= a; ++i) {
    filmato.tSetProperty(QStringLiteral("%1%2").arg(clip).arg(i),
                         platform::Board::Property::Visible, valore);
  }
}

// What a stretch has taken away comes back with the first frame, so the blocks are hidden after
// that. Where no stretch was broken off the movie stands where the last one has left it.
void TavolaUnita::Ricomincia() {
  if (blocchi_.CambioInterrotto()) filmato_.gotoFrame(1);
  Mostra();
}

void TavolaUnita::Mostra() {
  NascondiGliAltri();
  MostraChiSta();
}

void TavolaUnita::AvviaCambio(const TrattoDelCambio& tratto) {
  filmato_.gotoFrame(tratto.fotogramma);
  NascondiGliAltri();
  filmato_.play();
}

void TavolaUnita::Cambia(const TrattoDelCambio& tratto, Posto da, int nuovo) {
  MostraBlocchi(filmato_, Superiore(da), nuovo, nuovo, true);
  if (tratto.tornaAlPrimo) {
    filmato_.gotoFrame(1);
    MostraChiSta();
  }
  NascondiGliAltri();
}

void TavolaUnita::MostraChiSta() {
  for (const Posto specie : regole_.specie) {
    MostraBlocchi(filmato_, specie, blocchi_.Tolti(specie) + 1, blocchi_.FinoA(specie), true);
  }
}

void TavolaUnita::NascondiGliAltri() {
  for (const Posto specie : regole_.specie | std::views::reverse) {
    MostraBlocchi(filmato_, specie, 1, blocchi_.Tolti(specie), false);
    MostraBlocchi(filmato_, specie, blocchi_.FinoA(specie) + 1, regole_.sgombero[specie], false);
  }
}

}  // namespace somme::inline blocchi
