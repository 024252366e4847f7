#include "platform/devices/pdf_folder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QUuid>
#include <algorithm>

#include "platform/base/paper_codes.h"
#include "platform/devices/whole_file.h"

namespace platform::inline devices {

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

// Creates the file, which must not be there, and brings its bytes to the disk.
bool writeWhole(QFile& file, const QByteArray& bytes) {
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return false;
  const bool written = file.write(bytes) == bytes.size() && file.flush() && bringToDisk(file);
  file.close();
  if (written && file.error() == QFileDevice::NoError) return true;
  file.remove();
  return false;
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

// The file gets its name when it is whole and on the disk.
bool PdfFolder::writeInto(const QString& folder, const QString& name,
                          const QByteArray& pages) const {
  const QDir directory(folder);
  if (!directory.exists()) return false;
  QFile part(directory.filePath(
      QStringLiteral(".%1.part").arg(QUuid::createUuid().toString(QUuid::WithoutBraces))));
  if (!writeWhole(part, pages)) return false;
  Naming naming = Naming::Taken;
  for (int i = 1; i <= kMostOfOneName && naming == Naming::Taken; ++i) {
    const QString base = i == 1 ? name : QStringLiteral("%1 (%2)").arg(name).arg(i);
    naming = giveName(part.fileName(), directory.filePath(base + QStringLiteral(".pdf")));
  }
  if (naming != Naming::Done) part.remove();
  return naming == Naming::Done;
}

}  // namespace platform::inline devices
