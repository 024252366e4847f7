#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QPdfWriter>
#include <QString>

#include "platform/base/printers.h"

namespace somme {

// The pages of a print in the making: a PDF document whose sheets have the size and the direction
// of the printer's settings. Who draws sees every sheet as it is held, with the origin in its upper
// left corner; how it goes through the printer is settled here.
class DocumentoPdf {
 public:
  static constexpr int kPuntiPerPollice = 1200;

  // caratteristiche: of the printer that the pages are for.
  DocumentoPdf(const platform::PrinterTraits& caratteristiche,
               const platform::PrinterSettings& impostazioni, const QString& titolo);
  ~DocumentoPdf();
  DocumentoPdf(const DocumentoPdf&) = delete;
  DocumentoPdf& operator=(const DocumentoPdf&) = delete;

  // Begins the first page; false when that fails, and then nothing else may be called.
  [[nodiscard]] bool Inizia();
  // False when the page could not be begun.
  [[nodiscard]] bool NuovaPagina();
  // For drawing on the present page, in points of the device.
  [[nodiscard]] QPainter& Pittore() { return pittore_; }
  // The sheet as it is held, in points of the device.
  [[nodiscard]] double larghezza() const;
  [[nodiscard]] double altezza() const;
  // Ends the last page and gives the document; empty when it could not be finished.
  [[nodiscard]] QByteArray Chiudi();

 private:
  bool diritto_;  // a sheet held across is drawn turned, on an upright page
  platform::PrinterSettings impostazioni_;
  QByteArray dati_;
  QBuffer memoria_{&dati_};
  QPdfWriter scrittore_{&memoria_};
  QPainter pittore_;
};

}  // namespace somme
