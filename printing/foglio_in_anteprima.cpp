#include "app/shared/colori.h"
#include "printing/disegno_avvia_stampa.h"
#include "printing/frm_avvia_stampa.h"
#include "printing/nome_formato_carta.h"

// The sheet on the preview of the print dialog: its size, and the warning beside it.
namespace somme::inline stampa {

using platform::Orientation;

void frmAvviaStampa::DisegnaFoglio() {
  const double lato = Label1.width();
  const double rapporto = double(foglio_.larghezza) / foglio_.altezza;
  const bool stretto = foglio_.larghezza <= foglio_.altezza;
  const double larghezza = stretto ? lato * rapporto : lato;
  const double altezza = stretto ? lato : lato / rapporto;
  const double pixel = PixelInTwips();
  shpBordo.setWidth(larghezza + 8 * pixel);
  shpBordo.setHeight(altezza + 8 * pixel);
  shpFoglio.setWidth(larghezza + 2 * pixel);
  shpFoglio.setHeight(altezza + 2 * pixel);
  PictureAnteprima.setWidth(larghezza);
  PictureAnteprima.setHeight(altezza);
  AggiornaAnteprima();
  const bool verticale = foglio_.orientamento == int(Orientation::Portrait);
  fraFoglio.setCaption(
      QStringLiteral(" Dimensioni foglio: ") +
      NomeFormatoCarta(stampante_.impostazioni().paper.code) +
      (verticale ? QStringLiteral(",  Verticale") : QStringLiteral(",  Orizzontale")));
}

// A sheet across beside which nothing is seen needs no room there: it fills the frame. Gives
// whether its size has changed.
bool frmAvviaStampa::SiIngrandisce(bool fuori) {
  const bool vuole = !fuori && foglio_.larghezza > foglio_.altezza;
  if (vuole == ingrandita_) return false;
  ingrandita_ = vuole;
  constexpr double kVolte = disegno_stampa::kIngrandimento;
  Label1.setWidth(Label1.width() * (vuole ? kVolte : 1 / kVolte));
  return true;
}

void frmAvviaStampa::Lampeggia() {
  lblFuoriFoglio.setBackColor(lblFuoriFoglio.backColor() == colori::kRosso ? platform::kWhite
                                                                           : colori::kRosso);
}

}  // namespace somme::inline stampa
