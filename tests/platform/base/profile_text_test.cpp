#include "platform/base/profile_text.h"

#include <QTest>

#include "platform/base/system_files.h"
#include "support/iscrizione.h"

namespace profile_text_test {

using platform::ProfileText;

namespace {

const QString form = QStringLiteral("FormMenu");
const QString label = QStringLiteral("Label1.Caption");

QString labelOf(const QByteArray& text) {
  return ProfileText(text).value(form, label);
}

QByteArray withLabel(const QByteArray& text, const QString& value) {
  return ProfileText::withValue(text, form, label, value).value_or("refused");
}

}  // namespace

class ProfileTextTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aValueIsFoundByItsSectionAndKey() {
    const ProfileText text("[Strings]\nk=1\n[FormMenu]\nk=2\n\n[Other]\nk=3\n");
    QCOMPARE(text.value(QStringLiteral("Strings"), QStringLiteral("k")), QStringLiteral("1"));
    QCOMPARE(text.value(form, QStringLiteral("k")), QStringLiteral("2"));
    QCOMPARE(text.value(form, QStringLiteral("kk")), QString());
    QCOMPARE(text.value(QStringLiteral("Form"), QStringLiteral("k")), QString());
  }

  void aKeyIsNoBeginningOfALongerOne() {
    QCOMPARE(labelOf("[FormMenu]\nLabel1.Caption2=x\nLabel1.Cap=y\n"), QString());
  }

  void sectionAndKeyMatchWithoutCase() {
    QCOMPARE(labelOf("[FORMMENU]\nlabel1.CAPTION=x\n"), QStringLiteral("x"));
    QCOMPARE(
        ProfileText("[Perch\xC3\x89]\nk=x").value(QStringLiteral("perché"), QStringLiteral("K")),
        QStringLiteral("x"));
  }

  void theFirstMatchWins() {
    QCOMPARE(labelOf("[FormMenu]\nLabel1.Caption=a\nLABEL1.CAPTION=b\n"), QStringLiteral("a"));
    QCOMPARE(labelOf("[FormMenu]\nx=1\n[B]\n[formmenu]\nLabel1.Caption=b\n"), QStringLiteral("b"));
    QByteArray many("[FormMenu]\n");
    for (int i = 0; i < 1000; ++i) many += "Label1.Caption=" + QByteArray::number(i) + '\n';
    QCOMPARE(labelOf(many), QStringLiteral("0"));
  }

  void blanksAroundKeyAndValueFallAway() {
    QCOMPARE(labelOf("  [ FormMenu ]  \n \t Label1.Caption \t = \t a  b \t \n"),
             QStringLiteral("a  b"));
  }

  void onePairOfQuotesFallsAway_data() {
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("read");
    QTest::newRow("a pair") << QByteArray("\"Avanti\"") << QStringLiteral("Avanti");
    QTest::newRow("blanks inside stay") << QByteArray("\" Avanti \"") << QStringLiteral(" Avanti ");
    QTest::newRow("two pairs") << QByteArray("\"\"Avanti\"\"") << QStringLiteral("\"Avanti\"");
    QTest::newRow("an empty pair") << QByteArray("\"\"") << QString();
    QTest::newRow("one alone") << QByteArray("\"") << QStringLiteral("\"");
    QTest::newRow("only the first") << QByteArray("\"Avanti") << QStringLiteral("\"Avanti");
    QTest::newRow("only the last") << QByteArray("Avanti\"") << QStringLiteral("Avanti\"");
    QTest::newRow("apostrophes stay") << QByteArray("'Avanti'") << QStringLiteral("'Avanti'");
  }

  void onePairOfQuotesFallsAway() {
    QFETCH(QByteArray, written);
    QFETCH(QString, read);
    QCOMPARE(labelOf("[FormMenu]\nLabel1.Caption=" + written + "\n"), read);
  }

  void onlyTheFirstEqualsSignDivides() {
    QCOMPARE(labelOf("[FormMenu]\nLabel1.Caption=\"3 + 4 = 7\"\n"), QStringLiteral("3 + 4 = 7"));
  }

  void commentsAreNoKeys() {
    QCOMPARE(labelOf("[FormMenu]\n;Label1.Caption=a\n  ;Label1.Caption=b\nLabel1.Caption=c;d\n"),
             QStringLiteral("c;d"));
    QCOMPARE(labelOf(";[FormMenu]\nLabel1.Caption=a\n"), QString());
  }

