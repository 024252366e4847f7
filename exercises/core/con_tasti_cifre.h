#pragma once

#include <QString>

#include "exercises/core/con_helpikeys.h"
#include "platform/forms/controls/text_box.h"

namespace somme {

// The keys of the sheets with digits, on forms with a box for the number and `PulsanteAvanti`.
// When a key may act, and what it confirms, is left to the forms.
template <class Base>
class ConTastiCifre : public ConHelpiKeys<Base> {
 public:
  using ConHelpiKeys<Base>::ConHelpiKeys;

 protected:
  void Agisci(Tasto tasto) final {
    switch (tasto) {
      case Tasto::Cestino:
        if (SiScrive()) Scrivi({});
        break;
      case Tasto::Aiuto:
        Aiuta();
        break;
      case Tasto::Conferma:
        if (SiScrive()) Conferma();
        break;
      case Tasto::Avanti:
        if (this->PulsanteAvanti.isEnabled()) this->NuovoCaso();
        break;
      default:
        // The limit of the box is not asked: what the program sets may pass it. Settled.
        if (ECifra(tasto) && SiScrive()) {
          Scrivi(Casella().text() + QString::number(CifraDi(tasto)));
        }
    }
  }

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
