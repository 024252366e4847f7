#include "app/shared/nomi_forme.h"

#include <QApplication>
#include "exercises/numbers/forma_numeri_hk.h"
#include "exercises/numbers/forma_numeri_scansione.h"
#include "exercises/numbers/forma_numeri_tastiera.h"
#include "support/iscrizione.h"
#include "support/scansione_di_prova.h"
#include "support/tocchi.h"

namespace annunci_numeri_test {

using prova::Banco;
using somme::TastieraNumericaScansione;

namespace {

// The level for 3 + 4, or for the addend to be found of the same, and then for 4 + 6.
template <class F>
F& apri(Banco& banco, std::string_view nome, qint16 tipo = 1) {
  banco.ambiente->stato.TipoEsercizio = tipo;
  banco.ambiente->stato.ModalitaInput = 1;
  banco.sorte.scrivi({{6, 10}, {3, 7}, {9, 10}, {4, 10}});
  return banco.apri<F>(nome);
}

const QString kDomanda = QStringLiteral("3 + 4 =");
const QString kSeconda = QStringLiteral("4 + 6 =");
const QString kGiusto = QStringLiteral("Giusto. Esatti 1");
const QString kSbagliato = QStringLiteral("Sbagliato: prova ancora. Errati 1");
const QString kRisolta = QStringLiteral("3 + 4 = 7");

}  // namespace

// What a screen reader is told on the number forms, sentence by sentence.
class AnnunciNumeriTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void typedTheQuestionTheVerdictsAndTheSolvedSumAreTold() {
    Banco banco;
    auto& forma = apri<somme::FormaNumeriTastiera>(banco, somme::forme::kFormNumeriTotale);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kDomanda});
    banco.scrivi(QStringLiteral("8"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSbagliato});
    banco.clicca(forma.TestoInput.TestoOutput);
    banco.batti(Qt::Key_Backspace);
    banco.scrivi(QStringLiteral("7"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kGiusto, kRisolta}));
    banco.batti(Qt::Key_Space);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSeconda});
  }

  void theAddendThatIsAskedForIsLeftOut() {
    Banco banco;
    apri<somme::FormaNumeriTastiera>(banco, somme::forme::kFormNumeriAddendo, 2);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("3 + ____ = 7")});
    banco.scrivi(QStringLiteral("4"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kGiusto, kRisolta}));
  }

  void scannedEachDigitIsToldWithThoseBeforeIt() {
    Banco banco;
    auto& forma =
        apri<somme::FormaNumeriScansione>(banco, somme::forme::kFormNumeriTotaleScansione);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kDomanda});
    const auto scegli = [&](int tasto) {
      return prova::scegliAMano(banco, forma.TastieraNumericaScansione1, tasto);
    };
    QVERIFY(scegli(1));
    QVERIFY(scegli(2));
    QVERIFY(scegli(TastieraNumericaScansione::kCestino));
    QVERIFY(scegli(7));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{QStringLiteral("1"), QStringLiteral("12"),
                                                 QStringLiteral("vuoto"), QStringLiteral("7")}));
    QVERIFY(scegli(TastieraNumericaScansione::kConferma));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{kGiusto, kRisolta}));
    QVERIFY(scegli(TastieraNumericaScansione::kAvanti));
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSeconda});
  }

  void touchedEachDigitIsToldWithThoseBeforeIt() {
    Banco banco;
    banco.ambiente->stato.TipoEsercizio = 1;
    banco.sorte.scrivi({{6, 10}, {3, 7}, {9, 10}, {4, 10}});
    prova::apriPronta<somme::FormaNumeriHK>(banco, somme::forme::kFormNumeriTotaleHK);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kDomanda});
    prova::toccaNumero(banco, QStringLiteral("12"));
    prova::tocca(banco, somme::Tasto::Cestino);
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("1"), QStringLiteral("12"), QStringLiteral("vuoto")}));
    prova::rispondiToccando(banco, QStringLiteral("8"));
    QCOMPARE(banco.annunci.nuovi(), (QStringList{QStringLiteral("8"), kSbagliato}));
    prova::tocca(banco, somme::Tasto::Cestino);
    prova::rispondiToccando(banco, QStringLiteral("7"));
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("vuoto"), QStringLiteral("7"), kGiusto, kRisolta}));
    prova::tocca(banco, somme::Tasto::Avanti);
    QCOMPARE(banco.annunci.nuovi(), QStringList{kSeconda});
  }

  void aNewCaseLeavesNothingOfTheOldOneToBeTold() {
    Banco banco;
    auto& forma = apri<somme::FormaNumeriTastiera>(banco, somme::forme::kFormNumeriTotale);
    banco.scrivi(QStringLiteral("7"));
    banco.batti(Qt::Key_Return);
    banco.batti(Qt::Key_Space);
    for (const platform::Control* controllo : forma.controls()) {
      if (controllo->widget() != nullptr) {
        QCOMPARE(controllo->widget()->accessibleDescription(), QString());
      }
    }
  }
};

const prova::Iscrizione<AnnunciNumeriTest, QApplication> kIscritta;

}  // namespace annunci_numeri_test

#include "annunci_numeri_test.moc"
