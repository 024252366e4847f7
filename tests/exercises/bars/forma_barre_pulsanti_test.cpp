#include "exercises/bars/forma_barre_pulsanti.h"

#include <QApplication>
#include <QSet>

#include "barre10_di_prova.h"
#include "support/iscrizione.h"

namespace forma_barre_pulsanti_test {

using prova::apriBarre10;
using prova::Banco;
using prova::barre;
using prova::kCiano;
using prova::kRosso;
using prova::kVerdeScuro;
using prova::somma;
using prova::visibili;
using somme::FormaBarrePulsanti;

namespace {

constexpr platform::Rgb kGrigio{224, 224, 224};

// The next case, 5 + 3 = 8, which asks for an addend: 1 the first, 2 the second.
void chiediAddendo(Banco& banco, FormaBarrePulsanti& forma, int quale) {
  banco.sorte.scrivi({{quale == 2 ? 0 : 1, 2}, {7, 10}, {5, 8}});
  forma.mnuGiallaVerde.click();
}

}  // namespace

// The bars up to 10, as a pupil answers on them.
class FormaBarrePulsantiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFirstPictureIsTheTickBeforeAnyAnswer() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
  }

  void aWrongAnswerCountsDisablesItsButtonAndKeepsTheCase() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[5]);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(!forma.PulsanteNumero[5].isEnabled());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
    QCOMPARE(forma.n3.caption(), QStringLiteral("?"));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/no.wav"))});
    // The same wrong number cannot be given twice.
    banco.clicca(forma.PulsanteNumero[5]);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
  }

  void theRightAnswerShowsTheSumAndOpensTheWay() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[7]);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(forma.n3.caption(), QStringLiteral(" 7"));
    QCOMPARE(forma.Label4[4].caption(), QStringLiteral("7"));
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    for (int i = 0; i <= 10; ++i) {
      QVERIFY(!forma.PulsanteNumero[i].isEnabled());
      QCOMPARE(forma.PulsanteNumero[i].backColor(), i == 7 ? kRosso : kGrigio);
    }
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("     3 +  4 =  7\r\n")));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
  }

  void aTotalOfOneHasNothingPlusOne() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 1, 0);
    QCOMPARE(banco.ambiente->stato.Addendo1, qint16(0));
    QCOMPARE(banco.ambiente->stato.Addendo2, qint16(1));
    QCOMPARE(somma(forma),
             (QStringList{QStringLiteral("0"), QStringLiteral("+"), QStringLiteral("1"),
                          QStringLiteral("="), QStringLiteral("")}));
  }

  void aFirstAddendOfNothingHasNoBarAndTheAnswerIsTheButtonZero() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 4, 0);
    // The kind that asks for an addend: the first one is hidden, of a case 0 + 4.
    banco.sorte.scrivi({{1, 2}, {3, 10}, {0, 4}});
    forma.mnuGiallaVerde.click();
    QCOMPARE(forma.n1.caption(), QStringLiteral("?"));
    QCOMPARE(forma.n1.width(), 0.0);
    QCOMPARE(forma.n2.left(), forma.n1.left());
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto1), 0);
    QCOMPARE(visibili(forma.aiuto2), 4);
    QCOMPARE(visibili(forma.aiuto3), 4);
    banco.clicca(forma.PulsanteNumero[0]);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral(" 0"), QStringLiteral(" 4"), QStringLiteral(" 4")}));
  }

  void theSecondAddendIsAskedInTheDarkGreenOfTheWrittenSum() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    chiediAddendo(banco, forma, 2);
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral(" 5"), QStringLiteral("?"), QStringLiteral(" 8")}));
    QCOMPARE(somma(forma).join(u'|'), QStringLiteral("5|+||=|8"));
    QCOMPARE(forma.Label3.caption(), banco.ambiente->stringhe.ConsegnaBarre3);
    for (int i = 0; i <= 10; ++i) QCOMPARE(forma.PulsanteNumero[i].backColor(), kVerdeScuro);
    banco.clicca(forma.PulsanteNumero[3]);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theFirstAddendIsAskedInTheColorOfItsBar() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    chiediAddendo(banco, forma, 1);
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral("?"), QStringLiteral(" 3"), QStringLiteral(" 8")}));
    QCOMPARE(somma(forma).join(u'|'), QStringLiteral("|+|3|=|8"));
    QCOMPARE(forma.Label3.caption(), banco.ambiente->stringhe.ConsegnaBarre2);
    for (int i = 0; i <= 10; ++i) QCOMPARE(forma.PulsanteNumero[i].backColor(), kCiano);
  }

  void theThirdKindAsksForTheTotalInHalfOfTheCases() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.sorte.scrivi({{0, 2}, {4, 10}, {2, 5}});
    forma.mnuTutteBarre.click();
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral(" 2"), QStringLiteral(" 3"), QStringLiteral("?")}));
    banco.sorte.scrivi({{1, 2}, {0, 2}, {4, 10}, {2, 5}});
    forma.mnuTutteBarre.click();
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral(" 2"), QStringLiteral("?"), QStringLiteral(" 5")}));
  }

  void theCheckMarkStandsOnTheChosenKindAlone() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    QVERIFY(forma.mnuRossa.isChecked());
    forma.mnuTutteBarre.click();
    QVERIFY(!forma.mnuRossa.isChecked());
    QVERIFY(!forma.mnuGiallaVerde.isChecked());
    QVERIFY(forma.mnuTutteBarre.isChecked());
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(3));
  }

  void choosingTheKindThatIsCheckedStillMakesANewCase() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[1]);
    banco.sorte.scrivi({{4, 10}, {2, 5}});
    forma.mnuRossa.click();
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral(" 2"), QStringLiteral(" 3"), QStringLiteral("?")}));
    // Leaving a case unsolved changes no counter, and the last picture stays.
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(forma.PulsanteNumero[1].isEnabled());
  }

  void goingOnIsImpossibleBeforeTheRightAnswer() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteAvanti);
    banco.batti(Qt::Key_V, Qt::AltModifier);
    QCOMPARE(somma(forma),
             (QStringList{QStringLiteral("3"), QStringLiteral("+"), QStringLiteral("4"),
                          QStringLiteral("="), QStringLiteral("")}));
  }

  void goingOnAsksTheNextCaseAndKeepsThePicture() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[7]);
    banco.sorte.scrivi({{4, 10}, {2, 5}});
    banco.batti(Qt::Key_Return);
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral(" 2"), QStringLiteral(" 3"), QStringLiteral("?")}));
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    // The answers were opened first, so that the focus finds them.
    QVERIFY(forma.PulsanteNumero[0].hasFocus());
    for (int i = 0; i <= 10; ++i) {
      QVERIFY(forma.PulsanteNumero[i].isEnabled());
      QCOMPARE(forma.PulsanteNumero[i].backColor(), kRosso);
    }
  }

  void arrowKeysWalkTheNumbersAndANewCaseBeginsWhereTheyWere() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    forma.PulsanteNumero[0].setFocus();
    banco.batti(Qt::Key_End);
    QVERIFY(forma.PulsanteNumero[10].hasFocus());
    banco.batti(Qt::Key_Left);
    banco.batti(Qt::Key_Left);
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    forma.PulsanteNumero[9].setFocus();
    banco.batti(Qt::Key_Left);  // over the spent 8
    QVERIFY(forma.PulsanteNumero[7].hasFocus());
    banco.batti(Qt::Key_Down);
    QVERIFY(forma.PulsanteNumero[7].hasFocus());
    banco.batti(Qt::Key_Return);
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    banco.sorte.scrivi({{4, 10}, {2, 5}});
    banco.batti(Qt::Key_Return);
    QVERIFY(forma.PulsanteNumero[7].hasFocus());
    banco.batti(Qt::Key_Home);
    QVERIFY(forma.PulsanteNumero[0].hasFocus());
  }

  void everyWrongPressCountsUntilTheRightOne() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    for (int i = 0; i <= 10; ++i) {
      if (i != 7) banco.clicca(forma.PulsanteNumero[i]);
    }
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(10));
    QCOMPARE(forma.n3.caption(), QStringLiteral("?"));
    banco.clicca(forma.PulsanteNumero[7]);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void clearingTheCountKeepsCaseKindAndRecord() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[2]);
    banco.clicca(forma.PulsanteNumero[7]);
    const QString elenco = forma.TestoStampa.text();
    banco.batti(Qt::Key_Z, Qt::AltModifier);
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QCOMPARE(forma.TestoStampa.text(), elenco);
    QCOMPARE(somma(forma),
             (QStringList{QStringLiteral("3"), QStringLiteral("+"), QStringLiteral("4"),
                          QStringLiteral("="), QStringLiteral("7")}));
    QVERIFY(forma.mnuRossa.isChecked());
  }

  void theVerdictIsSpokenWithItsCount() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    forma.PulsanteNumero[5].setFocus();
    banco.annunci.detti.clear();
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.annunci.nuovi(),
             QStringList{QStringLiteral("Sbagliato: prova ancora. Errati 1")});
    forma.PulsanteNumero[7].setFocus();
    banco.batti(Qt::Key_Space);
    QCOMPARE(banco.annunci.nuovi().first(), QStringLiteral("Giusto. Esatti 1"));
  }

  void soundsOffKeepTheVerdictSilent() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.ambiente->stato.SuoniAttivi = false;
    banco.clicca(forma.PulsanteNumero[7]);
    QVERIFY(banco.suono.suonati.isEmpty());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void everyTotalFromOneToTenComesAndNeverASecondAddendOfNothing() {
    Banco banco;
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    QSet<int> totali;
    for (int i = 0; i < 2000; ++i) {
      forma.GeneraCaso1();
      const auto& caso = banco.ambiente->stato;
      QCOMPARE(int(caso.Totale), caso.Addendo1 + caso.Addendo2);
      QVERIFY(caso.Addendo1 >= 0 && caso.Addendo2 >= 1);
      totali.insert(caso.Totale);
    }
    QCOMPARE(totali.size(), 10);
    QVERIFY(totali.contains(1) && totali.contains(10));
  }
};

const prova::Iscrizione<FormaBarrePulsantiTest, QApplication> kIscritta;

}  // namespace forma_barre_pulsanti_test

#include "forma_barre_pulsanti_test.moc"
