#include "platform/base/profile_reader.h"

#include <sys/resource.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "support/iscrizione.h"

namespace profile_reader_test {

namespace {

// As long as it lives the process may open no further file.
class NoMoreFiles {
 public:
  NoMoreFiles() {
    ::getrlimit(RLIMIT_NOFILE, &usual_);
    rlimit none = usual_;
    none.rlim_cur = 0;
    ::setrlimit(RLIMIT_NOFILE, &none);
  }
  ~NoMoreFiles() { ::setrlimit(RLIMIT_NOFILE, &usual_); }
  NoMoreFiles(const NoMoreFiles&) = delete;
  NoMoreFiles& operator=(const NoMoreFiles&) = delete;

 private:
  rlimit usual_{};
};

}  // namespace

// A language file that something keeps from being opened, as Linux has it.
class ProfileReaderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aFileThatCouldNotBeOpenedIsTriedAgain() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.lng"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Strings]\nk=Avanti\n");
    file.close();
    QTest::qWait(200);  // it no longer counts as just written
    platform::ProfileReader reader;
    const auto readK = [&] {
      return reader.read(path, QStringLiteral("Strings"), QStringLiteral("k"));
    };
    {
      const NoMoreFiles none;
      QCOMPARE(readK(), QString());
    }
    QCOMPARE(readK(), QStringLiteral("Avanti"));
  }
};

const prova::Iscrizione<ProfileReaderTest> kIscritta;

}  // namespace profile_reader_test

#include "profile_reader_test.moc"
