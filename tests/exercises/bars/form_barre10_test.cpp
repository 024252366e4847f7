#include "exercises/bars/form_barre10.h"

#include <QSet>
#include <cmath>

#include "app/shared/nomi_forme.h"
#include "support/banco.h"

using prova::Banco;
using somme::FormBarre10;

namespace {

constexpr platform::Rgb kGrigio{224, 224, 224};
constexpr platform::Rgb kRosso{255, 0, 0};
constexpr platform::Rgb kVerdeScuro{0, 192, 0};
constexpr platform::Rgb kCiano{0, 255, 255};

}  // namespace

// The bars up to 10, as a pupil uses them.
class FormBarre10Test : public QObject {
  Q_OBJECT

  // The form with the case `totale` = `addendo1` + rest, asking for the total.
  static FormBarre10& apri(Banco& banco, int totale, int addendo1) {
    banco.ambiente->stato.LimiteEsercizio = 10;
    banco.sorte.scrivi({{totale - 1, 10}, {addendo1, totale}});
    return banco.apri<FormBarre10>(somme::forme::kFormBarre10);
  }

  // The numbers that the form shows, as the pupil reads them.
  static QStringList barre(FormBarre10& forma) {
    return {forma.n1.caption(), forma.n2.caption(), forma.n3.caption()};
  }
  static QStringList somma(FormBarre10& forma) {
    QStringList testi;
    for (int i = 0; i < 5; ++i) testi += forma.Label4[i].caption();
    return testi;
  }
  static int visibili(platform::ControlArray<platform::Label>& quadretti) {
    int quanti = 0;
    quadretti.forEach([&quanti](platform::Label& q) { quanti += q.isVisible() ? 1 : 0; });
    return quanti;
  }

