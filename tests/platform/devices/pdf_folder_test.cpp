#include "platform/devices/pdf_folder.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <functional>
#include <utility>

#include "full_disk.h"
#include "support/iscrizione.h"

namespace pdf_folder_test {

using devices_test::FullDisk;
using platform::PdfFolder;
using platform::PrintJob;
using platform::PrintResult;

namespace {

QDateTime noon() {
  return QDateTime(QDate(2026, 3, 5), QTime(12, 7, 9));
}

PrintJob job(const QString& title, const QByteArray& pages = "pages") {
  PrintJob result;
  result.title = title;
  result.pages = pages;
  return result;
}

QStringList filesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

// What happens at the two calls by which a file comes onto the disk and to its name.
struct Calls {
  std::function<void(int descriptor)> sync;
  std::function<void()> rename;
  bool canRename = true;  // false: the file system knows no renaming that replaces nothing
  bool canSync = true;
};
Calls calls;

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

// In the place of the C library's.
extern "C" int fsync(int descriptor) {
  if (calls.sync) calls.sync(descriptor);
  if (!calls.canSync) {
    errno = EIO;
    return -1;
  }
  return int(::syscall(SYS_fsync, descriptor));
}
extern "C" int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                         unsigned flags) noexcept {
  if (const auto action = std::exchange(calls.rename, {})) action();
  if (!calls.canRename && flags != 0) {
    errno = EINVAL;
    return -1;
  }
  return int(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

class PdfFolderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void cleanup() { calls = {}; }

  void aJobBecomesOneFileNamedAfterItsTitleAndTheTime() {
    const QTemporaryDir folder;
    PdfFolder printer({folder.path()}, noon);
    const PrintResult result = printer.print(job(QStringLiteral("Esercitazioni sulle somme")));
    QVERIFY(result.finished);
    QVERIFY(result.job > 0);
    QCOMPARE(filesIn(folder.path()),
             QStringList{QStringLiteral("Esercitazioni sulle somme 2026-03-05 12.07.09.pdf")});
    QCOMPARE(contentOf(folder.filePath(filesIn(folder.path()).first())), QByteArray("pages"));
  }

  void aFileThatExistsIsNeverReplaced() {
    const QTemporaryDir folder;
    PdfFolder printer({folder.path()}, noon);
    QVERIFY(printer.print(job(QStringLiteral("Somme"), "one")).finished);
    QVERIFY(printer.print(job(QStringLiteral("Somme"), "two")).finished);
    QVERIFY(printer.print(job(QStringLiteral("Somme"), "three")).finished);
    const QStringList files = filesIn(folder.path());
    QCOMPARE(files.size(), 3);
    QCOMPARE(contentOf(folder.filePath(QStringLiteral("Somme 2026-03-05 12.07.09.pdf"))),
             QByteArray("one"));
    QCOMPARE(contentOf(folder.filePath(QStringLiteral("Somme 2026-03-05 12.07.09 (2).pdf"))),
             QByteArray("two"));
  }

  void aLinkWithTheFilesNameIsNeitherFollowedNorReplaced_data() {
    QTest::addColumn<bool>("canRename");
    QTest::newRow("by renaming") << true;
    QTest::newRow("by a second name") << false;
  }
  void aLinkWithTheFilesNameIsNeitherFollowedNorReplaced() {
    QFETCH(bool, canRename);
    calls.canRename = canRename;
    const QTemporaryDir folder;
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(QStringLiteral("target"));
    const QString link = folder.filePath(QStringLiteral("Somme 2026-03-05 12.07.09.pdf"));
    QVERIFY(QFile::link(target, link));
    PdfFolder printer({folder.path()}, noon);
    QVERIFY(printer.print(job(QStringLiteral("Somme"))).finished);
    QVERIFY(!QFile::exists(target));
    QCOMPARE(QFile::symLinkTarget(link), target);
    QCOMPARE(contentOf(folder.filePath(QStringLiteral("Somme 2026-03-05 12.07.09 (2).pdf"))),
             QByteArray("pages"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::System | QDir::Hidden).size(), 2);
  }

  void aFileThatComesAtTheLastMomentIsNotReplaced_data() {
    aLinkWithTheFilesNameIsNeitherFollowedNorReplaced_data();
  }
  void aFileThatComesAtTheLastMomentIsNotReplaced() {
    QFETCH(bool, canRename);
    calls.canRename = canRename;
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("Somme 2026-03-05 12.07.09.pdf"));
    calls.rename = [&name] {
      QFile file(name);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write("another's");
    };
    PdfFolder printer({folder.path()}, noon);
    QVERIFY(printer.print(job(QStringLiteral("Somme"))).finished);
    QCOMPARE(contentOf(name), QByteArray("another's"));
    QCOMPARE(filesIn(folder.path()).size(), 2);
    QCOMPARE(contentOf(folder.filePath(QStringLiteral("Somme 2026-03-05 12.07.09 (2).pdf"))),
             QByteArray("pages"));
  }

  void theBytesAreOnTheDiskBeforeTheFileHasItsName() {
    const QTemporaryDir folder;
    const QByteArray pages(100000, 'x');
    qint64 synced = 0;
    calls.sync = [&](int descriptor) {
      synced = ::lseek(descriptor, 0, SEEK_END);
      const QStringList files = filesIn(folder.path());
      QCOMPARE(files.size(), 1);
      QVERIFY(files.first().startsWith(u'.') && !files.first().endsWith(QStringLiteral(".pdf")));
    };
    PdfFolder printer({folder.path()}, noon);
    QVERIFY(printer.print(job(QStringLiteral("Somme"), pages)).finished);
    QCOMPARE(synced, pages.size());
    QCOMPARE(contentOf(folder.filePath(filesIn(folder.path()).first())), pages);
  }

  void bytesThatDoNotReachTheDiskAreNoPrint() {
    const QTemporaryDir folder;
    calls.canSync = false;
    PdfFolder printer({folder.path()}, noon);
    QVERIFY(!printer.print(job(QStringLiteral("Somme"))).finished);
    QVERIFY(filesIn(folder.path()).isEmpty());
  }

  void twoJobsHaveDifferentNumbers() {
    const QTemporaryDir folder;
    PdfFolder printer({folder.path()}, noon);
    const int first = printer.print(job(QStringLiteral("a"))).job;
    QVERIFY(printer.print(job(QStringLiteral("a"))).job != first);
  }

  void aTitleThatIsNoFileNameBecomesOne() {
    const QTemporaryDir folder;
    PdfFolder printer({folder.path()}, noon);
    QVERIFY(printer.print(job(QStringLiteral("../a/b: 'c'\n?"))).finished);
    QVERIFY(printer.print(job({})).finished);
    QVERIFY(printer.print(job(QString(5000, u'x'))).finished);
    const QStringList files = filesIn(folder.path());
    QCOMPARE(files.size(), 3);
    QVERIFY(files.contains(QStringLiteral("_a_b_ 'c' _ 2026-03-05 12.07.09.pdf")));
    QVERIFY(files.contains(QStringLiteral("PDF 2026-03-05 12.07.09.pdf")));
  }

  void everyFolderIsTriedBeforeItFails() {
    const QTemporaryDir folder;
    // A file, a folder that is not there, none at all: no place for a file.
    const QString file = folder.filePath(QStringLiteral("file"));
    QFile made(file);
    QVERIFY(made.open(QIODevice::WriteOnly));
    made.close();
    const QString last = folder.filePath(QStringLiteral("last"));
    QVERIFY(QDir().mkdir(last));
    PdfFolder printer({file, folder.filePath(QStringLiteral("missing")), {}, last}, noon);
    QVERIFY(printer.print(job(QStringLiteral("Somme"))).finished);
    QCOMPARE(filesIn(last).size(), 1);
    PdfFolder none({file, {}}, noon);
    QVERIFY(!none.print(job(QStringLiteral("Somme"))).finished);
  }

  void nothingIsLeftOfAFileThatCouldNotBeWrittenWhole() {
    const QTemporaryDir folder;
    PdfFolder printer({folder.path()}, noon);
    {
      const FullDisk full;
      QVERIFY(!printer.print(job(QStringLiteral("Somme"), QByteArray(100000, 'x'))).finished);
    }
    QVERIFY(filesIn(folder.path()).isEmpty());
    QVERIFY(printer.print(job(QStringLiteral("Somme"), QByteArray(100000, 'x'))).finished);
    QCOMPARE(filesIn(folder.path()).size(), 1);
  }

  void itTakesA4AndA3InColorAndStartsWithA4() {
    const platform::PrinterTraits traits = PdfFolder::traits();
    QCOMPARE(traits.papers.size(), size_t(2));
    QCOMPARE(traits.papers[0].code, 9);
    QCOMPARE(traits.papers[1].code, 8);
    QCOMPARE(traits.standard.paper, traits.papers[0]);
    QCOMPARE(traits.standard.color, platform::ColorMode::Color);
    QVERIFY(traits.printsColor && traits.takesPages && !traits.feedsUpright);
  }
};

const prova::Iscrizione<PdfFolderTest, QCoreApplication> kIscritta;

}  // namespace pdf_folder_test

#include "pdf_folder_test.moc"
