#pragma once

#include <string_view>

// The keys of the keyboard sheets by name, and what stands on them. Which sheet has them, and
// where: foglio_tasti.h.
namespace somme::inline condiviso {

// What a key is, on whatever sheet and at whatever place.
enum class Tasto {
  Nessuno,  // a place without a key
  Cifra0,
  Cifra1,
  Cifra2,
  Cifra3,
  Cifra4,
  Cifra5,
  Cifra6,
  Cifra7,
  Cifra8,
  Cifra9,
  Migliaia,  // puts one of these, as the next three
  Centinaia,
  Decine,
  Unita,
  CambioHK,  // carries ten hundreds, as the next two ten of theirs
  CambioDaH,
  CambioUDa,
  Cestino,
  Aiuto,
  Conferma,
  Avanti,
};
inline constexpr Tasto kUltimoTasto = Tasto::Avanti;

// The key of a digit, 0 to 9.
[[nodiscard]] constexpr Tasto TastoCifra(int cifra) {
  return static_cast<Tasto>(static_cast<int>(Tasto::Cifra0) + cifra);
}
[[nodiscard]] constexpr bool ECifra(Tasto tasto) {
  return tasto >= Tasto::Cifra0 && tasto <= Tasto::Cifra9;
}
// The digit of a digit's key.
[[nodiscard]] constexpr int CifraDi(Tasto tasto) {
  return static_cast<int>(tasto) - static_cast<int>(Tasto::Cifra0);
}

// What stands on a key.
struct SegnoTasto {
  Tasto tasto = Tasto::Nessuno;
  std::string_view parola = {};   // printed where there is no drawing
  std::string_view disegno = {};  // of the program's drawings, by its name
  std::string_view nome = {};     // what a drawing is called, in Italian
};

inline constexpr SegnoTasto kSegni[] = {
    {Tasto::Cifra0, "0"},
    {Tasto::Cifra1, "1"},
    {Tasto::Cifra2, "2"},
    {Tasto::Cifra3, "3"},
    {Tasto::Cifra4, "4"},
    {Tasto::Cifra5, "5"},
    {Tasto::Cifra6, "6"},
    {Tasto::Cifra7, "7"},
    {Tasto::Cifra8, "8"},
    {Tasto::Cifra9, "9"},
    {Tasto::Migliaia, "k"},
    {Tasto::Centinaia, "h"},
    {Tasto::Decine, "da"},
    {Tasto::Unita, "u"},
    {Tasto::CambioHK, "h → k", "palline_h_k", "Cambio: dieci centinaia, un migliaio"},
    {Tasto::CambioDaH, "da → h", "cambio_da_h", "Cambio: dieci decine, un centinaio"},
    {Tasto::CambioUDa, "u → da", "cambio_u_da", "Cambio: dieci unità, una decina"},
    {Tasto::Cestino, "cestino", "cestino", "Cestino"},
    {Tasto::Aiuto, "aiuto", "aiuto", "Aiuto"},
    {Tasto::Conferma, "conferma", "conferma", "Conferma"},
    {Tasto::Avanti, "avanti", "avanti", "Avanti"},
};

// What stands on a key; nothing for `Tasto::Nessuno`.
[[nodiscard]] constexpr SegnoTasto SegnoDi(Tasto tasto) {
  for (const SegnoTasto& segno : kSegni) {
    if (segno.tasto == tasto) return segno;
  }
  return {};
}

// How a key is shown on paper.
enum class Mostra { Cifra, Parola, Disegno };
[[nodiscard]] constexpr Mostra ComeSiMostra(Tasto tasto) {
  if (ECifra(tasto)) return Mostra::Cifra;
  return SegnoDi(tasto).disegno.empty() ? Mostra::Parola : Mostra::Disegno;
}

}  // namespace somme::inline condiviso
