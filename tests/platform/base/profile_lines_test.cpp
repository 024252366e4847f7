#include "platform/base/profile_lines.h"

#include <QBuffer>
#include <QTest>

#include "support/iscrizione.h"

namespace profile_lines_test {

using platform::ProfileLines;

namespace {

// A file in memory that counts what is read of it.
class CountingFile final : public QBuffer {
 public:
  CountingFile(const QByteArray& bytes, qint64& bytesRead) : bytesRead_(bytesRead) {
    setData(bytes);
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  }

 protected:
  qint64 readData(char* data, qint64 size) override {
    const qint64 count = QBuffer::readData(data, size);
    bytesRead_ += std::max<qint64>(0, count);
    return count;
  }

 private:
  qint64& bytesRead_;
};

ProfileLines linesOf(const QByteArray& bytes) {
  static qint64 ignored = 0;
  return ProfileLines(std::make_unique<CountingFile>(bytes, ignored));
}

QString labelOf(const QByteArray& bytes) {
  return linesOf(bytes).value(QStringLiteral("Label1.Caption"));
}

}  // namespace

class ProfileLinesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theValueIsTheRestOfTheLineWithoutItsQuotes() {
    QCOMPARE(labelOf("[A]\nx=1\nLabel1.Caption=\"Avanti\"\ny=2\n"), QStringLiteral("Avanti"));
    QCOMPARE(labelOf("Label1.Caption=\"Avanti\""), QStringLiteral("Avanti"));
    QCOMPARE(labelOf("Label1.Caption=\" a = b \"\n"), QStringLiteral(" a = b "));
  }

  void theFirstAndLastCharacterGoWhateverTheyAre() {
    QCOMPARE(labelOf("Label1.Caption=Avanti\n"), QStringLiteral("vant"));
    QCOMPARE(labelOf("Label1.Caption=\xC3\xA8x\xC3\xA8\n"), QStringLiteral("x"));
    QCOMPARE(labelOf("Label1.Caption=\xF0\x9F\x99\x82x\xF0\x9F\x99\x82\n"), QStringLiteral("x"));
    QCOMPARE(labelOf("Label1.Caption=ab\n"), QString());
    QCOMPARE(labelOf("Label1.Caption=a\n"), QString());
    QCOMPARE(labelOf("Label1.Caption=\n"), QString());
    QCOMPARE(labelOf("Label1.Caption\n"), QString());
    QCOMPARE(labelOf("Label1.Caption"), QString());
  }

  void aReturnBeforeTheLineEndIsDropped() {
    QCOMPARE(labelOf("x=1\r\nLabel1.Caption=\"Avanti\"\r\n"), QStringLiteral("Avanti"));
    QCOMPARE(labelOf("x=1\rLabel1.Caption=\"Avanti\"\ry=2"), QStringLiteral("Avanti"));
  }

  void theSectionIsIgnored() {
    QCOMPARE(labelOf("[Other]\nLabel1.Caption=\"a\"\n[FormMenu]\nLabel1.Caption=\"b\"\n"),
             QStringLiteral("a"));
  }

  void keysAreComparedWithCaseFromTheFirstColumn() {
    QCOMPARE(labelOf("label1.caption=\"a\"\n Label1.Caption=\"b\"\nxLabel1.Caption=\"c\"\n"),
             QString());
  }

  void aKeyThatBeginsALongerOneMatchesIt() {
    ProfileLines lines = linesOf("Label10.Caption=\"ten\"\nLabel1.Caption=\"one\"\n");
    QCOMPARE(lines.value(QStringLiteral("Label1")), QStringLiteral("Caption=\"ten"));
    QCOMPARE(lines.value(QStringLiteral("Label1.Caption")), QStringLiteral("one"));
    QCOMPARE(lines.value(QStringLiteral("L")), QStringLiteral("el10.Caption=\"ten"));
    QCOMPARE(lines.value(QStringLiteral("Label1.Caption=\"o")), QString());
    QCOMPARE(lines.value(QStringLiteral("Label1.Caption=\"x")), QString());
    QCOMPARE(lines.value(QStringLiteral("Label1.Caption=")), QStringLiteral("ne"));
  }

  void keysLongerThanTheFiltersKnowAreComparedToTheirEnd() {
    const QByteArray stem(60, 'k');
    ProfileLines lines = linesOf(stem + "1=\"a\"\n" + stem + "2=\"b\"\n");
    QCOMPARE(lines.value(QString::fromLatin1(stem) + u'2'), QStringLiteral("b"));
    QCOMPARE(lines.value(QString::fromLatin1(stem) + u'3'), QString());
  }

  void aByteOrderMarkIsNoPartOfTheFirstLine() {
    QCOMPARE(labelOf("\xEF\xBB\xBFLabel1.Caption=\"\xC3\xA8\"\n"), QStringLiteral("è"));
  }

