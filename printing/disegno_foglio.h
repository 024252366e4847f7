#pragma once

#include <array>
#include <span>
#include <vector>

#include "app/shared/foglio_tasti.h"
#include "platform/forms/design.h"
#include "printing/griglia_foglio.h"

namespace somme::inline stampa {

// The design's grid: it divides the design evenly, and its shape is that of the 400 by 280 mm that
// the print dialog begins with.
inline constexpr Griglia kGrigliaDisegno{400, 292};
inline constexpr double kLarghezzaFoglio = kGrigliaDisegno.X * kColonneGriglia;
inline constexpr double kAltezzaFoglio = kGrigliaDisegno.Y * kRigheGriglia;

// The design of the form that prints a sheet, made of the sheet's row: a frame for every place,
// hidden where no key is, and what shows the keys. The form keeps it as its first base, since its
// other one is made of it.
class DisegnoFoglio {
 public:
  // bordo: of the frames, logical pixels. altre: rows behind those of the sheet; they must outlive
  // the form.
  DisegnoFoglio(const FoglioTasti& foglio, int bordo, std::span<const platform::Row> altre);
  DisegnoFoglio(const DisegnoFoglio&) = delete;
  DisegnoFoglio& operator=(const DisegnoFoglio&) = delete;

 protected:
  ~DisegnoFoglio() = default;

  [[nodiscard]] const FoglioTasti& Foglio() const { return foglio_; }
  [[nodiscard]] const platform::FormDesign& Disegno() const { return disegno_; }

 private:
  const FoglioTasti& foglio_;
  std::vector<platform::Row> righe_;
  std::array<std::span<const platform::Row>, 2> tavole_;
  platform::FormDesign disegno_;
};

}  // namespace somme::inline stampa
