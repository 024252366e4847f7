#include "printing/documento_pdf.h"

#include <QPageLayout>

#include "app/shared/ambiente.h"

namespace somme {

namespace {

constexpr double kMillimetriPerPollice = 25.4;

double InPunti(double millimetri) {
  return millimetri / kMillimetriPerPollice * DocumentoPdf::kPuntiPerPollice;
}

}  // namespace

DocumentoPdf::DocumentoPdf(const platform::PrinterTraits& caratteristiche,
                           const platform::PrinterSettings& impostazioni, const QString& titolo)
    : diritto_(caratteristiche.feedsUpright &&
               impostazioni.orientation == platform::Orientation::Landscape),
      impostazioni_(impostazioni) {
  const platform::Paper& carta = impostazioni.paper;
  const bool traverso = impostazioni.orientation == platform::Orientation::Landscape && !diritto_;
  const QPageSize foglio(QSizeF(carta.width, carta.height), QPageSize::Millimeter, carta.media,
                         QPageSize::ExactMatch);
  // Size and direction in one: each by itself would be corrected by the other.
  scrittore_.setPageLayout(QPageLayout(
      foglio, traverso ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  scrittore_.setResolution(kPuntiPerPollice);
  scrittore_.setTitle(titolo);
  scrittore_.setCreator(TitoloProgramma());
}

DocumentoPdf::~DocumentoPdf() {
  if (pittore_.isActive()) pittore_.end();
}

bool DocumentoPdf::Inizia() {
  if (!memoria_.open(QIODevice::WriteOnly) || !pittore_.begin(&scrittore_)) return false;
  if (diritto_) {
    pittore_.translate(0, InPunti(impostazioni_.paper.height));
    pittore_.rotate(-90);
  }
  return true;
}

bool DocumentoPdf::NuovaPagina() {
  return scrittore_.newPage();
}

double DocumentoPdf::larghezza() const {
  return InPunti(impostazioni_.sheetWidth());
}

double DocumentoPdf::altezza() const {
  return InPunti(impostazioni_.sheetHeight());
}

QByteArray DocumentoPdf::Chiudi() {
  const bool finito = pittore_.end();
  memoria_.close();
  return finito ? std::move(dati_) : QByteArray();
}

}  // namespace somme
