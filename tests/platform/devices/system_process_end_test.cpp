#include "platform/devices/system_process_end.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include "support/iscrizione.h"

namespace system_process_end_test {

class SystemProcessEndTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theProcessEndsAtOnceWithTheStatusThoughAThreadIsRunning_data() {
    QTest::addColumn<int>("status");
    QTest::newRow("well") << 0;
    QTest::newRow("not well") << 3;
  }
  void theProcessEndsAtOnceWithTheStatusThoughAThreadIsRunning() {
    QFETCH(int, status);
    QProcess probe;
    QElapsedTimer clock;
    clock.start();
    probe.start(QStringLiteral(PROBES "/probe_process_end"), {QString::number(status)});
    QVERIFY(probe.waitForFinished(10'000));
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(probe.exitStatus(), QProcess::NormalExit);
    QCOMPARE(probe.exitCode(), status);
    // What was written has come out; what the usual way would do has not been done.
    QCOMPARE(probe.readAllStandardOutput(), QByteArray("written before"));
    QCOMPARE(probe.readAllStandardError(), QByteArray());
  }
};

const prova::Iscrizione<SystemProcessEndTest, QCoreApplication> kIscritta;

}  // namespace system_process_end_test

#include "system_process_end_test.moc"
