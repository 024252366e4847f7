#include "app/form_menu_tabella.h"

#include "app/disegno_menu.h"
#include "app/shared/nomi_forme.h"

namespace somme {

using namespace disegno;

namespace {

constexpr double kLarghezza = 6420;

constexpr Row Voce(int indice, double sinistra, double alto, std::string_view testo) {
  return row<&FormMenuTabella::Command2>(indice, {sinistra, alto, 2580, 915}, VoceGrande(testo));
}

constexpr auto kControlli = std::to_array<Row>({
    Intestazione(kLarghezza - 480, "Uso della tabella"),
    Voce(0, 240, 1440, "Aggiungi un'unità"),
    Voce(1, 240, 2640, "Aggiungi una decina"),
    Voce(5, 240, 3840, "Aggiungi più unità"),
    Voce(6, 3600, 1440, "Aggiungi più decine"),
    Voce(10, 3600, 2640, "Somme"),
    row<&FormMenuTabella::Command1>({3600, 5040, 2580, 1155}, Indietro()),
});

constexpr std::array<std::span<const Row>, 1> kTavole{kControlli};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuTabella, kLarghezza, 6420, kTavole);

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

}  // namespace somme
