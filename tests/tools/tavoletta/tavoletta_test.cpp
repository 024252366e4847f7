#include "tools/tavoletta/tavoletta.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/forma_numeri_hk.h"
#include "platform/devices/loopback_network.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "tools/tavoletta/suggeritore.h"

namespace tavoletta_test {

using prova::Banco;
using somme::FormaNumeriHK;
using somme::tavoletta::Suggeritore;
using somme::tavoletta::Tavoletta;

namespace {

// The stand-in, worked by lines, and the program over real sockets on a free port.
struct Scena {
  Scena() {
    if (!tavoletta.Ascolta(0)) throw std::runtime_error("no free port");
    banco.rete.vera = &rete;
    banco.ambiente->servizi.porta = tavoletta.Porta();
  }

  // A sum of 7 = 3 + 4 on the screen, once the stand-in has answered.
  FormaNumeriHK& apri() {
    banco.ambiente->stato.TipoEsercizio = 1;
    banco.sorte.scrivi({{6, 10}, {3, 7}});
    banco.ambiente->fondo.forms().show(somme::forme::kFormNumeriTotaleHK);
    return banco.forma<FormaNumeriHK>();
  }
  [[nodiscard]] bool fa(const char* riga) { return suggeritore.Esegui(QString::fromUtf8(riga)); }

  Banco banco;
  platform::LoopbackNetwork rete;
  Tavoletta tavoletta;
  QStringList racconto;
  bool finita = false;
  Suggeritore suggeritore{tavoletta, [this](const QString& riga) { racconto.append(riga); },
                          [this] { finita = true; }};
};

}  // namespace

// The stand-in for the touch surface, with the program on the other end of a real connection.
class TavolettaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aWholeSumIsDoneByTouchesOverRealSockets() {
    Scena scena;
    FormaNumeriHK& forma = scena.apri();
    QTRY_VERIFY(forma.HelpiKeysConnesso());
    QCOMPARE(scena.banco.messaggi.mostrati.size(), std::size_t(1));
    QVERIFY(scena.fa("tasto 9"));
    QTRY_COMPARE(forma.TestoInput.text(), QStringLiteral("8"));
    QVERIFY(scena.fa("tasto 15"));
    QTRY_COMPARE(scena.banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(scena.fa("tasto 13"));
    QTRY_COMPARE(forma.TestoInput.text(), QString());
    QVERIFY(scena.fa("tasto 8"));
    QTRY_COMPARE(forma.TestoInput.text(), QStringLiteral("7"));
    QVERIFY(scena.fa("tasto 15"));
    QTRY_COMPARE(scena.banco.ambiente->stato.ContaEsatti, qint16(1));
    scena.banco.sorte.scrivi({{9, 10}, {4, 10}});
    QVERIFY(scena.fa("tasto 16"));
    QTRY_COMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 = "));
    forma.mnuEsci.click();
    QTRY_COMPARE(scena.racconto.last(), QStringLiteral("staccata"));
    QVERIFY(scena.racconto.contains(QStringLiteral("ricevuto 02#REQ-TOUCH")));
    QVERIFY(scena.racconto.contains(QStringLiteral("ricevuto 02#REQ-DEFAULT")));
    QVERIFY(!scena.banco.fine.stato);
  }

  void withoutTheStandInTheActivationEndsTheProgram() {
    Scena scena;
    {
      Tavoletta sparita;
      QVERIFY(sparita.Ascolta(0));
      scena.banco.ambiente->servizi.porta = sparita.Porta();
    }
    try {
      (void)scena.apri();
    } catch (const platform::Unwind&) {
    }
    QCOMPARE(scena.banco.fine.stato, std::optional(1));
    QVERIFY(scena.banco.messaggi.mostrati.back().text.contains(QStringLiteral("'40006'")));
  }

  void aStandInThatDoesNotAnswerLeavesTouchesDropped() {
    Scena scena;
    QVERIFY(scena.fa("taci"));
    FormaNumeriHK& forma = scena.apri();
    QTRY_COMPARE(scena.racconto.last(), QStringLiteral("tocchi"));
    QVERIFY(scena.fa("tasto 8"));
    QVERIFY(scena.fa("cella 2 2"));
    QTest::qWait(30);
    QCOMPARE(forma.TestoInput.text(), QString());
    QVERIFY(scena.fa("ok"));
    QTRY_VERIFY(forma.HelpiKeysConnesso());
    QVERIFY(scena.fa("cella 2 2"));
    QTRY_COMPARE(forma.TestoInput.text(), QStringLiteral("0"));
  }

