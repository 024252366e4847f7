#include "input/tastiera_hdu_scansione.h"

#include <array>

#include "input/disegno_tasti.h"

namespace somme::inline ingresso {

using platform::inner;

namespace {

using Tastiera = TastieraHDUScansione;

constexpr auto kInterni = std::to_array<platform::InnerRow>({
    inner<&Tastiera::Timer1>({.disabled = true}),
    inner<&Tastiera::PictureScansione>(),
    inner<&Tastiera::TimerScansione>({.disabled = true}),
    inner<&Tastiera::Pulsante>(Tastiera::kMigliaia, TastoScritto("k")),
    inner<&Tastiera::Pulsante>(Tastiera::kCentinaia, TastoScritto("h")),
    inner<&Tastiera::Pulsante>(Tastiera::kDecine, TastoScritto("da")),
    inner<&Tastiera::Pulsante>(Tastiera::kUnita, TastoScritto("u")),
    inner<&Tastiera::Pulsante>(Tastiera::kCestino, TastoDisegnato("cestino")),
    inner<&Tastiera::Pulsante>(Tastiera::kConferma, TastoDisegnato("conferma")),
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

}  // namespace somme::inline ingresso
