#pragma once

#include <QPointer>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <memory>
#include <vector>

// Print servers for tests.
namespace devices_test {

// A print server of its own on a loopback port, with a configuration of its own, and queues that
// print into files by way of the system's PDF backend. It ends with this object.
class PrintServer {
 public:
  PrintServer();
  ~PrintServer();
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;

  // Why it could not be started; empty when it runs.
  [[nodiscard]] const QString& problem() const { return problem_; }
  // For the environment variable that tells CUPS' library where its server is.
  [[nodiscard]] QByteArray address() const { return "127.0.0.1:" + QByteArray::number(port_); }
  [[nodiscard]] int port() const { return port_; }
  bool addQueue(const QString& name, const QStringList& options = {});
  bool removeQueue(const QString& name);
  // More settings of a queue, as the administrator's tool takes them.
  bool administer(const QStringList& arguments);
  // Jobs that are neither finished nor cancelled.
  [[nodiscard]] QString openJobs();
  // The printed files of a job.
  [[nodiscard]] static QStringList printed(const QString& title);
  // Waits for the printed file of a job, takes it away and gives it; null when none came.
  [[nodiscard]] QByteArray takePrinted(const QString& title);

 private:
  [[nodiscard]] QByteArray run(const QString& program, const QStringList& arguments, bool* ok);
  void write(const QString& name, const QByteArray& content) const;

  QTemporaryDir folder_;
  QProcess server_;
  int port_ = 0;
  QString problem_;
};

// A server that takes connections and never says a word.
class SilentServer {
 public:
  SilentServer() { server_.listen(QHostAddress::LocalHost); }
  [[nodiscard]] QByteArray address() const {
    return "127.0.0.1:" + QByteArray::number(server_.serverPort());
  }

 private:
  QTcpServer server_;
};

// Stands before a print server and passes on what it and its clients say, until it falls silent: it
// then takes what comes, connections too, keeps it to itself, and closes nothing.
class MutedServer : public QObject {
 public:
  explicit MutedServer(int port);

  [[nodiscard]] QByteArray address() const {
    return "127.0.0.1:" + QByteArray::number(server_.serverPort());
  }
  // Each answer comes so many milliseconds late, from now on.
  void answerAfter(int milliseconds) { late_ = milliseconds; }
  // Silent in both directions, from now on.
  void fallSilent() { silent_ = true; }
  // What a client says is passed on as far as the piece with these words; no answer is from there.
  void fallSilentAfter(const QByteArray& words) { words_ = words; }
  [[nodiscard]] bool isSilent() const { return silent_; }
  // Passes on everything that was kept, and what comes.
  void speakAgain();
  // Connections of clients that are still open.
  [[nodiscard]] int open() const;

 private:
  struct Line {
    QPointer<QTcpSocket> client;
    QPointer<QTcpSocket> server;
    QByteArray said;  // by the client, since the words are looked for
  };

  void accept();
  void pass(Line& line);

  QTcpServer server_;
  int port_;
  std::vector<std::unique_ptr<Line>> lines_;
  QByteArray words_;
  bool silent_ = false;
  int late_ = 0;  // milliseconds
};

}  // namespace devices_test