  void everyKindOfLineEndIsOne() {
    for (const QByteArray& end : {QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r")}) {
      QCOMPARE(labelOf("[FormMenu]" + end + "x=1" + end + "Label1.Caption=a" + end + "y=2"),
               QStringLiteral("a"));
    }
    QCOMPARE(labelOf("[FormMenu]\nLabel1.Caption=a"), QStringLiteral("a"));
  }

  void aByteOrderMarkIsNoPartOfTheFirstLine() {
    QCOMPARE(labelOf("\xEF\xBB\xBF[FormMenu]\nLabel1.Caption=\xC3\xA8\n"), QStringLiteral("è"));
  }

  void whatIsNotUtf8IsWindows1252FromEndToEnd() {
    QCOMPARE(labelOf("[FormMenu]\nLabel1.Caption=unit\xE0 \x80\n"), QStringLiteral("unità €"));
    QCOMPARE(labelOf("[FormMenu]\nLabel1.Caption=\xC3\xA8\nx=\xE8\n"), QStringLiteral("Ã¨"));
  }

  void aValueIsAtMost511Characters() {
    const auto read = [](const QString& value) {
      return labelOf("[FormMenu]\nLabel1.Caption=\"" + value.toUtf8() + "\"\n");
    };
    QCOMPARE(read(QString(511, u'è')), QString(511, u'è'));
    QCOMPARE(read(QString(512, u'è')), QString(511, u'è'));
    const QString smile = QString::fromUcs4(U"\U0001F642");
    QCOMPARE(read(QString(510, u'a') + smile), QString(510, u'a'));
    QCOMPARE(read(QString(509, u'a') + smile + u'b'), QString(509, u'a') + smile);
  }

  void aValueEndsAtItsFirstNul() {
    QCOMPARE(labelOf(QByteArray("[FormMenu]\nLabel1.Caption=\"ab\0cd\"\n", 34)),
             QStringLiteral("ab"));
  }

  void brokenTextsHaveNoValues_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("only a mark") << QByteArray("\xEF\xBB\xBF");
    QTest::newRow("an open section") << QByteArray("[FormMenu\nLabel1.Caption=a\n");
    QTest::newRow("no section") << QByteArray("Label1.Caption=a\n");
    QTest::newRow("cut in the key") << QByteArray("[FormMenu]\nLabel1.Capt");
    QTest::newRow("cut before the sign") << QByteArray("[FormMenu]\nLabel1.Caption");
    QTest::newRow("cut after the sign") << QByteArray("[FormMenu]\nLabel1.Caption=");
    QTest::newRow("NULs") << QByteArray(1000, '\0');
    QTest::newRow("line ends") << QByteArray("\r\r\n\n\r");
    QTest::newRow("signs") << QByteArray("=\n==\n[\n]\n[]\n;\n\"\n");
    QTest::newRow("sixteen-bit text")
        << QByteArray("\xFF\xFE[\0F\0o\0r\0m\0M\0e\0n\0u\0]\0\n\0L\0=\0a\0", 28);
  }

  void brokenTextsHaveNoValues() {
    QFETCH(QByteArray, text);
    QCOMPARE(labelOf(text), QString());
    QCOMPARE(ProfileText(text).value(form, QString()), QString());
  }

  void writingReplacesThatOneLineAndKeepsEveryOtherByte() {
    QCOMPARE(withLabel("\xEF\xBB\xBF; note\r\n[A]\r\nLabel1.Caption=a\r\n"
                       "[FormMenu]\r\n x = 1 \r\nlabel1.caption = \"b\"\r\ny=2\n[C]",
                       QStringLiteral("nuovo")),
             QByteArray("\xEF\xBB\xBF; note\r\n[A]\r\nLabel1.Caption=a\r\n"
                        "[FormMenu]\r\n x = 1 \r\nLabel1.Caption=nuovo\r\ny=2\n[C]"));
    QCOMPARE(withLabel("[FormMenu]\nLabel1.Caption=a", QStringLiteral("b")),
             QByteArray("[FormMenu]\nLabel1.Caption=b"));
    QCOMPARE(withLabel("[FormMenu]\nLabel1.Caption=a\nLabel1.Caption=b\n", QStringLiteral("c")),
             QByteArray("[FormMenu]\nLabel1.Caption=c\nLabel1.Caption=b\n"));
  }

