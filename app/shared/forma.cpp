#include "app/shared/forma.h"

#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"

namespace somme::inline condiviso {

namespace {

constexpr int kFrecciaDiSistema = 0;
constexpr int kPuntatoreProprio = 99;

}  // namespace

Forma::Forma(Ambiente& ambiente, const platform::FormDesign& disegno)
    : Form(ambiente.fondo, disegno), ambiente_(ambiente) {}

void Forma::onLoad() {
  ApplicaLingua(ambiente_, *this);
  AvviaResizer();
  PrendiIcona();
}

void Forma::onResize() {
  EssResizer1.resize();
}

void Forma::PrendiIcona() {
  setIcon(ambiente_.fondo.forms().loaded(forme::kFormAvvio).icon());
}

void Forma::ImpostaCursoreSistema() {
  const int valore = stato().CursoreDiSistema ? kFrecciaDiSistema : kPuntatoreProprio;
  for (platform::Control* controllo : controls()) controllo->setMousePointer(valore);
}

void Forma::VaiA(std::string_view nome) {
  ambiente_.fondo.forms().pass(*this, nome);
}

}  // namespace somme::inline condiviso
