#include "platform/devices/linux/file_instance_lock.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
#include <memory>

#include "support/iscrizione.h"

namespace file_instance_lock_test {

using platform::FileInstanceLock;

namespace {

const QString kProbe = QStringLiteral(PROBES "/probe_instance");

class Instance {
 public:
  explicit Instance(const QStringList& folders, const QString& executable = kProbe,
                    const QProcessEnvironment& environment = {}) {
    if (!environment.isEmpty()) {
      process_.setProcessEnvironment(environment);
    }
    process_.start(executable, folders);
    process_.waitForStarted();
    process_.waitForReadyRead(10'000);
  }
  ~Instance() { kill(); }
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  [[nodiscard]] bool isRunning() const { return process_.state() == QProcess::Running; }
  [[nodiscard]] bool wasRefused() {
    const bool ended = !isRunning() || process_.waitForFinished(10'000);
    return ended && process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 1;
  }
  [[nodiscard]] bool hasTheLock() {
    return isRunning() && process_.readAllStandardOutput() == QByteArray("taken\n");
  }
  void kill() {
    process_.kill();
    process_.waitForFinished();
  }
  void leave() {
    process_.closeWriteChannel();
    process_.waitForFinished();
  }

 private:
  QProcess process_;
};

}  // namespace

class FileInstanceLockTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
  }

  void aSecondInstanceIsRefused() {
    Instance first({folder_->path()});
    QVERIFY(first.hasTheLock());
    Instance second({folder_->path()});
    QVERIFY(second.wasRefused());
    QVERIFY(first.isRunning());
  }

  void anInstanceThatWasKilledDoesNotBlockAStart() {
    Instance first({folder_->path()});
    QVERIFY(first.hasTheLock());
    first.kill();
    Instance second({folder_->path()});
    QVERIFY(second.hasTheLock());
  }

  void anInstanceThatEndedDoesNotBlockAStart() {
    Instance first({folder_->path()});
    QVERIFY(first.hasTheLock());
    first.leave();
    Instance second({folder_->path()});
    QVERIFY(second.hasTheLock());
  }

  void anotherExecutableIsNoInstance() {
    const QString other = folder_->filePath(QStringLiteral("other"));
    QVERIFY(QFile::copy(kProbe, other));
    Instance first({folder_->path()});
    QVERIFY(first.hasTheLock());
    Instance second({folder_->path()}, other);
    QVERIFY(second.hasTheLock());
    Instance third({folder_->path()}, other);
    QVERIFY(third.wasRefused());
  }

  void anExecutableStartedThroughALinkIsTheSame() {
    const QString link = folder_->filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(kProbe, link));
    Instance first({folder_->path()});
    QVERIFY(first.hasTheLock());
    Instance second({folder_->path()}, link);
    QVERIFY(second.wasRefused());
    // Also where the caller hands in the link itself.
    FileInstanceLock here(link, {folder_->path()});
    QVERIFY(!here.take());
  }

  void aProgramStartedByTheInstanceDoesNotKeepTheLock() {
    QProcess child;
    {
      FileInstanceLock lock(kProbe, {folder_->path()});
      QVERIFY(lock.take());
      child.start(QStringLiteral("cat"), {});
      QVERIFY(child.waitForStarted());
    }
    FileInstanceLock next(kProbe, {folder_->path()});
    QVERIFY(next.take());
    child.kill();
    child.waitForFinished();
  }

  void aRefusedLockCanBeTakenLater() {
    auto first = std::make_unique<FileInstanceLock>(kProbe, QStringList{folder_->path()});
    FileInstanceLock second(kProbe, {folder_->path()});
    QVERIFY(first->take());
    QVERIFY(!second.take());
    first.reset();
    QVERIFY(second.take());
  }

  void startsFromDifferentEnvironmentsMeetInTheFolderThatTheyShare() {
    QTemporaryDir session;
    Instance first({session.path(), folder_->path()});
    QVERIFY(first.hasTheLock());
    Instance second({folder_->path()});
    QVERIFY(second.wasRefused());
    // A refused start leaves no lock behind.
    QTemporaryDir third;
    FileInstanceLock refused(kProbe, {third.path(), folder_->path()});
    QVERIFY(!refused.take());
    FileInstanceLock free(kProbe, {third.path()});
    QVERIFY(free.take());
  }

