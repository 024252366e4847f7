#pragma once

#include <QTest>

#include "caso_di_prova.h"
#include "games/partita_abaco.h"

// Games on the abacus for tests.
namespace prova {

using somme::PartitaAbaco;
using somme::Posto;

inline constexpr std::array kTuttiIPosti{Posto::Unita, Posto::Decine, Posto::Centinaia,
                                         Posto::Migliaia};

// A game with its case; the abacus is empty, as after the first activation.
struct GiocoAbaco {
  explicit GiocoAbaco(PartitaAbaco::Cambi cambi) : partita(caso, cambi) { partita.Svuota(); }

  // A case of the level that takes any sum up to 9888.
  void nuovo(int addendo1, int addendo2) {
    constexpr int kConESenzaCambi = 19;
    ScriptedChance sorte(sommaDivisa(addendo1, addendo2, 9888));
    partita.NuovoCaso(kConESenzaCambi, sorte);
    QVERIFY(sorte.isUsedUp());
  }
  // Beads onto a spike, each the waiting one of the next number.
  void inserisci(Posto posto, int volte) {
    for (int i = 0; i < volte; ++i) QVERIFY(partita.Inserisci(posto, partita.Inserite()[posto]));
  }
  void inserisciDaTasto(Posto posto, int volte) {
    for (int i = 0; i < volte; ++i) QVERIFY(partita.InserisciDaTasto(posto));
  }
  // A whole carry.
  std::optional<Posto> cambia(Posto da) {
    if (!partita.IniziaCambio(da)) return std::nullopt;
    (void)partita.Passa(da);
    return partita.FinisciCambio(da);
  }
  // The numbers of the beads that wait, one behind the other.
  QString inAttesa(Posto posto) const {
    QString numeri;
    for (int i = 0; i < PartitaAbaco::kPalline; ++i) {
      if (partita.InAttesa(posto, i)) numeri += QString::number(i);
    }
    return numeri;
  }

  somme::Caso caso;
  PartitaAbaco partita;
};

// The pupil carries by arrows, beads carry by themselves, the pupil carries by keys.
struct ConFrecce : GiocoAbaco {
  ConFrecce() : GiocoAbaco(PartitaAbaco::Cambi::Frecce) {}
};
struct DaSe : GiocoAbaco {
  DaSe() : GiocoAbaco(PartitaAbaco::Cambi::DaSe) {}
};
struct ConTasti : GiocoAbaco {
  ConTasti() : GiocoAbaco(PartitaAbaco::Cambi::Tasti) {}
};

}  // namespace prova
