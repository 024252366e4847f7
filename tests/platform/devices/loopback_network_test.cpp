#include "platform/devices/loopback_network.h"

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include "support/iscrizione.h"

namespace loopback_network_test {

using platform::Connection;
using platform::LoopbackNetwork;

namespace {

// The other program: listens on a free port of the loopback address.
struct Peer {
  Peer() {
    if (!server.listen(QHostAddress::LocalHost)) throw std::runtime_error("no free port");
  }
  QTcpSocket* take() {
    if (!QTest::qWaitFor([this] { return server.hasPendingConnections(); })) return nullptr;
    return server.nextPendingConnection();
  }
  [[nodiscard]] quint16 port() const { return server.serverPort(); }

  QTcpServer server;
};

// A connection of the program and what came over it.
struct Ours {
  Ours() : connection(network.makeConnection([this] { arrivals.append(connection->take()); })) {}
  bool opensTo(const Peer& peer) {
    connection->open(peer.port());
    return QTest::qWaitFor([this] { return connection->isOpen(); });
  }
  [[nodiscard]] QByteArray all() const { return arrivals.join(); }

  LoopbackNetwork network;
  QByteArrayList arrivals;
  std::unique_ptr<Connection> connection;
};

// A port that nobody listens on.
quint16 deadPort() {
  QTcpServer server;
  server.listen(QHostAddress::LocalHost);
  return server.serverPort();
}

}  // namespace

// Real TCP to the loopback address.
class LoopbackNetworkTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aConnectionComesUpAndCarriesBothWays() {
    Peer peer;
    Ours ours;
    QVERIFY(!ours.connection->isOpen());
    QVERIFY(ours.opensTo(peer));
    QVERIFY(!ours.connection->isOpening());
    QTcpSocket* other = peer.take();
    QVERIFY(other != nullptr);
    QVERIFY(other->peerAddress().isLoopback());
    ours.connection->send("02#REQ-TOUCH");
    QTRY_COMPARE(other->bytesAvailable(), 12);
    QCOMPARE(other->readAll(), QByteArray("02#REQ-TOUCH"));
    other->write("OK");
    QTRY_COMPARE(ours.arrivals, QByteArrayList{"OK"});
  }

  void aServerThatWasNeverThereIsRefusedAndSendingToItIsSilent() {
    Ours ours;
    ours.connection->open(deadPort());
    QTRY_VERIFY(!ours.connection->isOpening());
    QVERIFY(!ours.connection->isOpen());
    ours.connection->send("02#REQ-TOUCH");
    QVERIFY(ours.connection->take().isEmpty());
    ours.connection->close();
  }

  void whatHasArrivedByTheTimeOfTheHandlerIsOneMessage() {
    Peer peer;
    Ours ours;
    QVERIFY(ours.opensTo(peer));
    QTcpSocket* other = peer.take();
    other->write("BB1");
    other->flush();
    other->write("HG1");
    other->flush();
    QTRY_COMPARE(ours.all(), QByteArray("BB1HG1"));
    QCOMPARE(ours.arrivals.size(), 1);
  }

  void anArrivalIsHandledFromTheQueueAndAgainInsideAHandlerThatWaits() {
    Peer peer;
    LoopbackNetwork network;
    std::unique_ptr<Connection> connection;
    QByteArrayList arrivals;
    QTcpSocket* other = nullptr;
    int depth = 0;
    int deepest = 0;
    connection = network.makeConnection([&] {
      arrivals.append(connection->take());
      deepest = std::max(deepest, ++depth);
      if (arrivals.size() == 1) {
        other->write("two");
        other->flush();
        (void)QTest::qWaitFor([&] { return arrivals.size() == 2; });
      }
      --depth;
    });
    connection->open(peer.port());
    other = peer.take();
    other->write("one");
    QTRY_COMPARE(arrivals, QByteArrayList({"one", "two"}));
    QCOMPARE(deepest, 2);
  }

