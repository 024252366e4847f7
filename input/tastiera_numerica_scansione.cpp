#include "input/tastiera_numerica_scansione.h"

#include <array>

#include "input/disegno_tasti.h"

namespace somme::inline ingresso {

using platform::inner;

namespace {

using Tastiera = TastieraNumericaScansione;

constexpr auto kInterni = std::to_array<platform::InnerRow>({
    inner<&Tastiera::TimerScansione>({.disabled = true}),
    inner<&Tastiera::PictureScansione>(),
    inner<&Tastiera::Timer1>({.disabled = true}),
    inner<&Tastiera::PulsanteNumero>(0, TastoScritto("0")),
    inner<&Tastiera::PulsanteNumero>(1, TastoScritto("1")),
    inner<&Tastiera::PulsanteNumero>(2, TastoScritto("2")),
    inner<&Tastiera::PulsanteNumero>(3, TastoScritto("3")),
    inner<&Tastiera::PulsanteNumero>(4, TastoScritto("4")),
    inner<&Tastiera::PulsanteNumero>(5, TastoScritto("5")),
    inner<&Tastiera::PulsanteNumero>(6, TastoScritto("6")),
    inner<&Tastiera::PulsanteNumero>(7, TastoScritto("7")),
    inner<&Tastiera::PulsanteNumero>(8, TastoScritto("8")),
    inner<&Tastiera::PulsanteNumero>(9, TastoScritto("9")),
    inner<&Tastiera::PulsanteNumero>(Tastiera::kCestino, TastoDisegnato("cestino")),
    inner<&Tastiera::PulsanteNumero>(Tastiera::kAiuto, TastoDisegnato("aiuto")),
    inner<&Tastiera::PulsanteNumero>(Tastiera::kConferma, TastoDisegnato("conferma")),
    inner<&Tastiera::PulsanteNumero>(Tastiera::kAvanti, TastoDisegnato("avanti", true)),
});

}  // namespace

TastieraNumericaScansione::TastieraNumericaScansione(platform::ControlHost& ospite)
    : TastieraScansione(ospite, kInterni, PulsanteNumero, kPulsanti,
                        {ColoreSfondo, ColoreScansione, ScansioneAutomatica, TempoScansione}) {}

void TastieraNumericaScansione::AttivaAvanti() {
  AvantiAttivo.set(true);
  for (int i = 0; i < kAvanti; ++i) Spegni(i);
  PulsanteNumero[kAvanti].setEnabled(true);
  PulsanteCorrente.set(kAvanti);
  Accendi(kAvanti);
}

void TastieraNumericaScansione::DisattivaAvanti() {
  Spegni(kAvanti);
  PulsanteNumero[kAvanti].setEnabled(false);
  AvantiAttivo.set(false);
}

void TastieraNumericaScansione::SelezionaCestino() {
  SpegniTutti();
  PulsanteCorrente.set(kCestino);
  Accendi(kCestino);
}

void TastieraNumericaScansione::MostraPulsanti() {
  PulsanteNumero[kAiuto].setVisible(AiutoVisibile.get());
  PulsanteNumero[kAiuto].setEnabled(AiutoVisibile.get());
}

}  // namespace somme::inline ingresso
