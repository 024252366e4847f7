#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "app/shared/nomi_forme.h"
#include "app/shared/tasto.h"

// The keyboard sheets: pages that are laid on the touch surface and show the keys of one family of
// exercises. What a sheet is stands here and nowhere else: printing draws it, the touch link finds
// in it the key under a touch, forms do what a key's name says. foglio_tasti.cpp holds the rows
// against one another when it is compiled.
namespace somme::inline condiviso {

// The grid of the touch surface, which a sheet is drawn on.
inline constexpr int kColonneGriglia = 24;
inline constexpr int kRigheGriglia = 23;

// Whole numbers from `da` to `a`, both included.
struct Fascia {
  int da;
  int a;

  [[nodiscard]] constexpr bool contiene(int numero) const { return numero >= da && numero <= a; }
  [[nodiscard]] constexpr int lunga() const { return a - da + 1; }
};

// A line of keys, across or down: columns or rows of the grid, counted from 1.
struct Fila {
  Fascia celle;    // where a touch falls on its keys
  Fascia cornice;  // where their frames stand on paper
};

// The cells of a key, or those that its frame takes.
struct Zona {
  Fascia colonne;
  Fascia righe;
};

// A key at its place.
struct TastoPosato {
  Tasto tasto = Tasto::Nessuno;
  // The number of what shows it on paper, as language files name it: 4 is "Image4" for a drawing,
  // "Label1(4)" for a digit, "Label3(4)" for another word.
  int controllo = 0;
  // Its drawing on this keyboard, where that is not the key's own: what is exchanged looks like
  // what the pupil has before him.
  std::string_view disegno = {};
};

// A kind of keyboard. Its places are the crossings of the lines of keys, and count from 1, left to
// right and top to bottom.
struct Tastiera {
  std::span<const Fila> colonne;
  std::span<const Fila> righe;
  std::span<const TastoPosato> tasti;  // one for each place

  [[nodiscard]] constexpr int Posti() const {
    return static_cast<int>(colonne.size() * righe.size());
  }
  // The place under a cell; 0 for a cell between the places or off the grid.
  [[nodiscard]] constexpr int Posto(int colonna, int riga) const {
    const int c = Quale(colonne, colonna);
    const int r = Quale(righe, riga);
    return c < 0 || r < 0 ? 0 : r * static_cast<int>(colonne.size()) + c + 1;
  }
  // Of a place, 1 to `Posti()`.
  [[nodiscard]] constexpr Zona CelleDi(int posto) const {
    return {Colonna(posto).celle, Riga(posto).celle};
  }
  [[nodiscard]] constexpr Zona CorniceDi(int posto) const {
    return {Colonna(posto).cornice, Riga(posto).cornice};
  }
  [[nodiscard]] constexpr TastoPosato TastoDi(int posto) const {
    return posto < 1 || posto > static_cast<int>(tasti.size()) ? TastoPosato{}
                                                               : tasti[Indice(posto)];
  }
  // The place of a key; 0 where the keyboard has no such.
  [[nodiscard]] constexpr int PostoDi(Tasto tasto) const {
    for (int posto = 1; posto <= Posti(); ++posto) {
      if (tasto != Tasto::Nessuno && TastoDi(posto).tasto == tasto) return posto;
    }
    return 0;
  }

