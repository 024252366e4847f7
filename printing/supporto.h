#pragma once

#include <QByteArray>
#include <QPainter>
#include <QString>
#include <memory>

#include "platform/base/printers.h"

namespace somme::inline stampa {

// What the pages of a document are put on, in one of the formats that printers take.
class Supporto {
 public:
  virtual ~Supporto() = default;

  // Begins the first page and has the painter draw on it; false when that fails.
  [[nodiscard]] virtual bool Inizia(QPainter& pittore) = 0;
  // Ends a page and begins the next; the painter's transformation and hints stay.
  [[nodiscard]] virtual bool NuovaPagina(QPainter& pittore) = 0;
  // All pages, once the painter has ended the last one.
  [[nodiscard]] virtual QByteArray Chiudi() = 0;
};

// diritto: the sheet goes through the printer upright, however it is held.
[[nodiscard]] std::unique_ptr<Supporto> FaiSupporto(platform::PageFormat formato,
                                                    const platform::PrinterSettings& impostazioni,
                                                    bool diritto, const QString& titolo);

}  // namespace somme::inline stampa
