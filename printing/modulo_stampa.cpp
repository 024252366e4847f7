#include "printing/modulo_stampa.h"

#include "app/shared/ambiente.h"
#include "platform/base/run_time_error.h"
#include "platform/base/twips.h"
#include "platform/forms/controls/rich_text_box.h"
#include "printing/attendi_stampanti.h"
#include "printing/documento.h"

namespace somme::inline stampa {

namespace {

using platform::RunTimeError;

// Twips of so many millimetres.
double InTwips(double millimetri) {
  return platform::Twips::millimetres(millimetri).count();
}

void Esigi(bool riuscito) {
  if (!riuscito) throw RunTimeError(RunTimeError::PrinterError);
}

MisurePagina Misura(const platform::PrinterSettings& impostazioni) {
  const platform::Paper& carta = impostazioni.paper;
  const bool diritta = impostazioni.orientation == platform::Orientation::Portrait;
  return {InTwips(impostazioni.sheetWidth()), InTwips(impostazioni.sheetHeight()),
          InTwips(diritta ? carta.left : carta.top), InTwips(diritta ? carta.top : carta.left)};
}

// Page by page: each begins where the control says that the one before ended.
QByteArray Impagina(const platform::RichTextBox& testo, const Margini& margini,
                    const platform::PrinterTraits& stampante, const QString& titolo) {
  Documento documento(stampante, stampante.standard, titolo);
  Esigi(documento.Inizia());
  const MisurePagina pagina = Misura(stampante.standard);
  const QRectF rettangolo = RettangoloDiDisegno(margini, pagina);
  QPainter& pittore = documento.Pittore();
  const double puntiPerTwip = Documento::kPuntiPerPollice / platform::Twips::inches(1).count();
  pittore.scale(puntiPerTwip, puntiPerTwip);
  pittore.translate(pagina.scartoSinistro, pagina.scartoSuperiore);
  const qsizetype lunghezza = testo.text().size();
  qsizetype inizio = testo.formatRange(&pittore, rettangolo, 0);
  while (inizio < lunghezza) {
    Esigi(documento.NuovaPagina());
    inizio = testo.formatRange(&pittore, rettangolo, inizio);
  }
  QByteArray pagine = documento.Chiudi();
  Esigi(!pagine.isEmpty());
  return pagine;
}

}  // namespace

QRectF RettangoloDiDisegno(const Margini& margini, const MisurePagina& pagina) {
  double sinistra = margini.sinistro - pagina.scartoSinistro;
  double destra = pagina.larghezza - margini.destro - pagina.scartoSinistro;
  if (destra <= sinistra) {
    sinistra = 0;
    destra = pagina.larghezza - 2 * pagina.scartoSinistro;
  }
  double alto = margini.superiore - pagina.scartoSuperiore;
  double basso = pagina.altezza - margini.inferiore - pagina.scartoSuperiore;
  if (basso <= alto) {
    alto = 0;
    basso = pagina.altezza - 2 * pagina.scartoSuperiore;
  }
  return {QPointF(sinistra, alto), QPointF(destra, basso)};
}

void StampaTestoRicco(Ambiente& ambiente, const platform::RichTextBox& TestoRicco,
                      qint32 MargineSinistro, double MargineSuperiore, double MargineDestro,
                      double MargineInferiore) {
  platform::Printers& stampanti = ambiente.servizi.stampanti;
  platform::Printers::List elenco;
  platform::Printers::Opened aperta;
  AttendiStampanti(ambiente, [&] {
    elenco = stampanti.list();
    if (!elenco.standard.isEmpty()) aperta = stampanti.open(elenco.standard);
  });
  Esigi(aperta.access == platform::Printers::Access::Granted && aperta.traits.takesPages);
  const QString titolo = TitoloProgramma();
  const platform::PrintJob lavoro{
      elenco.standard, titolo,
      Impagina(TestoRicco,
               {double(MargineSinistro), MargineSuperiore, MargineDestro, MargineInferiore},
               aperta.traits, titolo),
      aperta.traits.standard};
  platform::PrintResult esito;
  AttendiStampanti(ambiente, [&] { esito = stampanti.print(lavoro); });
  Esigi(esito.finished);
}

}  // namespace somme::inline stampa
