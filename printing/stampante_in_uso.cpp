#include "printing/stampante_in_uso.h"

#include "app/shared/ambiente.h"
#include "platform/base/numbers.h"
#include "printing/attendi_stampanti.h"
#include "printing/errore_di_stampa.h"

namespace somme::inline stampa {

using platform::Printers;

// A print server that does not answer leaves its queues out.
QStringList StampanteInUso::Elenco() {
  QStringList nomi = Chiedi().names;
  if (!nome_.isEmpty() && !nomi.contains(nome_)) nomi.prepend(nome_);
  return nomi;
}

QString StampanteInUso::StampantePredefinita() {
  return Chiedi().standard;
}

Printers::List StampanteInUso::Chiedi() {
  Printers::List elenco;
  AttendiStampanti(ambiente_, [&] { elenco = ambiente_.servizi.stampanti.list(); });
  return elenco;
}

bool StampanteInUso::ApriStampante() {
  cercata_ = true;
  aperta_ = false;
  if (nome_.isEmpty()) nome_ = StampantePredefinita();
  if (nome_.isEmpty()) {
    throw ErroreDiStampa{ErroreDiStampa::kStampante, QStringLiteral("Errore della stampante")};
  }
  Printers::Opened trovata;
  AttendiStampanti(ambiente_, [&] { trovata = ambiente_.servizi.stampanti.open(nome_); });
  switch (trovata.access) {
    case Printers::Access::Denied:
      Messaggio(QStringLiteral("Non posso accedere alla stampante richiesta."),
                QStringLiteral(" Errore nell'accesso alla stampante"));
      return false;
    case Printers::Access::SettingsRefused:
      Messaggio(QStringLiteral("Errore nella stampa del documento."), QStringLiteral(" Errore"));
      return false;
    case Printers::Access::Granted:
      break;
  }
  const auto scritta = scritte_.find(nome_);
  impostazioni_ = scritta == scritte_.end() ? trovata.traits.standard : scritta->second;
  caratteristiche_ = std::move(trovata.traits);
  aperta_ = true;
  return true;
}

void StampanteInUso::Messaggio(const QString& testo, const QString& titolo) {
  ambiente_.fondo.showBox({testo, titolo, platform::BoxIcon::Critical, platform::BoxButtons::Ok});
}

MisuraDelFoglio StampanteInUso::MisuraFoglio() const {
  if (nome_.isEmpty() || !aperta()) return {};
  return {platform::toInt32(impostazioni_.sheetWidth()),
          platform::toInt32(impostazioni_.sheetHeight()),
          static_cast<qint32>(impostazioni_.orientation)};
}

void StampanteInUso::ScriviImpostazioni(const platform::PrinterSettings& impostazioni) {
  impostazioni_ = impostazioni;
  if (aperta()) scritte_[nome_] = impostazioni;
}

void StampanteInUso::ScriviOrientamento(int orientamento) {
  platform::PrinterSettings nuove = impostazioni_;
  nuove.orientation = static_cast<platform::Orientation>(orientamento);
  ScriviImpostazioni(nuove);
}

}  // namespace somme::inline stampa
