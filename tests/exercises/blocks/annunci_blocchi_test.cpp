#include "blocchi_entro99.h"
#include "blocchi_scanditi.h"

#include <QApplication>
#include "exercises/blocks/forma_blocchi_hk.h"
#include "support/iscrizione.h"
#include "support/tocchi.h"

namespace annunci_blocchi_test {

using namespace prova;
using namespace prova::entro99;
using namespace prova::scanditi;

namespace {

using somme::Tasto;

const QString kGiusto = QStringLiteral("Giusto");
const QString kCambio = QStringLiteral("Cambia dieci unità in una decina");

void premi(Banco& banco, Tasto tasto, int volte = 1) {
  for (int i = 0; i < volte; ++i) tocca(banco, tasto);
}

}  // namespace

// What a screen reader is told on the blocks forms, sentence by sentence.
class AnnunciBlocchiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void boardsCarryVerdictsAndTheSolvedSumAreTold() {
    Banco banco;
    somme::FormaBlocchiTastiera& forma = prova::entro99::apri(banco, 18, 13);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("18 + 13 =")});
    banco.clicca(forma.pulsanti.PulsanteDa);
    banco.clicca(forma.pulsanti.PulsanteU);
    banco.clicca(forma.pulsanti.PulsanteCestino);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("1 decina"), QStringLiteral("1 decina, 1 unità"),
                          QStringLiteral("vuoto"),
                          QStringLiteral("Sbagliato: prova ancora. Errati 1")}));
    costruisci(banco, forma, 18);
    banco.annunci.detti.clear();
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kGiusto});
    costruisci(banco, forma, 13);
    banco.annunci.detti.clear();
    banco.clicca(forma.pulsanti.PulsanteConferma);
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{kGiusto, QStringLiteral("2 decine, 11 unità"), kCambio}));
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("3 decine, 1 unità")});
    rispondi(banco, forma, QStringLiteral("31"));
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("Giusto. Esatti 1"), QStringLiteral("18 + 13 = 31")}));
    banco.sorte.scrivi(caso(21, 14));
    banco.batti(Qt::Key_Space);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("21 + 14 =")});
  }

  // The carry's button gets the focus there, and is heard with it.
  void scannedTheSameIsToldButTheCarrysButton() {
    Banco banco;
    somme::FormaBlocchiScansione& forma = apriLU(banco, 18, 13);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("18 + 13 =")});
    QVERIFY(costruisciScandendo(banco, forma, 18));
    QCOMPARE(banco.annunci.nuovi().last(), kGiusto);
    QVERIFY(costruisciScandendo(banco, forma, 13));
    QCOMPARE(banco.annunci.nuovi().mid(4),
             (QStringList{kGiusto, QStringLiteral("2 decine, 11 unità")}));
    QVERIFY(forma.PulsanteCambio->hasFocus());
    banco.batti(Qt::Key_Space);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("3 decine, 1 unità")});
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("31")));
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("3"), QStringLiteral("31"),
                          QStringLiteral("Giusto. Esatti 1"), QStringLiteral("18 + 13 = 31")}));
  }

  void touchedTheSumIsToldOnceTheCarryIsDone() {
    Banco banco;
    banco.ambiente->stato.TipoEsercizio = kConESenzaCambi;
    banco.sorte.scrivi(casoHLU(18, 13));
    apriPronta<somme::FormaBlocchiHK>(banco, somme::forme::kFormHLUHK);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("18 + 13 =")});
    for (const int unita : {8, 3}) {
      premi(banco, Tasto::Decine);
      premi(banco, Tasto::Unita, unita);
      premi(banco, Tasto::Conferma);
    }
    const QStringList detti = banco.annunci.nuovi();
    QCOMPARE(detti.first(), QStringLiteral("1 decina"));
    QCOMPARE(detti.mid(detti.size() - 3),
             (QStringList{kGiusto, QStringLiteral("2 decine, 11 unità"), kCambio}));
    premi(banco, Tasto::CambioUDa);
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("3 decine, 1 unità"), QStringLiteral("Giusto. Esatti 1"),
                          QStringLiteral("18 + 13 = 31")}));
  }
};

const prova::Iscrizione<AnnunciBlocchiTest, QApplication> kIscritta;

}  // namespace annunci_blocchi_test

#include "annunci_blocchi_test.moc"
