#include "printing/foglio_tastiera.h"

#include "app/shared/nomi_forme.h"
#include "printing/frm_avvia_stampa.h"

namespace somme {

FoglioTastiera::FoglioTastiera(Ambiente& ambiente, const platform::FormDesign& disegno,
                               const PostiTasti& tasti)
    : Forma(ambiente, disegno), tasti_(tasti) {}

void FoglioTastiera::onLoad() {
  Forma::onLoad();
  foglioStampato_ = false;
}

void FoglioTastiera::onActivate() {
  const Griglia griglia = GrigliaDi(width(), height());
  for (int i = 0; i < tasti_.quanti(); ++i) {
    const platform::TwipsRect posto = tasti_.Posto(i, griglia);
    Shape1[i].setPlace(posto.left, posto.top, posto.width, posto.height);
  }
  Disponi(griglia);
  if (foglioStampato_) {
    runtime().forms().unload(*this);
    return;
  }
  Offri();
  foglioStampato_ = true;
}

// A sheet without a printer is told by its size, which is below 0, and the dialog does not open.
void FoglioTastiera::Offri() {
  constexpr float kScala = 500000;
  auto& dialogo = static_cast<frmAvviaStampa&>(runtime().forms().loaded(forme::kFrmAvviaStampa));
  const frmAvviaStampa::Foglio foglio =
      dialogo.FoglioStampa(static_cast<int>(platform::Orientation::Landscape));
  frmAvviaStampa::Richiesta richiesta;
  richiesta.oggetto = static_cast<platform::Form*>(this);
  richiesta.larghezza = foglio.larghezza;
  richiesta.altezza = foglio.altezza;
  richiesta.titolo = QStringLiteral("Stampa foglio '%1' tastiera HelpiKeys").arg(TitoloProgramma());
  richiesta.scala = kScala;
  (void)dialogo.StampaFCPB(richiesta);
}

void FoglioTastiera::SopraIlTasto(platform::Control& controllo, int tasto) {
  const platform::Shape& cornice = Shape1[tasto];
  controllo.setPlace(cornice.left(), cornice.top(), cornice.width(), cornice.height());
}

void FoglioTastiera::InMezzoAlTasto(platform::Control& controllo, int tasto) {
  const platform::Shape& cornice = Shape1[tasto];
  controllo.setLeft(cornice.left() + (cornice.width() - controllo.width()) / 2);
  controllo.setTop(cornice.top() + (cornice.height() - controllo.height()) / 2);
}

}  // namespace somme
