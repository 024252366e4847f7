#include "printing/foglio_tastiera.h"

#include "app/shared/nomi_forme.h"
#include "platform/base/numbers.h"
#include "printing/frm_avvia_stampa.h"

namespace somme::inline stampa {

namespace {

constexpr int kBordo = 2;
constexpr double kMargine = 0.1;  // between a frame and its drawing, of the frame's shorter side

}  // namespace

FoglioTastiera::FoglioTastiera(Ambiente& ambiente, std::string_view nome)
    : FoglioTastiera(ambiente, nome, kBordo, {}) {}

FoglioTastiera::FoglioTastiera(Ambiente& ambiente, std::string_view nome, int bordo,
                               std::span<const platform::Row> altre)
    : DisegnoFoglio(FoglioDi(nome), bordo, altre), Forma(ambiente, Disegno()) {}

void FoglioTastiera::onLoad() {
  Forma::onLoad();
  for (int posto = 1; posto <= Foglio().tastiera.Posti(); ++posto) {
    const TastoPosato tasto = Foglio().TastoDi(posto);
    if (tasto.tasto == Tasto::Nessuno) continue;
    if (ECifra(tasto.tasto)) {
      Label1[tasto.controllo].setCaption(platform::plain(CifraDi(tasto.tasto)));
    } else if (ComeSiMostra(tasto.tasto) == Mostra::Disegno) {
      Image[tasto.controllo].keepClear(kMargine);
    }
  }
  foglioStampato_ = false;
}

void FoglioTastiera::onActivate() {
  const Griglia griglia = GrigliaDi(width(), height());
  for (int posto = 1; posto <= Foglio().tastiera.Posti(); ++posto) {
    const platform::TwipsRect cornice = PostoDi(Foglio().tastiera.CorniceDi(posto), griglia);
    Shape1[posto - 1].setPlace(cornice.left, cornice.top, cornice.width, cornice.height);
    PosaTasto(posto);
  }
  Disponi(griglia);
  if (foglioStampato_) {
    unload();
    return;
  }
  Offri();
  foglioStampato_ = true;
}

// A sheet without a printer is told by its size, which is below 0, and the dialog does not open.
void FoglioTastiera::Offri() {
  constexpr float kScala = 500000;
  auto& dialogo =
      static_cast<frmAvviaStampa&>(ambiente().fondo.forms().loaded(forme::kFrmAvviaStampa));
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

platform::Control& FoglioTastiera::ControlloDi(const TastoPosato& tasto) {
  switch (ComeSiMostra(tasto.tasto)) {
    case Mostra::Cifra:
      return Label1[tasto.controllo];
    case Mostra::Parola:
      return Label3[tasto.controllo];
    case Mostra::Disegno:
      break;
  }
  return Image[tasto.controllo];
}

// A digit stands in the middle of its frame, as large as it is; the others take the frame's place.
void FoglioTastiera::PosaTasto(int posto) {
  const TastoPosato tasto = Foglio().TastoDi(posto);
  if (tasto.tasto == Tasto::Nessuno) return;
  platform::Control& controllo = ControlloDi(tasto);
  const platform::Shape& cornice = Shape1[posto - 1];
  if (ECifra(tasto.tasto)) {
    controllo.setLeft(cornice.left() + (cornice.width() - controllo.width()) / 2);
    controllo.setTop(cornice.top() + (cornice.height() - controllo.height()) / 2);
  } else {
    controllo.setPlace(cornice.left(), cornice.top(), cornice.width(), cornice.height());
  }
}

}  // namespace somme::inline stampa
