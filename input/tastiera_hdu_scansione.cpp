#include "input/tastiera_hdu_scansione.h"

#include <array>

namespace somme {

using platform::inner;
using platform::Look;

namespace {

using Tastiera = TastieraHDUScansione;

constexpr platform::Rgb kGrigio{224, 224, 224};
constexpr platform::FontSpec kArial{platform::Face::Arial, 20.25, true};

constexpr Look Valore(std::string_view testo) {
  return {.caption = testo, .font = kArial, .back = kGrigio};
}
constexpr Look Disegno(std::string_view nome) {
  return {.font = kArial, .back = kGrigio, .picture = nome};
}

constexpr auto kInterni = std::to_array<platform::InnerRow>({
    inner<&Tastiera::Timer1>({.disabled = true}),
    inner<&Tastiera::PictureScansione>(),
    inner<&Tastiera::TimerScansione>({.disabled = true}),
    inner<&Tastiera::Pulsante>(Tastiera::kMigliaia, Valore("k")),
    inner<&Tastiera::Pulsante>(Tastiera::kCentinaia, Valore("h")),
    inner<&Tastiera::Pulsante>(Tastiera::kDecine, Valore("da")),
    inner<&Tastiera::Pulsante>(Tastiera::kUnita, Valore("u")),
    inner<&Tastiera::Pulsante>(Tastiera::kCestino, Disegno("cestino")),
    inner<&Tastiera::Pulsante>(Tastiera::kConferma, Disegno("conferma")),
});

}  // namespace

TastieraHDUScansione::TastieraHDUScansione(platform::ControlHost& ospite)
    : TastieraScansione(ospite, kInterni, Pulsante, kPulsanti,
                        {ColoreSfondo, ColoreScansione, ScansioneAutomatica, TempoScansione}) {}

qint16 TastieraHDUScansione::PrimoPulsante() const {
  if (!HVisibile.get()) return kDecine;
  return KVisibile.get() ? kMigliaia : kCentinaia;
}

void TastieraHDUScansione::MostraPulsanti() {
  Pulsante[kMigliaia].setVisible(KVisibile.get());
  Pulsante[kMigliaia].setEnabled(KVisibile.get());
  Pulsante[kCentinaia].setVisible(HVisibile.get());
  Pulsante[kCentinaia].setEnabled(HVisibile.get());
}

}  // namespace somme
