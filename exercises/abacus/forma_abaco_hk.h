#pragma once

#include "exercises/abacus/forma_abaco.h"
#include "exercises/core/input_tocco.h"

namespace somme::inline abaco {

// The abacus by touch: the keys of the sheet put the beads and carry, and the abacus itself is the
// answer. Only its value counts, which may stand with ten beads on a spike; no carry is demanded.
// The digits of the sum show once it is right.
//
// While a carry goes on, and after one that found the next spike full, all keys are dropped. The
// mouse does the rest, and stays free meanwhile. Kept: see docs/oddities.md.
class FormaAbacoHK final : public FormaAbaco {
 public:
  FormaAbacoHK(Ambiente& ambiente, std::string_view nome);

  platform::ControlArray<platform::Socket> ControlloConnessione{*this};
  platform::PictureBox Picture1{*this};  // the frame of the two buttons
  platform::Button PulsanteCestino{*this};
  platform::Button PulsanteConferma{*this};
  platform::Button PulsanteAvanti{*this};
  // The digits of the sum, from thousands to units.
  platform::ControlArray<platform::Label> Label2{*this};
  platform::MenuItem mnuStampaHP{*this};

  [[nodiscard]] bool HelpiKeysConnesso() const { return tocco_.HelpiKeysConnesso(); }
  // Does what the key at a place of the sheet does, 1 to 12.
  void InterpretaSegnale(int tasto) const { tocco_.InterpretaSegnale(tasto); }
  // A bead for a sum that has such digits; else the sound of what is wrong.
  void InserisciMigliaio() { Inserisci(Posto::Migliaia); }
  void InserisciCentinaio() { Inserisci(Posto::Centinaia); }
  void InserisciDecina() { Inserisci(Posto::Decine); }
  void InserisciUnita() { Inserisci(Posto::Unita); }
  // Ten of a place become one of the next.
  void CambioUDa() { Cambio(Posto::Unita); }
  void CambioDaH() { Cambio(Posto::Decine); }
  void CambioHK() { Cambio(Posto::Centinaia); }

 protected:
  void onLoad() override;
  void NuovoCaso() override;
  void RispostaGiusta() override;

 private:
  void Agisci(Tasto tasto);
  void Inserisci(Posto posto);
  void Cambio(Posto da);
  void ScriviCifre();
  void MostraCifre();
  void Conferma();

  InputTocco tocco_;
};

}  // namespace somme::inline abaco
