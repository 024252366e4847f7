#include "input/tastiera_scansione.h"

#include <QScopedValueRollback>

#include "platform/base/numbers.h"
#include "platform/base/twips.h"
#include "platform/forms/controls/ring_widget.h"
#include "platform/forms/keys/key_codes.h"
#include "platform/forms/rgb_number.h"

namespace somme::inline ingresso {

using platform::toInt16;

namespace {

constexpr int kTienilFuoco = 10;     // milliseconds of `Timer1`: the focus is back by then
constexpr int kQuarto = 250;         // milliseconds
constexpr double kCarattere = 0.55;  // of a button's side

}  // namespace

void TastieraScansione::Evidenza::set(qint16 indice) {
  indice_ = indice;
  tastiera_.Segna();
}

TastieraScansione::TastieraScansione(platform::ControlHost& ospite,
                                     std::span<const platform::InnerRow> interni,
                                     platform::ControlArray<platform::Button>& pulsanti, int numero,
                                     const Comuni& comuni)
    : UserControl(ospite, interni), pulsanti_(pulsanti), numero_(numero), comuni_(comuni) {
  PictureScansione.onKeyDown([this](int tasto) { TastoPremuto(tasto); });
  PictureScansione.onKeyUp([this](int tasto) { TastoLasciato(tasto); });
  TimerScansione.onTick([this] {
    if (!Fermo()) Passo();
  });
}

// The row stands in a frame that is a little larger than the place of the control, so that the ring
// is not cut off at the ends of the row.
QWidget* TastieraScansione::create(QWidget* parent) {
  auto* cornice = new QWidget(parent);
  cornice->setAttribute(Qt::WA_TransparentForMouseEvents);
  dentro_ = UserControl::create(cornice);
  for (int i = 0; i < numero_; ++i) pulsanti_[i].makeForShow();
  anello_ = new platform::RingWidget(cornice);
  return cornice;
}

void TastieraScansione::DaiNome(int indice, const QString& nome) {
  pulsanti_[indice].setSpokenName(nome);
}

qint16 TastieraScansione::IntervalloScansione() const {
  return toInt16(int(comuni_.TempoScansione.get()) * kQuarto);
}

void TastieraScansione::Attiva() {
  SpegniTutti();
  Accendi(PrimoPulsante());
  Timer1.setEnabled(true);
  // At once: a tap that comes before the time of `Timer1` counts.
  PictureScansione.keepFocus();
}

void TastieraScansione::Disattiva() {
  keysLetGo();
  Timer1.setEnabled(false);
}

void TastieraScansione::AttivaAutomatica() {
  TimerScansione.setEnabled(true);
}

void TastieraScansione::DisattivaAutomatica() {
  TimerScansione.setEnabled(false);
}

void TastieraScansione::Accendi(qint16 indice) {
  pulsanti_[indice].setBackColor(platform::rgbOf(comuni_.ColoreScansione.get()));
  // Light letters, outlined where the ground needs it: black ones drown in the red.
  pulsanti_[indice].setForeColor(platform::kWhite);
}

void TastieraScansione::Spegni(int indice) {
  pulsanti_[indice].setBackColor(platform::rgbOf(comuni_.ColoreSfondo.get()));
  pulsanti_[indice].setForeColor(platform::kBlack);
}

void TastieraScansione::SpegniTutti() {
  for (int i = 0; i < numero_; ++i) Spegni(i);
}

void TastieraScansione::Passo() {
  const auto dopo = [this](int indice) {
    return indice + 1 >= numero_ ? int(PrimoPulsante()) : indice + 1;
  };
  Spegni(PulsanteCorrente.get());
  int indice = dopo(PulsanteCorrente.get());
  while (!pulsanti_[indice].isEnabled()) indice = dopo(indice);
  PulsanteCorrente.indice_ = qint16(indice);
  Segna();
  Accendi(qint16(indice));
}

// A key counts from its press to its release on this keyboard; what is pressed while a choice is
// being handled is not kept for later.
void TastieraScansione::TastoPremuto(int tasto) {
  if (!Timer1.isEnabled() || comunicando_) return;
  if (tasto == platform::kKeyEnter) invioPremuto_ = true;
  if (tasto == platform::kKeySpace) {
    spazioPremuto_ = true;
    if (comuni_.ScansioneAutomatica.get()) DisattivaAutomatica();
  }
  Affonda();
}

void TastieraScansione::TastoLasciato(int tasto) {
  const bool automatica = comuni_.ScansioneAutomatica.get();
  if (tasto == platform::kKeySpace && spazioPremuto_) {
    spazioPremuto_ = false;
    Affonda();
    if (automatica) {
      Comunica();
      AttivaAutomatica();
    } else if (!Fermo()) {
      Passo();
    }
  } else if (tasto == platform::kKeyEnter && invioPremuto_) {
    invioPremuto_ = false;
    Affonda();
    if (!automatica) Comunica();
  }
}

void TastieraScansione::Comunica() {
  if (comunicando_) return;
  const QScopedValueRollback comunicando(comunicando_, true);
  if (comunicaPulsante_) comunicaPulsante_(PulsanteCorrente.get());
  // A form may have given the focus to the box that the choice was for.
  if (Timer1.isEnabled()) PictureScansione.keepFocus();
}

// Nothing is chosen, and a scan that the press had stopped goes on.
void TastieraScansione::keysLetGo() {
  const bool fermata = spazioPremuto_ && comuni_.ScansioneAutomatica.get();
  spazioPremuto_ = false;
  invioPremuto_ = false;
  Affonda();
  if (fermata) AttivaAutomatica();
}

// Whether a key is down whose release chooses the lit button.
bool TastieraScansione::StaScegliendo() const {
  return comuni_.ScansioneAutomatica.get() ? spazioPremuto_ : invioPremuto_;
}

void TastieraScansione::Affonda() {
  if (anello_ == nullptr) return;
  for (int i = 0; i < numero_; ++i) {
    pulsanti_[i].showHeld(StaScegliendo() && i == PulsanteCorrente.get());
  }
}

void TastieraScansione::Segna() {
  if (anello_ == nullptr) return;
  const platform::Button& acceso = pulsanti_[PulsanteCorrente.get()];
  anello_->surround(acceso.widget()->geometry().translated(dentro_->pos()));
  anello_->setVisible(acceso.isVisible());
  anello_->raise();
  Affonda();
  PictureScansione.pointAt(acceso);
}

// The frame, and the row in it at the place that the control has.
void TastieraScansione::Posa() {
  const QRect posto = scale().pixels(designPlace());
  const int bordo = platform::RingWidget::reach(pulsanti_[0].widget()->width());
  widget()->setGeometry(posto.adjusted(-bordo, -bordo, bordo, bordo));
  dentro_->setGeometry({{bordo, bordo}, posto.size()});
}

QSize TastieraScansione::Misura() const {
  return {int(platform::roundHalfEven(width())), int(platform::roundHalfEven(height()))};
}

void TastieraScansione::placeChanged() {
  Control::placeChanged();
  if (!isBuilt() || disponendo_) return;
  if (Misura() == disposta_) {
    Posa();
  } else {
    layOut();
  }
}

void TastieraScansione::applyLook() {
  PictureScansione.setToolTip(toolTip());
}

// The light goes back to the first button, and the scan is as the property says: a key that is
// still down was pressed over another light, and its release must not choose this one.
void TastieraScansione::layOut() {
  spazioPremuto_ = false;
  invioPremuto_ = false;
  const int larghezza = Misura().width();
  const int lato = larghezza / (numero_ + 1);
  const int passo = larghezza / numero_;
  {
    const QScopedValueRollback disponendo(disponendo_, true);
    setHeight(passo);
  }
  disposta_ = Misura();
  PictureScansione.setPlace(0, 0, larghezza, passo);
  for (int i = 0; i < numero_; ++i) {
    pulsanti_[i].setPlace(i * passo, 0, lato, lato);
    pulsanti_[i].setFontSize(platform::Twips(lato * kCarattere) / platform::Twips::points(1));
  }
  Posa();
  Timer1.setInterval(kTienilFuoco);
  PulsanteCorrente.indice_ = PrimoPulsante();
  Accendi(PrimoPulsante());
  MostraPulsanti();
  Segna();
  TimerScansione.setInterval(IntervalloScansione());
  if (comuni_.ScansioneAutomatica.get()) {
    AttivaAutomatica();
  } else {
    DisattivaAutomatica();
  }
}

}  // namespace somme::inline ingresso
