#pragma once

#include <QImage>
#include <functional>

#include "printing/frm_avvia_stampa.h"
#include "support/banco.h"

// The manual's scenes of the touch mode: its exercises, its sheets, the print dialog that these
// open, and the window that stands in for the touch surface.
namespace manuale {

// Shows a keyboard sheet as an exercise does. Does something while its print dialog stands over it,
// then closes that; the sheet goes with it.
void ConIlFoglio(prova::Banco& banco, std::string_view nome,
                 const std::function<void(somme::frmAvviaStampa& dialogo)>& mentre);

void BarreTocco(prova::Banco& banco);
void NumeriTocco(prova::Banco& banco);
void BlocchiTocco(prova::Banco& banco);
void AbacoTocco(prova::Banco& banco);

// The sheets themselves, as they go to the printer.
[[nodiscard]] QImage FoglioBarre(prova::Banco& banco);
[[nodiscard]] QImage FoglioNumeri(prova::Banco& banco);
[[nodiscard]] QImage FoglioBlocchi99(prova::Banco& banco);
[[nodiscard]] QImage FoglioBlocchi999(prova::Banco& banco);
[[nodiscard]] QImage FoglioAbaco(prova::Banco& banco);

// The dialog: as it opens on a printer whose sheet is too small, on one that has the sheet, and
// with its settings.
[[nodiscard]] QImage StampaConAvviso(prova::Banco& banco);
[[nodiscard]] QImage StampaFoglio(prova::Banco& banco);
[[nodiscard]] QImage StampaAvanzate(prova::Banco& banco);

[[nodiscard]] QImage Tavoletta(prova::Banco& banco);

}  // namespace manuale
