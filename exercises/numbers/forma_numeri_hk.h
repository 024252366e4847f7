#pragma once

#include "exercises/core/con_avanti.h"
#include "exercises/core/con_tasti_cifre.h"
#include "exercises/numbers/forma_numeri.h"

namespace somme {

// What the number forms for the touch keyboard ask for, and how a case begins on them; they differ
// in nothing else. After a right answer both show the operation made of the case.
struct EsercizioNumeriHK {
  const EsercizioNumeri& numeri;
  // Whether the box is enabled and events run before anything else.
  enum class Inizio { AbilitaCasella, Subito } inizio;
};

// The number exercises for the touch keyboard: digits, bin, confirmation and the way on are keys of
// its sheet, and the box only shows what they write.
//
// A 0 is not judged, as if the box were empty: a case whose answer is 0 cannot be solved, and the
// menu is the only way on. Settled.
class FormaNumeriHK : public ConTastiCifre<ConAvanti<FormaNumeri>> {
 public:
  FormaNumeriHK(Ambiente& ambiente, const platform::FormDesign& disegno,
                const EsercizioNumeriHK& esercizio);

  platform::TextBox TestoInput{*this};
  platform::MenuItem mnuStampaHK{*this};

 protected:
  void onLoad() override;
  void DopoLaRichiesta() override;
  void NuovoCaso() override;

  [[nodiscard]] platform::TextBox& Casella() override { return TestoInput; }
  [[nodiscard]] bool SiScrive() const override { return !PulsanteAvanti.isEnabled(); }
  void Conferma() override;

 private:
  void RispostaGiusta(double numero);

  EsercizioNumeriHK::Inizio inizio_;
};

}  // namespace somme
