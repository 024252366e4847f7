#include "app/form_menu_abaco.h"

#include "app/disegno_menu.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "cases/livelli.h"

namespace somme {

using namespace disegno;

namespace {

constexpr double kLarghezza = 10860;
constexpr double kLarghezzaLivello = 1860;

constexpr Row Voce(int tipo, double sinistra, int riga) {
  return row<&FormMenuAbaco::Command1>(tipo,
                                       {sinistra, AltoRiga(riga), kLarghezzaLivello, kAltoLivello},
                                       VoceLivello(LivelloDi(LivelliAbaco, tipo)->didascalia));
}

constexpr auto kControlli = std::to_array<Row>({
    Intestazione(kLarghezza - 480, "Abaco"),
    row<&FormMenuAbaco::Label2>({240, 960, 1860, 405}, Fascia("Entro 99")),
    Voce(1, 240, 0),
    Voce(2, 240, 1),
    Voce(3, 240, 2),
    Voce(4, 240, 3),
    Voce(5, 240, 4),
    row<&FormMenuAbaco::Label3>({2400, 960, 4020, 405}, Fascia("Entro 999")),
    Voce(6, 2400, 0),
    Voce(7, 2400, 1),
    Voce(8, 2400, 2),
    Voce(9, 2400, 3),
    Voce(10, 2400, 4),
    Voce(11, 4560, 0),
    Voce(12, 4560, 1),
    Voce(13, 4560, 2),
    Voce(14, 4560, 3),
    row<&FormMenuAbaco::Label4>({6720, 960, 3900, 405}, Fascia("Entro 9.999")),
    Voce(15, 6720, 0),
    Voce(16, 6720, 1),
    Voce(17, 6720, 2),
    Voce(18, 6720, 3),
    Voce(19, 6720, 4),
    Voce(20, 8760, 0),
    Voce(21, 8760, 1),
    Voce(22, 8760, 2),
    Voce(23, 8760, 3),
    row<&FormMenuAbaco::Command1>(0, {6720, 6120, 3900, 1155}, Indietro()),
});

constexpr std::array<std::span<const Row>, 1> kTavole{kControlli};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuAbaco, kLarghezza, 7500, kTavole);

QString Chiave(Gruppo gruppo) {
  if (gruppo == Gruppo::Entro99) return QStringLiteral("0036");
  return gruppo == Gruppo::Entro999 ? QStringLiteral("0037") : QStringLiteral("0038");
}

}  // namespace

FormMenuAbaco::FormMenuAbaco(Ambiente& ambiente) : FormaMenu(ambiente, kDisegno) {}

void FormMenuAbaco::onLoad() {
  FormaMenu::onLoad();
  Command1[0].onClick([this] { TornaAlMenu(); });
  for (int i = 1; const Livello& livello : LivelliAbaco) {
    Apre(Command1[i], Famiglia::Abaco,
         [this, i, chiave = Chiave(livello.gruppo)] { ScegliTitolato(i, chiave, Command1[i]); });
    ++i;
  }
}

void FormMenuAbaco::onActivate() {
  FormaMenu::onActivate();
  stato().TitoloEsercizio = TestoLingua(ambiente(), QStringLiteral("0039"));
}

}  // namespace somme
