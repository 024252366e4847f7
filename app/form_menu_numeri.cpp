#include "app/form_menu_numeri.h"

#include "app/disegno_menu.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "cases/livelli.h"

namespace somme {

using namespace disegno;

namespace {

constexpr double kLarghezza = 12060;
constexpr double kLarghezzaLivello = 1500;

constexpr TwipsRect Posto(double sinistra, int riga) {
  return {sinistra, AltoRiga(riga), kLarghezzaLivello, kAltoLivello};
}

constexpr Row Totale(int tipo, double sinistra, int riga) {
  return row<&FormMenuNumeri::Command1>(
      tipo, Posto(sinistra, riga), VoceLivello(LivelloDi(LivelliNumeriTotale, tipo)->didascalia));
}
constexpr Row Addendo(int tipo, double sinistra, int riga) {
  return row<&FormMenuNumeri::Command2>(
      tipo, Posto(sinistra, riga), VoceLivello(LivelloDi(LivelliNumeriAddendo, tipo)->didascalia));
}

constexpr auto kControlli = std::to_array<Row>({
    Intestazione(kLarghezza - 480, "Numeri"),
    row<&FormMenuNumeri::Label2>({240, 960, 1500, 405}, Fascia("Entro 10")),
    Totale(1, 240, 0),
    Addendo(1, 240, 1),
    Addendo(2, 240, 2),
    row<&FormMenuNumeri::Label5>({1920, 960, 1500, 405}, Fascia("Entro 20")),
    Totale(2, 1920, 0),
    Totale(3, 1920, 1),
    Addendo(3, 1920, 2),
    Totale(4, 1920, 3),
    Addendo(4, 1920, 4),
    row<&FormMenuNumeri::Label6>({3600, 960, 1500, 405}, Fascia("Entro 99")),
    Totale(5, 3600, 0),
    Totale(6, 3600, 1),
    Totale(7, 3600, 2),
    Totale(8, 3600, 3),
    Totale(9, 3600, 4),
    row<&FormMenuNumeri::Label3>({5280, 960, 3180, 405}, Fascia("Entro 999")),
    Totale(10, 5280, 0),
    Totale(11, 5280, 1),
    Totale(12, 5280, 2),
    Totale(13, 5280, 3),
    Totale(14, 5280, 4),
    Totale(15, 6960, 0),
    Totale(16, 6960, 1),
    Totale(17, 6960, 2),
    Totale(18, 6960, 3),
    row<&FormMenuNumeri::Label4>({8640, 960, 3180, 405}, Fascia("Entro 9.999")),
    Totale(19, 8640, 0),
    Totale(20, 8640, 1),
    Totale(21, 8640, 2),
    Totale(22, 8640, 3),
    Totale(23, 8640, 4),
    Totale(24, 10320, 0),
    Totale(25, 10320, 1),
    Totale(26, 10320, 2),
    Totale(27, 10320, 3),
    row<&FormMenuNumeri::Command1>(0, {7800, 6120, 4020, 1155}, Indietro()),
    row<&FormMenuNumeri::Command2>(0, {240, 6120, kLarghezzaLivello, kAltoLivello},
                                   {.hidden = true}),
});

constexpr std::array<std::span<const Row>, 1> kTavole{kControlli};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuNumeri, kLarghezza, 7500, kTavole);

QString ChiaveTotale(Gruppo gruppo) {
  switch (gruppo) {
    case Gruppo::Entro10:
      return QStringLiteral("0024");
    case Gruppo::Entro20:
      return QStringLiteral("0025");
    case Gruppo::Entro99:
      return QStringLiteral("0026");
    case Gruppo::Entro999:
      return QStringLiteral("0027");
    case Gruppo::Entro9999:
      break;
  }
  return QStringLiteral("0028");
}

QString ChiaveAddendo(Gruppo gruppo) {
  return gruppo == Gruppo::Entro10 ? QStringLiteral("0029") : QStringLiteral("0030");
}

}  // namespace

FormMenuNumeri::FormMenuNumeri(Ambiente& ambiente) : FormaMenu(ambiente, kDisegno) {}

void FormMenuNumeri::onLoad() {
  FormaMenu::onLoad();
  const auto collega = [this](platform::ControlArray<platform::Button>& pulsanti, Livelli livelli,
                              Famiglia famiglia, QString (*chiave)(Gruppo)) {
    pulsanti[0].onClick([this] { TornaAlMenu(); });
    for (int i = 1; const Livello& livello : livelli) {
      // The title ends with the caption of `Command1` for both kinds of exercise: that of an addend
      // carries the words of the sum with the same index. Settled; it is seen on the printed record
      // only.
      Apre(pulsanti[i], famiglia,
           [this, i, gruppo = chiave(livello.gruppo)] { ScegliTitolato(i, gruppo, Command1[i]); });
      ++i;
    }
  };
  collega(Command1, LivelliNumeriTotale, Famiglia::NumeriTotale, ChiaveTotale);
  collega(Command2, LivelliNumeriAddendo, Famiglia::NumeriAddendo, ChiaveAddendo);
}

void FormMenuNumeri::onActivate() {
  FormaMenu::onActivate();
  stato().TitoloEsercizio = TestoLingua(ambiente(), QStringLiteral("0031"));
}

}  // namespace somme