 private:
  static constexpr std::size_t Indice(int posto) { return static_cast<std::size_t>(posto - 1); }
  [[nodiscard]] constexpr const Fila& Colonna(int posto) const {
    return colonne[Indice(posto) % colonne.size()];
  }
  [[nodiscard]] constexpr const Fila& Riga(int posto) const {
    return righe[Indice(posto) / colonne.size()];
  }
  static constexpr int Quale(std::span<const Fila> file, int numero) {
    for (std::size_t i = 0; i < file.size(); ++i) {
      if (file[i].celle.contiene(numero)) return static_cast<int>(i);
    }
    return -1;
  }
};

// The lines are uneven on purpose: of the sheet with digits the first two rows touch each other and
// the third is one cell shorter, and a touch right above or below a frame counts where no other key
// is near.
inline constexpr Fila kColonneStrette[] = {
    {{2, 5}, {2, 5}}, {{8, 11}, {8, 11}}, {{14, 17}, {14, 17}}, {{20, 23}, {20, 23}}};
inline constexpr Fila kColonneLarghe[] = {
    {{2, 7}, {2, 7}}, {{10, 15}, {10, 15}}, {{18, 23}, {18, 23}}};
inline constexpr Fila kRigheCifre[] = {
    {{2, 6}, {3, 6}}, {{7, 11}, {8, 11}}, {{13, 16}, {13, 16}}, {{18, 22}, {18, 21}}};
inline constexpr Fila kRigheBlocchi[] = {
    {{2, 7}, {2, 7}}, {{9, 14}, {9, 14}}, {{16, 21}, {16, 21}}};
inline constexpr Fila kRigheAbaco[] = {
    {{2, 7}, {3, 7}}, {{10, 14}, {10, 14}}, {{17, 22}, {17, 21}}};
inline constexpr Fila kRigheSei[] = {{{3, 10}, {3, 10}}, {{14, 21}, {14, 21}}};

// clang-format off
inline constexpr TastoPosato kTastiCifre[] = {
    {Tasto::Cifra0, 0},  {Tasto::Cifra1, 1}, {Tasto::Cifra2, 2},   {Tasto::Cifra3, 3},
    {Tasto::Cifra4, 4},  {Tasto::Cifra5, 5}, {Tasto::Cifra6, 6},   {Tasto::Cifra7, 7},
    {Tasto::Cifra8, 8},  {Tasto::Cifra9, 9}, {},                   {},
    {Tasto::Cestino, 4}, {Tasto::Aiuto, 1},  {Tasto::Conferma, 2}, {Tasto::Avanti, 3},
};
inline constexpr TastoPosato kTastiBlocchi[] = {
    {Tasto::Centinaia, 0}, {Tasto::Decine, 1},    {Tasto::Unita, 2},
    {},                    {Tasto::CambioDaH, 5}, {Tasto::CambioUDa, 4},
    {Tasto::Cestino, 1},   {Tasto::Conferma, 2},  {Tasto::Avanti, 3},
};
inline constexpr TastoPosato kTastiAbaco[] = {
    {Tasto::Migliaia, 0}, {Tasto::Centinaia, 1}, {Tasto::Decine, 2},    {Tasto::Unita, 3},
    {},
    {Tasto::CambioHK, 6, "foglio_palline_h_k"},
    {Tasto::CambioDaH, 5, "foglio_palline_da_h"},
    {Tasto::CambioUDa, 4, "foglio_palline_u_da"},
    {},                   {Tasto::Cestino, 1},   {Tasto::Conferma, 2},  {Tasto::Avanti, 3},
};
// clang-format on

inline constexpr Tastiera kTastieraCifre{kColonneStrette, kRigheCifre, kTastiCifre};
inline constexpr Tastiera kTastieraBlocchi{kColonneLarghe, kRigheBlocchi, kTastiBlocchi};
inline constexpr Tastiera kTastieraAbaco{kColonneStrette, kRigheAbaco, kTastiAbaco};
// Places alone, to adjust the touch surface by.
inline constexpr Tastiera kPostiCifre{kColonneStrette, kRigheCifre, {}};
inline constexpr Tastiera kSeiPosti{kColonneLarghe, kRigheSei, {}};

// A sheet: a keyboard, less the keys that its exercises have no use for. Their places stay, empty.
struct FoglioTasti {
  std::string_view nome;    // of the form that prints it
  std::string_view titolo;  // of that form, in Italian
  const Tastiera& tastiera;
  std::span<const Tasto> senza = {};

  // The key at a place, 1 to `Posti()`; none for any other number.
  [[nodiscard]] constexpr TastoPosato TastoDi(int posto) const {
    const TastoPosato trovato = tastiera.TastoDi(posto);
    return Manca(trovato.tasto) ? TastoPosato{} : trovato;
  }
  // The place of a key; 0 where the sheet has no such.
  [[nodiscard]] constexpr int PostoDi(Tasto tasto) const {
    return Manca(tasto) ? 0 : tastiera.PostoDi(tasto);
  }

 private:
  [[nodiscard]] constexpr bool Manca(Tasto tasto) const {
    for (const Tasto altro : senza) {
      if (altro == tasto) return true;
    }
    return false;
  }
};

inline constexpr Tasto kNonNeiNumeri[] = {Tasto::Aiuto};
inline constexpr Tasto kNonEntro99[] = {Tasto::Centinaia, Tasto::CambioDaH};

// A row a sheet.
inline constexpr FoglioTasti kFogliTasti[] = {
    {forme::kFormStampaFoglioNumeri, "Foglio della tastiera HelpiKeys: barre", kTastieraCifre},
    {forme::kFormStampaFoglioNumeri2, "Foglio della tastiera HelpiKeys: numeri", kTastieraCifre,
     kNonNeiNumeri},
    {forme::kFormStampaLU, "Foglio della tastiera HelpiKeys: decine e unità", kTastieraBlocchi,
     kNonEntro99},
    {forme::kFormStampaPLU, "Foglio della tastiera HelpiKeys: centinaia, decine e unità",
     kTastieraBlocchi},
    {forme::kFormStampaAbaco, "Foglio della tastiera HelpiKeys: abaco", kTastieraAbaco},
    {forme::kFormStampaFoglio4, "Foglio per regolare la tastiera HelpiKeys: 16 tasti", kPostiCifre},
    {forme::kFormStampaFoglio1, "Foglio per regolare la tastiera HelpiKeys: 6 tasti", kSeiPosti},
};

// The sheet of a name. Throws std::out_of_range for a name that no sheet has.
[[nodiscard]] const FoglioTasti& FoglioDi(std::string_view nome);

}  // namespace somme::inline condiviso
