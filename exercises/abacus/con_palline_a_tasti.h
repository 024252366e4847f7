#pragma once

#include "exercises/abacus/forma_abaco.h"
#include "platform/base/numbers.h"

namespace somme {

// An abacus form, or a base of some, on which keys put the beads. The movie is not listened to, a
// waiting bead goes by its number, in the order of the counter, and no single bead can be taken
// away. Who makes the carry differs.
template <class Base>
class ConPallineATasti : public Base {
 public:
  using Base::Base;

  // One more bead of a kind; nothing once there are as many as keys can put.
  void InserisciMigliaio() { Inserisci(kPallineMigliaia); }
  void InserisciCentinaio() { Inserisci(kPallineCentinaia); }
  void InserisciDecina() { Inserisci(kPallineDecine); }
  void InserisciUnita() { Inserisci(kPallineUnita); }

  void CambioUDa() { Cambio(kPallineUnita); }
  void CambioDaH() { Cambio(kPallineDecine); }
  void CambioHK() { Cambio(kPallineCentinaia); }

 protected:
  // The carry of ten beads of a kind, never of the thousands.
  virtual void Cambio(const GenerePalline& da) = 0;
  virtual void PallinaInserita(const GenerePalline& /*genere*/) {}

 private:
  void Inserisci(const GenerePalline& genere) {
    qint16& inserite = this->*genere.inserite;
    if (inserite >= genere.daTasti) return;
    const int nuova = inserite;
    this->Sfuma(genere.sulFerro, nuova, FormaAbaco::kOpaca);
    this->Mostra(genere.sulFerro, nuova, true);
    this->Mostra(genere.inAttesa, nuova, false);
    this->PallineInAttesa[static_cast<std::size_t>(nuova)][genere.colonna] = false;
    inserite = platform::toInt16(inserite + 1);
    this->Racconta();
    PallinaInserita(genere);
  }
};

}  // namespace somme
