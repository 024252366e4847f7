#include <QApplication>

#include "barre10_di_prova.h"
#include "exercises/bars/forma_barre_hk.h"
#include "exercises/bars/forma_barre_scansione.h"
#include "exercises/bars/forma_barre_tastiera.h"
#include "support/iscrizione.h"
#include "support/scansione_di_prova.h"
#include "support/tocchi.h"

namespace annunci_barre_test {

using prova::Banco;
using somme::FormaBarrePulsanti;
using somme::TastieraNumericaScansione;

namespace {

const QString kConsegna = QStringLiteral("Trova il numero che corrisponde alla barra rossa");
const QString kDomanda = QStringLiteral("3 + 4 = ?. ") + kConsegna;
const QString kSeconda = QStringLiteral("2 + 6 = ?. ") + kConsegna;
const QString kAiuto = QStringLiteral("Barra rossa: 1, 1, 1, 1, 1, 1, 1");
const QString kGiusto = QStringLiteral("Giusto. Esatti 1");
const QString kSbagliato = QStringLiteral("Sbagliato: prova ancora. Errati 1");
const QString kRisolta = QStringLiteral("3 + 4 = 7");

// 3 + 4, then 2 + 6.
void scriviCasi(Banco& banco) {
  banco.ambiente->stato.LimiteEsercizio = 10;
  banco.ambiente->stato.ModalitaInput = 1;
  banco.sorte.scrivi({{6, 10}, {3, 7}, {7, 10}, {2, 8}});
}

}  // namespace

// What a screen reader is told on the bars forms, sentence by sentence.
class AnnunciBarreTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void onTheNumberedButtonsQuestionHelpVerdictAndSumAreTold() {
    Banco banco;
    scriviCasi(banco);
    auto& forma = banco.apri<FormaBarrePulsanti>(somme::forme::kFormBarre10);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kDomanda});
    banco.clicca(forma.PulsanteNumero[5]);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSbagliato});
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kAiuto});
    banco.clicca(forma.PulsanteNumero[7]);
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kGiusto, kRisolta}));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSeconda});
  }

  void theBarThatIsAskedForHasNoNumberAndItsSquaresAreTold() {
    Banco banco;
    banco.ambiente->stato.LimiteEsercizio = 10;
    auto& forma = banco.apri<FormaBarrePulsanti>(somme::forme::kFormBarre10);
    banco.annunci.detti.clear();
    // The first addend of 0 + 5 is asked for: no square stands under its bar.
    banco.sorte.scrivi({{1, 2}, {4, 10}, {0, 5}});
    forma.mnuGiallaVerde.click();
    QCoreApplication::processEvents();
    QCOMPARE(banco.annunci.nuovi(),
             QStringList{QStringLiteral("? + 5 = 5. ") + forma.Label3.caption()});
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("Barra gialla: 0")});
  }

  void typedTheSameIsTold() {
    Banco banco;
    scriviCasi(banco);
    auto& forma = banco.apri<somme::FormaBarreTastiera>(somme::forme::kFormBarre20);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kDomanda});
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kAiuto});
    banco.clicca(forma.TestoInput);
    banco.scrivi(QStringLiteral("7"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kGiusto, kRisolta}));
    banco.batti(Qt::Key_Space);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSeconda});
  }

  void scannedTheVerdictComesBeforeTheLightMoves() {
    Banco banco;
    scriviCasi(banco);
    auto& forma = banco.apri<somme::FormaBarreScansione>(somme::forme::kFormBarre10Scansione);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kDomanda});
    const TastieraNumericaScansione& tastiera = forma.TastieraNumericaScansione1;
    qint16 accesoAlVerdetto = -1;
    banco.annunci.allAnnuncio = [&] { accesoAlVerdetto = tastiera.pulsanteAcceso(); };
    const auto scegli = [&](int tasto) { return prova::scegliAMano(banco, tastiera, tasto); };
    QVERIFY(scegli(5));
    QVERIFY(scegli(TastieraNumericaScansione::kConferma));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{QStringLiteral("5"), kSbagliato}));
    QCOMPARE(accesoAlVerdetto, qint16(TastieraNumericaScansione::kConferma));
    QCOMPARE(tastiera.pulsanteAcceso(), qint16(TastieraNumericaScansione::kCestino));
    banco.batti(Qt::Key_Return);
    QVERIFY(scegli(TastieraNumericaScansione::kAiuto));
    QVERIFY(scegli(7));
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("vuoto"), kAiuto, QStringLiteral("7")}));
    QVERIFY(scegli(TastieraNumericaScansione::kConferma));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kGiusto, kRisolta}));
    QVERIFY(scegli(TastieraNumericaScansione::kAvanti));
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSeconda});
  }

  void touchedTheSameIsTold() {
    Banco banco;
    scriviCasi(banco);
    prova::apriPronta<somme::FormaBarreHK>(banco, somme::forme::kFormBarre10HK);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kDomanda});
    prova::rispondiToccando(banco, QStringLiteral("5"));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{QStringLiteral("5"), kSbagliato}));
    prova::tocca(banco, somme::Tasto::Aiuto);
    prova::tocca(banco, somme::Tasto::Cestino);
    prova::rispondiToccando(banco, QStringLiteral("7"));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kAiuto, QStringLiteral("vuoto"),
                                                 QStringLiteral("7"), kGiusto, kRisolta}));
    prova::tocca(banco, somme::Tasto::Avanti);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSeconda});
  }
};

const prova::Iscrizione<AnnunciBarreTest, QApplication> kIscritta;

}  // namespace annunci_barre_test

#include "annunci_barre_test.moc"
