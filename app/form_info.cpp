#include "app/form_info.h"

#include "app/disegno_menu.h"
#include "app/shared/nomi_forme.h"

namespace somme::inline programma {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    row<&FormInfo::Label1>({480, 480, 6240, 1440},
                           {.font = {Face::Tahoma, 15.75, true}, .align = Align::Centre}),
    row<&FormInfo::Label3>({480, 2040, 6240, 1440},
                           {.font = {Face::Tahoma, 12}, .align = Align::Centre}),
    row<&FormInfo::Label4>({480, 3540, 6240, 480},
                           {.font = {Face::Tahoma, 12}, .align = Align::Centre}),
    row<&FormInfo::Command1>(
        {2310, 4140, 2580, 1155},
        {.caption = "Chiudi", .font = {Face::Tahoma, 14.25}, .picture = "chiudi"}),
    AmicoDiBlocchi<FormInfo>({660, 3840, 1200, 1500}),
    AmicoAbaco<FormInfo>({5340, 3840, 1200, 1500}),
});

constexpr std::array<std::span<const Row>, 1> kTavole{kControlli};

constexpr FormDesign kDisegno{.name = forme::kFormInfo,
                              .caption = kTitoloProgramma,
                              .width = 7200,
                              .height = 5520,
                              .back = kSfondoMenu,
                              .tables = kTavole};

}  // namespace

FormInfo::FormInfo(Ambiente& ambiente) : Forma(ambiente, kDisegno) {
  Command1.onClick([this] { VaiA(forme::kFormMenu); });
}

// The icon before the layout, on this form alone.
void FormInfo::onLoad() {
  PrendiLingua();
  PrendiIcona();
  EssResizer1.start();
}

// These words come after the language, which therefore cannot change them.
void FormInfo::onActivate() {
  Label1.setCaption(QStringLiteral("Software di\nchi insegna e chi impara le somme\n"));
  Label3.setCaption(
      QStringLiteral("Questo programma è libero:\nsi può usare, copiare e regalare.\n"));
  Label4.setCaption({});
}

}  // namespace somme::inline programma
