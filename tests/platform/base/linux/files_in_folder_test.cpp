#include "platform/base/files_in_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "support/iscrizione.h"

namespace files_in_folder_test {

class FilesInFolderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFilesOfTheSuffixInAnyCaseComeSortedWithoutCase() {
    const QTemporaryDir folder;
    for (const char* name :
         {"italiano.lng", "English.lng", "Due parole.lng", "Zulu.lng", "abc.lng",
          "italiano.lng.bak", "ITALIANO.LNG", "LangSetting.ini", ".lng", "Italiano.lng"}) {
      QFile file(folder.filePath(QString::fromLatin1(name)));
      QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.lng")));
    QCOMPARE(platform::filesInFolder(folder.path(), QStringLiteral(".lng")),
             QStringList({QStringLiteral("abc.lng"), QStringLiteral("Due parole.lng"),
                          QStringLiteral("English.lng"), QStringLiteral("ITALIANO.LNG"),
                          QStringLiteral("Italiano.lng"), QStringLiteral("italiano.lng"),
                          QStringLiteral("Zulu.lng")}));
  }

  void aNameThatIsNoTextIsLeftOut() {
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.path()) +
                            "/Fran\xe7"
                            "ais.lng";
    const int descriptor = ::creat(path.constData(), 0600);
    QVERIFY(descriptor >= 0);
    ::close(descriptor);
    QVERIFY(platform::filesInFolder(folder.path(), QStringLiteral(".lng")).isEmpty());
    QCOMPARE(::unlink(path.constData()), 0);
  }
};

const prova::Iscrizione<FilesInFolderTest> kIscritta;

}  // namespace files_in_folder_test

#include "files_in_folder_test.moc"
