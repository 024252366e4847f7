#pragma once

#include <QTest>

#include "caso_di_prova.h"
#include "games/partita_blocchi.h"

// Games of blocks for tests.
namespace prova {

inline constexpr std::size_t kUDa = 0;  // the carries of both exercises
inline constexpr std::size_t kDaH = 1;

// A game with its case.
struct GiocoBlocchi {
  explicit GiocoBlocchi(const somme::RegoleBlocchi& regole)
      : partita(caso, regole), entro999(regole.cambi.size() > 1) {}

  // A case of the level that takes any sum.
  void nuovo(int addendo1, int addendo2) {
    ScriptedChance sorte(sommaDivisa(addendo1, addendo2, entro999 ? 988 : 99));
    partita.NuovoCaso(entro999 ? 6 : 3, sorte);
    QVERIFY(sorte.isUsedUp());
  }
  void metti(somme::Posto specie, int volte) {
    for (int i = 0; i < volte; ++i) partita.Metti(specie);
  }
  void costruisci(int numero) {
    metti(somme::Posto::Centinaia, numero / 100);
    metti(somme::Posto::Decine, numero / 10 % 10);
    metti(somme::Posto::Unita, numero % 10);
  }
  // Both boards are built and right, and the boards are joined.
  void unisci(int addendo1, int addendo2) {
    nuovo(addendo1, addendo2);
    costruisci(addendo1);
    QCOMPARE(partita.Conferma(), somme::Esito::PassoGiusto);
    costruisci(addendo2);
    QCOMPARE(partita.Conferma(), somme::Esito::PassoGiusto);
    partita.Unisci();
  }
  // The pupil carries, and the movie shows it.
  void cambia(std::size_t quale) {
    QVERIFY(partita.IniziaCambio(quale));
    QVERIFY(partita.CambioDetto(quale));
    partita.FinisciAttesa();
    partita.Prosegui();
  }

  somme::Caso caso;
  somme::PartitaBlocchi partita;
  bool entro999;
};

struct GiocoLU : GiocoBlocchi {
  GiocoLU() : GiocoBlocchi(somme::kRegoleBlocchiEntro99) {}
};
struct GiocoHLU : GiocoBlocchi {
  GiocoHLU() : GiocoBlocchi(somme::kRegoleBlocchiEntro999) {}
};

}  // namespace prova
