#include "app/form_menu_tabella.h"

#include <algorithm>

#include "app/disegno_menu.h"
#include "app/shared/nomi_forme.h"
#include "games/generi_tabella.h"

namespace somme::inline programma {

using namespace disegno;

namespace {

constexpr double kLarghezza = 6420;
constexpr double kAltezza = 6420;

constexpr bool SiOffre(const GenereTabella& genere) {
  return !genere.didascalia.empty();
}

// The kinds stand from the top, three to a column.
constexpr auto kGeneri = [] {
  constexpr int kPerColonna = 3;
  std::array<Row, std::ranges::count_if(kGeneriTabella, SiOffre)> righe{};
  for (int rango = 0; const GenereTabella& genere : kGeneriTabella) {
    if (!SiOffre(genere)) continue;
    const int colonna = rango / kPerColonna;
    const TwipsRect posto{240.0 + 3360 * colonna, 1440.0 + 1200 * (rango % kPerColonna), 2580, 915};
    righe.at(static_cast<std::size_t>(rango)) = row<&FormMenuTabella::Command2>(
        genere.tipo, posto, VoceGrande(genere.didascalia, kTintaTabella, genere.immagine));
    ++rango;
  }
  return righe;
}();

constexpr auto kSopra = std::to_array<Row>({Intestazione(kLarghezza - 480, "Uso della tabella")});
constexpr auto kSotto = std::to_array<Row>({
    row<&FormMenuTabella::Command1>({3600, 5040, 2580, 1155}, Indietro()),
});
static_assert(HaPosto(kLarghezza, kAltezza, kGeneri, kSotto), "a kind of the table has no place");
static_assert(ConImmaginiProprie(kGeneri), "a kind of the table has no picture of its own");

constexpr std::array<std::span<const Row>, 3> kTavole{kSopra, kGeneri, kSotto};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuTabella, kLarghezza, kAltezza, kTavole);

}  // namespace

FormMenuTabella::FormMenuTabella(Ambiente& ambiente) : FormaMenu(ambiente, kDisegno) {
  Command1.onClick([this] { TornaAlMenu(); });
}

void FormMenuTabella::onLoad() {
  FormaMenu::onLoad();
  Command2.forEach([this](platform::Button& pulsante) {
    const auto tipo = static_cast<qint16>(pulsante.index());
    Apre(pulsante, Famiglia::Tabella, [this, tipo] { stato().TipoEsercizio = tipo; });
  });
}

}  // namespace somme::inline programma
