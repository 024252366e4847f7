#pragma once

#include "support/banco.h"

// What the tests of the language files have in common.
namespace prova {

inline const QString kLinguaDiProva = QStringLiteral("Prova");

// Makes the bench speak the language of a file with this text.
inline void parla(Banco& banco, const QByteArray& testo) {
  banco.metti(kLinguaDiProva + QStringLiteral(".lng"), testo);
  banco.ambiente->stato.LinguaCorrente = kLinguaDiProva;
}

}  // namespace prova
