#pragma once

#include <utility>

#include "exercises/core/scansione.h"
#include "input/tastiera_hdu_scansione.h"
#include "input/tastiera_numerica_scansione.h"

namespace somme {

// An exercise form, or a base of some, that is worked by scanning: the keyboard of digits, and what
// each of its keys leads to. A form uses it so:
//
// - it derives from ConScansione<Base>, or from ConDueTastiere<Base> where it has the keyboard of
//   place values, too, and says in the overrides below what the keys do;
// - its design has a row for each keyboard (see disegno::TastieraNumerica, disegno::TastieraHDU)
//   and for the hidden label that carries the keyboard's place;
// - at its activation it calls `PosaTastiera` with that label, and shows the keyboard;
// - at the start of each case it calls `Attiva` of the keyboard and `MettiModo`, in its own order,
//   and `DisattivaAvanti` of that of digits; after a right answer `AttivaAvanti`.
//
// Opening the print panel silences the keyboards. Closing it wakes none: that differs from form to
// form, in `ChiudiPannelloStampa`.
template <class Base>
class ConScansione : public Base {
 public:
  template <class... Argomenti>
  explicit ConScansione(Argomenti&&... argomenti) : Base(std::forward<Argomenti>(argomenti)...) {
    TastieraNumericaScansione1.onComunicaPulsante([this](qint16 tasto) { TastoNumerico(tasto); });
  }

  TastieraNumericaScansione TastieraNumericaScansione1{*this};

 protected:
  // The keys of the keyboard of digits: 0 to 9, the bin, help, confirm. The last one is
  // `NuovoCaso`.
  virtual void ScriviCifra(int cifra) = 0;
  virtual void SvuotaInput() = 0;
  // What the digits have written so far.
  [[nodiscard]] virtual QString Scritto() const = 0;
  virtual void ChiediAiuto() {}
  virtual void Conferma() = 0;

  // Sets a keyboard to the way of scanning that the settings ask for.
  void MettiModo(auto& tastiera) { MettiModoScansione(this->stato(), tastiera); }

  void onLoad() override {
    Base::onLoad();
    NominaTasti(this->ambiente(), TastieraNumericaScansione1);
  }

  void ApriPannelloStampa() override {
    TastieraNumericaScansione1.Disattiva();
    Base::ApriPannelloStampa();
  }

 private:
  void TastoNumerico(qint16 tasto) {
    switch (tasto) {
      case TastieraNumericaScansione::kCestino:
        SvuotaInput();
        this->DiciScritto(Scritto());
        break;
      case TastieraNumericaScansione::kAiuto:
        ChiediAiuto();
        break;
      case TastieraNumericaScansione::kConferma:
        Conferma();
        break;
      case TastieraNumericaScansione::kAvanti:
        this->NuovoCaso();
        break;
      default:
        ScriviCifra(tasto);
        this->DiciScritto(Scritto());
        break;
    }
  }
};

// The same with the keyboard of place values beside that of digits; only one of the two is on the
// screen at a time.
template <class Base>
class ConDueTastiere : public ConScansione<Base> {
 public:
  template <class... Argomenti>
  explicit ConDueTastiere(Argomenti&&... argomenti)
      : ConScansione<Base>(std::forward<Argomenti>(argomenti)...) {
    TastieraHDUScansione1.onComunicaPulsante([this](qint16 tasto) { TastoHDU(tasto); });
  }

  TastieraHDUScansione TastieraHDUScansione1{*this};

 protected:
  // A key of the keyboard of place values, one of TastieraHDUScansione::Tasti.
  virtual void TastoHDU(qint16 tasto) = 0;

  void onLoad() override {
    ConScansione<Base>::onLoad();
    NominaTasti(this->ambiente(), TastieraHDUScansione1);
  }

  void ApriPannelloStampa() override {
    TastieraHDUScansione1.Disattiva();
    ConScansione<Base>::ApriPannelloStampa();
  }
};

}  // namespace somme
