#pragma once

#include "app/shared/forma.h"
#include "platform/forms/control_array.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/shape.h"
#include "printing/disegno_foglio.h"

namespace somme::inline stampa {

// A keyboard sheet: a page with the keys of one family of exercises, to be laid on the touch
// surface. It is a form that is never used on the screen: shown, it arranges itself on the grid,
// hands itself to the print dialog, and goes when that has gone. Whoever asked for it is activated
// in turn.
//
// Which frames it has and what lies over them is said by its row (app/shared/foglio_tasti.h).
class FoglioTastiera : private DisegnoFoglio, public Forma {
 public:
  // The sheet of a name.
  FoglioTastiera(Ambiente& ambiente, std::string_view nome);

  static constexpr int kDisegni = 6;

  platform::ControlArray<platform::Shape> Shape1{*this};  // frame i is that of place i + 1
  platform::ControlArray<platform::Label> Label1{*this};  // digits
  platform::ControlArray<platform::Label> Label3{*this};  // other words
  // Drawings, 1 to `kDisegni`: Image[4] bears the name Image4.
  platform::ControlArray<platform::Image> Image{*this};

  // False from the Load until the print dialog has been called, true from then on.
  [[nodiscard]] bool FoglioStampato() const { return foglioStampato_; }

 protected:
  // bordo, altre: see `DisegnoFoglio`.
  FoglioTastiera(Ambiente& ambiente, std::string_view nome, int bordo,
                 std::span<const platform::Row> altre);

  // Places what a sheet has beside its keys.
  virtual void Disponi(const Griglia& /*griglia*/) {}

  void onLoad() override;
  void onActivate() final;

 private:
  [[nodiscard]] platform::Control& ControlloDi(const TastoPosato& tasto);
  void PosaTasto(int posto);
  void Offri();

  bool foglioStampato_ = false;
};

}  // namespace somme::inline stampa
