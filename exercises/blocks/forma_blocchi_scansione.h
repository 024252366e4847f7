#pragma once

#include "exercises/blocks/forma_blocchi.h"
#include "exercises/core/input_scansione.h"
#include "exercises/core/scansione.h"
#include "exercises/core/testo_cifre.h"

namespace somme::inline blocchi {

// The blocks by scanning: the keyboard of place values puts the blocks and has the boards judged;
// then that of digits fills the box, which takes no typing, has the result judged and leads on. A
// carry between the two is asked for by its button, which gets the focus, so that the keys press
// it as any other.
//
// Opening the print panel silences the keyboards, and closing it begins a new case.
class FormaBlocchiScansione final : public FormaBlocchi {
 public:
  FormaBlocchiScansione(Ambiente& ambiente, std::string_view nome, const VarianteBlocchi& variante);

  platform::TextBox TestoInput{*this};
  TastieraNumericaScansione TastieraNumericaScansione1{*this};
  TastieraHDUScansione TastieraHDUScansione1{*this};
  // Hidden: the places of the two keyboards.
  platform::Label LabelDimensioneTastiera{*this};
  platform::Label LabelPerTastieraNumerica{*this};

 protected:
  void PosaTastiere() override;
  void ChiudiAvanti() override;
  void ApriAvanti() override { TastieraNumericaScansione1.AttivaAvanti(); }
  platform::Control& Comandi() override { return TastieraHDUScansione1; }
  void TogliComandi() override;
  void NascondiRisultato() override { NascondiCasella(TestoInput); }
  void CasoPronto() override { Avvia(TastieraHDUScansione1); }
  void MostraCambio(platform::Button& pulsante) override;
  void ChiediRisultato() override;
  void ChiudiPannelloStampa() override;

 private:
  void Avvia(auto& tastiera) {
    MettiModoScansione(stato(), tastiera);
    tastiera.Attiva();
  }

  InputScansione scansione_{
      *this,
      TastieraNumericaScansione1,
      CifreScanditeIn(TestoInput, {.conferma = [this] { Rispondi(NumeroScritto(TestoInput)); },
                                   .avanti = [this] { NuovoCaso(); }}),
      TastieraHDUScansione1,
      {.metti = [this](Posto posto) { MettiBlocco(posto); },
       .cestino = [this] { Svuota(); },
       .conferma = [this] { GiudicaTavola(); }}};
};

// Up to 99 and up to 999.
extern const VarianteBlocchi kBlocchiScansione99;
extern const VarianteBlocchi kBlocchiScansione999;

}  // namespace somme::inline blocchi
