#include "app/shared/foglio_tasti.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace somme::inline condiviso {

namespace {

// What rows must say for one another; what does not hold does not compile.

constexpr bool HaUnSegno(Tasto tasto) {
  return std::ranges::count(kSegni, tasto, &SegnoTasto::tasto) == 1;
}
constexpr bool TuttiHannoUnSegno() {
  for (int i = 0; i < static_cast<int>(kUltimoTasto); ++i) {
    if (!HaUnSegno(static_cast<Tasto>(i + 1))) return false;
  }
  return !HaUnSegno(Tasto::Nessuno);
}
static_assert(TuttiHannoUnSegno());

// No cell lies in two lines or off the grid, each frame within its cells; all are of one size.
constexpr bool SiTengono(std::span<const Fila> file, int griglia) {
  int ultima = 0;
  for (const auto& [celle, cornice] : file) {
    if (celle.da <= ultima || celle.a < celle.da || celle.a > griglia) return false;
    if (!celle.contiene(cornice.da) || !celle.contiene(cornice.a)) return false;
    if (cornice.lunga() < 1 || cornice.lunga() != file.front().cornice.lunga()) return false;
    ultima = celle.a;
  }
  return !file.empty();
}

// No key and no control stands twice.
constexpr bool SiEscludono(const TastoPosato& uno, const TastoPosato& altro) {
  if (uno.tasto == Tasto::Nessuno || altro.tasto == Tasto::Nessuno) return true;
  return uno.tasto != altro.tasto &&
         (uno.controllo != altro.controllo || ComeSiMostra(uno.tasto) != ComeSiMostra(altro.tasto));
}
constexpr bool SiTengono(std::span<const TastoPosato> tasti) {
  for (std::size_t i = 0; i < tasti.size(); ++i) {
    const TastoPosato& uno = tasti[i];
    if (ECifra(uno.tasto) && uno.controllo != CifraDi(uno.tasto)) return false;
    for (std::size_t k = i + 1; k < tasti.size(); ++k) {
      if (!SiEscludono(tasti[i], tasti[k])) return false;
    }
  }
  return true;
}

constexpr bool SiTiene(const Tastiera& tastiera) {
  const auto quanti = static_cast<int>(tastiera.tasti.size());
  return SiTengono(tastiera.colonne, kColonneGriglia) && SiTengono(tastiera.righe, kRigheGriglia) &&
         (quanti == tastiera.Posti() || quanti == 0) && SiTengono(tastiera.tasti);
}
static_assert(SiTiene(kTastieraCifre));
static_assert(SiTiene(kTastieraBlocchi));
static_assert(SiTiene(kTastieraAbaco));
static_assert(SiTiene(kPostiCifre));
static_assert(SiTiene(kSeiPosti));

constexpr bool SiTiene(const FoglioTasti& foglio) {
  const auto haTasto = [&foglio](Tasto tasto) { return foglio.tastiera.PostoDi(tasto) != 0; };
  return std::ranges::count(kFogliTasti, foglio.nome, &FoglioTasti::nome) == 1 &&
         std::ranges::all_of(foglio.senza, haTasto);
}
static_assert(std::ranges::all_of(kFogliTasti, [](const auto& foglio) { return SiTiene(foglio); }));

}  // namespace

const FoglioTasti& FoglioDi(std::string_view nome) {
  const auto* trovato = std::ranges::find(kFogliTasti, nome, &FoglioTasti::nome);
  if (trovato == std::end(kFogliTasti)) {
    throw std::out_of_range("no sheet is called " + std::string(nome));
  }
  return *trovato;
}

}  // namespace somme::inline condiviso
