#include "platform/devices/linux/sdl_library.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include "support/iscrizione.h"

namespace sdl_library_test {

using platform::SdlLibrary;

namespace {

bool isLoaded(const char* library) {
  QFile maps(QStringLiteral("/proc/self/maps"));
  return maps.open(QFile::ReadOnly) && maps.readAll().contains(library);
}

}  // namespace

class SdlLibraryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theLibraryIsLoadedOnDemandOnly() {
    QVERIFY(!isLoaded("libSDL2"));
    QVERIFY(SdlLibrary::load().has_value());
    QVERIFY(isLoaded("libSDL2"));
  }

  void aMissingLibraryIsNoLibrary() {
    QVERIFY(!SdlLibrary::load("libSDL2-of-another-world.so.0").has_value());
  }

  void aLibraryWithoutTheFunctionsIsNoLibrary() {
    QVERIFY(!SdlLibrary::load("libm.so.6").has_value());
  }
};

const prova::Iscrizione<SdlLibraryTest, QCoreApplication> kIscritta;

}  // namespace sdl_library_test

#include "sdl_library_test.moc"
