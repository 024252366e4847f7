#include "app/shared/comune.h"

#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"

namespace somme::inline condiviso {

namespace {

constexpr int kFrecciaDiSistema = 0;
constexpr int kPuntatoreProprio = 99;

}  // namespace

Comune::Comune(platform::Form& forma, Ambiente& ambiente)
    : EssResizer1(forma), forma_(forma), ambiente_(ambiente) {}

void Comune::PrendiLingua() {
  ApplicaLingua(ambiente_, forma_);
}

void Comune::PrendiIcona() {
  forma_.setIcon(ambiente_.fondo.forms().loaded(forme::kFormAvvio).icon());
}

void Comune::ImpostaCursoreSistema() {
  const int valore = stato().CursoreDiSistema ? kFrecciaDiSistema : kPuntatoreProprio;
  for (platform::Control* controllo : forma_.controls()) controllo->setMousePointer(valore);
}

void Comune::VaiA(std::string_view nome) {
  ambiente_.fondo.forms().pass(forma_, nome);
}

}  // namespace somme::inline condiviso
