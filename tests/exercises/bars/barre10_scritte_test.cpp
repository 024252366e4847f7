#include <QAccessible>
#include <QApplication>

#include "app/form_menu_scelte.h"
#include "app/shared/nomi_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "exercises/bars/forma_barre_tastiera.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/pulsante.h"

namespace barre10_scritte_test {

using prova::Banco;
using somme::FormaBarrePulsanti;
using somme::FormaBarreTastiera;

namespace {

FormaBarreTastiera& apri(Banco& banco, int totale, int addendo1) {
  banco.ambiente->stato.LimiteEsercizio = 10;
  banco.sorte.scrivi({{totale - 1, 10}, {addendo1, totale}});
  return banco.apri<FormaBarreTastiera>(somme::forme::kFormBarre10Tastiera);
}

}  // namespace

// The bars up to 10 with a typed answer, in what they differ from those up to 20.
class Barre10ScritteTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itIsReachedFromTheNumberedButtonsWithTheCountersAndTheLimitUnchanged() {
    Banco banco;
    banco.ambiente->stato.LimiteEsercizio = 10;
    banco.ambiente->stato.ContaEsatti = 3;
    banco.ambiente->stato.ContaErrati = 2;
    auto& prima = banco.apri<FormaBarrePulsanti>(somme::forme::kFormBarre10);
    QVERIFY(prima.mnuTastiera.isEnabled());
    prima.mnuTastiera.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormBarre10Tastiera"));
    auto& forma = banco.forma<FormaBarreTastiera>();
    QCOMPARE(banco.ambiente->stato.LimiteEsercizio, 10);
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  3"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  2"));
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(1));
    forma.mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuBarre"));
  }

  void goingBackThroughTheMenuStartsAFreshRecordAtTheFirstKind() {
    Banco banco;
    banco.ambiente->stato.LimiteEsercizio = 10;
    banco.sorte.scrivi({{6, 10}, {3, 7}});
    auto& prima = banco.apri<FormaBarrePulsanti>(somme::forme::kFormBarre10);
    banco.clicca(prima.PulsanteNumero[7]);
    prima.mnuTutteBarre.click();
    prima.mnuTastiera.click();
    const QString titolo = QStringLiteral("\r\n     Uso delle barre - Fino al 10\r\n\r\n");
    QCOMPARE(banco.forma<FormaBarreTastiera>().TestoStampa.text(), titolo);
    banco.forma<FormaBarreTastiera>().mnuEsci.click();
    banco.clicca(prova::pulsante(banco.forma<somme::FormMenuScelte>(), "Command2"));
    auto& poi = banco.forma<FormaBarrePulsanti>();
    QCOMPARE(poi.TestoStampa.text(), titolo);
    QCOMPARE(poi.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(1));
    QVERIFY(poi.mnuRossa.isChecked());
  }

  void itOpensWithTheBoxOverTheTotalAndTenHelpSquaresARow() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 7, 3);
    QVERIFY(forma.withoutRow().empty());
    QVERIFY(forma.TestoInput.hasFocus());
    QVERIFY(forma.TestoInput.widget()->geometry() == forma.Label4[4].widget()->geometry());
    QCOMPARE(forma.aiuto1.count(), 10);
    QCOMPARE(forma.aiuto3.count(), 10);
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\n     Uso delle barre - Fino al 10\r\n\r\n"));
  }

  void helpShowsTheSquaresAndTheNextCaseHidesThem() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 7, 3);
    banco.clicca(forma.PulsanteAiuto);
    QVERIFY(forma.aiuto1[2].isVisible());
    QVERIFY(!forma.aiuto1[3].isVisible());
    QVERIFY(forma.aiuto3[6].isVisible());
    forma.mnuRossa.click();
    QVERIFY(!forma.aiuto1[0].isVisible());
    QVERIFY(!forma.aiuto3[0].isVisible());
  }

  void assistiveTechnologyWritesAndConfirmsWithoutAKey() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 7, 3);
    QAccessibleInterface* casella =
        QAccessible::queryAccessibleInterface(forma.TestoInput.widget());
    QCOMPARE(casella->role(), QAccessible::EditableText);
    const auto conferma = [casella] {
      casella->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
      QCoreApplication::processEvents();
    };
    casella->editableTextInterface()->insertText(0, QStringLiteral("5"));
    QCoreApplication::processEvents();
    QCOMPARE(casella->textInterface()->text(0, 9), QStringLiteral("5"));
    conferma();
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    casella->editableTextInterface()->replaceText(0, 1, QStringLiteral("7"));
    QCoreApplication::processEvents();
    conferma();
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    // A locked box offers nothing to confirm, and a press that comes all the same does nothing.
    QVERIFY(!casella->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
    conferma();
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theRightAnswerRunsAgainOnEnterInTheLockedBox() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 7, 3);
    banco.scrivi(QStringLiteral("7"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.TestoInput.isLocked());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    banco.clicca(forma.TestoInput);
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
    QCOMPARE(forma.TestoStampa.text().count(QStringLiteral("3 +  4 =  7")), 2);
  }
};

const prova::Iscrizione<Barre10ScritteTest, QApplication> kIscritta;

}  // namespace barre10_scritte_test

#include "barre10_scritte_test.moc"
