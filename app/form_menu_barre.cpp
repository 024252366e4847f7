#include "app/form_menu_barre.h"

#include "app/disegno_menu.h"
#include "app/shared/nomi_forme.h"

namespace somme::inline programma {

using namespace disegno;

namespace {

constexpr double kLarghezza = 6420;

constexpr auto kSopra = std::to_array<Row>({Intestazione(kLarghezza - 480, "Uso delle barre")});
constexpr auto kPortate = std::to_array<Row>({
    row<&FormMenuBarre::Command2>({1560, 1440, 3300, 915},
                                  VoceGrande("Fino al 10", kTintaBarre, "livello_barre_10")),
    row<&FormMenuBarre::Command4>({1560, 2640, 3300, 915},
                                  VoceGrande("Fino al 20", kTintaBarre, "livello_barre_20")),
});
constexpr auto kSotto = std::to_array<Row>({
    row<&FormMenuBarre::Command1>({1560, 4440, 3300, 1155}, Indietro()),
});
static_assert(ConImmaginiProprie(kPortate), "a range has no picture of its own");

constexpr std::array<std::span<const Row>, 3> kTavole{kSopra, kPortate, kSotto};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuBarre, kLarghezza, 5880, kTavole);

}  // namespace

FormMenuBarre::FormMenuBarre(Ambiente& ambiente) : FormaMenu(ambiente, kDisegno) {
  Command1.onClick([this] { TornaAlMenu(); });
}

void FormMenuBarre::onLoad() {
  FormaMenu::onLoad();
  const auto fino = [this](platform::Button& pulsante, Famiglia famiglia) {
    const qint32 limite = Portata(ambiente().forme, famiglia);
    Apre(pulsante, famiglia, [this, limite] { stato().LimiteEsercizio = limite; });
  };
  fino(Command2, Famiglia::Barre10);
  fino(Command4, Famiglia::Barre20);
}

}  // namespace somme::inline programma
