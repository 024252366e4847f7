#include "app/form_avvio.h"

#include "app/disegno_menu.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"

namespace somme::inline programma {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    row<&FormAvvio::BottoneAvvio>(
        {3480, 4500, 2820, 1140},
        {.caption = "Avvio", .font = {Face::Tahoma, 24, true}, .picture = "avanti"}),
    row<&FormAvvio::Label2>(
        0, {2640, 420, 4500, 1500},
        {.caption = "Somme", .font = {Face::Tahoma, 54, true}, .align = Align::Centre}),
    row<&FormAvvio::Label1>({240, 5640, 3000, 360},
                            {.caption = "13 ottobre 2007", .font = {Face::Tahoma, 9.75}}),
    AmicoDiBlocchi<FormAvvio>({300, 1800, 3000, 3300}),
    AmicoAbaco<FormAvvio>({6480, 1800, 3000, 3300}),
});

constexpr std::array<std::span<const Row>, 1> kTavole{kControlli};

constexpr FormDesign kDisegno{.name = forme::kFormAvvio,
                              .caption = kTitoloProgramma,
                              .width = 9780,
                              .height = 6210,
                              .back = kGiallo,
                              .tables = kTavole};

}  // namespace

FormAvvio::FormAvvio(Ambiente& ambiente) : Forma(ambiente, kDisegno) {
  setIcon(ambiente.fondo.pictures().icon(QStringLiteral("icona")));
  BottoneAvvio.onClick([this] { VaiA(forme::kFormMenu); });
}

// The icon is its own; every other form takes it from here.
void FormAvvio::onLoad() {
  ApplicaLingua(ambiente(), *this);
  EssResizer1.start();
}

void FormAvvio::onActivate() {
  paintGradient();
}

}  // namespace somme::inline programma
