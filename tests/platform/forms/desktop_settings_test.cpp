#include "platform/forms/linux/desktop_settings.h"

#include <QCoreApplication>
#include <QTest>
#include <QtEndian>

#include "support/iscrizione.h"

namespace desktop_settings_test {

using platform::numberIn;

namespace {

const QByteArray kAnimations = QByteArrayLiteral("Gtk/EnableAnimations");

// Writes a block of settings as a desktop does, in one of the two orders of bytes.
class Block {
 public:
  explicit Block(bool bigEndian) : bigEndian_(bigEndian) {}

  Block& number(const QByteArray& name, qint32 value) {
    begin(0, name);
    put(settings_, quint32(value));
    return *this;
  }
  Block& text(const QByteArray& name, const QByteArray& value) {
    begin(1, name);
    put(settings_, quint32(value.size()));
    putText(value);
    return *this;
  }
  Block& color(const QByteArray& name) {
    begin(2, name);
    settings_ += QByteArray(8, char(0x7F));
    return *this;
  }
  [[nodiscard]] QByteArray bytes() const {
    QByteArray all(1, char(bigEndian_ ? 1 : 0));
    all += QByteArray(3, '\0');
    put(all, quint32(77));
    put(all, count_);
    return all + settings_;
  }

 private:
  template <class T>
  void put(QByteArray& to, T value) const {
    const T raw = bigEndian_ ? qToBigEndian(value) : qToLittleEndian(value);
    to.append(reinterpret_cast<const char*>(&raw), qsizetype(sizeof raw));
  }
  void putText(const QByteArray& text) {
    settings_ += text + QByteArray((4 - text.size() % 4) % 4, '\0');
  }
  void begin(char kind, const QByteArray& name) {
    settings_ += kind;
    settings_ += '\0';
    put(settings_, quint16(name.size()));
    putText(name);
    put(settings_, quint32(5));
    ++count_;
  }

  bool bigEndian_;
  quint32 count_ = 0;
  QByteArray settings_;
};

QByteArray desktop(bool bigEndian, int animations) {
  return Block(bigEndian)
      .text("Net/ThemeName", "Light")
      .color("Gtk/ColorOf")
      .number("Gtk/Enable", 9)
      .number(kAnimations, animations)
      .text("Gtk/FontName", "Sans 11")
      .bytes();
}

}  // namespace

// What a desktop tells its programs under X.
class DesktopSettingsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aNumberIsFoundByItsNameInBothOrdersOfBytes() {
    for (const bool bigEndian : {false, true}) {
      QCOMPARE(numberIn(desktop(bigEndian, 0), kAnimations), std::optional(0));
      QCOMPARE(numberIn(desktop(bigEndian, 1), kAnimations), std::optional(1));
      QCOMPARE(numberIn(desktop(bigEndian, -2), kAnimations), std::optional(-2));
    }
  }

  void whatIsNotThereOrNoNumberIsNone() {
    QCOMPARE(numberIn({}, kAnimations), std::nullopt);
    QCOMPARE(numberIn(desktop(false, 1), "Gtk/Other"), std::nullopt);
    QCOMPARE(numberIn(desktop(false, 1), "Net/ThemeName"), std::nullopt);
    QCOMPARE(numberIn(Block(false).bytes(), kAnimations), std::nullopt);
  }

  // It comes from another program: cut off anywhere, or with any byte wrong, it is read to its end.
  void aBrokenBlockIsReadNoFurtherThanItGoes() {
    const QByteArray whole = desktop(false, 0);
    const qsizetype end = whole.indexOf(kAnimations) + kAnimations.size() + 8;
    for (qsizetype size = 0; size < whole.size(); ++size) {
      QCOMPARE(numberIn(whole.left(size), kAnimations).has_value(), size >= end);
    }
    for (qsizetype at = 0; at < whole.size(); ++at) {
      for (const char wrong : {char(0xFF), char(0x80), char(1)}) {
        QByteArray bytes = whole;
        bytes[at] = wrong;
        (void)numberIn(bytes, kAnimations);
      }
    }
  }
};

const prova::Iscrizione<DesktopSettingsTest, QCoreApplication> kIscritta;

}  // namespace desktop_settings_test

#include "desktop_settings_test.moc"
