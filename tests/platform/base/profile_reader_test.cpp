#include "platform/base/profile_reader.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/base/run_time_error.h"
#include "support/iscrizione.h"

namespace profile_reader_test {

using platform::ProfileReader;
using platform::RunTimeError;

namespace {

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(bytes), bytes.size());
}

// A file of so many bytes in which the key k is "large" to the line reader, whatever the section,
// and "small" to the reader of sections.
QByteArray fileOfSize(qsizetype size) {
  const QByteArray head("[Other]\nk=\"large\"\n[Strings]\nk=\"small\"\n;");
  return head + QByteArray(size - head.size(), 'x');
}

}  // namespace

class ProfileReaderTest : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir folder_;
  ProfileReader reader_;

  [[nodiscard]] QString path() const { return folder_.filePath(QStringLiteral("a.lng")); }
  [[nodiscard]] QString readK() {
    return reader_.read(path(), QStringLiteral("Strings"), QStringLiteral("k"));
  }

 private Q_SLOTS:
  void init() {
    reader_ = ProfileReader();
    QFile::remove(path());
  }

  void aFileOf64000BytesIsReadBySectionsAndOneOf64001ByLines() {
    write(path(), fileOfSize(64000));
    QCOMPARE(readK(), QStringLiteral("small"));
    write(path(), fileOfSize(64001));
    QCOMPARE(readK(), QStringLiteral("large"));
  }

  void aValueInQuotesComesBackWithoutThemInBothModes() {
    for (const qsizetype padding : {0, 70000}) {
      write(path(), "[Strings]\nk=\"Avanti\"\n;" + QByteArray(padding, 'x'));
      QCOMPARE(readK(), QStringLiteral("Avanti"));
    }
  }

  void aFileThatIsNotThereIsAnError() {
    try {
      static_cast<void>(readK());
      QFAIL("no error");
    } catch (const RunTimeError& error) {
      QCOMPARE(error.number(), 53);
    }
  }

  void aFolderIsNoFile() {
    QVERIFY_THROWS_EXCEPTION(RunTimeError, static_cast<void>(reader_.read(folder_.path(), QString(),
                                                                          QStringLiteral("k"))));
  }

  void anEmptyFileHasNoValues() {
    write(path(), {});
    QCOMPARE(readK(), QString());
  }

  void aFileThatChangesIsNoticedAtTheNextRead() {
    for (int i = 0; i < 100; ++i) {
      // In place, of one size, within one tick of the file system's clock.
      write(path(), "[Strings]\nk=" + QByteArray::number(100 + i) + '\n');
      QCOMPARE(readK(), QString::number(100 + i));
    }
  }

  void aLargeFileThatChangesIsNoticedAtTheNextRead() {
    for (int i = 0; i < 5; ++i) {
      write(path(), fileOfSize(70000).replace("large", "larg" + QByteArray::number(i)));
      QCOMPARE(readK(), QStringLiteral("larg%1").arg(i));
    }
  }

  void aFileThatIsReplacedByOneOfTheSameSizeAndTimeIsNoticed() {
    write(path(), "[Strings]\nk=old\n");
    const QDateTime past = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    const auto setTime = [&](const QString& name) {
      QFile file(name);
      QVERIFY(file.open(QIODevice::ReadWrite));
      QVERIFY(file.setFileTime(past, QFileDevice::FileModificationTime));
    };
    setTime(path());
    QCOMPARE(readK(), QStringLiteral("old"));
    const QString other = folder_.filePath(QStringLiteral("b.lng"));
    write(other, "[Strings]\nk=new\n");
    setTime(other);
    QVERIFY(QFile::remove(path()));
    QVERIFY(QFile::rename(other, path()));
    QCOMPARE(readK(), QStringLiteral("new"));
  }

  void aFileThatVanishesIsNoticedAtTheNextReadAndSoIsItsReturn() {
    write(path(), "[Strings]\nk=a\n");
    QCOMPARE(readK(), QStringLiteral("a"));
    QVERIFY(QFile::remove(path()));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, static_cast<void>(readK()));
    write(path(), "[Strings]\nk=b\n");
    QCOMPARE(readK(), QStringLiteral("b"));
  }

  void severalFilesAreReadByTurns() {
    for (int round = 0; round < 3; ++round) {
      for (int i = 0; i < 4; ++i) {
        const QString name = folder_.filePath(QStringLiteral("turn%1.lng").arg(i));
        if (round == 0) write(name, "[S]\nk=" + QByteArray::number(i));
        QCOMPARE(reader_.read(name, QStringLiteral("S"), QStringLiteral("k")), QString::number(i));
      }
    }
  }
};

const prova::Iscrizione<ProfileReaderTest> kIscritta;

}  // namespace profile_reader_test

#include "profile_reader_test.moc"
