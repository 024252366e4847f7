#include "platform/base/files_in_folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "support/iscrizione.h"

namespace files_in_folder_test {

class FilesInFolderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFilesOfTheSuffixInAnyCaseComeSorted() {
    const QTemporaryDir folder;
    for (const char* name :
         {"italiano.lng", "English.LNG", "Due parole.lng", "italiano.lng.bak", "LangSetting.ini"}) {
      QFile file(folder.filePath(QString::fromLatin1(name)));
      QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.lng")));
    QCOMPARE(platform::filesInFolder(folder.path(), QStringLiteral(".lng")),
             QStringList({QStringLiteral("Due parole.lng"), QStringLiteral("English.LNG"),
                          QStringLiteral("italiano.lng")}));
  }

  void aFolderThatIsNotThereHasNoFiles() {
    QVERIFY(platform::filesInFolder(QStringLiteral("/no/such/folder"), QStringLiteral(".lng"))
                .isEmpty());
  }
};

const prova::Iscrizione<FilesInFolderTest> kIscritta;

}  // namespace files_in_folder_test

#include "files_in_folder_test.moc"
