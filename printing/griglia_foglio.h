#pragma once

#include <array>
#include <span>

#include "platform/forms/geometry.h"

// Where the keys of a keyboard sheet stand. The touch surface under the sheet reports a touch as a
// cell of a grid of 24 columns by 23 rows; the sheet is drawn on the same grid.
namespace somme {

// The units of the grid on a sheet of some size, in its twips: whole numbers, so that the grid may
// end up to 23 twips short of the sheet.
struct Griglia {
  static constexpr int kColonne = 24;
  static constexpr int kRighe = 23;

  int X = 0;
  int Y = 0;
};

// larghezza, altezza: the inner area of the form, twips.
[[nodiscard]] Griglia GrigliaDi(double larghezza, double altezza);

// The frames of a kind of sheet in units of the grid: the same size for all, left to right and top
// to bottom. Frame i stands for key i + 1 of the touch link.
struct PostiTasti {
  std::span<const int> sinistre;
  std::span<const int> alti;
  int larghezza;
  int altezza;

  [[nodiscard]] constexpr int quanti() const {
    return static_cast<int>(sinistre.size() * alti.size());
  }
  [[nodiscard]] constexpr platform::TwipsRect Posto(int i, const Griglia& griglia) const {
    const auto indice = static_cast<std::size_t>(i);
    return {double(sinistre[indice % sinistre.size()] * griglia.X),
            double(alti[indice / sinistre.size()] * griglia.Y), double(larghezza * griglia.X),
            double(altezza * griglia.Y)};
  }
};

namespace posti {

inline constexpr std::array kSinistreStrette{1, 7, 13, 19};
inline constexpr std::array kSinistreLarghe{1, 9, 17};
inline constexpr std::array kAltiCifre{2, 7, 12, 17};
inline constexpr std::array kAltiBlocchi{1, 8, 15};
inline constexpr std::array kAltiAbaco{2, 9, 16};
inline constexpr std::array kAltiSei{2, 13};

inline constexpr PostiTasti kCifre{kSinistreStrette, kAltiCifre, 4, 4};
inline constexpr PostiTasti kBlocchi{kSinistreLarghe, kAltiBlocchi, 6, 6};
inline constexpr PostiTasti kAbaco{kSinistreStrette, kAltiAbaco, 4, 5};
// For adjusting the surface only.
inline constexpr PostiTasti kSei{kSinistreLarghe, kAltiSei, 6, 8};

}  // namespace posti

}  // namespace somme