  void theSameFolderGivenTwiceIsNoTrouble() {
    QVERIFY(QFile::link(folder_->path(), folder_->filePath(QStringLiteral("again"))));
    FileInstanceLock lock(
        kProbe, {folder_->path(), folder_->path(), folder_->filePath(QStringLiteral("again"))});
    QVERIFY(lock.take());
    QVERIFY(lock.take());
  }

  void aStartIsAllowedWhereNoFileCanBeHad_data() {
    QTest::addColumn<QStringList>("folders");
    QTest::newRow("no folder") << QStringList();
    QTest::newRow("missing") << QStringList{QStringLiteral("/nowhere/at/all")};
    QTest::newRow("read-only") << QStringList{QStringLiteral("/proc/self")};
    QTest::newRow("a file") << QStringList{kProbe};
    QTest::newRow("empty name") << QStringList{QString()};
  }
  void aStartIsAllowedWhereNoFileCanBeHad() {
    QFETCH(QStringList, folders);
    if (folders == QStringList{QString()} && ::access("/", W_OK) == 0) {
      folders = {QStringLiteral("/sys")};  // never leave a file in the root folder
    }
    FileInstanceLock first(kProbe, folders);
    QVERIFY(first.take());
    FileInstanceLock second(kProbe, folders);
    QVERIFY(second.take());
  }

  void aFolderThatCannotBeWrittenIsPassedOver() {
    Instance first({QStringLiteral("/nowhere"), folder_->path()});
    QVERIFY(first.hasTheLock());
    Instance second({QStringLiteral("/nowhere"), folder_->path()});
    QVERIFY(second.wasRefused());
  }

  void somethingElseUnderTheNameOfTheFileDoesNotBlockAStart_data() {
    QTest::addColumn<QString>("what");
    for (const auto* what : {"folder", "pipe", "dead link", "link"}) {
      QTest::newRow(what) << QString::fromLatin1(what);
    }
  }
  void somethingElseUnderTheNameOfTheFileDoesNotBlockAStart() {
    QFETCH(QString, what);
    QTemporaryFile victim;
    QVERIFY(victim.open());
    QCOMPARE(::flock(victim.handle(), LOCK_EX | LOCK_NB), 0);
    {
      FileInstanceLock lock(kProbe, {folder_->path()});
      QVERIFY(lock.take());
    }
    const QStringList files = QDir(folder_->path()).entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    const QString file = folder_->filePath(files[0]);
    QVERIFY(QFile::remove(file));
    if (what == QStringLiteral("folder")) {
      QVERIFY(QDir().mkdir(file));
    } else if (what == QStringLiteral("pipe")) {
      QCOMPARE(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    } else if (what == QStringLiteral("dead link")) {
      QVERIFY(QFile::link(QStringLiteral("/nowhere/at/all"), file));
    } else {
      // To a file of this user's that is locked for a reason of its own.
      QVERIFY(QFile::link(victim.fileName(), file));
    }
    FileInstanceLock lock(kProbe, {folder_->path()});
    QVERIFY(lock.take());
  }

  void aFileOfAnotherUserDoesNotBlockAStart() {
    if (::getuid() != 0) {
      return;  // only root can hand a file to somebody else
    }
    FileInstanceLock first(kProbe, {folder_->path()});
    QVERIFY(first.take());
    const QString file =
        folder_->filePath(QDir(folder_->path()).entryList(QDir::Files).constFirst());
    QCOMPARE(::chown(QFile::encodeName(file).constData(), 1, 1), 0);
    FileInstanceLock second(kProbe, {folder_->path()});
    QVERIFY(second.take());
  }

  void theUsualFoldersAreTheSessionsAndTheTemporaryOne() {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder_->path());
    QTemporaryDir temporary;
    environment.insert(QStringLiteral("TMPDIR"), temporary.path());
    const QString copy = folder_->filePath(QStringLiteral("copy"));
    QVERIFY(QFile::copy(kProbe, copy));
    Instance first({}, copy, environment);
    QVERIFY(first.hasTheLock());
    Instance second({}, copy, environment);
    QVERIFY(second.wasRefused());
    environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    Instance third({}, copy, environment);
    QVERIFY(third.wasRefused());
    QCOMPARE(QDir(temporary.path()).entryList({QStringLiteral("*.lock")}, QDir::Files).size(), 1);
  }

 private:
  std::unique_ptr<QTemporaryDir> folder_;
};

const prova::Iscrizione<FileInstanceLockTest, QCoreApplication> kIscritta;

}  // namespace file_instance_lock_test

#include "file_instance_lock_test.moc"
