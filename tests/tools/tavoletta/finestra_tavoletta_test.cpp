#include "tools/tavoletta/finestra_tavoletta.h"

#include <QApplication>
#include <QTest>

#include "support/iscrizione.h"

namespace finestra_tavoletta_test {

using somme::tavoletta::FinestraTavoletta;
using somme::tavoletta::kFogli;
using somme::tavoletta::Tavoletta;

namespace {

struct Scena {
  Scena() {
    QObject::connect(&tavoletta, &Tavoletta::mandato,
                     [this](const QByteArray& byte) { mandati.append(byte); });
    finestra.resize(800, 600);
    finestra.Apri(0);
    finestra.show();
  }
  bool collega() {
    presa.connectToHost(QHostAddress(QHostAddress::LocalHost), tavoletta.Porta());
    return QTest::qWaitFor([this] { return tavoletta.stato() == Tavoletta::Stato::Collegata; });
  }

  Tavoletta tavoletta;
  FinestraTavoletta finestra{tavoletta};
  QTcpSocket presa;
  QByteArrayList mandati;
};

}  // namespace

// The window of the stand-in for the touch surface.
class FinestraTavolettaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aClickOnEveryKeyOfEverySheetReportsACellOfThatKey() {
    Scena scena;
    QVERIFY(scena.collega());
    for (int foglio = 0; foglio < int(kFogli.size()); ++foglio) {
      scena.finestra.Scelta().setCurrentIndex(foglio);
      const somme::Tastiera& tastiera = kFogli[std::size_t(foglio)].tastiera;
      for (int tasto = 1; tasto <= tastiera.Posti(); ++tasto) {
        scena.mandati.clear();
        QTest::mouseClick(&scena.finestra.Foglio(), Qt::LeftButton, {},
                          scena.finestra.Foglio().Centro(tasto));
        QCOMPARE(scena.mandati.size(), 1);
        const QByteArray rapporto = scena.mandati[0];
        QCOMPARE(rapporto.size(), 3);
        QCOMPARE(tastiera.Posto(rapporto[0] - 64, rapporto[1] - 64), tasto);
        QCOMPARE(rapporto[2], '1');
      }
    }
  }

  void everyKeyBearsItsWordsAndTheOthersNone() {
    const QStringList attese{
        QStringLiteral("0,1,2,3,4,5,6,7,8,9,,,cestino,aiuto,conferma,avanti"),
        QStringLiteral("h,da,u,,da → h,u → da,cestino,conferma,avanti"),
        QStringLiteral("k,h,da,u,,h → k,da → h,u → da,,cestino,conferma,avanti"),
    };
    for (int foglio = 0; foglio < int(kFogli.size()); ++foglio) {
      const somme::tavoletta::Foglio& uno = kFogli[std::size_t(foglio)];
      QStringList parole;
      for (int posto = 1; posto <= uno.tastiera.Posti(); ++posto) {
        parole.append(somme::tavoletta::Parola(uno, posto));
      }
      QCOMPARE(parole.join(u','), attese[foglio]);
    }
  }

  void theCornersOfTheSheetAreTheCornersOfTheGrid() {
    Scena scena;
    auto& foglio = scena.finestra.Foglio();
    QCOMPARE(foglio.Cella({0, 0}), QPoint(1, 1));
    QCOMPARE(foglio.Cella({foglio.width() - 0.5, foglio.height() - 0.5}), QPoint(24, 23));
    QCOMPARE(foglio.Cella({-50, 5000}), QPoint(1, 23));
  }

  void onlyTheLeftButtonTouches() {
    Scena scena;
    QVERIFY(scena.collega());
    QTest::mouseClick(&scena.finestra.Foglio(), Qt::RightButton, {}, QPoint(100, 100));
    QVERIFY(scena.mandati.isEmpty());
  }

  void itTellsInWordsWhatTheProgramDoes() {
    Scena scena;
    QVERIFY(scena.finestra.Racconto().startsWith(QStringLiteral("In attesa")));
    QVERIFY(!scena.finestra.InviaOk().isVisible());
    QVERIFY(scena.collega());
    QVERIFY(scena.finestra.Racconto().contains(QStringLiteral("non aspetta tocchi")));
    scena.presa.write("02#REQ-TOUCH");
    QTRY_VERIFY(scena.finestra.Racconto().contains(QStringLiteral("aspetta i tocchi")));
    QCOMPARE(scena.mandati, QByteArrayList{"OK"});
    QTest::mouseClick(&scena.finestra.InviaOk(), Qt::LeftButton);
    QCOMPARE(scena.mandati, QByteArrayList({"OK", "OK"}));
    scena.presa.write("02#REQ-");
    scena.presa.flush();
    QTest::qWait(20);
    scena.presa.write("DEFAULT");
    QTRY_VERIFY(scena.finestra.Racconto().contains(QStringLiteral("non aspetta tocchi")));
    scena.presa.abort();
    QTRY_VERIFY(scena.finestra.Racconto().startsWith(QStringLiteral("In attesa")));
  }

  void theLastConnectionIsTheOneThatCounts() {
    Scena scena;
    QVERIFY(scena.collega());
    QTcpSocket altra;
    altra.connectToHost(QHostAddress(QHostAddress::LocalHost), scena.tavoletta.Porta());
    QTRY_COMPARE(scena.presa.state(), QAbstractSocket::UnconnectedState);
    scena.tavoletta.Tocca(2, 2);
    QTRY_COMPARE(altra.bytesAvailable(), 3);
    QCOMPARE(altra.readAll(), QByteArray("BB1"));
  }

  void aTakenPortIsToldAndTakesNoTouches() {
    Scena prima;
    Tavoletta tavoletta;
    FinestraTavoletta finestra(tavoletta);
    finestra.Apri(prima.tavoletta.Porta());
    QVERIFY(finestra.Racconto().contains(QString::number(prima.tavoletta.Porta())));
    QVERIFY(finestra.Racconto().contains(QStringLiteral("occupata")));
    QVERIFY(!finestra.Foglio().isEnabled());
  }
};

const prova::Iscrizione<FinestraTavolettaTest, QApplication> kIscritta;

}  // namespace finestra_tavoletta_test

#include "finestra_tavoletta_test.moc"
