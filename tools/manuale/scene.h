#pragma once

#include <QImage>
#include <span>

#include "support/banco.h"

// What the manual shows of the program: forms, worked as a pupil or a teacher works them. Chance
// and clock are scripted, so that every run of the build takes the same pictures.
namespace manuale {

struct Scena {
  const char* nome;  // of the picture, without its ending
  // Brings the program to the moment and takes the picture.
  QImage (*ritrai)(prova::Banco& banco);
};

[[nodiscard]] std::span<const Scena> Scene();

// The window as it stands, with an open menu or a dialog over it.
[[nodiscard]] QImage Ritratto(prova::Banco& banco);

}  // namespace manuale
