#include <QApplication>

#include "blocchi_toccati.h"
#include "exercises/blocks/forma_blocchi_tastiera.h"
#include "support/iscrizione.h"

namespace fuoco_blocchi_test {

using namespace prova;
using namespace prova::toccati;

namespace {

// Where the keyboard is; empty where it is nowhere, or on what is not on the screen or takes no
// keys.
QString fuoco() {
  const QWidget* ha = QApplication::focusWidget();
  return ha == nullptr || !ha->isVisible() || !ha->isEnabled() ? QString() : ha->objectName();
}

// Where it is in the middle of the wait that begins next.
void guardaNellAttesa(Banco& banco, double secondi, QString& dove) {
  banco.tempo.after(secondi, [&dove] { dove = fuoco(); });
}

somme::FormaBlocchiTastiera& aperta(Banco& banco, int addendo1, int addendo2, bool centinaia) {
  banco.ambiente->stato.TipoEsercizio = centinaia ? kConESenzaCambi : kConESenzaCambio;
  banco.sorte.scrivi(centinaia ? casoHLU(addendo1, addendo2) : casoLU(addendo1, addendo2));
  return banco.apri<somme::FormaBlocchiTastiera>(centinaia ? somme::forme::kFormHLU
                                                           : somme::forme::kFormLU);
}

}  // namespace

// The keyboard is somewhere at every moment of a case of blocks.
class FuocoBlocchiTest : public QObject {
  Q_OBJECT

  // A whole sum with a carry from the units, and the beginning of the next.
  template <class F>
  static void provaUnCaso(Banco& banco, F& forma, const QString& primo) {
    QCOMPARE(fuoco(), primo);
    costruisci(banco, forma, 27);
    forma.pulsanti.PulsanteConferma.setFocus();
    banco.batti(Qt::Key_Return);
    QCOMPARE(fuoco(), QStringLiteral("PulsanteConferma"));
    costruisci(banco, forma, 15);
    forma.pulsanti.PulsanteConferma.setFocus();
    QString unione;
    guardaNellAttesa(banco, 1, unione);
    banco.batti(Qt::Key_Return);
    QCOMPARE(unione, QStringLiteral("EtOperazione"));
    QCOMPARE(fuoco(), QStringLiteral("EtOperazione"));
    banco.batti(Qt::Key_Tab);
    QVERIFY2(fuoco().startsWith(QStringLiteral("PulsanteCambio")), qPrintable(fuoco()));
    QString cambio;
    guardaNellAttesa(banco, 2, cambio);
    banco.batti(Qt::Key_Space);
    QCOMPARE(cambio, QStringLiteral("EtOperazione"));
    if constexpr (requires { forma.TestoInput; }) {
      QCOMPARE(fuoco(), QStringLiteral("TestoInput"));
      rispondi(banco, forma, QStringLiteral("42"));
    }
    QCOMPARE(fuoco(), QStringLiteral("PulsanteAvanti"));
    banco.sorte.scrivi(primo == QStringLiteral("PulsanteH") ? casoHLU(3, 4) : casoLU(3, 4));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
    QCOMPARE(fuoco(), primo);
  }

 private Q_SLOTS:
  void byButtonsUpTo99() {
    Banco banco;
    provaUnCaso(banco, aperta(banco, 27, 15, false), QStringLiteral("PulsanteDa"));
  }
  void byButtonsUpTo999() {
    Banco banco;
    provaUnCaso(banco, aperta(banco, 27, 15, true), QStringLiteral("PulsanteH"));
  }
  void onTheTouchFormUpTo99() {
    Banco banco;
    provaUnCaso(banco, apriLU(banco, 27, 15), QStringLiteral("PulsanteDa"));
  }
  void onTheTouchFormUpTo999() {
    Banco banco;
    provaUnCaso(banco, apriHLU(banco, 27, 15), QStringLiteral("PulsanteH"));
  }

  void aNewCaseByTheSheetFindsTheFirstButtonWhereverTheLastWasLeft() {
    Banco banco;
    apriLU(banco, 27, 15);
    unisciToccando(banco);
    QCOMPARE(fuoco(), QStringLiteral("EtOperazione"));
    banco.sorte.scrivi(casoLU(3, 4));
    premi(banco, kAvanti);
    QCOMPARE(fuoco(), QStringLiteral("PulsanteDa"));
  }

  void aFocusThatIsOnAButtonStaysThereWhenTheSheetBeginsANewCase() {
    Banco banco;
    auto& forma = apriLU(banco, 27, 15);
    forma.pulsanti.PulsanteCestino.setFocus();
    banco.sorte.scrivi(casoLU(3, 4));
    premi(banco, kAvanti);
    QCOMPARE(fuoco(), QStringLiteral("PulsanteCestino"));
  }

  void arrowKeysWalkTheButtonsOfTheBlocks() {
    Banco banco;
    aperta(banco, 27, 15, true);
    QStringList visitati;
    for (const int tasto : {Qt::Key_Right, Qt::Key_Right, Qt::Key_End, Qt::Key_Right, Qt::Key_Left,
                            Qt::Key_Home, Qt::Key_Up}) {
      banco.batti(tasto);
      visitati.append(fuoco());
    }
    QCOMPARE(visitati.join(u' '),
             QStringLiteral("PulsanteDa PulsanteU PulsanteConferma PulsanteConferma "
                            "PulsanteCestino PulsanteH PulsanteH"));
  }
};

const prova::Iscrizione<FuocoBlocchiTest, QApplication> kIscritta;

}  // namespace fuoco_blocchi_test

#include "fuoco_blocchi_test.moc"
