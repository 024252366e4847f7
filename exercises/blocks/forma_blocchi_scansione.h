#pragma once

#include "exercises/blocks/con_casella_risultato.h"
#include "exercises/core/con_scansione.h"

namespace somme {

// The blocks by scanning: the keyboard of place values puts the blocks and has the boards judged;
// then that of digits fills the box, which takes no typing, has the result judged and leads on. A
// carry between the two is asked for by its button, which gets the focus, so that the keys press
// it as any other.
//
// Opening the print panel silences the keyboards, and closing it begins a new case.
class FormaBlocchiScansione : public ConDueTastiere<ConCasellaRisultato<FormaBlocchi>> {
 public:
  FormaBlocchiScansione(Ambiente& ambiente, const platform::FormDesign& disegno,
                        const EsercizioBlocchi& esercizio);

  // Hidden: the places of the two keyboards.
  platform::Label LabelDimensioneTastiera{*this};
  platform::Label LabelPerTastieraNumerica{*this};

 protected:
  void PosaTastiere() override;
  void ChiudiAvanti() override;
  void ApriAvanti() override { TastieraNumericaScansione1.AttivaAvanti(); }
  void MettiComandi(const platform::Label& ancora) override;
  void SpostaComandi(const platform::Label& ancora) override;
  void TogliComandi() override;
  void CasoPronto() override;
  void MostraCambio(platform::Button& pulsante) override;
  void ChiediRisultato() override;

  void TastoHDU(qint16 tasto) override;
  void ScriviCifra(int cifra) override { AccodaCifra(TestoInput, cifra); }
  void SvuotaInput() override { TestoInput.setText({}); }
  [[nodiscard]] QString Scritto() const override { return TestoInput.text(); }
  void Conferma() override { GiudicaRisultato(); }

  void ChiudiPannelloStampa() override;

 private:
  void Avvia(auto& tastiera) {
    MettiModo(tastiera);
    tastiera.Attiva();
  }
};

}  // namespace somme
