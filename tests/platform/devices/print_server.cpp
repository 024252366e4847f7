#include "print_server.h"

#include <pwd.h>
#include <unistd.h>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>
#include <algorithm>

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
  const bool ended = process.waitForFinished(kPatience) &&
                     process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
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

namespace {

// The folder that the backend writes into: below the home that the account has, whatever the
// environment says of it.
QDir printedFolder() {
  const passwd* account = ::getpwuid(::geteuid());
  return account == nullptr ? QDir::home()
                            : QDir(QFile::decodeName(account->pw_dir) + QStringLiteral("/PDF"));
}

}  // namespace

QStringList PrintServer::printed(const QString& title) {
  return printedFolder().entryList({QStringLiteral("*%1*.pdf").arg(title)});
}

QByteArray PrintServer::takePrinted(const QString& title) {
  const QDir folder = printedFolder();
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < kPatience) {
    const QStringList files = printed(title);
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

MutedServer::MutedServer(int port) : port_(port) {
  server_.listen(QHostAddress::LocalHost);
  connect(&server_, &QTcpServer::newConnection, this, &MutedServer::accept);
}

void MutedServer::accept() {
  while (QTcpSocket* client = server_.nextPendingConnection()) {
    lines_.push_back(std::make_unique<Line>());
    Line& line = *lines_.back();
    line.client = client;
    line.server = new QTcpSocket(this);
    line.server->connectToHost(QHostAddress::LocalHost, quint16(port_));
    for (QTcpSocket* socket : {line.client.data(), line.server.data()}) {
      connect(socket, &QTcpSocket::readyRead, this, [this, &line] { pass(line); });
    }
    connect(line.server, &QTcpSocket::connected, this, [this, &line] { pass(line); });
    connect(line.client, &QTcpSocket::disconnected, line.server, &QTcpSocket::disconnectFromHost);
    connect(line.server, &QTcpSocket::disconnected, line.client, &QTcpSocket::disconnectFromHost);
  }
}

void MutedServer::pass(Line& line) {
  if (silent_ || line.server->state() != QAbstractSocket::ConnectedState) return;
  const QByteArray said = line.client->readAll();
  line.server->write(said);
  if (!words_.isEmpty()) {
    line.said += said;
    silent_ = line.said.contains(words_);
    if (silent_) {
      return;
    }
  }
  const QByteArray answer = line.server->readAll();
  if (late_ == 0) {
    line.client->write(answer);
  } else if (!answer.isEmpty()) {
    QTimer::singleShot(late_, line.client, [&line, answer] { line.client->write(answer); });
  }
}

void MutedServer::speakAgain() {
  silent_ = false;
  words_.clear();
  for (const auto& line : lines_) pass(*line);
}

int MutedServer::open() const {
  return int(std::count_if(lines_.begin(), lines_.end(), [](const auto& line) {
    return line->client->state() == QAbstractSocket::ConnectedState;
  }));
}

}  // namespace devices_test
