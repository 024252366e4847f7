#include "printing/foglio_calibrazione.h"

#include "app/shared/colori.h"
#include "platform/base/numbers.h"

namespace somme::inline stampa {

namespace {

constexpr int kUltima = 23;  // element 0 of each array is on the form and makes no line
constexpr int kBordo = 5;    // wide enough to be seen under the lines
constexpr platform::TwipsRect kCella{0, 0, kGrigliaDisegno.X, kGrigliaDisegno.Y};
constexpr platform::Look kNumero{
    .font = {platform::Face::Arial, 9}, .align = platform::Align::Centre, .hidden = true};

// The elements that the lines and numbers are copies of.
constexpr auto kRigatura = std::to_array<platform::Row>({
    platform::row<&FoglioCalibrazione::Line1>(0, {0, 0, 0, kAltezzaFoglio},
                                              {.fore = colori::kGrigioRighe, .hidden = true}),
    platform::row<&FoglioCalibrazione::Line2>(0, {0, 0, kLarghezzaFoglio, 0},
                                              {.fore = colori::kGrigioRighe, .hidden = true}),
    platform::row<&FoglioCalibrazione::Label1>(0, kCella, kNumero),
    platform::row<&FoglioCalibrazione::Label2>(0, kCella, kNumero),
});

}  // namespace

FoglioCalibrazione::FoglioCalibrazione(Ambiente& ambiente, std::string_view nome)
    : FoglioTastiera(ambiente, nome, kBordo, kRigatura) {}

void FoglioCalibrazione::onLoad() {
  FoglioTastiera::onLoad();
  for (int i = 1; i <= kUltima; ++i) {
    Line1.load(i).setVisible(true);
    Line2.load(i).setVisible(true);
    for (platform::Label* numero : {&Label1.load(i), &Label2.load(i)}) {
      numero->setCaption(platform::plain(i));
      numero->setVisible(true);
    }
  }
}

void FoglioCalibrazione::Disponi(const Griglia& griglia) {
  for (int i = 1; i <= kUltima; ++i) {
    const double x = double(i) * griglia.X;
    const double y = double(i) * griglia.Y;
    Line1[i].setPlace(x, 0, 0, height());
    Line2[i].setPlace(0, y, width(), 0);
    // In the cell that the line ends: numbers of lines are those of the cells.
    Label1[i].setPlace(x - griglia.X, 0, griglia.X, griglia.Y);
    Label2[i].setPlace(0, y - griglia.Y, griglia.X, griglia.Y);
  }
}

}  // namespace somme::inline stampa
