#pragma once

#include "exercises/abacus/forma_abaco.h"
#include "input/testo_input_numerico.h"

namespace somme::inline abaco {

// The abacus for mouse and keyboard: the pupil moves bead by bead and carries by an arrow, where
// the level has one. The abacus is an aid and never judged; the sum is typed into `TestoInput`.
class FormaAbacoTastiera final : public FormaAbaco {
 public:
  FormaAbacoTastiera(Ambiente& ambiente, std::string_view nome);

  TestoInputNumerico TestoInput{*this};
  platform::Button PulsanteCambioUDa{*this};
  platform::Button PulsanteCambioDaH{*this};
  platform::Button PulsanteCambioHK{*this};
  platform::Button PulsanteCestino{*this};
  platform::Button PulsanteAvanti{*this};

  // What a click on a bead does; clip: the bead that was clicked, by its name in the movie.
  void InserisciMigliaio(const QString& clip) { Inserisci(Posto::Migliaia, clip); }
  void InserisciCentinaio(const QString& clip) { Inserisci(Posto::Centinaia, clip); }
  void InserisciDecina(const QString& clip) { Inserisci(Posto::Decine, clip); }
  void InserisciUnita(const QString& clip) { Inserisci(Posto::Unita, clip); }
  // Whichever bead of the spike was clicked, the topmost one goes.
  void RimuoviMigliaio(const QString& /*clip*/) { Rimuovi(Posto::Migliaia); }
  void RimuoviCentinaio(const QString& /*clip*/) { Rimuovi(Posto::Centinaia); }
  void RimuoviDecina(const QString& /*clip*/) { Rimuovi(Posto::Decine); }
  void RimuoviUnita(const QString& /*clip*/) { Rimuovi(Posto::Unita); }

 protected:
  void onLoad() override;
  void MostraRisposta() override;
  void NuovoCaso() override;
  void ImpostaCifre(qint16 cifre) override { TestoInput.MaxLength.set(cifre); }
  // Shows and hides; an arrow that is enabled stays so.
  void ImpostaFrecce() override;
  void RispostaGiusta() override;
  void RispostaSbagliata() override;

 private:
  // Lets assistive technology press the beads.
  void OffriPalline();
  void Ascolta(const QString& clip, const QString& parola);
  void Inserisci(Posto posto, const QString& clip);
  void Rimuovi(Posto posto);
  // The arrows, by the place that they carry from.
  [[nodiscard]] std::array<platform::Button*, 3> Frecce();
  void AbilitaFrecce();
  void PremiFreccia(Posto da);
};

}  // namespace somme::inline abaco