  void aNewKeyGoesToTheEndOfItsSection() {
    QCOMPARE(withLabel("[FormMenu]\nx=1\n\n\n[B]\ny=2\n", QStringLiteral("a")),
             QByteArray("[FormMenu]\nx=1\nLabel1.Caption=a\n\n\n[B]\ny=2\n"));
    QCOMPARE(withLabel("[FormMenu]", QStringLiteral("a")),
             "[FormMenu]" + platform::lineEnd() + "Label1.Caption=a");
    QCOMPARE(withLabel("[FormMenu]\r\n", QStringLiteral("a")),
             QByteArray("[FormMenu]\r\nLabel1.Caption=a\r\n"));
    QCOMPARE(withLabel("[FormMenu]\nx=1\n[B]\n[FormMenu]\ny=2\n", QStringLiteral("a")),
             QByteArray("[FormMenu]\nx=1\nLabel1.Caption=a\n[B]\n[FormMenu]\ny=2\n"));
  }

  void aNewSectionGoesToTheEnd() {
    const QByteArray section =
        "[FormMenu]" + platform::lineEnd() + "Label1.Caption=a" + platform::lineEnd();
    QCOMPARE(withLabel("", QStringLiteral("a")), section);
    QCOMPARE(withLabel("\xEF\xBB\xBF", QStringLiteral("a")), "\xEF\xBB\xBF" + section);
    QCOMPARE(withLabel("[A]\r\nx=1", QStringLiteral("a")),
             QByteArray("[A]\r\nx=1\r\n[FormMenu]\r\nLabel1.Caption=a\r\n"));
  }

  void theEncodingOfTheTextIsKept() {
    QCOMPARE(withLabel("[FormMenu]\nx=\xE0\n", QStringLiteral("Français Ж")),
             QByteArray("[FormMenu]\nx=\xE0\nLabel1.Caption=Fran\xE7"
                        "ais ?\n"));
    QCOMPARE(withLabel("[FormMenu]\nx=1\n", QStringLiteral("Français")),
             QByteArray("[FormMenu]\nx=1\nLabel1.Caption=Fran\xC3\xA7"
                        "ais\n"));
  }

  void whatIsWrittenIsReadBack() {
    for (const QString& value :
         {QStringLiteral("Italiano"), QStringLiteral("Due parole"), QStringLiteral(" a "),
          QStringLiteral("\"a\""), QStringLiteral("\""), QStringLiteral("a=b;c]"), QString(),
          QStringLiteral("perché €"), QStringLiteral("\ta")}) {
      QCOMPARE(labelOf(withLabel("[FormMenu]\nx=1\n", value)), value);
      QCOMPARE(labelOf(withLabel("[FormMenu]\nLabel1.Caption=old\n", value)), value);
    }
  }

  void whatTheFormatCannotHoldIsRefused_data() {
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const QString ok = QStringLiteral("ok");
    QTest::newRow("a line break in the value") << ok << ok << QStringLiteral("a\nb");
    QTest::newRow("a return in the value") << ok << ok << QStringLiteral("a\rb");
    QTest::newRow("a NUL in the value") << ok << ok << QString(1, QChar(u'\0'));
    QTest::newRow("a line break in the key") << ok << QStringLiteral("a\nb") << ok;
    QTest::newRow("a line break in the section") << QStringLiteral("a\nb") << ok << ok;
    QTest::newRow("a bracket in the section") << QStringLiteral("a]b") << ok << ok;
    QTest::newRow("no section") << QStringLiteral(" ") << ok << ok;
    QTest::newRow("no key") << ok << QString() << ok;
    QTest::newRow("a sign in the key") << ok << QStringLiteral("a=b") << ok;
    QTest::newRow("a key like a section") << ok << QStringLiteral(" [a") << ok;
    QTest::newRow("a key like a comment") << ok << QStringLiteral(";a") << ok;
  }

  void whatTheFormatCannotHoldIsRefused() {
    QFETCH(QString, section);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QVERIFY(!ProfileText::withValue("[ok]\nok=1\n", section, key, value));
  }
};

const prova::Iscrizione<ProfileTextTest> kIscritta;

}  // namespace profile_text_test

#include "profile_text_test.moc"
