#pragma once

#include "printing/disegno_foglio.h"
#include "printing/foglio_calibrazione.h"

// What the designs of both sheets for adjusting share: the elements that the lines and numbers are
// copies of.
namespace somme::disegno_foglio {

inline constexpr platform::Rgb kRigato{150, 150, 150};

inline constexpr auto kRigatura = std::to_array<Row>({
    row<&FoglioCalibrazione::Line1>(0, {0, 0, 0, kAltezza}, {.fore = kRigato, .hidden = true}),
    row<&FoglioCalibrazione::Line2>(0, {0, 0, kLarghezza, 0}, {.fore = kRigato, .hidden = true}),
    row<&FoglioCalibrazione::Label1>(
        0, {0, 0, 400, 292}, {.font = {Face::Arial, 9}, .align = Align::Centre, .hidden = true}),
    row<&FoglioCalibrazione::Label2>(
        0, {0, 0, 400, 292}, {.font = {Face::Arial, 9}, .align = Align::Centre, .hidden = true}),
});

}  // namespace somme::disegno_foglio
