#include "app/form_menu_numeri.h"

#include "app/menu_di_livelli.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "cases/chiavi.h"

namespace somme::inline programma {

using namespace disegno;

namespace {

constexpr double kLarghezza = 12060;
constexpr double kAltezza = 7500;
constexpr double kPasso = 1680;

constexpr auto kFamiglie = std::to_array({Famiglia::NumeriTotale, Famiglia::NumeriAddendo});

constexpr auto kFasce = std::to_array<FasciaMenu>({
    {Gruppo::Entro10, SullaFascia<&FormMenuNumeri::Label2>(), "Entro 10", 240, 1, 0,
     chiavi::kNumeriEntro10, chiavi::kAddendoEntro10},
    {Gruppo::Entro20, SullaFascia<&FormMenuNumeri::Label5>(), "Entro 20", 1920, 1, 0,
     chiavi::kNumeriEntro20, chiavi::kAddendoEntro20},
    {Gruppo::Entro99, SullaFascia<&FormMenuNumeri::Label6>(), "Entro 99", 3600, 1, 0,
     chiavi::kNumeriEntro99},
    {Gruppo::Entro999, SullaFascia<&FormMenuNumeri::Label3>(), "Entro 999", 5280, 2, kPasso,
     chiavi::kNumeriEntro999},
    {Gruppo::Entro9999, SullaFascia<&FormMenuNumeri::Label4>(), "Entro 9.999", 8640, 2, kPasso,
     chiavi::kNumeriEntro9999},
});

constexpr Row Pulsante(const Livello& livello, TwipsRect posto) {
  const Look aspetto = VoceLivello(livello.didascalia, kTintaNumeri);
  const auto [totale, addendo] = livello.numeri;
  return totale != 0 ? row<&FormMenuNumeri::Command1>(totale, posto, aspetto)
                     : row<&FormMenuNumeri::Command2>(addendo, posto, aspetto);
}

constexpr MenuDiLivelli kMenu{
    .famiglie = kFamiglie, .fasce = kFasce, .pulsante = Pulsante, .larghezzaLivello = 1500};

constexpr auto kSopra = std::to_array<Row>({Intestazione(kLarghezza - 480, "Numeri")});
constexpr auto kLivelliDelMenu = DisponiLivelli<kMenu>();
constexpr auto kSotto = std::to_array<Row>({
    row<&FormMenuNumeri::Command1>(0, {7800, 6120, 4020, 1155}, Indietro()),
    row<&FormMenuNumeri::Command2>(0, {240, 6120, 1500, kAltezzaLivello}, {.hidden = true}),
});
static_assert(HaPosto(kLarghezza, kAltezza, kLivelliDelMenu, kSotto), "a level has no place");

constexpr std::array<std::span<const Row>, 3> kTavole{kSopra, kLivelliDelMenu, kSotto};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuNumeri, kLarghezza, kAltezza, kTavole);

}  // namespace

FormMenuNumeri::FormMenuNumeri(Ambiente& ambiente) : MenuDiFamiglia(ambiente, kDisegno) {}

// The title ends with the caption of `Command1` for both kinds of exercise: that of an addend
// carries the words of the sum with the same number. Kept: see docs/oddities.md.
void FormMenuNumeri::onLoad() {
  MenuDiFamiglia::onLoad();
  for (const FasciaMenu& fascia : kFasce) {
    for (const Livello& livello : kLivelli) {
      if (livello.gruppo != fascia.gruppo) continue;
      const auto [totale, addendo] = livello.numeri;
      if (totale != 0) {
        ApreTitolato(Command1[totale], fascia.etichetta.in(*this),
                     {Famiglia::NumeriTotale, totale, fascia.chiave, Command1[totale]});
      }
      if (addendo != 0) {
        ApreTitolato(Command2[addendo], fascia.etichetta.in(*this),
                     {Famiglia::NumeriAddendo, addendo, fascia.chiaveAddendo, Command1[addendo]});
      }
    }
  }
  Command1[0].onClick([this] { TornaAlMenu(); });
  Command2[0].onClick([this] { TornaAlMenu(); });
}

void FormMenuNumeri::onActivate() {
  MenuDiFamiglia::onActivate();
  stato().TitoloEsercizio = TestoLingua(ambiente(), chiavi::kTitoloNumeri);
}

}  // namespace somme::inline programma
