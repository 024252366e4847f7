// Takes the lock of its own executable in the folders given, says so, and stays until it is ended
// or its input is closed. Ends with 1 where another instance holds the lock.
#include <QCoreApplication>
#include <cstdio>

#include "platform/devices/linux/file_instance_lock.h"

int main(int argc, char** argv) {
  const QCoreApplication app(argc, argv);
  const QStringList folders = QCoreApplication::arguments().mid(1);
  const QString executable = QCoreApplication::applicationFilePath();
  platform::FileInstanceLock usual(executable);
  platform::FileInstanceLock given(executable, folders);
  platform::FileInstanceLock& lock = folders.isEmpty() ? usual : given;
  if (!lock.take() || !lock.take()) {
    return 1;
  }
  static_cast<void>(std::puts("taken"));
  static_cast<void>(std::fflush(stdout));
  static_cast<void>(std::getchar());
  return 0;
}