  void anOkInTwoPiecesTwoReportsInOneAndAMegabyteOverTheWire() {
    Scena scena;
    QVERIFY(scena.fa("taci"));
    FormaNumeriHK& forma = scena.apri();
    QTRY_COMPARE(scena.racconto.last(), QStringLiteral("tocchi"));
    QVERIFY(scena.fa("byte 4F"));
    QTest::qWait(20);
    QVERIFY(scena.fa("byte 4B"));
    QTest::qWait(20);
    QVERIFY(!forma.HelpiKeysConnesso());
    QVERIFY(scena.fa("ok"));
    QTRY_VERIFY(forma.HelpiKeysConnesso());
    // Two reports in one go: the touch on "0", and nothing of the touch on "1".
    QVERIFY(scena.fa("byte 42 42 31 48 42 31"));
    QTRY_COMPARE(forma.TestoInput.text(), QStringLiteral("0"));
    scena.tavoletta.Manda(QByteArray(1 << 20, '\xff'));
    QTest::qWait(50);
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("0"));
    QVERIFY(!scena.banco.fine.stato);
    QVERIFY(scena.fa("tasto 2"));
    QTRY_COMPARE(forma.TestoInput.text(), QStringLiteral("01"));
  }

  void aConnectionThatTheStandInEndsIsMissedAtTheWayOut() {
    Scena scena;
    FormaNumeriHK& forma = scena.apri();
    QTRY_VERIFY(forma.HelpiKeysConnesso());
    QVERIFY(scena.fa("stacca"));
    QTRY_VERIFY(!forma.ControlloConnessione[1].isConnected());
    QVERIFY(!scena.banco.fine.stato);
    forma.mnuEsci.click();
    QCOMPARE(scena.banco.fine.stato, std::optional(1));
  }

  void theStandInListensOnTheLoopbackAddressAlone() {
    Scena scena;
    scena.apri();
    // The program listens nowhere; one connection goes from it to the stand-in.
    QTRY_COMPARE(scena.racconto.first(), QStringLiteral("collegata"));
    Tavoletta seconda;
    QVERIFY(!seconda.Ascolta(scena.tavoletta.Porta()));
    // Another address of this machine, which whoever listens on all of them has, too.
    QTcpSocket altrove;
    altrove.connectToHost(QHostAddress(QStringLiteral("127.0.0.2")), scena.tavoletta.Porta());
    QVERIFY(!altrove.waitForConnected(1000));
  }

  void aTouchIsDoneWithinAFrameOfItsArrival() {
    Scena scena;
    FormaNumeriHK& forma = scena.apri();
    QTRY_VERIFY(forma.HelpiKeysConnesso());
    std::vector<qint64> tempi;
    for (int i = 0; i < 50; ++i) {
      forma.TestoInput.setText({});
      QElapsedTimer orologio;
      orologio.start();
      scena.tavoletta.Tocca(2, 2);
      while (forma.TestoInput.text().isEmpty() && orologio.elapsed() < 1000) {
        QCoreApplication::processEvents();
      }
      tempi.push_back(orologio.elapsed());
    }
    // What waits by itself waits every time, a busy machine now and then.
    const qint64 migliore = *std::min_element(tempi.begin(), tempi.end());
    QVERIFY2(migliore < 16, qPrintable(QString::number(migliore)));
  }

  void aLineThatMakesNoSenseDoesNothing_data() {
    QTest::addColumn<QString>("riga");
    for (const char* riga :
         {"tasto", "tasto 0", "tasto 17", "tasto x", "segno", "segno 10", "segno boh", "cella 2",
          "cella 0 1", "cella 25 1", "cella 2 24", "cella 2 2 12", "byte", "byte G1", "byte 100",
          "foglio", "foglio altro", "ok ok", "boh"}) {
      QTest::newRow(riga) << QString::fromLatin1(riga);
    }
  }
  void aLineThatMakesNoSenseDoesNothing() {
    QFETCH(QString, riga);
    Tavoletta tavoletta;
    QStringList racconto;
    Suggeritore suggeritore(
        tavoletta, [&racconto](const QString& detto) { racconto.append(detto); }, [] {});
    QVERIFY(!suggeritore.Esegui(riga));
    QVERIFY(racconto.isEmpty());
  }

  void emptyLinesAndTheEndAreUnderstood() {
    Scena scena;
    QVERIFY(scena.fa(""));
    QVERIFY(scena.fa("  "));
    QVERIFY(scena.fa(" fine "));
    QVERIFY(scena.finita);
  }

