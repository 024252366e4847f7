#include "abaco_scandito.h"

#include <QApplication>
#include "abaco_toccato.h"
#include "support/iscrizione.h"

namespace annunci_abaco_test {

using namespace prova;
using somme::Tasto;

namespace {

const QString kGiusto = QStringLiteral("Giusto. Esatti 1");

}  // namespace

// What a screen reader is told on the abacus, sentence by sentence.
class AnnunciAbacoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void beadsCarryBinAndVerdictAreTold() {
    BancoAbaco banco(3, BancoAbaco::caso(3, 42, 27), kFinestraPiccola);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("27 + 15 =")});
    banco.tocca("daa", 0);
    banco.tocca("ua", 0);
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("1 decina"), QStringLiteral("1 decina, 1 unità")}));
    banco.metti("ua", 9, 1);
    QCOMPARE(banco.annunci.nuovi().last(), QStringLiteral("1 decina, 10 unità"));
    banco.clicca(banco.forma.PulsanteCambioUDa);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("2 decine")});
    banco.tocca("da", 0);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("1 decina")});
    banco.clicca(banco.forma.PulsanteCestino);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("vuoto")});
    banco.forma.TestoInput.setFocus();
    banco.rispondi(QStringLiteral("42"));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kGiusto, QStringLiteral("27 + 15 = 42")}));
  }

  void scannedTenBeadsAndWhatTheyBecomeAreTold() {
    BancoScansione banco(3, BancoScansione::caso(3, 42, 27));
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("27 + 15 =")});
    QVERIFY(banco.scegli(Valori::kUnita, 10));
    const QStringList detti = banco.annunci.nuovi();
    QCOMPARE(detti.size(), 11);
    QCOMPARE(detti.first(), QStringLiteral("1 unità"));
    QCOMPARE(detti.mid(9), (QStringList{QStringLiteral("10 unità"), QStringLiteral("1 decina")}));
    QVERIFY(banco.scegli(Valori::kCestino));
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("vuoto")});
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.rispondi("42"));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{QStringLiteral("4"), QStringLiteral("42"), kGiusto,
                                                 QStringLiteral("27 + 15 = 42")}));
  }

  void touchedTheBinIsToldAndANewCaseTellsItsQuestionAlone() {
    BancoHK banco(3, BancoHK::caso(3, 42, 27));
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("27 + 15 =")});
    banco.tasto(Tasto::Decine, 4);
    banco.tasto(Tasto::Unita, 2);
    QCOMPARE(banco.annunci.nuovi().last(), QStringLiteral("4 decine, 2 unità"));
    banco.tasto(Tasto::Conferma);
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kGiusto, QStringLiteral("27 + 15 = 42.")}));
    banco.tasto(Tasto::Cestino);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("vuoto")});
    banco.sorte.scrivi(BancoHK::caso(3, 35, 21));
    banco.tasto(Tasto::Avanti);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("21 + 14 =")});
  }
};

const prova::Iscrizione<AnnunciAbacoTest, QApplication> kIscritta;

}  // namespace annunci_abaco_test

#include "annunci_abaco_test.moc"
