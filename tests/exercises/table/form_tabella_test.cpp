#include "exercises/table/form_tabella.h"

#include <QAction>
#include <QApplication>

#include "app/shared/nomi_forme.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace form_tabella_test {

using prova::Banco;
using somme::FormTabella;

namespace {

constexpr platform::Rgb kAperta{192, 255, 255};
constexpr platform::Rgb kRosso{255, 0, 0};
constexpr platform::Rgb kVerde{0, 255, 0};

}  // namespace

// The addition table, as a pupil uses it.
class FormTabellaTest : public QObject {
  Q_OBJECT

  // The form with the case `a` + 1.
  static FormTabella& apri(Banco& banco, int a) {
    banco.ambiente->stato.TipoEsercizio = 0;
    banco.sorte.scrivi({{a, 98}});
    return banco.apri<FormTabella>(somme::forme::kFormTabella);
  }
  static void scegli(const platform::MenuItem& voce) {
    voce.action()->trigger();
    QCoreApplication::processEvents();
  }
  static QStringList numeri(FormTabella& forma) {
    QStringList didascalie;
    forma.Numero.forEach(
        [&didascalie](const platform::Button& cella) { didascalie.append(cella.caption()); });
    return didascalie;
  }

 private Q_SLOTS:
  void theGridHasAHundredCellsInRowsOfTenThatOverlap() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    QCOMPARE(forma.Numero.count(), 100);
    QCOMPARE(forma.Numero[0].designPlace(), (platform::TwipsRect{120, 120, 615, 615}));
    QCOMPARE(forma.Numero[37].designPlace(), (platform::TwipsRect{4320, 1920, 615, 615}));
    QCOMPARE(forma.Numero[99].designPlace(), (platform::TwipsRect{5520, 5520, 615, 615}));
  }

  void theQuestionIsWrittenWithoutItsResult() {
    Banco banco;
    FormTabella& forma = apri(banco, 57);
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 57 +  1 = "));
    QCOMPARE(banco.ambiente->stato.RisultatoTabella, 58);
    banco.sorte.scrivi({{30, 90}});
    forma.Es_Caso3();
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 40 -  10 = "));
    QCOMPARE(banco.ambiente->stato.RisultatoTabella, 30);
    banco.sorte.scrivi({{0, 98}});
    forma.Es_Caso2();
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral("-1 -  1 = "));
    QCOMPARE(banco.ambiente->stato.RisultatoTabella, -2);
  }

  void openingClearsTheCountersShowsTheWayOnAndOpensEveryCell() {
    Banco banco;
    banco.ambiente->stato.ContaEsatti = 4;
    banco.ambiente->stato.ContaErrati = 3;
    FormTabella& forma = apri(banco, 56);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QVERIFY(forma.PulsanteAvanti.isVisible());
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
    for (int i = 0; i < 100; ++i) {
      QVERIFY(forma.Numero[i].isEnabled());
      QCOMPARE(forma.Numero[i].backColor(), kAperta);
    }
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nUso della tabella\r\n\r\n"));
  }

  void theMediumTableNumbersItsFirstRowAndItsFirstColumn() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    QVERIFY(forma.mnuMedia.isChecked());
    for (int i = 0; i < 100; ++i) {
      const bool numerata = i < 10 || i % 10 == 0;
      QCOMPARE(forma.Numero[i].caption(), numerata ? QStringLiteral(" %1").arg(i) : QString());
    }
  }

  void theEasyTableNumbersEveryCellAndTheHardOneNone() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    scegli(forma.mnuFacile);
    QVERIFY(forma.mnuFacile.isChecked() && !forma.mnuMedia.isChecked() &&
            !forma.mnudifficile.isChecked());
    for (int i = 0; i < 100; ++i) {
      QCOMPARE(forma.Numero[i].caption(), QStringLiteral(" %1").arg(i));
    }
    scegli(forma.mnudifficile);
    QVERIFY(!forma.mnuFacile.isChecked() && !forma.mnuMedia.isChecked() &&
            forma.mnudifficile.isChecked());
    QCOMPARE(numeri(forma).join(QString()), QString());
    scegli(forma.mnudifficile);
    QVERIFY(forma.mnudifficile.isChecked());
  }

  void aWrongCellTurnsRedIsSpentAndKeepsTheCase() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.clicca(forma.Numero[58]);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(!forma.ImgSi.isVisible());
    QVERIFY(forma.ImgNo.isVisible());
    QCOMPARE(forma.Numero[58].backColor(), kRosso);
    QVERIFY(!forma.Numero[58].isEnabled());
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 56 +  1 = "));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/no.wav"))});
    // The same cell cannot be clicked twice.
    banco.clicca(forma.Numero[58]);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    banco.clicca(forma.Numero[0]);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(2));
    QCOMPARE(forma.Numero[58].backColor(), kRosso);
  }

  void theRightCellTurnsGreenSpendsTheGridAndOpensTheWay() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.clicca(forma.Numero[58]);
    banco.suono.suonati.clear();
    banco.clicca(forma.Numero[57]);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
    QCOMPARE(forma.Numero[57].backColor(), kVerde);
    QCOMPARE(forma.Numero[58].backColor(), kRosso);
    QCOMPARE(forma.Numero[59].backColor(), kAperta);
    for (int i = 0; i < 100; ++i) QVERIFY(!forma.Numero[i].isEnabled());
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 56 +  1 = "));
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\nUso della tabella\r\n\r\n 56 +  1 =  57\r\n"));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
  }

  void theListShowsTheNumberOfACellThatShowsNone() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    scegli(forma.mnudifficile);
    banco.clicca(forma.Numero[57]);
    QCOMPARE(forma.Numero[57].caption(), QString());
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral(" 56 +  1 =  57\r\n")));
  }

  void goingOnDisablesTheWayOnAndOpensANewCase() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.clicca(forma.Numero[3]);
    banco.clicca(forma.Numero[57]);
    banco.sorte.scrivi({{10, 98}});
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 10 +  1 = "));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    for (int i = 0; i < 100; ++i) {
      QVERIFY(forma.Numero[i].isEnabled());
      QCOMPARE(forma.Numero[i].backColor(), kAperta);
    }
    // The picture of the last answer stays until the next one.
    QVERIFY(forma.ImgSi.isVisible());
  }

  void aHeldEnterGoesOnOnce() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.clicca(forma.Numero[57]);
    banco.sorte.scrivi({{10, 98}, {20, 98}});
    banco.premi(Qt::Key_Return);
    // What the focus went to meanwhile is a cell that the hold must not choose.
    QVERIFY(forma.Numero[0].hasFocus());
    for (int i = 0; i < 10; ++i) banco.ripeti(Qt::Key_Return);
    banco.lascia(Qt::Key_Return);
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 10 +  1 = "));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void theFirstCaseCanBeSkippedAndTheSecondCannot() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    banco.sorte.scrivi({{10, 98}});
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 10 +  1 = "));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 10 +  1 = "));
  }

  void anotherDifficultyChangesTheCaptionsAlone() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.clicca(forma.Numero[3]);
    scegli(forma.mnuFacile);
    QCOMPARE(forma.Numero[3].backColor(), kRosso);
    QVERIFY(!forma.Numero[3].isEnabled());
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 56 +  1 = "));
    banco.clicca(forma.Numero[57]);
    scegli(forma.mnudifficile);
    QCOMPARE(forma.Numero[57].backColor(), kVerde);
    QVERIFY(!forma.Numero[0].isEnabled());
    QVERIFY(forma.PulsanteAvanti.isEnabled());
  }

  void closingThePanelReplacesAnOpenCaseWithoutCountingIt() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.clicca(forma.Numero[3]);
    scegli(forma.mnuStampa);
    QVERIFY(forma.PictureStampa.isVisible());
    QVERIFY(!forma.Numero[57].isLive());
    banco.sorte.scrivi({{20, 98}});
    banco.clicca(forma.CommandChiudi);
    QVERIFY(!forma.PictureStampa.isVisible());
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 20 +  1 = "));
    QCOMPARE(forma.Numero[3].backColor(), kAperta);
    QVERIFY(forma.Numero[3].isEnabled());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nUso della tabella\r\n\r\n"));
  }

  void closingThePanelOnASolvedCaseLetsTheNextOneBeSkipped() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.sorte.scrivi({{30, 98}, {20, 98}, {10, 98}});
    banco.clicca(forma.PulsanteAvanti);
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    banco.clicca(forma.Numero[31]);
    scegli(forma.mnuStampa);
    banco.clicca(forma.CommandChiudi);
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 20 +  1 = "));
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral(" 10 +  1 = "));
  }

  void resettingTheCountKeepsTheCaseAndTheList() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.clicca(forma.Numero[3]);
    banco.clicca(forma.Numero[57]);
    scegli(forma.MenuAzzera);
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral(" 57\r\n")));
    QCOMPARE(forma.Numero[57].backColor(), kVerde);
  }

  void thePointerIsSetWhateverTheSettingSays() {
    for (const bool diSistema : {false, true}) {
      Banco banco;
      banco.ambiente->stato.CursoreDiSistema = diSistema;
      FormTabella& forma = apri(banco, 56);
      QCOMPARE(forma.Numero[5].mousePointer(), diSistema ? 0 : 99);
      QCOMPARE(forma.PulsanteAvanti.mousePointer(), diSistema ? 0 : 99);
    }
  }

  void aKindThatDoesNotExistOpensTheGridWithTheDesignsWords() {
    Banco banco;
    banco.ambiente->stato.TipoEsercizio = 13;
    FormTabella& forma = banco.apri<FormTabella>(somme::forme::kFormTabella);
    QCOMPARE(forma.EtichettaNumero.caption(), QStringLiteral("Forma il numero"));
    QVERIFY(forma.Numero[0].isEnabled());
    QCOMPARE(forma.Numero[0].backColor(), kAperta);
  }

  void theWayOutLeadsToTheMenuOfTheTable() {
    Banco banco;
    const FormTabella& forma = apri(banco, 56);
    scegli(forma.mnuEsci);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuTabella"));
  }
};

const prova::Iscrizione<FormTabellaTest, QApplication> kIscritta;

}  // namespace form_tabella_test

#include "form_tabella_test.moc"
