#pragma once

#include <QDateTime>
#include <QStringList>
#include <functional>

#include "platform/base/printers.h"

namespace platform::inline devices {

// The printer that every machine has: it takes A4 and A3 and puts each job as one PDF file into a
// folder of the user's.
class PdfFolder {
 public:
  // folders: tried one after the other. now: for the files' names.
  PdfFolder(QStringList folders, std::function<QDateTime()> now);

  // The user's documents, home and temporary folders.
  [[nodiscard]] static QStringList usualFolders();

  [[nodiscard]] static PrinterTraits traits();
  // Writes a file named after the job's title and the time. A file that exists is never replaced,
  // and one that could not be written whole does not stay.
  [[nodiscard]] PrintResult print(const PrintJob& job);

 private:
  [[nodiscard]] bool writeInto(const QString& folder, const QString& name,
                               const QByteArray& pages) const;

  QStringList folders_;
  std::function<QDateTime()> now_;
  int jobs_ = 0;
};

}  // namespace platform::inline devices
