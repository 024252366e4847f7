#pragma once

#include <QImage>

#include "exercises/blocks/forma_blocchi_tastiera.h"
#include "support/banco.h"

// The manual's scenes of the exercises by mouse and keyboard.
namespace manuale {

void Barre10(prova::Banco& banco);
void Barre10Aiuto(prova::Banco& banco);
void Barre10Giusto(prova::Banco& banco);
void Barre10Sbagliato(prova::Banco& banco);
// With the line after ten, which help shows.
void Barre20Aiuto(prova::Banco& banco);

void Blocchi99(prova::Banco& banco);
// Both addends stand on the joined board, and the change is offered.
somme::FormaBlocchiTastiera& BlocchiUniti(prova::Banco& banco);
void BlocchiCambio(prova::Banco& banco);
void BlocchiCambiato(prova::Banco& banco);
void Blocchi999(prova::Banco& banco);

void AbacoDieciUnita(prova::Banco& banco);
void AbacoCambiato(prova::Banco& banco);

// The sum is solved, and the way to its cell drawn.
[[nodiscard]] QImage Tabella(prova::Banco& banco);

void NumeriTotale(prova::Banco& banco);
void NumeriSbagliato(prova::Banco& banco);
void NumeriElenco(prova::Banco& banco);
void NumeriAddendo(prova::Banco& banco);

}  // namespace manuale
