#pragma once

#include "exercises/blocks/forma_blocchi.h"
#include "exercises/core/con_avanti.h"
#include "platform/forms/controls/button_group.h"
#include "platform/forms/controls/picture_box.h"

namespace somme {

// The blocks forms with buttons for the blocks, which move along under the board in use.
//
// Each handler asks first whether its button is visible, and means the button's own flag: the
// buttons of a hidden `PicturePulsanti` still are. What keeps them from acting there is `Fase`.
class FormaBlocchiPulsanti : public ConAvanti<FormaBlocchi> {
 public:
  FormaBlocchiPulsanti(Ambiente& ambiente, const platform::FormDesign& disegno,
                       const EsercizioBlocchi& esercizio);

  platform::PictureBox PicturePulsanti{*this};
  platform::Button PulsanteDa{*this};
  platform::Button PulsanteU{*this};
  platform::Button PulsanteCestino{*this};
  platform::Button PulsanteConferma{*this};

 protected:
  void onLoad() override;
  void ChiudiAvanti() override { PulsanteAvanti.setEnabled(false); }
  void ApriAvanti() override { PulsanteAvanti.setEnabled(true); }
  void MettiComandi(const platform::Label& ancora) override;
  void SpostaComandi(const platform::Label& ancora) override;
  void TogliComandi() override;

  // The button for the flats, on forms that have it.
  virtual void ClicPiatti() {}
  void ClicSpecie(const platform::Button& pulsante, const SpecieBlocchi& specie);
  void ClicCestino();
  void ClicConferma();

 private:
  platform::ButtonGroup comandi_;
};

}  // namespace somme
