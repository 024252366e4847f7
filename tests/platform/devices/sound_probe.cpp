// Plays the sounds given, waits after each for the milliseconds given, then does nothing for the
// milliseconds of the first argument:
//   probe_sound <idle ms> <sound> <ms> [<sound> <ms> ...]
// Writes to stdout the longest gap of its event loop, the beeps, how often its threads went to
// sleep in the idle time, and whether anybody took its signals; with PROBE_TALKS=1 after each wait
// two lines of its own to stderr, "own line" and "plain line". Ends as the program does.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTimer>
#include <csignal>
#include <cstdio>

#include "platform/devices/linux/sdl_sound.h"
#include "platform/devices/qt_time_source.h"
#include "platform/devices/system_process_end.h"
#include "support/stand_still.h"
#include "waiting.h"

namespace {

// How often any thread of the process has gone to sleep of its own accord.
int sleeps() {
  int sum = 0;
  const QDir tasks(QStringLiteral("/proc/self/task"));
  for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    QFile status(tasks.filePath(task) + QStringLiteral("/status"));
    if (!status.open(QFile::ReadOnly)) {
      continue;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
      if (line.startsWith("voluntary_ctxt_switches:")) {
        sum += line.mid(line.indexOf(':') + 1).trimmed().toInt();
      }
    }
  }
  return sum;
}

bool handlesSignal(int signal) {
  struct sigaction action {};
  return sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_DFL;
}

// Whether a thread other than the first would take the program's signals.
bool aThreadTakesSignals() {
  const QDir tasks(QStringLiteral("/proc/self/task"));
  const QString self = QString::number(QCoreApplication::applicationPid());
  for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    QFile status(tasks.filePath(task) + QStringLiteral("/status"));
    if (task == self || !status.open(QFile::ReadOnly)) {
      continue;
    }
    const QByteArray text = status.readAll();
    const qulonglong blocked = text.mid(text.indexOf("SigBlk:") + 7)
                                   .trimmed()
                                   .split('\n')
                                   .first()
                                   .toULongLong(nullptr, 16);
    if ((blocked >> (SIGTERM - 1) & 1U) == 0) {
      return true;
    }
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  // A buffer would be shared with every library in here: one that flushes on a thread with files of
  // its own would take the report with it.
  static_cast<void>(std::setvbuf(stdout, nullptr, _IONBF, 0));
  const QCoreApplication app(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  platform::QtTimeSource time;
  int beeps = 0;
  platform::SdlSound sound([&beeps] { ++beeps; });

  prova::StandStill still;
  QTimer heart;
  heart.setTimerType(Qt::PreciseTimer);
  QObject::connect(&heart, &QTimer::timeout, [&] { still.beat(); });
  heart.start(5);
  for (qsizetype i = 2; i + 1 < arguments.size(); i += 2) {
    sound.play(arguments[i]);
    still.beat();
    prova::waitSeconds(time, arguments[i + 1].toInt() / 1000.0);
    if (qEnvironmentVariableIntValue("PROBE_TALKS") == 1) {
      qWarning("own line");
      static_cast<void>(std::fputs("plain line\n", stderr));
    }
  }
  heart.stop();
  const int before = sleeps();
  prova::waitSeconds(time, arguments.value(1).toInt() / 1000.0);
  std::printf("gap %lld beeps %d sleeps %d signals %d\n", static_cast<long long>(still.longest()),
              beeps, sleeps() - before,
              handlesSignal(SIGINT) || handlesSignal(SIGTERM) || aThreadTakesSignals() ? 1 : 0);
  platform::SystemProcessEnd().end(0);
  return 0;
}
