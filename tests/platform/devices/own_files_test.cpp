#include "platform/devices/linux/own_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTest>
#include <array>
#include <functional>
#include <future>
#include <thread>

#include "platform/devices/quiet_thread.h"
#include "support/iscrizione.h"

namespace own_files_test {

using platform::startQuietThread;
using platform::takeOwnFiles;

namespace {

class Pipe {
 public:
  Pipe() {
    if (::pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0) qFatal("no pipe");
  }
  ~Pipe() {
    closeWriting();
    ::close(ends_[0]);
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  [[nodiscard]] int writing() const { return ends_[1]; }
  void closeWriting() {
    if (ends_[1] >= 0) ::close(ends_[1]);
    ends_[1] = -1;
  }
  [[nodiscard]] QByteArray read() const {
    QByteArray bytes(4096, '\0');
    const ssize_t length = ::read(ends_[0], bytes.data(), std::size_t(bytes.size()));
    return length < 0 ? QByteArray() : bytes.left(length);
  }
  // Nobody can write to it any more.
  [[nodiscard]] bool isAtItsEnd() const {
    char byte = 0;
    return ::read(ends_[0], &byte, 1) == 0;
  }

 private:
  std::array<int, 2> ends_{-1, -1};
};

// The process's error stream goes into a pipe meanwhile.
class ErrorStream {
 public:
  ErrorStream() : before_(::dup(STDERR_FILENO)) { ::dup2(pipe.writing(), STDERR_FILENO); }
  ~ErrorStream() {
    ::dup2(before_, STDERR_FILENO);
    ::close(before_);
  }
  ErrorStream(const ErrorStream&) = delete;
  ErrorStream& operator=(const ErrorStream&) = delete;

  Pipe pipe;

 private:
  int before_;
};

void say(const QByteArray& words) {
  QVERIFY(::write(STDERR_FILENO, words.constData(), std::size_t(words.size())) == words.size());
}

// Does something on a thread with files of its own, which stays until the end of this object.
class OwnThread {
 public:
  explicit OwnThread(const std::function<void()>& work) {
    std::promise<bool> done;
    std::future<bool> ready = done.get_future();
    thread_ = std::thread([this, &done, &work] {
      const bool taken = takeOwnFiles();
      work();
      done.set_value(taken);
      mayGo_.get_future().wait();
    });
    own = ready.get();
  }
  ~OwnThread() {
    mayGo_.set_value();
    thread_.join();
  }
  OwnThread(const OwnThread&) = delete;
  OwnThread& operator=(const OwnThread&) = delete;

  bool own = false;

 private:
  std::promise<void> mayGo_;
  std::thread thread_;
};

}  // namespace

class OwnFilesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatTheThreadWritesReachesNobodyAndTheOthersStreamsStay() {
    ErrorStream stream;
    say("before ");
    const OwnThread thread([] { say("hidden "); });
    say("after");
    const QByteArray seen = stream.pipe.read();
    QVERIFY(thread.own);
    QCOMPARE(seen, QByteArray("before after"));
  }

  void threadsThatItStartsAreSilentToo() {
    ErrorStream stream;
    const OwnThread thread([] { std::thread([] { say("hidden"); }).join(); });
    QCOMPARE(stream.pipe.read(), QByteArray());
  }

  void whatTheProgramClosesIsClosed() {
    Pipe pipe;
    const OwnThread thread([] {});
    QVERIFY(!pipe.isAtItsEnd());
    pipe.closeWriting();
    QVERIFY(pipe.isAtItsEnd());
  }

  void itsStreamsCanBeReadAndWrittenAndNothingElseIsOpen() {
    int open = 0;
    bool atEnd = false;
    const OwnThread thread([&] {
      char byte = 0;
      atEnd = ::read(STDIN_FILENO, &byte, 1) == 0;
      for (int file = 0; file < 1024; ++file) open += ::fcntl(file, F_GETFD) >= 0 ? 1 : 0;
    });
    QVERIFY(atEnd);
    QCOMPARE(open, 3);
  }

  void filesThatItOpensAreItsOwn() {
    int file = -1;
    bool mine = false;
    const OwnThread thread([&] {
      // Beyond every number that the process itself uses.
      file = ::fcntl(STDERR_FILENO, F_DUPFD, 512);
      mine = ::fcntl(file, F_GETFD) >= 0;
    });
    QVERIFY(mine);
    QVERIFY(::fcntl(file, F_GETFD) < 0);
  }

  void aThreadWithoutItSharesTheProgramsStreams() {
    ErrorStream stream;
    std::promise<void> done;
    QVERIFY(startQuietThread([&done] {
      say("seen");
      done.set_value();
    }));
    done.get_future().wait();
    QCOMPARE(stream.pipe.read(), QByteArray("seen"));
  }
};

const prova::Iscrizione<OwnFilesTest, QCoreApplication> kIscritta;

}  // namespace own_files_test

#include "own_files_test.moc"
