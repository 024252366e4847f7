#pragma once

#include "support/banco.h"

// The manual's scenes of the scanning mode.
namespace manuale {

void BarreScansione(prova::Banco& banco);
void BlocchiScansione(prova::Banco& banco);
void BlocchiScansioneCifre(prova::Banco& banco);
void AbacoScansione(prova::Banco& banco);
void NumeriScansione(prova::Banco& banco);

}  // namespace manuale
