#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "app/shared/stato_condiviso.h"
#include "cases/famiglia.h"

namespace platform::inline forms {
class Form;
}

namespace somme::inline condiviso {

class Ambiente;

// What a form is to the program.
enum class Genere {
  Pagina,  // splash form, credits, main menu
  Menu,    // of a family's levels
  Esercizio,
  Foglio,        // a keyboard sheet for the touch surface
  Calibrazione,  // a sheet to adjust the touch surface by; nothing in the program leads to it
  Dialogo,       // a modal window
};

// How a form takes the answer. Both ways of scanning are one form's business.
enum class Modo { MouseTastiera, Scansione, Tocco };

// The form's way for a `ModalitaInput` of 0 to 3.
[[nodiscard]] constexpr Modo ModoDi(qint16 ModalitaInput) {
  if (ModalitaInput == kHelpiKeys) return Modo::Tocco;
  const bool scandita = ModalitaInput == kScansioneManuale || ModalitaInput == kScansioneAutomatica;
  return scandita ? Modo::Scansione : Modo::MouseTastiera;
}

// All that a form is, told once. Whoever asks something about forms reads it here, and nobody
// guesses from a name.
struct SchedaForma {
  std::string_view nome;
  // Makes it; nome: this row's.
  std::shared_ptr<platform::Form> (*crea)(Ambiente& ambiente, std::string_view nome) = nullptr;
  Genere genere = Genere::Pagina;
  // Of exercises: what it exercises, how it is answered, which form its menu goes back to.
  Famiglia famiglia = Famiglia::Nessuna;
  qint32 portata = 0;  // the greatest number on it
  Modo modo = Modo::MouseTastiera;
  std::string_view menu = {};
  // Of exercises by touch: the form of its keyboard sheet.
  std::string_view foglio = {};
};

// Whether a form is a sheet, which goes to the printer from over another form.
[[nodiscard]] constexpr bool EFoglio(const SchedaForma& scheda) {
  return scheda.genere == Genere::Foglio || scheda.genere == Genere::Calibrazione;
}

// A row a form. Of two forms of a family in one way of input the first is that of the menus.
using TabellaForme = std::span<const SchedaForma>;

// The row of a name; of a name that the table does not have, one that says nothing but the name.
[[nodiscard]] constexpr SchedaForma SchedaDi(TabellaForme forme, std::string_view nome) {
  for (const SchedaForma& scheda : forme) {
    if (scheda.nome == nome) return scheda;
  }
  return {.nome = nome};
}

// Whether a family can be answered in a way.
[[nodiscard]] constexpr bool SiOffre(TabellaForme forme, Famiglia famiglia, Modo modo) {
  for (const SchedaForma& scheda : forme) {
    if (scheda.famiglia == famiglia && scheda.modo == modo) return true;
  }
  return false;
}

// The greatest number of a family's forms; 0 where it has none.
[[nodiscard]] constexpr qint32 Portata(TabellaForme forme, Famiglia famiglia) {
  for (const SchedaForma& scheda : forme) {
    if (scheda.famiglia == famiglia) return scheda.portata;
  }
  return 0;
}

// The form to which the menus lead for a family and a way of input: where the family has none of
// that way, its first one.
[[nodiscard]] constexpr std::string_view Strada(TabellaForme forme, Famiglia famiglia, Modo modo) {
  const bool offerta = SiOffre(forme, famiglia, modo);
  for (const SchedaForma& scheda : forme) {
    if (scheda.famiglia == famiglia && (scheda.modo == modo || !offerta)) return scheda.nome;
  }
  return {};
}

}  // namespace somme::inline condiviso
