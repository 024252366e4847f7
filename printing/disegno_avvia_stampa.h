#pragma once

#include "app/shared/colori.h"
#include "app/shared/nomi_forme.h"
#include "platform/forms/design.h"
#include "printing/frm_avvia_stampa.h"

// The design of the print dialog: the sheet at the left, what is chosen and pressed at its right,
// and below both what only "Avanzate" shows. The parts of its settings mode lie above 4192 twips.
namespace somme::inline stampa::disegno_stampa {

using namespace colori;
using platform::Align;
using platform::Face;
using platform::FontSpec;
using platform::FormDesign;
using platform::item;
using platform::kBlack;
using platform::kWhite;
using platform::nameOf;
using platform::Row;
using platform::row;
using platform::TwipsRect;

inline constexpr FontSpec kPiccolo{Face::Tahoma, 9.75};
inline constexpr FontSpec kGrande{Face::Tahoma, 12};

// Twips. Without the frames of margins and sizes the dialog ends above them.
inline constexpr double kAltezzaSemplice = 4890;
inline constexpr double kAltezzaIntera = 7020;
// The longest side of the sheet on the preview. What is printed beyond it, up to A3 on A4, still
// has room in the frame.
inline constexpr double kLatoAnteprima = 3300;
// A sheet across beside which there is nothing to be shown fills the frame.
inline constexpr double kIngrandimento = 4560 / kLatoAnteprima;

using F = frmAvviaStampa;

template <auto Etichetta>
constexpr Row Nome(TwipsRect posto, std::string_view testo, std::string_view in) {
  return row<Etichetta>(posto, {.caption = testo, .font = kPiccolo, .mnemonic = true, .in = in});
}

template <auto Casella>
constexpr Row Campo(TwipsRect posto, std::string_view nome, std::string_view in) {
  return row<Casella>(
      posto, {.toolTip = nome, .font = kGrande, .align = Align::Right, .border = true, .in = in});
}

inline constexpr std::string_view kStampante = nameOf<&F::zFrame1>;
inline constexpr std::string_view kFoglio = nameOf<&F::fraFoglio>;
inline constexpr std::string_view kMargini = nameOf<&F::zFrame2>;
inline constexpr std::string_view kDimensioni = nameOf<&F::zFrame3>;

inline constexpr auto kControlli = std::to_array<Row>({
    row<&F::zFrame1>({120, 60, 8160, 840}, {.caption = "Stampante", .font = kPiccolo}),
    Nome<&F::zLabel1>({180, 300, 840, 420}, "&Nome:", kStampante),
    row<&F::cboPrinterNames>({1080, 285, 4980, 450},
                             {.toolTip = "Stampante", .font = kPiccolo, .in = kStampante}),
    row<&F::cmdProprieta>({6240, 255, 1770, 510},
                          {.caption = "&Proprietà", .font = kPiccolo, .in = kStampante}),
    row<&F::imgPrinter>({4200, 1200, 1200, 1200},
                        {.toolTip = "Una stampante", .picture = "stampante_grande"}),

    // Its caption tells the sheet and is made anew with it.
    row<&F::fraFoglio>({120, 930, 5070, 3840}, {.font = kPiccolo}),
    row<&F::shpBordo>({120, 360, kLatoAnteprima + 120, kLatoAnteprima + 120},
                      {.fore = kGrigioMedio, .back = kGrigioMedio, .in = kFoglio}),
    row<&F::shpFoglio>({165, 405, kLatoAnteprima + 30, kLatoAnteprima + 30},
                       {.fore = kBlack, .back = kWhite, .in = kFoglio}),
    row<&F::PictureAnteprima>({180, 420, kLatoAnteprima, kLatoAnteprima},
                              {.toolTip = "Anteprima", .back = kWhite, .in = kFoglio}),
    row<&F::Label1>({180, 420, kLatoAnteprima, 240}, {.hidden = true, .in = kFoglio}),
    row<&F::lblStampaInCorso>({600, 1500, 2520, 480}, {.caption = "Stampa in corso...",
                                                       .font = kGrande,
                                                       .back = kGiallo,
                                                       .align = Align::Centre,
                                                       .border = true,
                                                       .hidden = true,
                                                       .in = kFoglio}),

    row<&F::A3>(0, {5340, 1020, 1410, 510}, {.caption = "A3", .font = kGrande, .checked = true}),
    row<&F::A3>(1, {6870, 1020, 1410, 510}, {.caption = "A4", .font = kGrande}),
    row<&F::Label2>({5340, 1560, 2940, 810},
                    {.caption = "Sarà necessario poi fotocopiare il foglio stampato con "
                                "ingrandimento da A4 ad A3",
                     .font = kPiccolo,
                     .hidden = true}),
    row<&F::lblFuoriFoglio>({5340, 2400, 2940, 600}, {.caption = "Impostare la stampante su A3",
                                                      .font = kGrande,
                                                      .back = kWhite,
                                                      .align = Align::Centre,
                                                      .border = true,
                                                      .hidden = true}),
    item<&F::Timer1>({.disabled = true}),
    row<&F::Command1>({5340, 4230, 2940, 540}, {.caption = "&Avanzate", .font = kPiccolo}),

    row<&F::zFrame2>({120, 4830, 4020, 2070},
                     {.caption = "Margini Stampa [mm]", .font = kPiccolo, .hidden = true}),
    Nome<&F::zLabel7>({150, 330, 1080, 480}, "S&inistro:", kMargini),
    Campo<&F::txtPrX>({1290, 330, 960, 480}, "Margine sinistro, millimetri", kMargini),
    row<&F::updPrX>({2280, 330, 990, 480}, {.in = kMargini}),
    Nome<&F::zLabel9>({150, 900, 1080, 480}, "S&uperiore:", kMargini),
    Campo<&F::txtPrY>({1290, 900, 960, 480}, "Margine superiore, millimetri", kMargini),
    row<&F::updPrY>({2280, 900, 990, 480}, {.in = kMargini}),
    row<&F::cmdOrigine>({1290, 1470, 1980, 510},
                        {.caption = "&Reimposta", .font = kPiccolo, .in = kMargini}),

    row<&F::zFrame3>({4260, 4830, 4020, 2070},
                     {.caption = "Dimensioni Stampa [mm]", .font = kPiccolo, .hidden = true}),
    Nome<&F::zLabel8>({150, 330, 1080, 480}, "Largh&ezza:", kDimensioni),
    Campo<&F::txtPrW>({1290, 330, 960, 480}, "Larghezza della stampa, millimetri", kDimensioni),
    row<&F::updPrW>({2280, 330, 990, 480}, {.in = kDimensioni}),
    Nome<&F::zLabel2>({150, 900, 1080, 480}, "Alte&zza:", kDimensioni),
    Campo<&F::txtPrH>({1290, 900, 960, 480}, "Altezza della stampa, millimetri", kDimensioni),
    row<&F::updPrH>({2280, 900, 990, 480}, {.in = kDimensioni}),
    row<&F::chkProporzioni>(
        {150, 1470, 3720, 510},
        {.caption = "&Mantieni proporzioni", .font = kPiccolo, .checked = true, .in = kDimensioni}),

    row<&F::cmdStampa>({5340, 3120, 1410, 990},
                       {.caption = "&Stampa", .font = kGrande, .picture = "stampante"}),
    row<&F::cmdOK>({5340, 3120, 1410, 990}, {.caption = "&OK", .font = kGrande}),
    row<&F::cmdChiudi>({6870, 3120, 1410, 990},
                       {.caption = "&Chiudi", .font = kGrande, .picture = "chiudi"}),
    row<&F::picCopia>({0, 0, 240, 240}, {.hidden = true}),
    row<&F::picCopiaTemp>({0, 0, 240, 240}, {.hidden = true}),
});

inline constexpr std::array<std::span<const Row>, 1> kTavole{kControlli};

inline constexpr FormDesign kDisegno{.name = forme::kFrmAvviaStampa,
                                     .caption = "Stampa",
                                     .width = 8400,
                                     .height = kAltezzaIntera,
                                     .back = kGrigioPallido,
                                     .tables = kTavole};

}  // namespace somme::inline stampa::disegno_stampa
