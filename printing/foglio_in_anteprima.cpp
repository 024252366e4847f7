#include "app/shared/colori.h"
#include "platform/base/numbers.h"
#include "printing/disegno_avvia_stampa.h"
#include "printing/frm_avvia_stampa.h"
#include "printing/nome_formato_carta.h"

// The preview of the print dialog: the sheet, what will stand on it, and the warning beside it.
namespace somme::inline stampa {

using platform::BoxButtons;
using platform::BoxIcon;
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

void frmAvviaStampa::AggiornaAnteprima() {
  if (!conOggetto_ || foglio_.larghezza <= 0) return;
  const bool fuori = !StaSulFoglio(posto_, foglio_.larghezza, foglio_.altezza) ||
                     posto_.sinistra < 0 || posto_.alto < 0;
  Timer1.setEnabled(fuori);
  lblFuoriFoglio.setVisible(fuori);
  if (SiIngrandisce(fuori)) return DisegnaFoglio();  // and this with it
  const double inLargo = PictureAnteprima.width() / PixelInTwips() / foglio_.larghezza;
  const double inAlto = PictureAnteprima.height() / PixelInTwips() / foglio_.altezza;
  const auto punti = [](double misura) {
    return static_cast<int>(platform::roundHalfEven(misura));
  };
  DisegnaAnteprima({punti(inLargo * posto_.sinistra), punti(inAlto * posto_.alto),
                    punti(inLargo * posto_.larghezza), punti(inAlto * posto_.altezza)});
}

void frmAvviaStampa::DisegnaAnteprima(const QRect& dove) {
  if (!immagine_.presente()) {
    ground().showBox({QStringLiteral("Errore di Copia"), QStringLiteral(" Errore nell'anteprima"),
                      BoxIcon::Critical, BoxButtons::Ok});
    return;
  }
  const QImage& ridotta = immagine_.Ridotta(monocromatica_);
  // Made smaller with all its points taken in; made larger by whoever paints it.
  const bool minore = dove.width() < ridotta.width() && dove.height() < ridotta.height();
  PictureAnteprima.setPicture(
      minore ? ridotta.scaled(dove.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
             : ridotta,
      dove);
  // What would be lost beyond the paper is seen, faint, beside it.
  const QPoint angolo = PictureAnteprima.widget()->pos();
  fraFoglio.setPicture(lblFuoriFoglio.isVisible() ? ridotta : QImage(), dove.translated(angolo));
}

}  // namespace somme::inline stampa
