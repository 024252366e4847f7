#include "input/tastiera_numerica_scansione.h"

#include <array>

namespace somme {

using platform::inner;
using platform::Look;

namespace {

using Tastiera = TastieraNumericaScansione;

constexpr platform::Rgb kGrigio{224, 224, 224};
constexpr platform::FontSpec kArial{platform::Face::Arial, 20.25, true};

constexpr Look Cifra(std::string_view testo) {
  return {.caption = testo, .font = kArial, .back = kGrigio};
}
constexpr Look Disegno(std::string_view nome, bool chiuso = false) {
  return {.font = kArial, .back = kGrigio, .disabled = chiuso, .picture = nome};
}

constexpr auto kInterni = std::to_array<platform::InnerRow>({
    inner<&Tastiera::TimerScansione>({.disabled = true}),
    inner<&Tastiera::PictureScansione>(),
    inner<&Tastiera::Timer1>({.disabled = true}),
    inner<&Tastiera::PulsanteNumero>(0, Cifra("0")),
    inner<&Tastiera::PulsanteNumero>(1, Cifra("1")),
    inner<&Tastiera::PulsanteNumero>(2, Cifra("2")),
    inner<&Tastiera::PulsanteNumero>(3, Cifra("3")),
    inner<&Tastiera::PulsanteNumero>(4, Cifra("4")),
    inner<&Tastiera::PulsanteNumero>(5, Cifra("5")),
    inner<&Tastiera::PulsanteNumero>(6, Cifra("6")),
    inner<&Tastiera::PulsanteNumero>(7, Cifra("7")),
    inner<&Tastiera::PulsanteNumero>(8, Cifra("8")),
    inner<&Tastiera::PulsanteNumero>(9, Cifra("9")),
    inner<&Tastiera::PulsanteNumero>(Tastiera::kCestino, Disegno("cestino")),
    inner<&Tastiera::PulsanteNumero>(Tastiera::kAiuto, Disegno("aiuto")),
    inner<&Tastiera::PulsanteNumero>(Tastiera::kConferma, Disegno("conferma")),
    inner<&Tastiera::PulsanteNumero>(Tastiera::kAvanti, Disegno("avanti", true)),
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

}  // namespace somme
