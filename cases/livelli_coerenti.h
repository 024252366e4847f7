#pragma once

#include "cases/livelli.h"

// What must hold between the rows of levels. livelli.cpp holds the table to it as it is compiled;
// the tests try each rule on rows that break it.
namespace somme::inline casi::coerenti {

inline constexpr auto kFamiglie =
    std::to_array<Famiglia>({Famiglia::NumeriTotale, Famiglia::NumeriAddendo, Famiglia::Abaco,
                             Famiglia::BlocchiDecine, Famiglia::BlocchiCentinaia});

// The levels stand by their groups.
constexpr bool InOrdine(Livelli livelli) {
  return std::ranges::is_sorted(livelli, {}, &Livello::gruppo);
}

// Each says something on its button.
constexpr bool ConParole(Livelli livelli) {
  return std::ranges::all_of(livelli, [](const Livello& l) {
    return l.didascalia.find_first_not_of(' ') != std::string_view::npos;
  });
}

// Each is offered, and asks one thing of the pupil: the sum or an addend.
constexpr bool Offerti(Livelli livelli) {
  return std::ranges::all_of(livelli, [](const Livello& l) {
    const auto offre = [&l](Famiglia famiglia) { return TipoIn(l, famiglia) != 0; };
    return std::ranges::any_of(kFamiglie, offre) && (l.numeri.totale == 0 || l.numeri.addendo == 0);
  });
}

// How many levels of a family have a number.
constexpr auto Quanti(Livelli livelli, Famiglia famiglia, qint16 tipo) {
  return std::ranges::count_if(livelli,
                               [=](const Livello& l) { return TipoIn(l, famiglia) == tipo; });
}

// A number means one level of a family.
constexpr bool NumeriDistinti(Livelli livelli) {
  return std::ranges::all_of(kFamiglie, [livelli](Famiglia famiglia) {
    return std::ranges::all_of(livelli, [=](const Livello& l) {
      const qint16 tipo = TipoIn(l, famiglia);
      return tipo == 0 || (tipo > 0 && Quanti(livelli, famiglia, tipo) == 1);
    });
  });
}

// The box takes every sum of the group.
constexpr bool CifreBastanti(Livelli livelli) {
  return std::ranges::all_of(livelli, [](const Livello& l) {
    qint32 oltre = 1;
    for (int i = 0; i < l.cifre; ++i) oltre *= 10;
    return l.cifre > 0 && oltre > Massimo(l.gruppo);
  });
}

// The title of an addend ends with the words of the sum with the same number; see
// docs/oddities.md.
constexpr bool AddendiConTitolo(Livelli livelli) {
  return std::ranges::all_of(livelli, [livelli](const Livello& l) {
    const qint16 tipo = l.numeri.addendo;
    return tipo == 0 || Quanti(livelli, Famiglia::NumeriTotale, tipo) > 0;
  });
}

// The abacus begins with tens and units; an arrow has both its spikes in use.
constexpr bool AbaciConFrecce(Livelli livelli) {
  return std::ranges::all_of(livelli, [](const Livello& l) {
    const Frecce& f = l.abaco.frecce;
    if (l.abaco.tipo == 0) return !f.UDa && !f.DaH && !f.HK;
    return l.gruppo >= Gruppo::Entro99 && (!f.DaH || l.gruppo >= Gruppo::Entro999) &&
           (!f.HK || l.gruppo >= Gruppo::Entro9999);
  });
}

// The blocks have boards up to 99 and up to 999. Each level there has a name for the record and a
// button of its own; "Command1" is the way back.
constexpr bool BlocchiCompleti(Livelli livelli) {
  return std::ranges::all_of(livelli, [livelli](const Livello& l) {
    const ConIBlocchi& b = l.blocchi;
    if (b.tipo == 0) {
      return b.pulsante.empty() && b.immagine.empty() && b.registro.empty() && b.didascalia.empty();
    }
    const auto suo = [&b](const Livello& altro) { return altro.blocchi.pulsante == b.pulsante; };
    return (l.gruppo == Gruppo::Entro99 || l.gruppo == Gruppo::Entro999) && !b.registro.empty() &&
           b.pulsante.starts_with("Command") && b.pulsante != "Command1" &&
           std::ranges::count_if(livelli, suo) == 1;
  });
}

}  // namespace somme::inline casi::coerenti
