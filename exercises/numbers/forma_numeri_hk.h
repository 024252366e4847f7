#pragma once

#include "exercises/core/input_tocco.h"
#include "exercises/numbers/forma_numeri.h"
#include "platform/forms/controls/text_box.h"

namespace somme::inline numeri {

// The number exercises for the touch keyboard: digits, bin, confirmation and the way on are keys of
// its sheet, and the box only shows what they write. After a right answer the operation is made of
// the case, whatever was asked.
//
// A 0 is not judged, as if the box were empty: a case whose answer is 0 cannot be solved, and the
// menu is the only way on.
class FormaNumeriHK final : public FormaNumeri {
 public:
  FormaNumeriHK(Ambiente& ambiente, std::string_view nome, const EsercizioNumeri& esercizio);

  platform::ControlArray<platform::Socket> ControlloConnessione{*this};
  platform::TextBox TestoInput{*this};
  platform::Button PulsanteAvanti{*this};
  platform::MenuItem mnuStampaHK{*this};

  [[nodiscard]] bool HelpiKeysConnesso() const { return tocco_.HelpiKeysConnesso(); }
  // Does what the key at a place of the sheet does, 1 to 16.
  void InterpretaSegnale(int tasto) const { tocco_.InterpretaSegnale(tasto); }

 protected:
  void onLoad() override;
  void NuovoCaso() override;
  void RispostaGiusta() override;

 private:
  void Agisci(Tasto tasto);
  [[nodiscard]] double Scritto() const;

  TastiCifre tasti_;
  InputTocco tocco_;
};

}  // namespace somme::inline numeri
