#pragma once

#include "exercises/bars/forma_barre_tastiera.h"
#include "exercises/core/con_tasti_cifre.h"

namespace somme {

// The bars forms for the touch keyboard: the keys of its sheet write into the box, confirm, help
// and go on. The box takes typing, too.
//
// Each activation, also the one after the keyboard sheet, drops the open case and the record.
class FormaBarreHK : public ConTastiCifre<FormaBarreTastiera> {
 public:
  FormaBarreHK(Ambiente& ambiente, const platform::FormDesign& disegno,
               const PortataBarre& portata);

  platform::MenuItem mnuStamopaHK{*this};

  // `InterpretaSegnale` bears another name on the bars.
  void InterpretaSegnaleHK(int tasto) { InterpretaSegnale(tasto); }

 protected:
  void DopoLaRichiesta() override;

  [[nodiscard]] platform::TextBox& Casella() override { return TestoInput; }
  [[nodiscard]] bool SiScrive() const override { return !TestoInput.isLocked(); }
  void Conferma() override { Controlla(); }
  void Aiuta() override;
};

}  // namespace somme
