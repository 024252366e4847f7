#include <QApplication>
#include <cmath>

#include "barre10_di_prova.h"
#include "platform/forms/loaded_form.h"
#include "support/iscrizione.h"

namespace pagina_barre10_test {

using prova::apriBarre10;
using prova::Banco;
using prova::barre;
using prova::visibili;
using somme::FormaBarrePulsanti;

// The page of the bars up to 10: lengths, help, the record and its panel, the pointer.
class PaginaBarre10Test : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theBarsHaveTheLengthsOfTheNumbers() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    const double unita = forma.n1.height();
    QCOMPARE(qRound(forma.n1.width()), qRound(3 * std::round(unita)));
    QCOMPARE(qRound(forma.n2.left()), qRound(3 * std::round(unita)));
    QCOMPARE(qRound(forma.n2.width()), qRound(4 * std::round(unita)));
    QCOMPARE(qRound(forma.n3.width()), qRound(7 * std::round(unita)));
    QCOMPARE(qRound(forma.n3.top()), qRound(std::round(unita)));
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 3"));
    QCOMPARE(forma.n2.caption(), QStringLiteral(" 4"));
    QCOMPARE(forma.n3.caption(), QStringLiteral("?"));
    QCOMPARE(forma.Label4[0].caption(), QStringLiteral("3"));
    QCOMPARE(forma.Label4[1].caption(), QStringLiteral("+"));
    QCOMPARE(forma.Label4[2].caption(), QStringLiteral("4"));
    QCOMPARE(forma.Label4[3].caption(), QStringLiteral("="));
    QCOMPARE(forma.Label4[4].caption(), QString());
  }

  void aSecondAddendOfTenFillsTheRowAndItsTenSquares() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 10, 0);
    const double unita = std::round(forma.n1.height());
    QCOMPARE(qRound(forma.n2.width()), qRound(10 * unita));
    QCOMPARE(qRound(forma.n3.width()), qRound(10 * unita));
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto2), 10);
    QCOMPARE(visibili(forma.aiuto3), 10);
    QVERIFY(forma.n3.left() + forma.n3.width() <= forma.Picture1.width());
  }

  void helpLaysTheSumOutUnitByUnitAndCostsNothing() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    const int unita = int(std::lround(forma.n1.height()));
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto1), 3);
    QCOMPARE(visibili(forma.aiuto2), 4);
    QCOMPARE(visibili(forma.aiuto3), 7);
    for (int i = 0; i < 3; ++i) {
      QCOMPARE(qRound(forma.aiuto1[i].left()), i * unita);
      QCOMPARE(qRound(forma.aiuto1[i].top()), 2 * unita + 10);
    }
    for (int i = 0; i < 4; ++i) QCOMPARE(qRound(forma.aiuto2[i].left()), (3 + i) * unita);
    // The row of the total has no gap above it.
    for (int i = 0; i < 7; ++i) QCOMPARE(qRound(forma.aiuto3[i].top()), 3 * unita);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.suono.suonati.isEmpty());
    QVERIFY(forma.PulsanteAiuto.isEnabled());
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto3), 7);
  }

  void helpWorksOnASolvedCaseAndGoesWithTheNext() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[7]);
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto3), 7);
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(visibili(forma.aiuto1) + visibili(forma.aiuto2) + visibili(forma.aiuto3), 0);
  }

  void theRecordBeginsWithItsTitleAndGainsALineForEachSum() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    const QString titolo = QStringLiteral("\r\n     Uso delle barre - Fino al 10\r\n\r\n");
    QCOMPARE(forma.TestoStampa.text(), titolo);
    banco.clicca(forma.PulsanteNumero[7]);
    banco.sorte.scrivi({{9, 10}, {2, 10}});
    banco.clicca(forma.PulsanteAvanti);
    banco.clicca(forma.PulsanteNumero[10]);
    QCOMPARE(forma.TestoStampa.text(),
             titolo + QStringLiteral("     3 +  4 =  7\r\n     2 +  8 =  10\r\n"));
  }

  void thePrintPanelCoversTheFormAndGivesItBackUnchanged() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.batti(Qt::Key_S, Qt::AltModifier);
    QVERIFY(forma.PictureStampa.isVisible());
    QCOMPARE(forma.PictureStampa.left(), 0.0);
    QCOMPARE(forma.PictureStampa.top(), 0.0);
    QCOMPARE(qRound(forma.PictureStampa.width()), qRound(forma.width()));
    QCOMPARE(qRound(forma.PictureStampa.height()), qRound(forma.height()));
    // What lies under it takes neither mouse nor access keys.
    banco.clicca(forma.PulsanteNumero[7]);
    banco.batti(Qt::Key_A, Qt::AltModifier);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(visibili(forma.aiuto3), 0);
    banco.clicca(forma.CommandChiudi);
    QVERIFY(!forma.PictureStampa.isVisible());
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral(" 3"), QStringLiteral(" 4"), QStringLiteral("?")}));
  }

  void theGeometryIsReadOnceAndABarFollowsALaterResize() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    const double prima = forma.n3.width() / forma.width();
    const double unita = std::round(forma.n1.height());
    banco.ridimensiona({1400, 900});
    QVERIFY(std::abs(forma.n3.width() / forma.width() - prima) < 1e-6);
    QVERIFY(std::abs(forma.n1.height() - unita) > 20);
    // The next case still has the unit of the activation; a form that is loaded anew reads it.
    banco.sorte.scrivi({{7, 10}, {5, 8}});
    forma.mnuRossa.click();
    QCOMPARE(qRound(forma.n3.width()), qRound(8 * unita));
    QCOMPARE(qRound(forma.n3.top()), qRound(unita));
    banco.batti(Qt::Key_E, Qt::AltModifier);
    FormaBarrePulsanti& nuova = apriBarre10(banco, 7, 3);
    QCOMPARE(qRound(nuova.n3.width()), qRound(7 * std::round(nuova.n1.height())));
  }

  void aBarThatPassesSixteenBitsEndsTheProgram() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    forma.n1.setHeight(3277);
    banco.sorte.scrivi({{9, 10}, {4, 10}});
    platform::LoadedForm(forma).runActivate();
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(1));
    QCOMPARE(banco.messaggi.mostrati.front().text,
             QStringLiteral("Errore di run-time '6':\n\nOverflow"));
    QVERIFY(banco.fine.stato.value_or(0) != 0);
  }

  void aSecondActivationKeepsTheSquaresAndRestartsTheRecord() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[7]);
    const std::size_t quanti = forma.controls().size();
    banco.mostra(somme::forme::kFormBarre10);
    QCOMPARE(forma.controls().size(), quanti);
    QVERIFY(!forma.TestoStampa.text().contains(QStringLiteral("=")));
  }

  void theSystemsArrowIsTakenWhenTheSettingAsksForIt() {
    Banco banco;
    banco.ambiente->stato.CursoreDiSistema = true;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    QCOMPARE(forma.PulsanteNumero[3].mousePointer(), 0);
    QCOMPARE(forma.PulsanteNumero[3].widget()->cursor().shape(), Qt::ArrowCursor);
  }

  void theProgramsOwnPointerIsThereOtherwise() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    QCOMPARE(forma.PulsanteNumero[3].mousePointer(), 99);
    QCOMPARE(forma.PulsanteNumero[3].widget()->cursor().shape(), Qt::BitmapCursor);
  }

  void leavingAndComingBackStartsAFreshRecord() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[7]);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    QVERIFY(banco.nomeForma() != QStringLiteral("FormBarre10"));
    banco.sorte.scrivi({{1, 10}, {0, 2}});
    auto& nuova = banco.apri<FormaBarrePulsanti>(somme::forme::kFormBarre10);
    QVERIFY(!nuova.TestoStampa.text().contains(QStringLiteral("=")));
    QCOMPARE(barre(nuova),
             (QStringList{QStringLiteral(" 0"), QStringLiteral(" 2"), QStringLiteral("?")}));
  }

  void noBarPassesTheSixteenBitsOnAnyWindow() {
    Banco banco({3840, 2160});
    FormaBarrePulsanti& forma = apriBarre10(banco, 10, 0);
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto3), 10);
    QVERIFY(!banco.fine.stato);
    QVERIFY(forma.n3.left() + forma.n3.width() <= 32767);
  }
};

const prova::Iscrizione<PaginaBarre10Test, QApplication> kIscritta;

}  // namespace pagina_barre10_test

#include "pagina_barre10_test.moc"
