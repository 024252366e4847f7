#pragma once

#include <QtGlobal>
#include <array>
#include <string_view>

namespace somme::inline giochi {

// How b is drawn, besides a plain `Casuale(limite)` times a step.
inline constexpr int kFisso = 0;     // b is the step
inline constexpr int kFinoAdA = -1;  // `Casuale(a)`

// The rule of a kind of case on the table, a + b or a - b. Its cases are repeated until the result
// lies on the table where `ripete` says so; where it does not, the result lies there by its bounds,
// but for kind 2, whose first operand can be -1 and its result -2, a cell that does not exist.
// Kept: see docs/oddities.md.
struct RegolaTabella {
  int limiteA;
  int inPiuA = 0;  // added to the first draw of a, not to those of a repetition
  int limiteB;
  int passoB = 1;
  bool meno = false;
  bool ripete = false;
};

// A kind and all that it is: its `TipoEsercizio`, which is the index of its button on the menu, its
// rule, and its words and its picture there. What has no words is offered by no menu. The menu
// shows the others in the order of the rows.
struct GenereTabella {
  qint16 tipo;
  RegolaTabella regola;
  std::string_view didascalia = {};  // UTF-8
  std::string_view immagine = {};    // a drawing of the program's, by its name
};

inline constexpr auto kGeneriTabella = std::to_array<GenereTabella>({
    {0, {.limiteA = 98, .limiteB = kFisso}, "Aggiungi un'unità", "livello_tabella_unita"},
    {1,
     {.limiteA = 90, .limiteB = kFisso, .passoB = 10},
     "Aggiungi una decina",
     "livello_tabella_decina"},
    {2, {.limiteA = 98, .inPiuA = -1, .limiteB = kFisso, .meno = true}},
    {3, {.limiteA = 90, .inPiuA = 10, .limiteB = kFisso, .passoB = 10, .meno = true}},
    {5, {.limiteA = 90, .limiteB = 10}, "Aggiungi più unità", "livello_tabella_piu_unita"},
    {6,
     {.limiteA = 90, .limiteB = 10, .passoB = 10, .ripete = true},
     "Aggiungi più decine",
     "livello_tabella_piu_decine"},
    {7, {.limiteA = 90, .inPiuA = 10, .limiteB = 10, .meno = true}},
    {8, {.limiteA = 90, .inPiuA = 10, .limiteB = 10, .passoB = 10, .meno = true, .ripete = true}},
    {10, {.limiteA = 99, .limiteB = 99, .ripete = true}, "Somme", "livello_tabella_somme"},
    {11, {.limiteA = 99, .limiteB = kFinoAdA, .meno = true}},
});

}  // namespace somme::inline giochi
