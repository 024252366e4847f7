#include "printing/nome_formato_carta.h"

#include <QCoreApplication>
#include <QSet>
#include <QTest>

#include "platform/base/paper_codes.h"
#include "support/iscrizione.h"

namespace nome_formato_carta_test {

class NomeFormatoCartaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theCodesBearTheirNames() {
    QCOMPARE(somme::NomeFormatoCarta(1), QStringLiteral("Letter"));
    QCOMPARE(somme::NomeFormatoCarta(8), QStringLiteral("A3"));
    QCOMPARE(somme::NomeFormatoCarta(9), QStringLiteral("A4"));
    QCOMPARE(somme::NomeFormatoCarta(16), QStringLiteral("10X14"));
    QCOMPARE(somme::NomeFormatoCarta(32), QStringLiteral("Envelope C65"));
    QCOMPARE(somme::NomeFormatoCarta(40), QStringLiteral("Fanfold Std. German"));
    QCOMPARE(somme::NomeFormatoCarta(47), QStringLiteral("Envelope Invite"));
    QCOMPARE(somme::NomeFormatoCarta(50), QStringLiteral("Letter Extra"));
    QCOMPARE(somme::NomeFormatoCarta(66), QStringLiteral("A2"));
    QCOMPARE(somme::NomeFormatoCarta(68), QStringLiteral("A3 Extra Transverse"));
    QCOMPARE(somme::NomeFormatoCarta(256), QStringLiteral("User"));
  }

  void aCodeThatIsNotInTheTableIsUnknown() {
    for (const int codice : {-1, 0, 48, 49, 69, 255, 257}) {
      QCOMPARE(somme::NomeFormatoCarta(codice), QStringLiteral("Unknown"));
    }
  }

  void everyOtherCodeHasANameOfItsOwn() {
    QSet<QString> nomi;
    for (int codice = 1; codice <= 68; ++codice) {
      if (codice == 48 || codice == 49) continue;
      nomi.insert(somme::NomeFormatoCarta(codice));
    }
    QCOMPARE(nomi.size(), 66);
    QVERIFY(!nomi.contains(QStringLiteral("Unknown")));
  }

  void aSheetIsKnownByItsSize() {
    QCOMPARE(platform::paperCodeOf(210, 297), platform::kPaperA4);
    QCOMPARE(platform::paperCodeOf(297.04, 419.81), platform::kPaperA3);
    QCOMPARE(platform::paperCodeOf(215.9, 279.4), 1);
    QCOMPARE(platform::paperCodeOf(420, 297), 0);
    QCOMPARE(platform::paperCodeOf(50, 30), 0);
  }

  void whatAPrinterTakesIsCalledByItsKindOrItsOwnWord() {
    QCOMPARE(somme::NomeDellaCarta({9, QStringLiteral("iso_a4"), 210, 297, 0, 0}),
             QStringLiteral("A4"));
    QCOMPARE(somme::NomeDellaCarta({0, QStringLiteral("roll"), 62, 100, 0, 0}),
             QStringLiteral("roll (62 x 100 mm)"));
  }
};

const prova::Iscrizione<NomeFormatoCartaTest, QCoreApplication> kIscritta;

}  // namespace nome_formato_carta_test

#include "nome_formato_carta_test.moc"
