#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "cases/chiavi.h"
#include "cases/famiglia.h"
#include "cases/modulo_somme.h"

namespace somme::inline casi {

// The groups in which the menus show the levels, by their greatest sum.
enum class Gruppo { Entro10, Entro20, Entro99, Entro999, Entro9999 };
[[nodiscard]] constexpr qint32 Massimo(Gruppo gruppo) {
  constexpr auto kMassimi = std::to_array<qint32>({10, 20, 99, 999, 9999});
  return kMassimi.at(static_cast<std::size_t>(gruppo));
}

// The arrows that a level shows on the abacus: units into a ten, tens into a hundred, hundreds into
// a thousand. An arrow that is hidden forbids its carry: ten beads stay on the spike.
struct Frecce {
  bool UDa = false;
  bool DaH = false;
  bool HK = false;
};
inline constexpr Frecce kSenzaFrecce{};
inline constexpr Frecce kFrecciaUDa{.UDa = true};
inline constexpr Frecce kFrecciaDaH{.DaH = true};
inline constexpr Frecce kDueFrecce{.UDa = true, .DaH = true};
inline constexpr Frecce kTreFrecce{.UDa = true, .DaH = true, .HK = true};

// A level's numbers, each 0 in a family that does not have the level. A number is the
// `TipoEsercizio` that the menu writes and the index of the level's button there, by which the
// language files know it. Levels keep their numbers: a further one takes the next that is free,
// wherever its row stands.
struct NeiNumeri {
  qint16 totale = 0;   // the sum is to be found: `Command1`
  qint16 addendo = 0;  // an addend is: `Command2`, and the title has the words of that sum
};
struct SullAbaco {
  qint16 tipo = 0;
  Frecce frecce = {};
};
// On the blocks each level has a button of its own name, "Command2" or higher.
struct ConIBlocchi {
  qint16 tipo = 0;
  std::string_view pulsante = {};
  std::string_view immagine = {};    // on the button: a drawing of the program's, by its name
  std::string_view registro = {};    // the key of its name on the record, in section "Strings"
  std::string_view didascalia = {};  // where the menu has other words than the level
};

// One level and all that it is. The menus show the levels of a group in the order of the rows.
struct Livello {
  Gruppo gruppo;
  std::string_view didascalia;  // UTF-8; a blank that begins it is part of it, in titles, too
  Generatore genera;
  qint16 cifre;  // the answer's box takes so many
  NeiNumeri numeri = {};
  SullAbaco abaco = {};
  ConIBlocchi blocchi = {};
};
using Livelli = std::span<const Livello>;

// A level touches its row here, its routine in modulo_somme, and a line in each language file for
// each menu that shows it. What must hold between rows stands in livelli_coerenti.h.
inline constexpr auto kLivelli = std::to_array<Livello>({
    {Gruppo::Entro10, "somme", GeneraEntro10, 2, {.totale = 1}},
    {Gruppo::Entro10, "componi il 10", GeneraTotale10, 2, {.addendo = 1}},
    {Gruppo::Entro10, "trova un addendo", GeneraEntro10, 2, {.addendo = 2}},

    {Gruppo::Entro20, "addendi entro il 10", GeneraEntro20, 2, {.totale = 2}},
    {Gruppo::Entro20, "10 + ....", GeneraDieciPiu, 2, {.totale = 3}},
    {Gruppo::Entro20, "10 + ... = 18", GeneraDieciPiu, 2, {.addendo = 3}},
    {Gruppo::Entro20, "addendo > 10", GeneraAddendoMaggiore10, 2, {.totale = 4}},
    {Gruppo::Entro20, "completa il 20", GeneraTotale20, 2, {.addendo = 4}},

    {Gruppo::Entro99,
     "senza cambio",
     GeneraEntro99SenzaCambio,
     2,
     {.totale = 5},
     {1, kSenzaFrecce},
     {1, "Command2", "livello_lu_senza", chiavi::kTipoSenzaCambio, " senza cambio"}},
    {Gruppo::Entro99,
     "con il cambio",
     GeneraEntro99ConCambio,
     2,
     {.totale = 6},
     {2, kFrecciaUDa},
     {2, "Command3", "livello_lu_con", chiavi::kTipoConCambio, " con il cambio"}},
    {Gruppo::Entro99,
     "con e senza cambio",
     GeneraEntro99ConESenzaCambio,
     2,
     {.totale = 7},
     {3, kFrecciaUDa},
     {3, "Command4", "livello_lu_con_e_senza", chiavi::kTipoConESenzaCambi, " con e senza cambio"}},
    {Gruppo::Entro99,
     "aggiungi solo unità",
     GeneraEntro99SoloUnita,
     2,
     {.totale = 8},
     {4, kFrecciaUDa},
     {4, "Command14", "livello_lu_unita", chiavi::kTipoSoloUnita, " aggiungi solo unità"}},
    {Gruppo::Entro99,
     "aggiungi solo decine",
     GeneraEntro99SoloDecine,
     2,
     {.totale = 9},
     {5, kFrecciaUDa},
     {5, "Command5", "livello_lu_decine", chiavi::kTipoSoloDecine}},

    {Gruppo::Entro999,
     " senza cambio",
     GeneraEntro999SenzaCambio,
     3,
     {.totale = 10},
     {6, kSenzaFrecce},
     {1, "Command9", "livello_hlu_senza", chiavi::kTipoSenzaCambio}},
    {Gruppo::Entro999,
     " cambio alle unità",
     GeneraEntro999CambioUnita,
     3,
     {.totale = 11},
     {7, kFrecciaUDa},
     {2, "Command11", "livello_hlu_cambio_u", chiavi::kTipoCambioUnita}},
    {Gruppo::Entro999,
     " cambio alle decine",
     GeneraEntro999CambioDecine,
     3,
     {.totale = 12},
     {8, kFrecciaDaH},
     {3, "Command12", "livello_hlu_cambio_da", chiavi::kTipoCambioDecine}},
    {Gruppo::Entro999,
     " con un cambio",
     GeneraEntro999UnCambio,
     3,
     {.totale = 13},
     {9, kDueFrecce},
     {4, "Command8", "livello_hlu_un_cambio", chiavi::kTipoUnCambio}},
    {Gruppo::Entro999,
     "con due cambi",
     GeneraEntro999DueCambi,
     3,
     {.totale = 14},
     {10, kDueFrecce},
     {5, "Command10", "livello_hlu_due_cambi", chiavi::kTipoDueCambi}},
    {Gruppo::Entro999,
     " con e senza cambi",
     GeneraEntro999ConESenzaCambi,
     3,
     {.totale = 15},
     {11, kDueFrecce},
     {6, "Command7", "livello_hlu_con_e_senza", chiavi::kTipoConESenzaCambi}},
    {Gruppo::Entro999,
     " aggiungi solo unità",
     GeneraEntro999SoloUnita,
     3,
     {.totale = 16},
     {12, kDueFrecce},
     {7, "Command15", "livello_hlu_unita", chiavi::kTipoSoloUnita}},
    {Gruppo::Entro999,
     " aggiungi solo decine",
     GeneraEntro999SoloDecine,
     3,
     {.totale = 17},
     {13, kDueFrecce},
     {8, "Command6", "livello_hlu_decine", chiavi::kTipoSoloDecine}},
    {Gruppo::Entro999,
     "aggiungi solo centinaia",
     GeneraEntro999SoloCentinaia,
     3,
     {.totale = 18},
     {14, kDueFrecce},
     {9, "Command13", "livello_hlu_centinaia", chiavi::kTipoSoloCentinaia}},

    {Gruppo::Entro9999,
     " senza cambio",
     GeneraEntro9999SenzaCambio,
     5,
     {.totale = 19},
     {15, kSenzaFrecce}},
    {Gruppo::Entro9999,
     " con un cambio",
     GeneraEntro9999UnCambio,
     5,
     {.totale = 20},
     {16, kTreFrecce}},
    {Gruppo::Entro9999,
     "con due cambi",
     GeneraEntro9999DueCambi,
     5,
     {.totale = 21},
     {17, kTreFrecce}},
    {Gruppo::Entro9999,
     "con tre cambi",
     GeneraEntro9999TreCambi,
     5,
     {.totale = 22},
     {18, kTreFrecce}},
    {Gruppo::Entro9999,
     " con e senza cambi",
     GeneraEntro9999ConESenzaCambi,
     5,
     {.totale = 23},
     {19, kTreFrecce}},
    {Gruppo::Entro9999,
     " aggiungi solo unità",
     GeneraEntro9999SoloUnita,
     5,
     {.totale = 24},
     {20, kTreFrecce}},
    {Gruppo::Entro9999,
     " aggiungi solo decine",
     GeneraEntro9999SoloDecine,
     5,
     {.totale = 25},
     {21, kTreFrecce}},
    {Gruppo::Entro9999,
     "aggiungi solo centinaia",
     GeneraEntro9999SoloCentinaia,
     5,
     {.totale = 26},
     {22, kTreFrecce}},
    {Gruppo::Entro9999,
     "aggiungi solo migliaia",
     GeneraEntro9999SoloMigliaia,
     5,
     {.totale = 27},
     {23, kTreFrecce}},
});

// A level's number in a family; 0 where the family does not have it. The group says on which of
// the two boards the blocks show a level.
[[nodiscard]] constexpr qint16 TipoIn(const Livello& livello, Famiglia famiglia) {
  switch (famiglia) {
    case Famiglia::NumeriTotale:
      return livello.numeri.totale;
    case Famiglia::NumeriAddendo:
      return livello.numeri.addendo;
    case Famiglia::Abaco:
      return livello.abaco.tipo;
    case Famiglia::BlocchiDecine:
      return livello.gruppo == Gruppo::Entro99 ? livello.blocchi.tipo : qint16{0};
    case Famiglia::BlocchiCentinaia:
      return livello.gruppo == Gruppo::Entro999 ? livello.blocchi.tipo : qint16{0};
    default:
      return 0;
  }
}

// The greatest sum of a family's levels; 0 for a family without levels.
[[nodiscard]] constexpr qint32 Massimo(Famiglia famiglia) {
  qint32 massimo = 0;
  for (const Livello& livello : kLivelli) {
    if (TipoIn(livello, famiglia) != 0) massimo = std::max(massimo, Massimo(livello.gruppo));
  }
  return massimo;
}

// The level of a TipoEsercizio of a family, or nullptr for one that the family does not have: then
// no case is made, and the form shows the one before.
[[nodiscard]] constexpr const Livello* LivelloDi(Famiglia famiglia, int TipoEsercizio) {
  if (TipoEsercizio <= 0) return nullptr;
  for (const Livello& livello : kLivelli) {
    if (TipoIn(livello, famiglia) == TipoEsercizio) return &livello;
  }
  return nullptr;
}

}  // namespace somme::inline casi
