#include "app/form_menu_abaco.h"

#include "app/menu_di_livelli.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "cases/chiavi.h"

namespace somme::inline programma {

using namespace disegno;

namespace {

constexpr double kLarghezza = 10860;
constexpr double kAltezza = 7500;

constexpr auto kFamiglie = std::to_array({Famiglia::Abaco});

constexpr auto kFasce = std::to_array<FasciaMenu>({
    {Gruppo::Entro99, SullaFascia<&FormMenuAbaco::Label2>(), "Entro 99", 240, 1, 0,
     chiavi::kAbacoEntro99},
    {Gruppo::Entro999, SullaFascia<&FormMenuAbaco::Label3>(), "Entro 999", 2400, 2, 2160,
     chiavi::kAbacoEntro999},
    {Gruppo::Entro9999, SullaFascia<&FormMenuAbaco::Label4>(), "Entro 9.999", 6720, 2, 2040,
     chiavi::kAbacoEntro9999},
});

constexpr Row Pulsante(const Livello& livello, TwipsRect posto) {
  return row<&FormMenuAbaco::Command1>(livello.abaco.tipo, posto,
                                       VoceLivello(livello.didascalia, kTintaAbaco));
}

constexpr MenuDiLivelli kMenu{
    .famiglie = kFamiglie, .fasce = kFasce, .pulsante = Pulsante, .larghezzaLivello = 1860};

constexpr auto kSopra = std::to_array<Row>({Intestazione(kLarghezza - 480, "Abaco")});
constexpr auto kLivelliDelMenu = DisponiLivelli<kMenu>();
constexpr auto kSotto = std::to_array<Row>({
    row<&FormMenuAbaco::Command1>(0, {6720, 6120, 3900, 1155}, Indietro()),
});
static_assert(HaPosto(kLarghezza, kAltezza, kLivelliDelMenu, kSotto), "a level has no place");

constexpr std::array<std::span<const Row>, 3> kTavole{kSopra, kLivelliDelMenu, kSotto};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuAbaco, kLarghezza, kAltezza, kTavole);

}  // namespace

FormMenuAbaco::FormMenuAbaco(Ambiente& ambiente) : MenuDiFamiglia(ambiente, kDisegno) {}

void FormMenuAbaco::onLoad() {
  MenuDiFamiglia::onLoad();
  Command1[0].onClick([this] { TornaAlMenu(); });
  for (const FasciaMenu& fascia : kFasce) {
    for (const Livello& livello : kLivelli) {
      const qint16 tipo = livello.abaco.tipo;
      if (livello.gruppo != fascia.gruppo || tipo == 0) continue;
      ApreTitolato(Command1[tipo], fascia.etichetta.in(*this),
                   {Famiglia::Abaco, tipo, fascia.chiave, Command1[tipo]});
    }
  }
}

void FormMenuAbaco::onActivate() {
  MenuDiFamiglia::onActivate();
  stato().TitoloEsercizio = TestoLingua(ambiente(), chiavi::kTitoloAbaco);
}

}  // namespace somme::inline programma
