#include "platform/devices/pdf_folder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <algorithm>

#include "platform/base/paper_codes.h"

namespace platform {

namespace {

constexpr qsizetype kLongestTitle = 80;  // characters, well within what file systems take
constexpr int kMostOfOneName = 1000;

// A title as a file's name, on any file system and without hiding the file.
QString asFileName(QString title) {
  title = title.simplified();
  for (QChar& character : title) {
    const bool reserved = QStringLiteral("/\\:*?\"<>|").contains(character);
    if (reserved || !character.isPrint()) character = u'_';
  }
  title.truncate(kLongestTitle);
  while (title.startsWith(u'.')) title.remove(0, 1);
  return title.isEmpty() ? QStringLiteral("PDF") : title;
}

}  // namespace

PdfFolder::PdfFolder(QStringList folders, std::function<QDateTime()> now)
    : folders_(std::move(folders)), now_(std::move(now)) {}

QStringList PdfFolder::usualFolders() {
  return {QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
          QStandardPaths::writableLocation(QStandardPaths::HomeLocation),
          QStandardPaths::writableLocation(QStandardPaths::TempLocation)};
}

PrinterTraits PdfFolder::traits() {
  PrinterTraits traits;
  traits.papers = {{kPaperA4, QStringLiteral("A4"), 210, 297, 0, 0},
                   {kPaperA3, QStringLiteral("A3"), 297, 420, 0, 0}};
  traits.standard.paper = traits.papers.front();
  return traits;
}

PrintResult PdfFolder::print(const PrintJob& job) {
  const QString name = asFileName(job.title) + QStringLiteral(" ") +
                       now_().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
  PrintResult result{++jobs_, false};
  result.finished = std::any_of(folders_.begin(), folders_.end(), [&](const QString& folder) {
    return !folder.isEmpty() && writeInto(folder, name, job.pages);
  });
  return result;
}

// The file gets its name when it is whole; the rename does not replace one that is there.
bool PdfFolder::writeInto(const QString& folder, const QString& name,
                          const QByteArray& pages) const {
  const QDir directory(folder);
  if (!directory.exists()) return false;
  for (int i = 1; i <= kMostOfOneName; ++i) {
    const QString base = i == 1 ? name : QStringLiteral("%1 (%2)").arg(name).arg(i);
    const QString whole = directory.filePath(base + QStringLiteral(".pdf"));
    QFile part(directory.filePath(u'.' + base + QStringLiteral(".part")));
    if (QFile::exists(whole) || part.exists()) continue;
    if (!part.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return false;
    const bool written = part.write(pages) == pages.size() && part.flush();
    part.close();
    if (written && part.error() == QFileDevice::NoError && part.rename(whole)) return true;
    part.remove();
    if (!QFile::exists(whole)) return false;
  }
  return false;
}

}  // namespace platform
