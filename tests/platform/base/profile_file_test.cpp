#include "platform/base/profile_file.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

#include "platform/base/profile_reader.h"
#include "profile_bytes.h"
#include "support/iscrizione.h"

namespace profile_file_test {

using namespace profile_bytes;

class ProfileFileTest : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir folder_;

  [[nodiscard]] QString path() const { return folder_.filePath(QStringLiteral("LangSetting.ini")); }

 private Q_SLOTS:
  void init() { QFile::remove(path()); }

  void theValueWrittenIsReadBackAndAllOtherBytesStay() {
    put(path(), oldBytes);
    QCOMPARE(platform::ProfileReader().read(path(), section, key), QStringLiteral("Italiano"));
    platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
    QCOMPARE(bytesOf(path()), newBytes);
    QCOMPARE(platform::ProfileReader().read(path(), section, key), QStringLiteral("English"));
  }

  void aFileThatIsNotThereIsMadeByWriting() {
    QVERIFY(!QFile::exists(path()));
    platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
    const bool isWindows = QSysInfo::kernelType() == u"winnt";
    QCOMPARE(bytesOf(path()), isWindows ? QByteArray("[Language]\r\nCurrentLanguage=English\r\n")
                                        : QByteArray("[Language]\nCurrentLanguage=English\n"));
  }

  void aValueThatIsThereAlreadyIsNotWrittenAgain() {
    put(path(), newBytes);
    const QDateTime past = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    {
      QFile file(path());
      QVERIFY(file.open(QIODevice::ReadWrite));
      QVERIFY(file.setFileTime(past, QFileDevice::FileModificationTime));
    }
    platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
    QCOMPARE(QFileInfo(path()).lastModified(), past);
  }

  void whatCanBeWrittenIsKnownBeforehand() {
    QVERIFY(platform::isProfileWritable(path()));  // not there yet
    put(path(), oldBytes);
    QVERIFY(platform::isProfileWritable(path()));
    QVERIFY(!platform::isProfileWritable(folder_.path()));
    QVERIFY(!platform::isProfileWritable(QStringLiteral("/no/such/folder/a.ini")));
  }

  void whereNoFileCanBeNothingHappens() {
    platform::writeProfileValue(QStringLiteral("/no/such/folder/a.ini"), section, key, key);
    QVERIFY(!QFile::exists(QStringLiteral("/no/such/folder/a.ini")));
    platform::writeProfileValue(folder_.path(), section, key, key);
    QVERIFY(QFileInfo(folder_.path()).isDir());
  }
};

const prova::Iscrizione<ProfileFileTest> kIscritta;

}  // namespace profile_file_test

#include "profile_file_test.moc"
