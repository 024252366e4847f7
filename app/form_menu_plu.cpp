#include "app/form_menu_plu.h"

#include "app/disegno_menu.h"
#include "app/shared/nomi_forme.h"

namespace somme {

using namespace disegno;

namespace {

constexpr double kLarghezza = 9060;

template <auto Pulsante>
constexpr Row Voce(double sinistra, int riga, std::string_view testo) {
  return row<Pulsante>({sinistra, AltoRiga(riga, 1560), 2580, kAltoLivello}, VoceGrande(testo, 12));
}

constexpr auto kControlli = std::to_array<Row>({
    Intestazione(kLarghezza - 480, "Piatti, lunghi e unità"),
    row<&FormMenuPLU::Label2>({120, 1020, 2580, 435}, Fascia("Entro 99")),
    Voce<&FormMenuPLU::Command2>(120, 0, " senza cambio"),
    Voce<&FormMenuPLU::Command3>(120, 1, " con il cambio"),
    Voce<&FormMenuPLU::Command4>(120, 2, " con e senza cambio"),
    Voce<&FormMenuPLU::Command14>(120, 3, " aggiungi solo unità"),
    Voce<&FormMenuPLU::Command5>(120, 4, "aggiungi solo decine"),
    row<&FormMenuPLU::Label3>({3240, 1020, 5700, 435}, Fascia("Entro 999")),
    Voce<&FormMenuPLU::Command9>(3240, 0, " senza cambio"),
    Voce<&FormMenuPLU::Command11>(3240, 1, " cambio alle unità"),
    Voce<&FormMenuPLU::Command12>(3240, 2, " cambio alle decine"),
    Voce<&FormMenuPLU::Command8>(3240, 3, " con un cambio"),
    Voce<&FormMenuPLU::Command10>(3240, 4, "con due cambi"),
    Voce<&FormMenuPLU::Command7>(6360, 0, " con e senza cambi"),
    Voce<&FormMenuPLU::Command15>(6360, 1, " aggiungi solo unità"),
    Voce<&FormMenuPLU::Command6>(6360, 2, " aggiungi solo decine"),
    Voce<&FormMenuPLU::Command13>(6360, 3, "aggiungi solo centinaia"),
    row<&FormMenuPLU::Command1>({6360, 5760, 2580, 1155}, Indietro()),
});

constexpr std::array<std::span<const Row>, 1> kTavole{kControlli};
constexpr FormDesign kDisegno = Menu(forme::kFormMenuPLU, kLarghezza, 7140, kTavole);

struct VocePLU {
  platform::Button FormMenuPLU::*pulsante;
  qint16 tipo;
  Famiglia famiglia;
};

constexpr auto kVoci = std::to_array<VocePLU>({
    {&FormMenuPLU::Command2, 1, Famiglia::BlocchiDecine},
    {&FormMenuPLU::Command3, 2, Famiglia::BlocchiDecine},
    {&FormMenuPLU::Command4, 3, Famiglia::BlocchiDecine},
    {&FormMenuPLU::Command14, 4, Famiglia::BlocchiDecine},
    {&FormMenuPLU::Command5, 5, Famiglia::BlocchiDecine},
    {&FormMenuPLU::Command9, 1, Famiglia::BlocchiCentinaia},
    {&FormMenuPLU::Command11, 2, Famiglia::BlocchiCentinaia},
    {&FormMenuPLU::Command12, 3, Famiglia::BlocchiCentinaia},
    {&FormMenuPLU::Command8, 4, Famiglia::BlocchiCentinaia},
    {&FormMenuPLU::Command10, 5, Famiglia::BlocchiCentinaia},
    {&FormMenuPLU::Command7, 6, Famiglia::BlocchiCentinaia},
    {&FormMenuPLU::Command15, 7, Famiglia::BlocchiCentinaia},
    {&FormMenuPLU::Command6, 8, Famiglia::BlocchiCentinaia},
    {&FormMenuPLU::Command13, 9, Famiglia::BlocchiCentinaia},
});

}  // namespace

FormMenuPLU::FormMenuPLU(Ambiente& ambiente) : FormaMenu(ambiente, kDisegno) {
  Command1.onClick([this] { TornaAlMenu(); });
}

void FormMenuPLU::onLoad() {
  FormaMenu::onLoad();
  for (const VocePLU& voce : kVoci) {
    Apre(this->*voce.pulsante, voce.famiglia,
         [this, tipo = voce.tipo] { stato().TipoEsercizio = tipo; });
  }
}

}  // namespace somme
