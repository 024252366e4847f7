#pragma once

#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>

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
  bool addQueue(const QString& name, const QStringList& options = {});
  bool removeQueue(const QString& name);
  // More settings of a queue, as the administrator's tool takes them.
  bool administer(const QStringList& arguments);
  // Jobs that are neither finished nor cancelled.
  [[nodiscard]] QString openJobs();
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

}  // namespace devices_test
