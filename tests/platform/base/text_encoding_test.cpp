#include "platform/base/text_encoding.h"

#include <QTest>

#include "support/iscrizione.h"

namespace text_encoding_test {

using platform::TextEncoding;

class TextEncodingTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aTextIsUtf8OnlyWhenAllOfItIs_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isUtf8");
    QTest::newRow("nothing") << QByteArray() << true;
    QTest::newRow("plain letters") << QByteArray("citta") << true;
    QTest::newRow("an accent in two bytes") << QByteArray("citt\xC3\xA0") << true;
    QTest::newRow("an accent in one byte") << QByteArray("citt\xE0, poi") << false;
    QTest::newRow("one byte of two at the end") << QByteArray("citt\xC3") << false;
    QTest::newRow("a long way to write a slash") << QByteArray("\xC0\xAF") << false;
    QTest::newRow("half a pair of surrogates") << QByteArray("\xED\xA0\x80") << false;
    QTest::newRow("beyond the last character") << QByteArray("\xF4\x90\x80\x80") << false;
    QTest::newRow("sixteen-bit text") << QByteArray("\xFF\xFE\x41\x00", 4) << false;
    QTest::newRow("NULs") << QByteArray("a\0b", 3) << true;
  }

  void aTextIsUtf8OnlyWhenAllOfItIs() {
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isUtf8);
    QCOMPARE(platform::encodingOf(bytes) == TextEncoding::Utf8, isUtf8);
  }

  void theCheckDoesNotMindWhereATextIsCut() {
    const QByteArray text("\xC3\xA0\xE2\x82\xAC\xF0\x9F\x99\x82");
    for (qsizetype cut = 0; cut <= text.size(); ++cut) {
      platform::Utf8Check check;
      check.add(QByteArrayView(text).first(cut));
      check.add(QByteArrayView(text).sliced(cut));
      QVERIFY(check.finish());
    }
  }

  void everyByteOfWindows1252HasItsCharacterAndComesBack() {
    for (int byte = 0; byte < 256; ++byte) {
      const QByteArray bytes(1, static_cast<char>(byte));
      const QString text = platform::decodeText(bytes, TextEncoding::Windows1252);
      QCOMPARE(text.size(), 1);
      QCOMPARE(platform::encodeText(text, TextEncoding::Windows1252), bytes);
    }
    QCOMPARE(platform::decodeText("\x80\x92\xE0\x9F\x81", TextEncoding::Windows1252),
             QStringLiteral(u"€’àŸ\u0081"));
  }

  void whatWindows1252LacksBecomesOneQuestionMark() {
    QCOMPARE(platform::encodeText(u"a\u0416b", TextEncoding::Windows1252), QByteArray("a?b"));
    QCOMPARE(platform::encodeText(u"a\U0001F642b", TextEncoding::Windows1252), QByteArray("a?b"));
  }

  void aByteOrderMarkIsThreeBytes() {
    QCOMPARE(platform::byteOrderMarkSize("\xEF\xBB\xBF["), 3);
    QCOMPARE(platform::byteOrderMarkSize("\xEF\xBB"), 0);
    QCOMPARE(platform::byteOrderMarkSize(""), 0);
  }
};

const prova::Iscrizione<TextEncodingTest> kIscritta;

}  // namespace text_encoding_test

#include "text_encoding_test.moc"
