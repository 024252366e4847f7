#pragma once

#include "app/shared/forma.h"
#include "platform/forms/control_array.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/shape.h"
#include "printing/griglia_foglio.h"

namespace somme {

// A keyboard sheet: a page with the keys of one family of exercises, to be laid on the touch
// surface. It is a form that is never used on the screen: shown, it arranges itself on the grid,
// hands itself to the print dialog, and goes when that has gone. Whoever asked for it is activated
// in turn.
//
// A sheet says where its frames stand and what lies over which of them.
class FoglioTastiera : public Forma {
 public:
  platform::ControlArray<platform::Shape> Shape1{*this};

  // False from the Load until the print dialog has been called, true from then on.
  [[nodiscard]] bool FoglioStampato() const { return foglioStampato_; }

 protected:
  FoglioTastiera(Ambiente& ambiente, const platform::FormDesign& disegno, const PostiTasti& tasti);

  // Places what lies over the frames, which have their places already.
  virtual void Disponi(const Griglia& griglia) = 0;
  // Gives a picture or a caption the place of a frame, or its middle.
  void SopraIlTasto(platform::Control& controllo, int tasto);
  void InMezzoAlTasto(platform::Control& controllo, int tasto);

  void onLoad() override;
  void onActivate() final;

 private:
  void Offri();

  const PostiTasti& tasti_;
  bool foglioStampato_ = false;
};

}  // namespace somme
