#pragma once

#include <array>
#include <span>

namespace somme {

// Whole numbers from `da` to `a`, both included.
struct Fascia {
  int da;
  int a;

  [[nodiscard]] constexpr bool contiene(int numero) const { return numero >= da && numero <= a; }
};

// The keys of one kind of keyboard sheet on the grid of the touch surface: bands of columns and of
// rows, whose crossings are the keys. Columns and rows of the grid count from 1; keys count from 1,
// left to right and top to bottom.
struct MappaTasti {
  std::span<const Fascia> colonne;
  std::span<const Fascia> righe;

  // The key under a cell; 0 for a cell between the keys or off the sheet, which does nothing.
  [[nodiscard]] constexpr int Tasto(int colonna, int riga) const {
    const int c = Posto(colonne, colonna);
    const int r = Posto(righe, riga);
    return c < 0 || r < 0 ? 0 : r * static_cast<int>(colonne.size()) + c + 1;
  }
  [[nodiscard]] constexpr int Tasti() const {
    return static_cast<int>(colonne.size() * righe.size());
  }
  // The cells of a key, 1 to `Tasti()`.
  [[nodiscard]] constexpr Fascia ColonneDi(int tasto) const {
    return colonne[static_cast<std::size_t>(tasto - 1) % colonne.size()];
  }
  [[nodiscard]] constexpr Fascia RigheDi(int tasto) const {
    return righe[static_cast<std::size_t>(tasto - 1) / colonne.size()];
  }

 private:
  static constexpr int Posto(std::span<const Fascia> fasce, int numero) {
    for (std::size_t i = 0; i < fasce.size(); ++i) {
      if (fasce[i].contiene(numero)) return static_cast<int>(i);
    }
    return -1;
  }
};

// The grid of the touch surface, which a sheet is drawn on.
inline constexpr int kColonneGriglia = 24;
inline constexpr int kRigheGriglia = 23;

// The bands are uneven on purpose: of the sheet with digits the first two rows touch each other and
// the third is one row shorter.
inline constexpr std::array<Fascia, 4> kColonneStrette{{{2, 5}, {8, 11}, {14, 17}, {20, 23}}};
inline constexpr std::array<Fascia, 4> kRigheCifre{{{2, 6}, {7, 11}, {13, 16}, {18, 22}}};
inline constexpr std::array<Fascia, 3> kColonneLarghe{{{2, 7}, {10, 15}, {18, 23}}};
inline constexpr std::array<Fascia, 3> kRigheBlocchi{{{2, 7}, {9, 14}, {16, 21}}};
inline constexpr std::array<Fascia, 3> kRigheAbaco{{{2, 7}, {10, 14}, {17, 22}}};

// The sheet with digits: bars and numbers. 16 keys.
inline constexpr MappaTasti kMappaCifre{kColonneStrette, kRigheCifre};
// Blocks. 9 keys.
inline constexpr MappaTasti kMappaBlocchi{kColonneLarghe, kRigheBlocchi};
// Abacus. 12 keys.
inline constexpr MappaTasti kMappaAbaco{kColonneStrette, kRigheAbaco};

}  // namespace somme
