#include "exercises/bars/forma_barre_tastiera.h"

#include <QApplication>
#include <QClipboard>
#include <cmath>

#include "app/shared/nomi_forme.h"
#include "barre_di_prova.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/risposta_scritta.h"

namespace forma_barre_tastiera_test {

using prova::Banco;
using prova::kCiano;
using prova::kRosso;
using prova::kVerdeScuro;
using prova::rispondiScrivendo;
using prova::stannoSulPosto;
using prova::visibili;
using somme::FormaBarreTastiera;

namespace {

// The window in which one unit of the design is one unit of the page.
constexpr QSize kDisegno{732, 507 + 30};

// The form with the case `totale` = `addendo1` + rest, asking for the total.
FormaBarreTastiera& apri(Banco& banco, int totale, int addendo1) {
  banco.ambiente->stato.LimiteEsercizio = 20;
  banco.sorte.scrivi({{totale - 1, 20}, {addendo1, totale}});
  return banco.apri<FormaBarreTastiera>(somme::forme::kFormBarre20);
}

// The same form at its next case, which asks for an addend.
void chiediAddendo(Banco& banco, FormaBarreTastiera& forma, int quale, int totale, int addendo1) {
  banco.sorte.scrivi({{quale == 2 ? 0 : 1, 2}, {totale - 1, 20}, {addendo1, totale}});
  forma.mnuGiallaVerde.click();
}

}  // namespace

// The bars up to 20, as a pupil uses them.
class FormaBarreTastieraTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithTheBoxOverTheTotalAndTheFocusInIt() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    QVERIFY(forma.TestoInput.hasFocus());
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[4]));
    QVERIFY(forma.TestoInput.foreColor() == kRosso);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(forma.TestoInput.maxLength(), 2);
    QVERIFY(forma.TestoInput.widget()->inputMethodHints().testFlag(Qt::ImhDigitsOnly));
    QVERIFY(!forma.Line1->isVisible());
    QVERIFY(forma.ImgSi.isVisible());
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 9"));
    QCOMPARE(forma.n2.caption(), QStringLiteral(" 8"));
    QCOMPARE(forma.n3.caption(), QStringLiteral("?"));
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\n     Uso delle barre - Fino al 20\r\n\r\n"));
    QVERIFY(forma.withoutRow().empty());
  }

  void theBoxLiesOverTheTermThatIsAskedFor() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    chiediAddendo(banco, forma, 2, 15, 4);
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[2]));
    QVERIFY(forma.TestoInput.foreColor() == kVerdeScuro);
    QCOMPARE(forma.Label3.caption(),
             QStringLiteral("Trova il numero che corrisponde alla barra verde"));
    rispondiScrivendo(banco, QStringLiteral("11"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    chiediAddendo(banco, forma, 1, 15, 4);
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[0]));
    QVERIFY(forma.TestoInput.foreColor() == kCiano);
    QCOMPARE(forma.n1.caption(), QStringLiteral("?"));
    rispondiScrivendo(banco, QStringLiteral("4"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void theRightAnswerShowsTheSumLocksTheBoxAndOpensTheWay() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    rispondiScrivendo(banco, QStringLiteral("17"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(forma.n3.caption(), QStringLiteral(" 17"));
    QCOMPARE(forma.Label4[4].caption(), QStringLiteral("17"));
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    QVERIFY(forma.TestoInput.isLocked());
    QVERIFY(forma.TestoInput.isVisible());
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("17"));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n     9 +  8 =  17\r\n")));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
  }

  void aWrongAnswerKeepsTheTextAndTheCaseAndCountsEachTime() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    rispondiScrivendo(banco, QStringLiteral("16"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("16"));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/no.wav"))});
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(2));
    banco.batti(Qt::Key_Backspace);
    rispondiScrivendo(banco, QStringLiteral("7"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void enterInAnEmptyBoxNeitherCountsNorSounds() {
    Banco banco;
    apri(banco, 17, 9);
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void enterOnTheWayOnDoesNotAnswerTheNextCaseAtItsRelease() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    rispondiScrivendo(banco, QStringLiteral("17"));
    banco.suono.suonati.clear();
    banco.sorte.scrivi({{11, 20}, {5, 12}});
    banco.premi(Qt::Key_Return);
    QVERIFY(forma.TestoInput.hasFocus());
    QVERIFY(!forma.TestoInput.isLocked());
    banco.lascia(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(banco.suono.suonati.isEmpty());
    rispondiScrivendo(banco, QStringLiteral("12"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void enterInTheLockedBoxOfASolvedCaseCountsAgain() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    rispondiScrivendo(banco, QStringLiteral("17"));
    banco.clicca(forma.TestoInput);
    QVERIFY(forma.TestoInput.hasFocus());
    banco.scrivi(QStringLiteral("5"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("17"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
    QCOMPARE(forma.TestoStampa.text().count(QStringLiteral("     9 +  8 =  17\r\n")), 2);
  }

  void aLeadingNoughtIsRight() {
    Banco banco;
    apri(banco, 7, 3);
    rispondiScrivendo(banco, QStringLiteral("07"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aNumberOverTwentyIsTakenAndWrong() {
    Banco banco;
    apri(banco, 7, 3);
    rispondiScrivendo(banco, QStringLiteral("99"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
  }

  void onlyDigitsAreTakenAndTwoOfThem() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 7, 3);
    banco.scrivi(QStringLiteral("a1 -b23"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("12"));
    forma.TestoInput.setText(QString());
    QApplication::clipboard()->setText(QStringLiteral("x7,3 e 1"));
    banco.batti(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("73"));
  }

  void aLongRowOfDigitsSetByTheProgramIsWrong() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 7, 3);
    forma.TestoInput.setText(QString(400, u'7'));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  void aHeldEnterAnswersOnce() {
    Banco banco;
    apri(banco, 7, 3);
    banco.scrivi(QStringLiteral("8"));
    banco.premi(Qt::Key_Return);
    // A desktop repeats a held key as pairs of release and press; it is the release that answers.
    for (int i = 0; i < 20; ++i) {
      for (const QEvent::Type tipo : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent ancora(tipo, Qt::Key_Return, {}, QStringLiteral("\r"), true);
        QCoreApplication::sendEvent(banco.finestra(), &ancora);
      }
    }
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    banco.lascia(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
  }

  void theHelpShowsTheSquaresAndTheMarkOfTen() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    banco.clicca(forma.PulsanteAiuto);
    QVERIFY(forma.Line1->isVisible());
    QCOMPARE(visibili(forma.aiuto1), 9);
    QCOMPARE(visibili(forma.aiuto2), 8);
    QCOMPARE(visibili(forma.aiuto3), 17);
    // The mark stands at the end of the tenth unit, through both rows and the bars.
    const double fine = forma.aiuto3[10].left();
    QVERIFY(std::abs(forma.Line1->x1() - fine) < 1);
    QCOMPARE(forma.Line1->x1(), forma.Line1->x2());
    const double scala = forma.height() / 7605;
    QVERIFY(std::abs(forma.Line1->y1() + 120 * scala) < 1e-6);
    QVERIFY(std::abs(forma.Line1->y2() - 3360 * scala) < 1e-6);
    // It goes at the next case, and the squares with it.
    banco.clicca(forma.TestoInput);
    rispondiScrivendo(banco, QStringLiteral("17"));
    QVERIFY(forma.Line1->isVisible());
    banco.clicca(forma.PulsanteAvanti);
    QVERIFY(!forma.Line1->isVisible());
    QCOMPARE(visibili(forma.aiuto1) + visibili(forma.aiuto2) + visibili(forma.aiuto3), 0);
  }

  void theMarkLiesOverBarsAndSquares() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 20, 0);
    banco.clicca(forma.PulsanteAiuto);
    const QImage quadro = forma.Picture1.widget()->grab().toImage();
    const QRect linea = forma.Line1->widget()->geometry();
    for (const platform::Control* sotto :
         {static_cast<platform::Control*>(&forma.n2), static_cast<platform::Control*>(&forma.n3),
          static_cast<platform::Control*>(&forma.aiuto3[10])}) {
      const QRect barra = sotto->widget()->geometry();
      QCOMPARE(quadro.pixelColor(linea.center().x(), barra.center().y()), QColor(Qt::black));
    }
  }

  void aTotalOfTwentyNeedsTwentySquares() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 20, 0);
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto1), 0);
    QCOMPARE(visibili(forma.aiuto2), 20);
    QCOMPARE(visibili(forma.aiuto3), 20);
    QVERIFY(forma.aiuto3[19].widget()->geometry().right() < forma.Picture1.widget()->width());
    banco.clicca(forma.TestoInput);
    rispondiScrivendo(banco, QStringLiteral("20"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void belowTenTheMarkStandsBeyondTheBars() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 4, 1);
    banco.clicca(forma.PulsanteAiuto);
    QVERIFY(forma.Line1->isVisible());
    QVERIFY(forma.Line1->x1() > forma.n3.left() + forma.n3.width());
  }

  void withAnotherRangeTheHelpShowsNoMark() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 4, 1);
    banco.ambiente->stato.LimiteEsercizio = 10;
    banco.clicca(forma.PulsanteAiuto);
    QVERIFY(!forma.Line1->isVisible());
    QCOMPARE(visibili(forma.aiuto3), 4);
  }

  void atTheDesignsSizeTheMeasuresAreThoseOfTheDesign() {
    Banco banco(kDisegno);
    FormaBarreTastiera& forma = apri(banco, 20, 0);
    banco.ridimensiona({732, 537 - (forma.page()->canvas()->height() - 507)});
    QVERIFY(std::abs(forma.height() - 7605) < 15);
    QVERIFY(std::abs(forma.n3.width() - 9300) < 60);
    QVERIFY(std::abs(forma.n3.left() - 240) < 2);
  }

  void theLargestScreenEndsInNoOverflow() {
    Banco banco({7680, 4320});
    FormaBarreTastiera& forma = apri(banco, 20, 0);
    banco.clicca(forma.PulsanteAiuto);
    QVERIFY(!banco.fine.stato.has_value());
    QVERIFY(forma.n3.left() + forma.n3.width() <= 32767);
    banco.clicca(forma.TestoInput);
    rispondiScrivendo(banco, QStringLiteral("20"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aChoiceOfTheMenuOpensASolvedCaseAnew() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    rispondiScrivendo(banco, QStringLiteral("17"));
    banco.sorte.scrivi({{4, 20}, {2, 5}});
    forma.mnuRossa.click();
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(!forma.TestoInput.isLocked());
    QVERIFY(forma.TestoInput.hasFocus());
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 2"));
  }

  void theFaintColorsOfTheAnswerAreOutlined() {
    Banco banco;
    FormaBarreTastiera& forma = apri(banco, 17, 9);
    chiediAddendo(banco, forma, 1, 15, 8);
    banco.scrivi(QStringLiteral("8"));
    const QImage casella = forma.TestoInput.widget()->grab().toImage();
    int scuri = 0;
    for (int y = casella.height() / 4; y < casella.height() * 3 / 4; ++y) {
      for (int x = casella.width() / 4; x < casella.width() / 2; ++x) {
        scuri += casella.pixelColor(x, y).lightness() < 60 ? 1 : 0;
      }
    }
    QVERIFY(scuri > 10);
  }
};

const prova::Iscrizione<FormaBarreTastieraTest, QApplication> kIscritta;

}  // namespace forma_barre_tastiera_test

#include "forma_barre_tastiera_test.moc"
