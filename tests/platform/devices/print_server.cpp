#include "print_server.h"

#include <unistd.h>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTcpSocket>
#include <QTest>

namespace devices_test {

namespace {

constexpr int kPatience = 20000;  // milliseconds

// A port that is free now.
int freePort() {
  QTcpServer probe;
  probe.listen(QHostAddress::LocalHost);
  return probe.serverPort();
}

QString firstThatExists(const QStringList& paths) {
  for (const QString& path : paths) {
    if (QFile::exists(path)) return path;
  }
  return {};
}

bool answers(int port) {
  QTcpSocket socket;
  socket.connectToHost(QHostAddress::LocalHost, quint16(port));
  return socket.waitForConnected(200);
}

}  // namespace

PrintServer::PrintServer() : port_(freePort()) {
  const QString program = firstThatExists({QStringLiteral("/usr/sbin/cupsd")});
  if (program.isEmpty()) {
    problem_ = QStringLiteral("cupsd is missing (package cups-daemon)");
    return;
  }
  if (::geteuid() != 0) {
    problem_ = QStringLiteral("the PDF backend of CUPS works for a server of root's only");
    return;
  }
  for (const char* name : {"etc/ppd", "spool/tmp", "cache", "state/certs", "log"}) {
    QDir(folder_.path()).mkpath(QLatin1String(name));
  }
  // Started by root, the server has its filters run by another user, who must get at its files.
  QFile(folder_.path())
      .setPermissions(QFile::permissions(folder_.path()) | QFile::ReadGroup | QFile::ExeGroup |
                      QFile::ReadOther | QFile::ExeOther);
  const QByteArray root = folder_.path().toUtf8();
  write(QStringLiteral("etc/cupsd.conf"),
        "Listen 127.0.0.1:" + QByteArray::number(port_) +
            "\nBrowsing Off\nDefaultAuthType None\nLogLevel warn\n"
            "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
            "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n");
  write(QStringLiteral("etc/cups-files.conf"),
        "ServerRoot " + root + "/etc\nRequestRoot " + root + "/spool\nTempDir " + root +
            "/spool/tmp\nCacheDir " + root + "/cache\nStateDir " + root + "/state\nAccessLog " +
            root + "/log/access\nErrorLog " + root + "/log/error\nPageLog " + root +
            "/log/page\nSystemGroup root\nSandboxing relaxed\n");
  server_.start(program, {QStringLiteral("-f"), QStringLiteral("-c"),
                          folder_.filePath(QStringLiteral("etc/cupsd.conf")), QStringLiteral("-s"),
                          folder_.filePath(QStringLiteral("etc/cups-files.conf"))});
  QElapsedTimer clock;
  clock.start();
  while (!answers(port_)) {
    if (clock.elapsed() > kPatience || server_.state() == QProcess::NotRunning) {
      problem_ = QStringLiteral("cupsd did not start: ") +
                 QString::fromUtf8(server_.readAllStandardError());
      return;
    }
    QTest::qWait(20);
  }
}

PrintServer::~PrintServer() {
  server_.terminate();
  if (!server_.waitForFinished(5000)) {
    server_.kill();
    server_.waitForFinished(5000);
  }
}

void PrintServer::write(const QString& name, const QByteArray& content) const {
  QFile file(folder_.filePath(name));
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
    qFatal("the test cannot write its own folder");
  }
}

QByteArray PrintServer::run(const QString& program, const QStringList& arguments, bool* ok) {
  QProcess process;
  process.start(program,
                QStringList{QStringLiteral("-h"), QString::fromUtf8(address())} + arguments);
  const bool ended = process.waitForFinished(kPatience) && process.exitCode() == 0;
  if (ok != nullptr) *ok = ended;
  return process.readAllStandardOutput();
}

bool PrintServer::administer(const QStringList& arguments) {
  bool ok = false;
  (void)run(QStringLiteral("lpadmin"), arguments, &ok);
  return ok;
}

bool PrintServer::addQueue(const QString& name, const QStringList& options) {
  return administer(QStringList{QStringLiteral("-p"), name, QStringLiteral("-E"),
                                QStringLiteral("-v"), QStringLiteral("cups-pdf:/"),
                                QStringLiteral("-P"),
                                QStringLiteral("/usr/share/ppd/cups-pdf/CUPS-PDF_noopt.ppd")} +
                    options);
}

bool PrintServer::removeQueue(const QString& name) {
  return administer({QStringLiteral("-x"), name});
}

QString PrintServer::openJobs() {
  bool ok = false;
  return QString::fromUtf8(run(QStringLiteral("lpstat"), {QStringLiteral("-o")}, &ok)).trimmed();
}

// The backend writes into the folder "PDF" of the user's home.
QByteArray PrintServer::takePrinted(const QString& title) {
  const QDir folder(QDir::home().filePath(QStringLiteral("PDF")));
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < kPatience) {
    const QStringList files = folder.entryList({QStringLiteral("*%1*.pdf").arg(title)});
    if (!files.isEmpty() && openJobs().isEmpty()) {
      QFile file(folder.filePath(files.first()));
      if (!file.open(QIODevice::ReadOnly)) return {};
      QByteArray content = file.readAll();
      file.remove();
      return content;
    }
    QTest::qWait(50);
  }
  return {};
}

}  // namespace devices_test
