#include "platform/base/files_in_folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class FilesInFolderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFilesOfTheSuffixComeSortedWithoutCase() {
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
                          QStringLiteral("English.lng"), QStringLiteral("Italiano.lng"),
                          QStringLiteral("italiano.lng"), QStringLiteral("Zulu.lng")}));
  }

  void aFolderThatIsNotThereHasNoFiles() {
    QVERIFY(platform::filesInFolder(QStringLiteral("/no/such/folder"), QStringLiteral(".lng"))
                .isEmpty());
  }
};

QTEST_APPLESS_MAIN(FilesInFolderTest)
#include "files_in_folder_test.moc"
