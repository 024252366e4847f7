#include "printing/esegui_stampa.h"

#include "app/shared/ambiente.h"
#include "platform/base/numbers.h"
#include "platform/forms/wait_pointer.h"
#include "printing/documento.h"
#include "printing/errore_di_stampa.h"
#include "printing/immagine_di_stampa.h"
#include "printing/stampante_in_uso.h"

namespace somme::inline stampa {

namespace {

using platform::Printers;

constexpr QLatin1String kTitoloDimensioni(" Errore nelle dimensioni del foglio");

void Messaggio(Ambiente& ambiente, const QString& testo, const QString& titolo) {
  ambiente.fondo.showBox({testo, titolo, platform::BoxIcon::Critical, platform::BoxButtons::Ok});
}

// The four calls that a page is made of, each with what it gave: the number of the job, then
// whether the page was begun, the rows of the image, whether the page was ended.
struct EsitoPagina {
  int inizioDocumento = 0;
  int inizioPagina = 0;
  int righe = 0;
  int finePagina = 0;

  [[nodiscard]] bool riuscito() const {
    return inizioDocumento > 0 && inizioPagina > 0 && righe > 0 && finePagina > 0;
  }
};

QByteArray FaiPagina(const StampanteInUso& stampante, const ImmagineDiStampa& immagine,
                     const PostoSulFoglio& posto, const QString& titolo, EsitoPagina& esito) {
  Documento documento(stampante.caratteristiche(), stampante.impostazioni(), titolo);
  if (!documento.Inizia()) return {};
  esito.inizioPagina = 1;
  const MisuraDelFoglio foglio = stampante.MisuraFoglio();
  const double puntiInLargo = documento.larghezza() / foglio.larghezza;
  const double puntiInAlto = documento.altezza() / foglio.altezza;
  const auto punti = [](double quanti) {
    return static_cast<int>(platform::roundHalfEven(quanti));
  };
  const QRect dove(punti(posto.sinistra * puntiInLargo), punti(posto.alto * puntiInAlto),
                   punti(posto.larghezza * puntiInLargo), punti(posto.altezza * puntiInAlto));
  // Lines and letters stay sharp: no compression that blurs.
  documento.Pittore().setRenderHint(QPainter::LosslessImageRendering);
  documento.Pittore().drawImage(dove, immagine.punti());
  QByteArray pagine = documento.Chiudi();
  if (!pagine.isEmpty()) esito.righe = immagine.punti().height();
  return pagine;
}

// contesto: whether the printer was found again for this print.
void InviaPagina(Ambiente& ambiente, const StampanteInUso& stampante, bool contesto,
                 const ImmagineDiStampa& immagine, const PostoSulFoglio& posto,
                 const QString& titolo) {
  if (!contesto || !immagine.presente()) {
    throw ErroreDiStampa{ErroreDiStampa::kStampante,
                         QStringLiteral("prhDC = %1").arg(contesto ? 1 : 0)};
  }
  EsitoPagina esito;
  const QByteArray pagine = FaiPagina(stampante, immagine, posto, titolo, esito);
  if (!pagine.isEmpty()) {
    platform::PrintResult stampa;
    ambiente.fondo.waitDeaf([&] {
      stampa = ambiente.servizi.stampanti.print(
          {stampante.nome(), titolo, pagine, stampante.impostazioni()});
    });
    esito.inizioDocumento = stampa.job;
    esito.finePagina = stampa.finished ? 1 : 0;
  }
  if (esito.riuscito()) return;
  throw ErroreDiStampa{ErroreDiStampa::kStampante,
                       QStringLiteral("Stampa interrotta.\nR1 = %1\nR2 = %2\nR3 = %3\nR4 = %4")
                           .arg(esito.inizioDocumento)
                           .arg(esito.inizioPagina)
                           .arg(esito.righe)
                           .arg(esito.finePagina)};
}

}  // namespace

bool StaSulFoglio(const PostoSulFoglio& posto, qint32 larghezza, qint32 altezza) {
  return posto.sinistra + posto.larghezza <= larghezza && posto.alto + posto.altezza <= altezza;
}

void EseguiStampa(Ambiente& ambiente, const StampanteInUso& stampante,
                  const ImmagineDiStampa& immagine, const PostoSulFoglio& posto,
                  const QString& titolo) {
  auto clessidra = std::make_optional<platform::WaitPointer>();
  try {
    // The printer may have gone since it was chosen.
    Printers::Opened contesto;
    ambiente.fondo.waitDeaf([&] { contesto = ambiente.servizi.stampanti.open(stampante.nome()); });
    const MisuraDelFoglio foglio = stampante.MisuraFoglio();
    const bool trovata = stampante.aperta() && contesto.access == Printers::Access::Granted;
    if (trovata && !StaSulFoglio(posto, foglio.larghezza, foglio.altezza)) {
      clessidra.reset();
      Messaggio(ambiente,
                QStringLiteral("Le dimensioni di stampa richieste\n"
                               "sono superiori a quelle del foglio\n"
                               "della stampante selezionata.\n\n"
                               "Prova a modificare le impostazioni."),
                kTitoloDimensioni);
      return;
    }
    InviaPagina(ambiente, stampante, trovata, immagine, posto, titolo);
  } catch (const ErroreDiStampa& errore) {
    clessidra.reset();
    Messaggio(ambiente,
              QStringLiteral("La funzione di Stampa\n"
                             "ha trovato una situazione imprevista.\n\n"
                             "Codice di errore = %1\n%2")
                  .arg(errore.numero)
                  .arg(errore.descrizione),
              QStringLiteral(" Si è verificato un errore nella stampa"));
  }
}

}  // namespace somme::inline stampa
