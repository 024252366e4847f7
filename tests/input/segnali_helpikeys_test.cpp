#include "input/segnali_helpikeys.h"

#include <QTest>

#include "platform/base/run_time_error.h"
#include "support/iscrizione.h"

namespace segnali_helpikeys_test {

using somme::SegnaliHelpiKeys;
using Tipo = SegnaliHelpiKeys::Tipo;

namespace {

SegnaliHelpiKeys collegato() {
  SegnaliHelpiKeys segnali;
  segnali.HelpiKeysConnesso = true;
  return segnali;
}

int erroreDi(const QByteArray& messaggio) {
  SegnaliHelpiKeys segnali = collegato();
  try {
    (void)segnali.Leggi(messaggio);
  } catch (const platform::RunTimeError& errore) {
    return errore.number();
  }
  return 0;
}

}  // namespace

// What HelpiKeys says, message by message.
class SegnaliHelpiKeysTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyOkInvertsTheFlipAndOnlyTheOneThatSetsItIsTold() {
    SegnaliHelpiKeys segnali;
    QVERIFY(!segnali.HelpiKeysConnesso);
    QVERIFY(segnali.Leggi("OK").tipo == Tipo::Pronta);
    QVERIFY(segnali.HelpiKeysConnesso);
    QVERIFY(segnali.Leggi("OK").tipo == Tipo::Nulla);
    QVERIFY(!segnali.HelpiKeysConnesso);
    QVERIFY(segnali.Leggi("OK").tipo == Tipo::Pronta);
    QVERIFY(segnali.HelpiKeysConnesso);
  }

  void onlyExactlyOkIsAnOk_data() {
    QTest::addColumn<QByteArray>("messaggio");
    for (const char* testo : {"OKOK", "OK\n", " OK", "ok", "Ok", "O", "K", "OK\r\n"}) {
      QTest::newRow(testo) << QByteArray(testo);
    }
  }
  void onlyExactlyOkIsAnOk() {
    QFETCH(QByteArray, messaggio);
    SegnaliHelpiKeys segnali;
    QVERIFY(segnali.Leggi(messaggio).tipo == Tipo::Nulla);
    QVERIFY(!segnali.HelpiKeysConnesso);
  }

  void anOkInTwoPiecesIsNoneAndBeforeTheFirstOkNoFailureEither() {
    SegnaliHelpiKeys segnali;
    QVERIFY(segnali.Leggi("O").tipo == Tipo::Nulla);
    QVERIFY(segnali.Leggi("K").tipo == Tipo::Nulla);
    QVERIFY(!segnali.HelpiKeysConnesso);
  }

  void twoOksTogetherAreAReportOfTheCellThatTheirLettersName() {
    SegnaliHelpiKeys segnali = collegato();
    const auto segnale = segnali.Leggi("OKOK");
    QVERIFY(segnale.tipo == Tipo::Tocco);
    QCOMPARE(segnale.cella.colonna, 'O' - 64);
    QCOMPARE(segnale.cella.riga, 'K' - 64);
    QVERIFY(segnali.HelpiKeysConnesso);
  }

  void aReportBeforeTheFirstOkIsDropped() {
    SegnaliHelpiKeys segnali;
    for (const char* testo : {"BB1", "BB", "B", "BB2"}) {
      QVERIFY(segnali.Leggi(testo).tipo == Tipo::Nulla);
    }
  }

  void columnTwoArrivesAsTheLetterB() {
    SegnaliHelpiKeys segnali = collegato();
    const auto segnale = segnali.Leggi("BV1");
    QVERIFY(segnale.tipo == Tipo::Tocco);
    QCOMPARE(segnale.cella.colonna, 2);
    QCOMPARE(segnale.cella.riga, 22);
  }

  void aReportWithTheThirdCharacterTwoIsDropped() {
    SegnaliHelpiKeys segnali = collegato();
    QVERIFY(segnali.Leggi("BB2").tipo == Tipo::Nulla);
    QVERIFY(segnali.Leggi("BB2BB1").tipo == Tipo::Nulla);
  }

  void withAnyOtherThirdCharacterOrNoneItCounts() {
    SegnaliHelpiKeys segnali = collegato();
    for (const char* testo : {"BB", "BB0", "BB1", "BB3", "BB ", "BBB"}) {
      QVERIFY2(segnali.Leggi(testo).tipo == Tipo::Tocco, testo);
    }
    QVERIFY(segnali.Leggi(QByteArrayView("BB\0", 3)).tipo == Tipo::Tocco);
  }

  void ofTwoReportsThatArriveTogetherOnlyTheFirstThreeCharactersCount() {
    SegnaliHelpiKeys segnali = collegato();
    const auto segnale = segnali.Leggi("BB1HG1");
    QCOMPARE(segnale.cella.colonna, 2);
    QCOMPARE(segnale.cella.riga, 2);
  }

  void aReportOfOneCharacterIsAnInvalidCall() {
    QCOMPARE(erroreDi("B"), int(platform::RunTimeError::InvalidCall));
    QCOMPARE(erroreDi(""), int(platform::RunTimeError::InvalidCall));
    QCOMPARE(erroreDi("BB"), 0);
  }

  void bytesOutsideOfTheAlphabetAreCellsOutsideOfTheGrid() {
    SegnaliHelpiKeys segnali = collegato();
    const auto zeri = segnali.Leggi(QByteArrayView("\0\0\0", 3));
    QCOMPARE(zeri.cella.colonna, -64);
    QCOMPARE(zeri.cella.riga, -64);
    const auto pieni = segnali.Leggi("\xff\xff\xff");
    QCOMPARE(pieni.cella.colonna, 191);
    QCOMPARE(pieni.cella.riga, 191);
  }

  void aMegabyteIsOneReport() {
    SegnaliHelpiKeys segnali = collegato();
    const auto segnale = segnali.Leggi(QByteArray(1 << 20, 'B'));
    QVERIFY(segnale.tipo == Tipo::Tocco);
    QCOMPARE(segnale.cella.colonna, 2);
  }
};

const prova::Iscrizione<SegnaliHelpiKeysTest> kIscritta;

}  // namespace segnali_helpikeys_test

#include "segnali_helpikeys_test.moc"
