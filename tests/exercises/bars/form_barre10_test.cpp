#include "exercises/bars/form_barre10.h"

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
};

QTEST_MAIN(FormBarre10Test)
#include "form_barre10_test.moc"