  void theSheetsKeysAreThoseOfTheirMaps() {
    Scena scena;
    scena.apri();
    QTRY_COMPARE(scena.racconto.count(QStringLiteral("mandato 4F 4B")), 1);
    QVERIFY(scena.fa("foglio blocchi"));
    QVERIFY(!scena.fa("tasto 10"));
    QVERIFY(scena.fa("tasto 9"));
    QCOMPARE(scena.racconto.last(), QStringLiteral("mandato 54 52 31"));
    QVERIFY(scena.fa("foglio abaco"));
    QVERIFY(scena.fa("tasto 12"));
    QCOMPARE(scena.racconto.last(), QStringLiteral("mandato 55 53 31"));
  }

  void aKeyIsAlsoTouchedByWhatStandsOnIt() {
    Scena scena;
    scena.apri();
    QTRY_COMPARE(scena.racconto.count(QStringLiteral("mandato 4F 4B")), 1);
    QVERIFY(scena.fa("segno 9"));
    QCOMPARE(scena.racconto.last(), QStringLiteral("mandato 49 4E 31"));
    QVERIFY(!scena.fa("segno da"));
    QVERIFY(scena.fa("foglio abaco"));
    QVERIFY(scena.fa("segno  u → da"));
    QCOMPARE(scena.racconto.last(), QStringLiteral("mandato 55 4C 31"));
    QVERIFY(scena.fa("segno avanti"));
    QCOMPARE(scena.racconto.last(), QStringLiteral("mandato 55 53 31"));
  }

  void asAProgramWithoutAWindowItTellsItsPortAndEndsWithItsInput() {
    QProcess programma;
    programma.start(QStringLiteral(TAVOLETTA), {QStringLiteral("--senza-finestra"),
                                                QStringLiteral("--porta"), QStringLiteral("0")});
    QVERIFY(programma.waitForReadyRead(20000));
    const QString detto = QString::fromUtf8(programma.readLine()).trimmed();
    QVERIFY2(detto.startsWith(QStringLiteral("in ascolto ")), qPrintable(detto));
    QTcpSocket presa;
    presa.connectToHost(QHostAddress(QHostAddress::LocalHost), detto.mid(11).toUShort());
    QVERIFY(presa.waitForConnected(5000));
    presa.write("02#REQ-TOUCH");
    QVERIFY(presa.waitForReadyRead(5000));
    QCOMPARE(presa.readAll(), QByteArray("OK"));
    programma.write("tasto 1\nnon so\n");
    QVERIFY(programma.waitForBytesWritten(5000));
    QVERIFY(presa.waitForReadyRead(5000));
    QCOMPARE(presa.readAll(), QByteArray("CD1"));
    programma.closeWriteChannel();
    QVERIFY(programma.waitForFinished(5000));
    QCOMPARE(programma.exitStatus(), QProcess::NormalExit);
    QCOMPARE(programma.exitCode(), 0);
    QVERIFY(programma.readAllStandardError().contains("non capisco: non so"));
  }

  void asAProgramItDoesNothingBehindTheEndAndALastLineWithoutItsEnd() {
    const auto capito = [](const QByteArray& scritto) {
      QProcess programma;
      programma.start(QStringLiteral(TAVOLETTA), {QStringLiteral("--senza-finestra"),
                                                  QStringLiteral("--porta"), QStringLiteral("0")});
      programma.write(scritto);
      programma.closeWriteChannel();
      const bool bene = programma.waitForFinished(20000) &&
                        programma.exitStatus() == QProcess::NormalExit && programma.exitCode() == 0;
      if (!bene) return QByteArray("?");
      return programma.readAllStandardError();
    };
    QCOMPARE(capito("boh\nfine\nbah\nbeh"), QByteArray("tavoletta: non capisco: boh\n"));
    QCOMPARE(capito("boh"), QByteArray("tavoletta: non capisco: boh\n"));
  }

  void asAProgramItRefusesWrongArgumentsAndATakenPort() {
    Tavoletta prima;
    QVERIFY(prima.Ascolta(0));
    const auto esito = [](const QStringList& argomenti) {
      return QProcess::execute(QStringLiteral(TAVOLETTA), argomenti);
    };
    const QString senza = QStringLiteral("--senza-finestra");
    QCOMPARE(esito({senza, QStringLiteral("--porta"), QString::number(prima.Porta())}), 1);
    QCOMPARE(esito({senza, QStringLiteral("--porta"), QStringLiteral("x")}), 2);
    QCOMPARE(esito({senza, QStringLiteral("--porta")}), 2);
    QCOMPARE(esito({QStringLiteral("--aiuto")}), 2);
  }
};

const prova::Iscrizione<TavolettaTest, QApplication> kIscritta;

}  // namespace tavoletta_test

#include "tavoletta_test.moc"
