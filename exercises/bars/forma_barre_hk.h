#pragma once

#include "exercises/bars/forma_barre.h"
#include "exercises/bars/risposta_scritta.h"
#include "exercises/core/input_tocco.h"

namespace somme::inline barre {

// The bars forms for the touch keyboard: the keys of its sheet write into the box, confirm, help
// and go on. The box takes typing, too.
//
// Each activation, also the one after the keyboard sheet, drops the open case and the record.
class FormaBarreHK final : public FormaBarre {
 public:
  FormaBarreHK(Ambiente& ambiente, std::string_view nome, const VarianteBarre& variante);

  platform::ControlArray<platform::Socket> ControlloConnessione{*this};
  platform::TextBox TestoInput{*this};
  platform::Button PulsanteAiuto{*this};
  platform::Button PulsanteAvanti{*this};
  platform::MenuItem mnuStamopaHK{*this};

  [[nodiscard]] bool HelpiKeysConnesso() const { return tocco_.HelpiKeysConnesso(); }
  // The place of the sheet under a cell of the touch surface, both counted from 1; 0 for none.
  [[nodiscard]] int DecodificaSegnali(int colonna, int riga) const {
    return tocco_.DecodificaSegnali(colonna, riga);
  }
  // Does what the key at a place of the sheet does, 1 to 16.
  void InterpretaSegnaleHK(int tasto) const { tocco_.InterpretaSegnale(tasto); }

 protected:
  void onLoad() override;
  void IniziaCasi() override;
  void NuovoCaso() override;
  void Chiedi(const DomandaBarre& domanda) override { CopriTermine(TestoInput, domanda); }

 private:
  void Agisci(Tasto tasto);
  void Aiuta();

  RispostaScritta risposta_{*this, TestoInput, PulsanteAiuto, PulsanteAvanti};
  TastiCifre tasti_;
  InputTocco tocco_;
};

extern const VarianteBarre kBarreHK10;
extern const VarianteBarre kBarreHK20;

}  // namespace somme::inline barre
