#pragma once

#include <QRectF>
#include <QtGlobal>

namespace platform::inline forms {
class RichTextBox;
}
namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline stampa {

// Margins from the edges of the sheet, in twips.
struct Margini {
  double sinistro = 0;
  double superiore = 0;
  double destro = 0;
  double inferiore = 0;
};

// A sheet as a printer's device context has it, in twips. Its origin is the corner of the area that
// the printer reaches, and the offsets are how far that corner lies inside of the sheet.
struct MisurePagina {
  double larghezza = 0;
  double altezza = 0;
  double scartoSinistro = 0;
  double scartoSuperiore = 0;
};

// Where the text goes on a page. On a sheet too small for its margins they are left out, so that
// there is room for text on any paper.
[[nodiscard]] QRectF RettangoloDiDisegno(const Margini& margini, const MisurePagina& pagina);

// Prints the text of a rich text control on the printer in use by default, with that printer's own
// settings, on as many pages as it needs. Margins are twips. Without a printer, and when the print
// fails, it throws RunTimeError(PrinterError); nothing is left of a print that failed.
void StampaTestoRicco(Ambiente& ambiente, const platform::RichTextBox& TestoRicco,
                      qint32 MargineSinistro, double MargineSuperiore, double MargineDestro,
                      double MargineInferiore);

}  // namespace somme::inline stampa