  void whatIsNotUtf8IsWindows1252FromEndToEnd() {
    QCOMPARE(labelOf("Label1.Caption=\"unit\xE0\"\n"), QStringLiteral("unità"));
    const QByteArray far = QByteArray(200'000, 'x') + "\n\xE0";
    QCOMPARE(labelOf("Label1.Caption=\"\xC3\xA8\"\n" + far), QStringLiteral("Ã¨"));
    QCOMPARE(labelOf("Label1.Caption=\"\xC3\xA8\"\n" + far + "\n\xC3\xA8"), QStringLiteral("Ã¨"));
  }

  void aKeyThatTheEncodingLacksIsNotFound() {
    QCOMPARE(linesOf("?=\"a\"\nx=\"\xE0\"\n").value(QStringLiteral("Ж")), QString());
  }

  void noKeyIsFoundAcrossLinesAndAnEmptyOneIsNone() {
    ProfileLines lines = linesOf("a\nb=\"c\"\n");
    QCOMPARE(lines.value(QStringLiteral("a\nb")), QString());
    QCOMPARE(lines.value(QString()), QString());
    QCOMPARE(lines.value(QString(200'000, u'a')), QString());
  }

  // Lines that begin, end or are cut at each place around the border between two parts.
  void theBordersOfThePartsDoNotShow() {
    for (qint64 before = ProfileLines::kPartSize - 40; before < ProfileLines::kPartSize + 3;
         ++before) {
      const QByteArray bytes = QByteArray(before - 1, 'x') +
                               "\nLabel1.Caption=\"\xC3\xA8 vero\"\n" +
                               QByteArray(ProfileLines::kPartSize, 'y') + "\nLast=\"z\"";
      ProfileLines lines = linesOf(bytes);
      QCOMPARE(lines.value(QStringLiteral("Label1.Caption")), QStringLiteral("è vero"));
      QCOMPARE(lines.value(QStringLiteral("abel1.Caption")), QString());
      QCOMPARE(lines.value(QStringLiteral("Last")), QStringLiteral("z"));
    }
  }

  void aVeryLongValueIsCut() {
    const QByteArray begin("Label1.Caption=\"");
    QCOMPARE(labelOf(begin + QByteArray(300'000, 'v') + "\"\n"),
             QString(ProfileLines::kLongestValue, u'v'));
    QByteArray wide;
    for (int i = 0; i < 200'000; ++i) wide += "\xE2\x82\xAC";
    QCOMPARE(labelOf(begin + wide + "\"\n"), QString(ProfileLines::kLongestValue, u'€'));
    const QByteArray fitting(ProfileLines::kLongestValue, 'v');
    QCOMPARE(labelOf(begin + fitting + "\"\n"), QString::fromLatin1(fitting));
    QCOMPARE(labelOf(begin + fitting + "\""), QString::fromLatin1(fitting));
  }

  void brokenFilesHaveNoValues_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("only a mark") << QByteArray("\xEF\xBB\xBF");
    QTest::newRow("NULs") << QByteArray(200'000, '\0');
    QTest::newRow("line ends") << QByteArray(200'000, '\n');
    QTest::newRow("returns") << QByteArray(200'000, '\r');
    QTest::newRow("one line") << QByteArray(200'000, 'L');
    QTest::newRow("high bytes") << QByteArray(200'000, '\xFF');
  }

  void brokenFilesHaveNoValues() {
    QFETCH(QByteArray, bytes);
    QCOMPARE(labelOf(bytes), QString());
  }

  void aValueEndsAtItsFirstNul() {
    QCOMPARE(labelOf(QByteArray("Label1.Caption=\"ab\0cd\"\n", 23)), QStringLiteral("ab"));
  }

  // The lookups of a form with 60 controls in a file of 12 MB in which the form's keys come last
  // and two thirds of them are not there.
  void theLookupsOfAFormReadLittleMoreThanTheFileOnce() {
    QByteArray bytes;
    for (int i = 0; bytes.size() < 12'000'000; ++i) {
      bytes += "Control" + QByteArray::number(i) + ".Caption=\"text\"\n";
    }
    for (int i = 0; i < 60; ++i) {
      bytes += "Command" + QByteArray::number(i) + ".Caption=\"c" + QByteArray::number(i) + "\"\n";
    }
    qint64 bytesRead = 0;
    ProfileLines lines(std::make_unique<CountingFile>(bytes, bytesRead));
    QVERIFY(bytesRead < bytes.size() * 1.01);
    for (int i = 0; i < 60; ++i) {
      const QString name = QStringLiteral("Command%1").arg(i);
      QCOMPARE(lines.value(name + QStringLiteral(".Caption")), QStringLiteral("c%1").arg(i));
      QCOMPARE(lines.value(name + QStringLiteral(".ToolTipText")), QString());
      QCOMPARE(lines.value(name + QStringLiteral(".Tag")), QString());
    }
    QVERIFY2(bytesRead < 3 * bytes.size(), qPrintable(QString::number(bytesRead)));
  }

  void theFiltersTakeAnEighthOfTheFile() {
    QCOMPARE(linesOf(QByteArray(10 * ProfileLines::kPartSize, 'x')).filterSize(),
             std::size_t{10 * ProfileLines::kPartSize / 8});
  }

  // A file that has a size, but no bytes: what a large file costs without having one.
  void theFiltersOfAnyFileTakeSixteenMebibytesAtMost() {
    class Hollow final : public QIODevice {
     public:
      Hollow() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
      [[nodiscard]] qint64 size() const override { return qint64{1024} * 1024 * 1024; }

     protected:
      qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
      qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }
    };
    ProfileLines lines(std::make_unique<Hollow>());
    QVERIFY(lines.filterSize() <= std::size_t{16} * 1024 * 1024);
    QCOMPARE(lines.value(QStringLiteral("Label1.Caption")), QString());
  }

  void aFileThatShrinksGivesEmptyValues() {
    auto file = std::make_unique<QBuffer>();
    QBuffer* const shrinking = file.get();
    file->setData(QByteArray(100'000, 'x') + "\nLabel1.Caption=\"a\"\n");
    file->open(QIODevice::ReadOnly);
    ProfileLines lines(std::move(file));
    QCOMPARE(lines.value(QStringLiteral("Label1.Caption")), QStringLiteral("a"));
    shrinking->buffer().truncate(1000);
    QCOMPARE(lines.value(QStringLiteral("Label1.Caption")), QString());
  }
};

const prova::Iscrizione<ProfileLinesTest> kIscritta;

}  // namespace profile_lines_test

#include "profile_lines_test.moc"
