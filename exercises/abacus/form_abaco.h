#pragma once

#include "exercises/abacus/forma_abaco_scritta.h"
#include "exercises/core/con_avanti.h"

namespace somme {

// The abacus for mouse and keyboard: the pupil moves bead by bead and carries by an arrow, where
// the level has one.
class FormAbaco final : public ConAvanti<FormaAbacoScritta> {
 public:
  explicit FormAbaco(Ambiente& ambiente);

  platform::Button PulsanteCambioUDa{*this};
  platform::Button PulsanteCambioDaH{*this};
  platform::Button PulsanteCambioHK{*this};
  platform::Button PulsanteCestino{*this};

  // clip: the waiting bead that was clicked, by its name in the movie.
  void InserisciMigliaio(const QString& clip);
  void InserisciCentinaio(const QString& clip);
  void InserisciDecina(const QString& clip);
  void InserisciUnita(const QString& clip);
  // Whichever bead of the spike was clicked, the topmost one goes.
  void RimuoviMigliaio();
  void RimuoviCentinaio();
  void RimuoviDecina();
  void RimuoviUnita();

 protected:
  void onLoad() override;
  void onActivate() override;
  void NuovoCaso() override;
  // Shows and hides; an arrow that is enabled stays so.
  void ImpostaFrecce() override;
  void ApriAvanti() override { PulsanteAvanti.setEnabled(true); }
  void FuocoAvanti() override { PulsanteAvanti.setFocus(); }
  void Correggi() override { TestoInput.TestoPerInput(); }

 private:
  // Lets assistive technology press the beads.
  void OffriPalline();
  void Ascolta(const QString& clip, const QString& parola);
  void Inserisci(const GenerePalline& genere, const QString& clip);
  void Rimuovi(const GenerePalline& genere);
  // The arrow that carries ten beads of the kind; null for the thousands.
  platform::Button* Freccia(const GenerePalline& genere);
  void PremiFreccia(const GenerePalline& da);
};

}  // namespace somme