 private Q_SLOTS:
  void theFirstPictureIsTheTickBeforeAnyAnswer() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
  }

  void theBarsHaveTheLengthsOfTheNumbers() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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

  void aWrongAnswerCountsDisablesItsButtonAndKeepsTheCase() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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
    FormBarre10& forma = apri(banco, 7, 3);
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
    FormBarre10& forma = apri(banco, 1, 0);
    QCOMPARE(banco.ambiente->stato.Addendo1, qint16(0));
    QCOMPARE(banco.ambiente->stato.Addendo2, qint16(1));
    QCOMPARE(somma(forma),
             (QStringList{QStringLiteral("0"), QStringLiteral("+"), QStringLiteral("1"),
                          QStringLiteral("="), QStringLiteral("")}));
  }

  void aFirstAddendOfNothingHasNoBarAndTheAnswerIsTheButtonZero() {
    Banco banco;
    FormBarre10& forma = apri(banco, 4, 0);
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

  void aSecondAddendOfTenFillsTheRowAndItsTenSquares() {
    Banco banco;
    FormBarre10& forma = apri(banco, 10, 0);
    const double unita = std::round(forma.n1.height());
    QCOMPARE(qRound(forma.n2.width()), qRound(10 * unita));
    QCOMPARE(qRound(forma.n3.width()), qRound(10 * unita));
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto2), 10);
    QCOMPARE(visibili(forma.aiuto3), 10);
    QVERIFY(forma.n3.left() + forma.n3.width() <= forma.Picture1.width());
  }

  void theSecondAddendIsAskedInTheDarkGreenOfTheWrittenSum() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    banco.sorte.scrivi({{0, 2}, {7, 10}, {5, 8}});
    forma.mnuGiallaVerde.click();
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral(" 5"), QStringLiteral("?"), QStringLiteral(" 8")}));
    QCOMPARE(somma(forma),
             (QStringList{QStringLiteral("5"), QStringLiteral("+"), QStringLiteral(""),
                          QStringLiteral("="), QStringLiteral("8")}));
    QCOMPARE(forma.Label3.caption(), banco.ambiente->stringhe.ConsegnaBarre3);
    for (int i = 0; i <= 10; ++i) QCOMPARE(forma.PulsanteNumero[i].backColor(), kVerdeScuro);
    banco.clicca(forma.PulsanteNumero[3]);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theFirstAddendIsAskedInTheColourOfItsBar() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    banco.sorte.scrivi({{1, 2}, {7, 10}, {5, 8}});
    forma.mnuGiallaVerde.click();
    QCOMPARE(barre(forma),
             (QStringList{QStringLiteral("?"), QStringLiteral(" 3"), QStringLiteral(" 8")}));
    QCOMPARE(somma(forma),
             (QStringList{QStringLiteral(""), QStringLiteral("+"), QStringLiteral("3"),
                          QStringLiteral("="), QStringLiteral("8")}));
    QCOMPARE(forma.Label3.caption(), banco.ambiente->stringhe.ConsegnaBarre2);
    for (int i = 0; i <= 10; ++i) QCOMPARE(forma.PulsanteNumero[i].backColor(), kCiano);
  }

  void theThirdKindAsksForTheTotalInHalfOfTheCases() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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
    FormBarre10& forma = apri(banco, 7, 3);
    QVERIFY(forma.mnuRossa.isChecked());
    forma.mnuTutteBarre.click();
    QVERIFY(!forma.mnuRossa.isChecked());
    QVERIFY(!forma.mnuGiallaVerde.isChecked());
    QVERIFY(forma.mnuTutteBarre.isChecked());
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(3));
  }

  void choosingTheKindThatIsCheckedStillMakesANewCase() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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
    FormBarre10& forma = apri(banco, 7, 3);
    banco.clicca(forma.PulsanteAvanti);
    banco.batti(Qt::Key_V, Qt::AltModifier);
    QCOMPARE(somma(forma),
             (QStringList{QStringLiteral("3"), QStringLiteral("+"), QStringLiteral("4"),
                          QStringLiteral("="), QStringLiteral("")}));
  }

  void goingOnAsksTheNextCaseAndKeepsThePicture() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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

  void everyWrongPressCountsUntilTheRightOne() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    for (int i = 0; i <= 10; ++i) {
      if (i != 7) banco.clicca(forma.PulsanteNumero[i]);
    }
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(10));
    QCOMPARE(forma.n3.caption(), QStringLiteral("?"));
    banco.clicca(forma.PulsanteNumero[7]);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void helpLaysTheSumOutUnitByUnitAndCostsNothing() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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
    FormBarre10& forma = apri(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[7]);
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto3), 7);
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(visibili(forma.aiuto1) + visibili(forma.aiuto2) + visibili(forma.aiuto3), 0);
  }

  void clearingTheCountKeepsCaseKindAndRecord() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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

  void theRecordBeginsWithItsTitleAndGainsALineForEachSum() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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
    FormBarre10& forma = apri(banco, 7, 3);
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
    FormBarre10& forma = apri(banco, 7, 3);
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
    FormBarre10& nuova = apri(banco, 7, 3);
    QCOMPARE(qRound(nuova.n3.width()), qRound(7 * std::round(nuova.n1.height())));
  }

  void aBarThatPassesSixteenBitsEndsTheProgram() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    forma.n1.setHeight(3277);
    banco.sorte.scrivi({{9, 10}, {4, 10}});
    forma.run([&forma] { forma.fireActivate(); });
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(1));
    QCOMPARE(banco.messaggi.mostrati.front().text,
             QStringLiteral("Errore di run-time '6':\n\nOverflow"));
    QVERIFY(banco.fine.stato.value_or(0) != 0);
  }

  void aSecondActivationKeepsTheSquaresAndRestartsTheRecord() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[7]);
    const std::size_t quanti = forma.controls().size();
    banco.mostra(somme::forme::kFormBarre10);
    QCOMPARE(forma.controls().size(), quanti);
    QVERIFY(!forma.TestoStampa.text().contains(QStringLiteral("=")));
  }

  void theVerdictIsSpokenOnTheButtonThatWasPressed() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    forma.PulsanteNumero[5].setFocus();
    QWidget* premuto = forma.PulsanteNumero[5].widget();
    banco.batti(Qt::Key_Return);
    QCOMPARE(premuto->accessibleDescription(), QStringLiteral("Sbagliato: prova ancora. Errati 1"));
    forma.PulsanteNumero[7].setFocus();
    QWidget* giusto = forma.PulsanteNumero[7].widget();
    banco.batti(Qt::Key_Space);
    QCOMPARE(giusto->accessibleDescription(), QStringLiteral("Giusto. Esatti 1"));
    QCOMPARE(premuto->accessibleDescription(), QString());
  }

  void theSystemsArrowIsTakenWhenTheSettingAsksForIt() {
    Banco banco;
    banco.ambiente->stato.CursoreDiSistema = true;
    FormBarre10& forma = apri(banco, 7, 3);
    QCOMPARE(forma.PulsanteNumero[3].mousePointer(), 0);
    QCOMPARE(forma.PulsanteNumero[3].widget()->cursor().shape(), Qt::ArrowCursor);
  }

  void theProgramsOwnPointerIsThereOtherwise() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    QCOMPARE(forma.PulsanteNumero[3].mousePointer(), 99);
    QCOMPARE(forma.PulsanteNumero[3].widget()->cursor().shape(), Qt::BitmapCursor);
  }

  void soundsOffKeepTheVerdictSilent() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    banco.ambiente->stato.SuoniAttivi = false;
    banco.clicca(forma.PulsanteNumero[7]);
    QVERIFY(banco.suono.suonati.isEmpty());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void leavingAndComingBackStartsAFreshRecord() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[7]);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    QVERIFY(banco.nomeForma() != QStringLiteral("FormBarre10"));
    banco.sorte.scrivi({{1, 10}, {0, 2}});
    auto& nuova = banco.apri<FormBarre10>(somme::forme::kFormBarre10);
    QVERIFY(!nuova.TestoStampa.text().contains(QStringLiteral("=")));
    QCOMPARE(barre(nuova),
             (QStringList{QStringLiteral(" 0"), QStringLiteral(" 2"), QStringLiteral("?")}));
  }

  void everyTotalFromOneToTenComesAndNeverASecondAddendOfNothing() {
    Banco banco;
    FormBarre10& forma = apri(banco, 7, 3);
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

  void noBarPassesTheSixteenBitsOnAnyWindow() {
    Banco banco({3840, 2160});
    FormBarre10& forma = apri(banco, 10, 0);
    banco.clicca(forma.PulsanteAiuto);
    QCOMPARE(visibili(forma.aiuto3), 10);
    QVERIFY(!banco.fine.stato);
    QVERIFY(forma.n3.left() + forma.n3.width() <= 32767);
  }
};

QTEST_MAIN(FormBarre10Test)
#include "form_barre10_test.moc"
