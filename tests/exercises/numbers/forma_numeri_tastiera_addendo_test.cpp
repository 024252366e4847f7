#include "exercises/numbers/forma_numeri_tastiera.h"

#include <QApplication>

#include "app/shared/nomi_forme.h"
#include "numeri_di_prova.h"
#include "support/iscrizione.h"
#include "support/risposta_scritta.h"

namespace forma_numeri_tastiera_addendo_test {

using prova::Banco;
using prova::rispondiScrivendo;
using somme::FormaNumeriTastiera;

namespace {

FormaNumeriTastiera& apri(Banco& banco, qint16 tipo,
                          const std::vector<prova::SorteDiProva::Estrazione>& estrazioni) {
  return prova::apriNumeri<FormaNumeriTastiera>(banco, somme::forme::kFormNumeriAddendo, tipo,
                                                "Trova l'addendo", estrazioni);
}

}  // namespace

// The number exercise with an addend to find: what it does otherwise than the one with the sum.
class FormaNumeriTastieraAddendoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theQuestionLeavesTheSecondAddendOut() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, {{4, 10}});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 + ____ =  10"));
    QCOMPARE(forma.TestoInput.MaxLength.get(), qint16(2));
    QVERIFY(forma.withoutRow().empty());
  }

  void onlyTenIsRightForNoughtAndTen() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, {{0, 10}});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 0 + ____ =  10"));
    rispondiScrivendo(banco, QStringLiteral("0"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    banco.clicca(forma.TestoInput.TestoOutput);
    banco.batti(Qt::Key_Backspace);
    rispondiScrivendo(banco, QStringLiteral("10"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theSumIsNoAnswer() {
    Banco banco;
    apri(banco, 1, {{4, 10}});
    rispondiScrivendo(banco, QStringLiteral("10"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
  }

  void theRightAnswerWritesTheWholeOperationAnew() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, {{4, 10}});
    rispondiScrivendo(banco, QStringLiteral("06"));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 =  10"));
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\nTrova l'addendo\r\n\r\n 4 +  6 =  10\r\n"));
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    QVERIFY(!forma.TestoInput.isEnabled());
    QVERIFY(forma.PulsanteAvanti.isEnabled());
  }

  void theFourLevelsDrawTheirKinds() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, {{4, 10}});
    struct Riga {
      qint16 tipo;
      std::vector<prova::SorteDiProva::Estrazione> estrazioni;
      QString domanda;
    };
    const Riga righe[] = {
        {1, {{9, 10}}, QStringLiteral(" 9 + ____ =  10")},
        {2, {{4, 10}, {2, 5}}, QStringLiteral(" 2 + ____ =  5")},
        {3, {{10, 11}}, QStringLiteral(" 10 + ____ =  20")},
        {4, {{19, 20}}, QStringLiteral(" 19 + ____ =  20")},
    };
    for (const Riga& riga : righe) {
      banco.ambiente->stato.TipoEsercizio = riga.tipo;
      banco.sorte.scrivi(riga.estrazioni);
      forma.PulsanteAvanti.setEnabled(true);
      forma.PulsanteAvanti.click();
      QCOMPARE(forma.EtOperazione.caption(), riga.domanda);
      QCOMPARE(banco.sorte.rimaste(), std::size_t(0));
      rispondiScrivendo(banco, QString::number(banco.ambiente->stato.Addendo2));
      QCOMPARE(banco.ambiente->stato.ContaEsatti, riga.tipo);
    }
  }

  void aFifthLevelKeepsTheLastCase() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, {{4, 10}});
    banco.ambiente->stato.TipoEsercizio = 5;
    forma.PulsanteAvanti.setEnabled(true);
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 + ____ =  10"));
  }

  void anAddendOfNoughtCanBeAnswered() {
    Banco banco;
    apri(banco, 3, {{0, 11}});
    rispondiScrivendo(banco, QStringLiteral("0"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }
};

const prova::Iscrizione<FormaNumeriTastieraAddendoTest, QApplication> kIscritta;

}  // namespace forma_numeri_tastiera_addendo_test

#include "forma_numeri_tastiera_addendo_test.moc"
