#include "printing/documento.h"

#include "platform/base/twips.h"
#include "printing/supporto.h"

namespace somme::inline stampa {

namespace {

double InPunti(double millimetri) {
  return millimetri / platform::Twips::kMillimetresPerInch * Documento::kPuntiPerPollice;
}

}  // namespace

Documento::Documento(const platform::PrinterTraits& caratteristiche,
                     const platform::PrinterSettings& impostazioni, const QString& titolo)
    : diritto_(caratteristiche.feedsUpright &&
               impostazioni.orientation == platform::Orientation::Landscape),
      impostazioni_(impostazioni),
      supporto_(FaiSupporto(caratteristiche.pages, impostazioni, diritto_, titolo)) {}

Documento::~Documento() {
  if (pittore_.isActive()) pittore_.end();
}

bool Documento::Inizia() {
  if (!supporto_->Inizia(pittore_)) return false;
  if (diritto_) {
    pittore_.translate(0, InPunti(impostazioni_.paper.height));
    pittore_.rotate(-90);
  }
  return true;
}

bool Documento::NuovaPagina() {
  return supporto_->NuovaPagina(pittore_);
}

double Documento::larghezza() const {
  return InPunti(impostazioni_.sheetWidth());
}

double Documento::altezza() const {
  return InPunti(impostazioni_.sheetHeight());
}

QByteArray Documento::Chiudi() {
  const bool finito = pittore_.end();
  return finito ? supporto_->Chiudi() : QByteArray();
}

}  // namespace somme::inline stampa
