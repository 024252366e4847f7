#include "platform/forms/window_system.h"

#include <QCoreApplication>
#include <QTest>

#include "support/iscrizione.h"

namespace window_system_test {

// On which window system the application is made, as the toolkit reads it.
class WindowSystemTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    before_ = {qgetenv("QT_QPA_PLATFORM"), qgetenv("DISPLAY"), qgetenv("WAYLAND_DISPLAY")};
  }
  void cleanup() { set(before_.chosen, before_.x, before_.wayland); }

  void onADesktopWithBothItIsX_data() {
    QTest::addColumn<QByteArray>("chosen");
    QTest::addColumn<QByteArray>("x");
    QTest::addColumn<QByteArray>("wayland");
    QTest::addColumn<QByteArray>("made");
    QTest::newRow("both") << QByteArray() << QByteArray(":0") << QByteArray("wayland-0")
                          << QByteArray("xcb;wayland");
    QTest::newRow("X alone") << QByteArray() << QByteArray(":0") << QByteArray() << QByteArray();
    QTest::newRow("Wayland alone")
        << QByteArray() << QByteArray() << QByteArray("wayland-0") << QByteArray();
    QTest::newRow("chosen") << QByteArray("wayland") << QByteArray(":0") << QByteArray("wayland-0")
                            << QByteArray("wayland");
  }
  void onADesktopWithBothItIsX() {
    QFETCH(QByteArray, chosen);
    QFETCH(QByteArray, x);
    QFETCH(QByteArray, wayland);
    set(chosen, x, wayland);
    QByteArray made = "not made";
    platform::onBestWindowSystem([&] { made = qgetenv("QT_QPA_PLATFORM"); });
    QTEST(made, "made");
    // What the program starts takes its own choice.
    QCOMPARE(qgetenv("QT_QPA_PLATFORM"), chosen);
  }

 private:
  struct Environment {
    QByteArray chosen, x, wayland;
  };

  static void set(const QByteArray& chosen, const QByteArray& x, const QByteArray& wayland) {
    put("QT_QPA_PLATFORM", chosen);
    put("DISPLAY", x);
    put("WAYLAND_DISPLAY", wayland);
  }
  static void put(const char* name, const QByteArray& value) {
    value.isEmpty() ? qunsetenv(name) : qputenv(name, value);
  }

  Environment before_;
};

const prova::Iscrizione<WindowSystemTest, QCoreApplication> kIscritta;

}  // namespace window_system_test

#include "window_system_test.moc"
