#include "platform/devices/loopback_network.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <cstdint>
#include <utility>

namespace platform::inline devices {

namespace {

constexpr qint64 kLargestUntaken = 1 << 20;
// How often `close` reads what is still coming in before it closes.
constexpr int kLastReads = 16;

class TcpConnection final : public Connection {
 public:
  explicit TcpConnection(std::function<void()> arrived)
      : core_(std::make_shared<Core>(std::move(arrived))) {
    core_->socket.setProxy(QNetworkProxy::NoProxy);
    core_->socket.setReadBufferSize(kLargestUntaken);
    QObject::connect(&core_->socket, &QTcpSocket::readyRead, &core_->socket,
                     [core = core_.get()] { post(core->shared_from_this()); });
  }
  ~TcpConnection() override { drop(); }
  TcpConnection(const TcpConnection&) = delete;
  TcpConnection& operator=(const TcpConnection&) = delete;

  void open(quint16 port) override {
    drop();
    core_->socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
  }
  [[nodiscard]] bool isOpening() const override {
    const QAbstractSocket::SocketState state = core_->socket.state();
    return state == QAbstractSocket::HostLookupState || state == QAbstractSocket::ConnectingState;
  }
  [[nodiscard]] bool isOpen() const override {
    return core_->socket.state() == QAbstractSocket::ConnectedState;
  }
  void send(const QByteArray& bytes) override {
    if (!isOpen()) return;
    core_->socket.write(bytes);
    core_->socket.flush();
  }
  [[nodiscard]] QByteArray take() override { return core_->socket.readAll(); }
  void close() override { drop(); }

 private:
  // Kept alive by the arrival that is being handled, so that its owner may go meanwhile.
  struct Core : std::enable_shared_from_this<Core> {
    explicit Core(std::function<void()> callback) : arrived(std::move(callback)) {}

    std::function<void()> arrived;
    QTcpSocket socket;
    bool queued = false;
    std::uint64_t count = 0;  // of connections: an arrival of an earlier one is void
  };

  static void post(const std::shared_ptr<Core>& core) {
    if (core->queued) return;
    core->queued = true;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [weak = std::weak_ptr<Core>(core), count = core->count] {
          const std::shared_ptr<Core> alive = weak.lock();
          if (!alive || alive->count != count) return;
          alive->queued = false;
          if (alive->socket.bytesAvailable() > 0) alive->arrived();
        },
        Qt::QueuedConnection);
  }

  void drop() {
    QTcpSocket& socket = core_->socket;
    // A system that closes a connection with bytes unread takes back what was sent last, so that
    // the peer would never see it.
    for (int i = 0; i < kLastReads && isOpen() && socket.waitForReadyRead(0); ++i) {
      socket.skip(socket.bytesAvailable());
    }
    socket.abort();
    ++core_->count;
    core_->queued = false;
  }

  std::shared_ptr<Core> core_;
};

}  // namespace

std::unique_ptr<Connection> LoopbackNetwork::makeConnection(std::function<void()> arrived) {
  return std::make_unique<TcpConnection>(std::move(arrived));
}

}  // namespace platform::inline devices
