#pragma once

#include <QString>

#include "exercises/core/con_helpikeys.h"
#include "platform/forms/controls/text_box.h"

namespace somme {

// The 16 keys of the sheet with digits, on forms with a box for the number and `PulsanteAvanti`.
// When a key may act, and what it confirms, is left to the forms.
template <class Base>
class ConTastiCifre : public ConHelpiKeys<Base> {
 public:
  using ConHelpiKeys<Base>::ConHelpiKeys;

  void InterpretaSegnale(int tasto) final {
    constexpr int kNove = 10;
    constexpr int kCestino = 13;
    constexpr int kAiuto = 14;
    constexpr int kConferma = 15;
    constexpr int kAvanti = 16;
    if (tasto < 1) return;  // a touch beside the keys
    if (tasto <= kNove) {
      // The limit of the box is not asked: what the program sets may pass it. Settled.
      if (SiScrive()) Scrivi(Casella().text() + QString::number(tasto - 1));
    } else if (tasto == kCestino) {
      if (SiScrive()) Scrivi({});
    } else if (tasto == kAiuto) {
      Aiuta();
    } else if (tasto == kConferma) {
      if (SiScrive()) Conferma();
    } else if (tasto == kAvanti) {
      if (this->PulsanteAvanti.isEnabled()) this->NuovoCaso();
    }
  }

 protected:
  [[nodiscard]] virtual platform::TextBox& Casella() = 0;
  // Whether digits, bin and confirmation act now.
  [[nodiscard]] virtual bool SiScrive() const = 0;
  virtual void Conferma() = 0;
  // The help key; nothing on forms without help.
  virtual void Aiuta() {}

 private:
  void Scrivi(const QString& testo) {
    Casella().setText(testo);
    this->DiciScritto(testo);
  }
};

}  // namespace somme
