#include "app/form_menu_plu.h"

#include "app/menu_di_livelli.h"
#include "app/shared/nomi_forme.h"

namespace somme::inline programma {

using namespace disegno;

namespace {

constexpr double kLarghezza = 9060;
constexpr double kAltezza = 7140;

constexpr auto kFamiglie = std::to_array({Famiglia::BlocchiDecine, Famiglia::BlocchiCentinaia});

constexpr auto kFasce = std::to_array<FasciaMenu>({
    {Gruppo::Entro99, SullaFascia<&FormMenuPLU::Label2>(), "Entro 99", 120},
    {Gruppo::Entro999, SullaFascia<&FormMenuPLU::Label3>(), "Entro 999", 3240, 2, 3120},
});

constexpr std::size_t RigaDi(const Livello& livello) {
  return static_cast<std::size_t>(&livello - kLivelli.data());
}

constexpr Row Pulsante(const Livello& livello, TwipsRect posto) {
  const auto& [tipo, pulsante, immagine, registro, didascalia] = livello.blocchi;
  const std::string_view parole = didascalia.empty() ? livello.didascalia : didascalia;
  return {pulsante, -1, kVoci<FormMenuPLU>.at(RigaDi(livello)), posto,
          VoceGrande(parole, kTintaBlocchi, immagine, 12)};
}

constexpr MenuDiLivelli kMenu{.famiglie = kFamiglie,
                              .fasce = kFasce,
                              .pulsante = Pulsante,
                              .larghezzaLivello = 2580,
                              .titolato = false,
                              .altoFasce = 1020,
                              .altezzaFascia = 435,
                              .alto = 1560};

constexpr auto kSopra =
    std::to_array<Row>({Intestazione(kLarghezza - 480, "Piatti, lunghi e unità")});
constexpr auto kLivelliDelMenu = DisponiLivelli<kMenu>();
constexpr auto kSotto = std::to_array<Row>({
    row<&FormMenuPLU::Command1>({6360, 5760, 2580, 1155}, Indietro()),
});
static_assert(HaPosto(kLarghezza, kAltezza, kLivelliDelMenu, kSotto), "a level has no place");
static_assert(ConImmaginiProprie(PulsantiDeiLivelli<kMenu>()), "a level has no picture of its own");

constexpr std::array<std::span<const Row>, 3> kTavole{kSopra, kLivelliDelMenu, kSotto};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuPLU, kLarghezza, kAltezza, kTavole);

}  // namespace

FormMenuPLU::FormMenuPLU(Ambiente& ambiente) : MenuDiFamiglia(ambiente, kDisegno) {
  Command1.onClick([this] { TornaAlMenu(); });
}

void FormMenuPLU::onLoad() {
  MenuDiFamiglia::onLoad();
  for (const FasciaMenu& fascia : kFasce) {
    for (const Livello& livello : kLivelli) {
      if (livello.gruppo == fascia.gruppo) ApreLivello(livello, fascia.etichetta.in(*this));
    }
  }
}

void FormMenuPLU::ApreLivello(const Livello& livello, const platform::Label& fascia) {
  for (const Famiglia famiglia : kFamiglie) {
    const qint16 tipo = TipoIn(livello, famiglia);
    if (tipo == 0) continue;
    Apre(
        Voce(static_cast<int>(RigaDi(livello))), famiglia,
        [this, tipo] { stato().TipoEsercizio = tipo; }, &fascia);
  }
}

}  // namespace somme::inline programma