  void aPeerThatClosesOrResetsLeavesWhatItSentAndEndsTheConnection_data() {
    QTest::addColumn<bool>("reset");
    QTest::newRow("close") << false;
    QTest::newRow("reset") << true;
  }
  void aPeerThatClosesOrResetsLeavesWhatItSentAndEndsTheConnection() {
    QFETCH(bool, reset);
    Peer peer;
    Ours ours;
    QVERIFY(ours.opensTo(peer));
    QTcpSocket* other = peer.take();
    other->write("OK");
    other->flush();
    QTRY_COMPARE(ours.all(), QByteArray("OK"));
    if (reset) {
      // Unread bytes at the close make the system send a reset.
      ours.connection->send("unread");
      QTRY_VERIFY(other->bytesAvailable() > 0);
    }
    other->abort();
    QTRY_VERIFY(!ours.connection->isOpen());
    ours.connection->send("02#REQ-DEFAULT");
    ours.connection->close();
    QCOMPARE(ours.all(), QByteArray("OK"));
  }

  void whatIsSentJustBeforeTheCloseArrivesAlthoughBytesLayUnread() {
    Peer peer;
    Ours ours;
    QVERIFY(ours.opensTo(peer));
    QTcpSocket* other = peer.take();
    other->write(QByteArray(5000, 'B'));
    other->flush();
    ours.connection->send("02#REQ-DEFAULT");
    ours.connection->close();
    QVERIFY(!ours.connection->isOpen());
    QTRY_COMPARE(other->bytesAvailable(), 14);
    QTRY_COMPARE(other->state(), QAbstractSocket::UnconnectedState);
    QCoreApplication::processEvents();
    QVERIFY(ours.arrivals.isEmpty());
  }

  void anArrivalThatIsQueuedIsVoidAfterTheCloseAndAfterTheEnd() {
    Peer peer;
    Ours ours;
    QVERIFY(ours.opensTo(peer));
    QTcpSocket* other = peer.take();
    other->write("OK");
    other->flush();
    ours.connection->close();
    QTest::qWait(20);
    QVERIFY(ours.arrivals.isEmpty());
    QVERIFY(ours.opensTo(peer));
    peer.take()->write("OK");
    ours.connection.reset();
    QTest::qWait(20);
    QVERIFY(ours.arrivals.isEmpty());
  }

  void aMegabyteArrivesWholeAndWhatIsNotTakenStaysWithTheSystem() {
    Peer peer;
    QByteArray taken;
    LoopbackNetwork network;
    std::unique_ptr<Connection> connection;
    qsizetype largest = 0;
    connection = network.makeConnection([&] {
      const QByteArray bytes = connection->take();
      largest = std::max(largest, bytes.size());
      taken += bytes;
    });
    connection->open(peer.port());
    QTcpSocket* other = peer.take();
    const QByteArray much(4 << 20, 'B');
    other->write(much);
    QTRY_COMPARE_WITH_TIMEOUT(taken.size(), much.size(), 20000);
    QVERIFY(largest <= 1 << 20);
  }

  void aPeerThatNeverReadsDoesNotHoldTheProgramUp() {
    Peer peer;
    Ours ours;
    QVERIFY(ours.opensTo(peer));
    QVERIFY(peer.take() != nullptr);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 1000; ++i) ours.connection->send(QByteArray(10000, 'x'));
    ours.connection->close();
    QVERIFY(clock.elapsed() < 2000);
  }

  void noProxyIsEverAsked() {
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::Socks5Proxy, QStringLiteral("127.0.0.1"), deadPort()));
    Peer peer;
    Ours ours;
    const bool up = ours.opensTo(peer);
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    QVERIFY(up);
  }

  void aConnectionMayGoInItsOwnHandler() {
    Peer peer;
    LoopbackNetwork network;
    std::unique_ptr<Connection> connection;
    bool gone = false;
    connection = network.makeConnection([&] {
      connection.reset();
      gone = true;
    });
    connection->open(peer.port());
    peer.take()->write("OK");
    QTRY_VERIFY(gone);
  }
};

const prova::Iscrizione<LoopbackNetworkTest, QCoreApplication> kIscritta;

}  // namespace loopback_network_test

#include "loopback_network_test.moc"
