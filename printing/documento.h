#pragma once

#include <QByteArray>
#include <QPainter>
#include <QString>
#include <memory>

#include "platform/base/printers.h"

namespace somme::inline stampa {

class Supporto;

// The pages of a print in the making, in the format that the printer takes: sheets of the size and
// the direction of its settings. Who draws sees every sheet as it is held, with the origin in its
// upper left corner; how it goes through the printer is settled here.
class Documento {
 public:
  static constexpr int kPuntiPerPollice = platform::kDrawingDotsPerInch;

  // caratteristiche: of the printer that the pages are for.
  Documento(const platform::PrinterTraits& caratteristiche,
            const platform::PrinterSettings& impostazioni, const QString& titolo);
  ~Documento();
  Documento(const Documento&) = delete;
  Documento& operator=(const Documento&) = delete;

  // Begins the first page; false when that fails, and then nothing else may be called.
  [[nodiscard]] bool Inizia();
  // False when the page could not be begun. The painter's transformation and hints go on; its pen,
  // brush and font may not.
  [[nodiscard]] bool NuovaPagina();
  // For drawing on the present page, in points of the device.
  [[nodiscard]] QPainter& Pittore() { return pittore_; }
  // The sheet as it is held, in points of the device.
  [[nodiscard]] double larghezza() const;
  [[nodiscard]] double altezza() const;
  // Ends the last page and gives the pages; empty when they could not be finished.
  [[nodiscard]] QByteArray Chiudi();

 private:
  bool diritto_;  // a sheet held across is drawn turned, on an upright page
  platform::PrinterSettings impostazioni_;
  std::unique_ptr<Supporto> supporto_;
  QPainter pittore_;
};

}  // namespace somme::inline stampa
