#include "platform/devices/linux/desktop_documents.h"

#include <QFileInfo>
#include <QProcess>

namespace platform::inline devices {

void DesktopDocuments::open(const QString& path) {
  const QFileInfo document(path);
  if (path.isEmpty() || !document.exists()) {
    return;
  }
  QProcess opener;
  opener.setProgram(QStringLiteral("xdg-open"));
  // Absolute, so that no name can be read as an option or an address.
  opener.setArguments({document.absoluteFilePath()});
  opener.setStandardInputFile(QProcess::nullDevice());
  opener.setStandardOutputFile(QProcess::nullDevice());
  opener.setStandardErrorFile(QProcess::nullDevice());
  opener.startDetached();
}

}  // namespace platform::inline devices
