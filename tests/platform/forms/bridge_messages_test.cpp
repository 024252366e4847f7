#include "platform/forms/bridge_messages.h"

#include <QDebug>
#include <QTest>

#include "support/iscrizione.h"

namespace bridge_messages_test {

namespace {

QStringList told;

void remember(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
  told.append(message);
}

// What the toolkit says where the registry of the accessibility bus gives no answer to a key.
void noAnswer() {
  qWarning() << "QSpiApplication::keyEventError "
             << QStringLiteral("org.freedesktop.DBus.Error.NoReply")
             << QStringLiteral("Did not receive a reply");
}

}  // namespace

// What the toolkit's bridge to the accessibility bus may say on the error stream.
class BridgeMessagesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    told.clear();
    before_ = qInstallMessageHandler(remember);
    platform::silenceLostReaders();
  }
  void cleanup() { qInstallMessageHandler(before_); }

  void aReaderThatEndsWhileAKeyIsOnItsWayIsNotTold() {
    noAnswer();
    qWarning("QSpiApplication::notifyKeyboardListenerCallback with no queued key called");
    QCOMPARE(told, QStringList());
  }

  void everyOtherMessageIs() {
    qWarning("QSpiApplication::something else");
    qWarning("No answer: QSpiApplication::keyEventError \"NoReply\"");
    qCritical("QSpiApplication::keyEventError \"NoReply\"");
    qDebug("words");
    QCOMPARE(told, (QStringList{QStringLiteral("QSpiApplication::something else"),
                                QStringLiteral("No answer: QSpiApplication::keyEventError"
                                               " \"NoReply\""),
                                QStringLiteral("QSpiApplication::keyEventError \"NoReply\""),
                                QStringLiteral("words")}));
  }

  void silencedTwiceTheOthersAreStillToldOnce() {
    platform::silenceLostReaders();
    noAnswer();
    qWarning("words");
    QCOMPARE(told, QStringList{QStringLiteral("words")});
  }

 private:
  QtMessageHandler before_ = nullptr;
};

const prova::Iscrizione<BridgeMessagesTest> kIscritta;

}  // namespace bridge_messages_test

#include "bridge_messages_test.moc"
