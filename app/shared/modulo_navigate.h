#pragma once

#include <QString>

namespace somme::inline condiviso {

class Ambiente;

// Hands a document to the desktop. Nothing is said when it does not exist or has no viewer.
void ApriDocumento(Ambiente& ambiente, const QString& percorso);

}  // namespace somme::inline condiviso
