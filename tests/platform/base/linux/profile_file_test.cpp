#include "platform/base/profile_file.h"

#include <grp.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "../profile_bytes.h"
#include "support/iscrizione.h"

namespace profile_file_test {

using namespace profile_bytes;

// What happens to a file between processes, users and links, as Linux has them.
namespace {

// Runs the work in a process of its own and returns how that ended, as waitpid tells.
template <typename Work>
int statusOfChild(Work work) {
  const pid_t child = ::fork();
  if (child == 0) {
    work();
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return status;
}

}  // namespace

class ProfileFileTest : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir folder_;

  [[nodiscard]] QString path() const { return folder_.filePath(QStringLiteral("LangSetting.ini")); }

 private Q_SLOTS:
  void init() { QFile::remove(path()); }

  void theFileKeepsItsPermissions() {
    put(path(), oldBytes);
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(path(), permissions));
    platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
    QCOMPARE(bytesOf(path()), newBytes);
    QCOMPARE(QFile::permissions(path()) & ~(QFile::ReadUser | QFile::WriteUser), permissions);
  }

  void aLinkStaysALink() {
    const QString real = folder_.filePath(QStringLiteral("real.ini"));
    put(real, oldBytes);
    QVERIFY(QFile::link(real, path()));
    platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
    QCOMPARE(bytesOf(real), newBytes);
    QCOMPARE(QFile::symLinkTarget(path()), real);
  }

  // As another user where this is root, to whom every folder is open.
  void aFolderThatCannotBeWrittenLeavesTheFileAsItIs() {
    put(path(), oldBytes);
    QVERIFY(QFile::setPermissions(
        folder_.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    const int status = statusOfChild([&] {
      if (::geteuid() == 0 && ::seteuid(65534) != 0) ::_exit(2);
      if (QFile(folder_.filePath(QStringLiteral("probe"))).open(QIODevice::WriteOnly)) ::_exit(3);
      platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
    });
    QVERIFY(QFile::setPermissions(folder_.path(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(status, 0);
    QCOMPARE(bytesOf(path()), oldBytes);
    QCOMPARE(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden).filter(u"Lang"_qs).size(),
             1);
  }

  // As another user where this is root, to whom every file is open. 1: the file, 2: its folder, 3:
  // a link to it from a folder that can be written.
  void aFileOrFolderThatCannotBeWrittenIsKnownBeforehand() {
    put(path(), oldBytes);
    const auto all =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    QTemporaryDir elsewhere;
    const QString link = elsewhere.filePath(QStringLiteral("link.ini"));
    QVERIFY(QFile::link(path(), link));
    QVERIFY(QFile::setPermissions(elsewhere.path(), all | QFile::WriteOther));
    QVERIFY(QFile::setPermissions(path(), QFile::ReadOwner | QFile::ReadOther));
    QVERIFY(QFile::setPermissions(folder_.path(), all | QFile::WriteOther));
    const auto writable = [&](const QString& file) {
      return statusOfChild([&] {
        // Without root's groups, too: their rights would come before those of all others.
        if (::geteuid() == 0 &&
            (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0)) {
          ::_exit(9);
        }
        ::_exit(platform::isProfileWritable(file) ? 1 : 0);
      });
    };
    const int file = writable(path());
    QVERIFY(QFile::setPermissions(path(), all | QFile::WriteOther));
    const int open = writable(path());
    QVERIFY(QFile::setPermissions(folder_.path(), all & ~QFile::WriteOwner));
    const int folder = writable(path());
    const int linked = writable(link);
    QVERIFY(QFile::setPermissions(folder_.path(), all));
    QCOMPARE(WEXITSTATUS(open), 1);
    QCOMPARE(file, 0);
    QCOMPARE(folder, 0);
    QCOMPARE(linked, 0);
  }

  // A process that may write so many bytes into any file and is killed at the next one.
  void aCrashInTheMidstOfWritingLeavesTheOldFile() {
    for (rlim_t allowed = 0; allowed < static_cast<rlim_t>(newBytes.size()); ++allowed) {
      put(path(), oldBytes);
      const int status = statusOfChild([&] {
        const rlimit none{0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        const rlimit limit{allowed, allowed};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::signal(SIGXFSZ, SIG_DFL);
        platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
      });
      // A write over the limit is shortened first; the next one is what kills.
      QVERIFY(WIFSIGNALED(status));
      QCOMPARE(WTERMSIG(status), SIGXFSZ);
      QCOMPARE(bytesOf(path()), oldBytes);
    }
    clearLeftovers();
  }

  void aDiskThatIsFullLeavesTheOldFile() {
    put(path(), oldBytes);
    for (rlim_t allowed = 0; allowed < static_cast<rlim_t>(newBytes.size()); ++allowed) {
      const int status = statusOfChild([&] {
        const rlimit limit{allowed, allowed};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::signal(SIGXFSZ, SIG_IGN);
        platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
      });
      QCOMPARE(status, 0);
      QCOMPARE(bytesOf(path()), oldBytes);
    }
    QCOMPARE(QDir(folder_.path()).entryList({QStringLiteral("LangSetting*")}).size(), 1);
  }

  // A process that is killed somewhere in a row of writes: every state that it can leave is whole.
  void aCrashAtAnyMomentLeavesTheOldOrTheNewFile() {
    put(path(), oldBytes);
    platform::writeProfileValue(path(), section, key, QStringLiteral("Italiano"));
    const QByteArray italian = bytesOf(path());
    for (int round = 0; round < 40; ++round) {
      const pid_t child = ::fork();
      if (child == 0) {
        for (;;) {
          platform::writeProfileValue(path(), section, key, QStringLiteral("English"));
          platform::writeProfileValue(path(), section, key, QStringLiteral("Italiano"));
        }
      }
      ::usleep(static_cast<useconds_t>(1000 + 137 * round));
      ::kill(child, SIGKILL);
      ::waitpid(child, nullptr, 0);
      const QByteArray left = bytesOf(path());
      QVERIFY2(left == newBytes || left == italian, left.constData());
    }
    clearLeftovers();
  }

 private:
  void clearLeftovers() {
    QDir folder(folder_.path());
    for (const QString& name : folder.entryList({QStringLiteral("LangSetting.ini.*")})) {
      folder.remove(name);
    }
  }
};

const prova::Iscrizione<ProfileFileTest> kIscritta;

}  // namespace profile_file_test

#include "profile_file_test.moc"
