#include "platform/base/run_time_error.h"

#include <QTest>

#include "support/iscrizione.h"

namespace run_time_error_test {

using platform::RunTimeError;

class RunTimeErrorTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theBoxTellsNumberAnEmptyLineAndTheDescription() {
    QCOMPARE(RunTimeError(RunTimeError::Overflow).boxText(),
             QStringLiteral("Errore di run-time '6':\n\nOverflow"));
  }

  void everyNumberHasItsDescription_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("description");
    QTest::newRow("invalid call") << 5 << "Chiamata di routine o argomento non validi";
    QTest::newRow("overflow") << 6 << "Overflow";
    QTest::newRow("file not found") << 53 << "Impossibile trovare il file";
    QTest::newRow("printer") << 482 << "Errore della stampante";
    QTest::newRow("connection")
        << 40006 << "Protocollo o stato di connessione errato per la transazione o la richiesta";
  }

  void everyNumberHasItsDescription() {
    QFETCH(int, number);
    QFETCH(QString, description);
    QCOMPARE(RunTimeError(RunTimeError::Number(number)).description(), description);
  }
};

const prova::Iscrizione<RunTimeErrorTest> kIscritta;

}  // namespace run_time_error_test

#include "run_time_error_test.moc"
