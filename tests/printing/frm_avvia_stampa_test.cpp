#include "printing/frm_avvia_stampa.h"

#include <QLineEdit>

#include "dialogo_di_prova.h"
#include "support/pdf_letto.h"

using platform::Orientation;
using prova::DialogoDiProva;
using prova::PdfLetto;
using somme::frmAvviaStampa;

namespace {

constexpr platform::Rgb kRosso{255, 0, 0};
constexpr platform::Rgb kBianco{255, 255, 255};

platform::PrinterTraits Grigia(const platform::Paper& carta) {
  platform::PrinterTraits stampante = prova::StampanteDiProva(carta);
  stampante.printsColour = false;
  stampante.standard.colour = platform::ColourMode::Monochrome;
  return stampante;
}

bool vicino(double a, double b, double quanto) {
  return std::abs(a - b) <= quanto;
}

// The colours of the preview as it is painted.
QImage dipinta(const frmAvviaStampa& d) {
  return d.PictureAnteprima.widget()->grab().toImage();
}

bool haColori(const QImage& immagine) {
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      const QRgb p = immagine.pixel(x, y);
      if (std::max({qRed(p), qGreen(p), qBlue(p)}) - std::min({qRed(p), qGreen(p), qBlue(p)}) >
          24) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace

// The print dialog, as a teacher uses it.
class FrmAvviaStampaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyMemberHasItsRow() {
    DialogoDiProva prova;
    prova.conDialogo([](frmAvviaStampa& d) { QVERIFY(d.withoutRow().empty()); });
  }

  void itOpensWithTheSizeOf400By280WhateverWasAskedFor() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.sinistra = 5;
    r.alto = -7;
    const bool ok = prova.apri(r, [&](frmAvviaStampa& d) {
      QCOMPARE(d.txtPrX.text(), QStringLiteral("5"));
      QCOMPARE(d.txtPrY.text(), QStringLiteral("-7"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("400"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("280"));
      QCOMPARE(d.posto().sinistra, 5);
      QCOMPARE(d.posto().alto, -7);
      QCOMPARE(d.posto().larghezza, 400);
      QCOMPARE(d.posto().altezza, 280);
      QCOMPARE(d.caption(), QStringLiteral("Stampa foglio di prova"));
      QCOMPARE(d.page()->window()->windowTitle(), QStringLiteral("Stampa foglio di prova"));
      QVERIFY(d.page()->window()->isModal());
      QVERIFY(!d.cmdOK.isVisible() && !d.imgPrinter.isVisible());
      QVERIFY(d.cmdStampa.hasFocus());
      QVERIFY(d.A3[0].isSelected() && !d.A3[1].isSelected());
      QVERIFY(!d.Label2.isVisible());
      QVERIFY(d.chkProporzioni.isChecked());
    });
    QVERIFY(prova.visto);
    QVERIFY(ok);
  }

  void withoutATitleItBearsTheNameOfTheObject() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.titolo.clear();
    prova.apri(r, [](frmAvviaStampa& d) { QCOMPARE(d.caption(), QStringLiteral("FormBarre10")); });
    QVERIFY(prova.visto);
  }

  void thePreviewOfAPortraitA4WithASideOf3000TwipsIs2121By3000() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.orientamento = 1;
    prova.apri(r, [&](frmAvviaStampa& d) {
      d.Label1.setWidth(3000);
      d.cboPrinterNames.setListIndex(-1);
      d.cboPrinterNames.choose(QStringLiteral("Prova"));
      QCOMPARE(qRound(d.PictureAnteprima.width()), 2121);
      QCOMPARE(qRound(d.PictureAnteprima.height()), 3000);
      const double pixel = d.scale().twipsPerPixel;
      QCOMPARE(qRound(d.shpBordo.width()), qRound(d.PictureAnteprima.width() + 8 * pixel));
      QCOMPARE(qRound(d.shpFoglio.height()), qRound(d.PictureAnteprima.height() + 2 * pixel));
      QCOMPARE(qRound(d.shpFoglio.left()), qRound(d.shpBordo.left() + 3 * pixel));
      QCOMPARE(qRound(d.PictureAnteprima.top()), qRound(d.shpFoglio.top() + pixel));
    });
    QVERIFY(prova.visto);
  }

  void theCaptionOfTheSheetTellsItsSizeAndDirection() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [](frmAvviaStampa& d) {
      QCOMPARE(d.fraFoglio.caption(), QStringLiteral(" Dimensioni foglio: A4,  Orizzontale"));
    });
    auto r = prova.richiesta();
    r.orientamento = 0;
    platform::PrinterTraits strana = prova::StampanteDiProva();
    strana.standard.paper = {0, QStringLiteral("roll"), 250, 300, 0, 0};
    prova.stampante(strana);
    prova.apri(r, [](frmAvviaStampa& d) {
      QCOMPARE(d.fraFoglio.caption(), QStringLiteral(" Dimensioni foglio: Unknown,  Verticale"));
    });
  }

  void onASheetTooSmallTheWarningBlinksAtOnce() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      QVERIFY(d.lblFuoriFoglio.isVisible());
      QVERIFY(d.Timer1.isEnabled());
      prova.banco.tempo.advance(0.5);
      QVERIFY(d.lblFuoriFoglio.backColor() == kRosso);
      prova.banco.tempo.advance(0.5);
      QVERIFY(d.lblFuoriFoglio.backColor() == kBianco);
      prova.banco.tempo.advance(0.5);
      QVERIFY(d.lblFuoriFoglio.backColor() == kRosso);
    });
    QVERIFY(prova.visto);
  }

  void onASheetLargeEnoughThereIsNoWarning() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [](frmAvviaStampa& d) {
      QVERIFY(!d.lblFuoriFoglio.isVisible());
      QVERIFY(!d.Timer1.isEnabled());
    });
    QVERIFY(prova.visto);
  }

  void aNegativeMarginShowsTheWarningEvenIfTheImageWouldFit() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrX, QStringLiteral("-1"));
      QVERIFY(d.lblFuoriFoglio.isVisible());
      prova.scrivi(d.txtPrX, QStringLiteral("1"));
      QVERIFY(!d.lblFuoriFoglio.isVisible());
      prova.scrivi(d.txtPrY, QStringLiteral("-1"));
      QVERIFY(d.lblFuoriFoglio.isVisible());
    });
    QVERIFY(prova.visto);
  }

  void anEntryBeyondTheLimitsIsPutBackToThem() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrW, QStringLiteral("2500"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("2000"));
      prova.scrivi(d.txtPrW, QStringLiteral("0"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("1"));
      QCOMPARE(d.posto().larghezza, 1);
      prova.scrivi(d.txtPrX, QStringLiteral("-2500"));
      QCOMPARE(d.txtPrX.text(), QStringLiteral("-2000"));
      prova.scrivi(d.txtPrY, QStringLiteral("9999"));
      QCOMPARE(d.txtPrY.text(), QStringLiteral("2000"));
      d.txtPrY.setText(QStringLiteral("abc"));
      QCOMPARE(d.posto().alto, 0);
    });
    QVERIFY(prova.visto);
  }

  void aMinusIsTakenOnlyAtTheStartOfAMargin() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrX, QStringLiteral("1-2"));
      QCOMPARE(d.txtPrX.text(), QStringLiteral("12"));
      prova.batti(Qt::Key_Home);
      QTest::keyClick(prova.finestra(), '-');
      QCOMPARE(d.txtPrX.text(), QStringLiteral("-12"));
      prova.batti(Qt::Key_Home);
      QTest::keyClick(prova.finestra(), '-');
      QCOMPARE(d.txtPrX.text(), QStringLiteral("-12"));
      // With the whole text selected it takes its place.
      prova.scrivi(d.txtPrX, QStringLiteral("-"));
      QCOMPARE(d.txtPrX.text(), QStringLiteral("-"));
      QCOMPARE(d.posto().sinistra, 0);
    });
    QVERIFY(prova.visto);
  }

  void aSizeNeverTakesAMinusAndNoFieldTakesLetters() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrW, QStringLiteral("-3a5.,"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("35"));
      prova.scrivi(d.txtPrY, QStringLiteral("x-4y"));
      QCOMPARE(d.txtPrY.text(), QStringLiteral("-4"));
      prova.batti(Qt::Key_Backspace);
      QCOMPARE(d.txtPrY.text(), QStringLiteral("-"));
    });
    QVERIFY(prova.visto);
  }

  void withAnAspectOf2AWidthOf100GivesAHeightOf50() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.larghezza = 400;
    r.altezza = 200;
    prova.apri(r, [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrW, QStringLiteral("100"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("50"));
      QCOMPARE(d.posto().altezza, 50);
      prova.scrivi(d.txtPrH, QStringLiteral("60"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("120"));
      prova.clicca(d.chkProporzioni);
      QVERIFY(!d.chkProporzioni.isChecked());
      prova.scrivi(d.txtPrW, QStringLiteral("300"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("60"));
      // Ticked again, the height follows the width.
      prova.clicca(d.chkProporzioni);
      QCOMPARE(d.txtPrH.text(), QStringLiteral("150"));
    });
    QVERIFY(prova.visto);
  }

  void theSpinnersChangeTheirFieldsByOneAndKeepTheProportion() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.larghezza = 400;
    r.altezza = 200;
    prova.apri(r, [&](frmAvviaStampa& d) {
      d.Command1.click();
      d.updPrW.step(1);
      QCOMPARE(d.txtPrW.text(), QStringLiteral("401"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("200"));
      d.updPrH.step(-1);
      QCOMPARE(d.txtPrH.text(), QStringLiteral("199"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("398"));
      d.updPrX.step(-1);
      QCOMPARE(d.posto().sinistra, -1);
      d.updPrY.step(1);
      QCOMPARE(d.posto().alto, 1);
      // By mouse on the right half, and by the arrow keys in the box.
      const QWidget* freccia = d.updPrY.widget();
      const QPoint destra = freccia->mapTo(freccia->window(),
                                           QPoint(freccia->width() * 3 / 4, freccia->height() / 2));
      QTest::mouseClick(prova.finestra(), Qt::LeftButton, {}, destra);
      QCOMPARE(d.txtPrY.text(), QStringLiteral("2"));
      d.txtPrY.setFocus();
      prova.batti(Qt::Key_Down);
      QCOMPARE(d.txtPrY.text(), QStringLiteral("1"));
      d.txtPrY.setText(QStringLiteral("2000"));
      d.updPrY.step(1);
      QCOMPARE(d.txtPrY.text(), QStringLiteral("2000"));
    });
    QVERIFY(prova.visto);
  }

  void aHeldArrowGoesOn() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      const QWidget* freccia = d.updPrX.widget();
      const QPoint destra = freccia->mapTo(freccia->window(),
                                           QPoint(freccia->width() * 3 / 4, freccia->height() / 2));
      QTest::mousePress(prova.finestra(), Qt::LeftButton, {}, destra);
      prova.banco.tempo.advance(0.71);
      QTest::mouseRelease(prova.finestra(), Qt::LeftButton, {}, destra);
      QCOMPARE(d.txtPrX.text(), QStringLiteral("4"));
      prova.banco.tempo.advance(1);
      QCOMPARE(d.txtPrX.text(), QStringLiteral("4"));
    });
    QVERIFY(prova.visto);
  }

  void pickingA3TakesEffectOnlyAfterA4() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.clicca(d.A3[0]);
      QCOMPARE(d.txtPrW.text(), QStringLiteral("400"));
      prova.clicca(d.A3[1]);
      QCOMPARE(d.txtPrW.text(), QStringLiteral("289"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("204"));
      QVERIFY(d.Label2.isVisible());
      prova.clicca(d.A3[0]);
      QCOMPARE(d.txtPrW.text(), QStringLiteral("420"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("297"));
      QCOMPARE(d.posto().larghezza, 420);
      QVERIFY(!d.Label2.isVisible());
      QVERIFY(!d.lblFuoriFoglio.isVisible());
    });
    QVERIFY(prova.visto);
  }

  void avanzateShowsTheFramesOfMarginsAndSizesForGood() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      QVERIFY(!d.zFrame2.isVisible() && !d.zFrame3.isVisible());
      prova.clicca(d.Command1);
      QVERIFY(d.zFrame2.isVisible() && d.zFrame3.isVisible());
      prova.clicca(d.Command1);
      QVERIFY(d.zFrame2.isVisible() && d.zFrame3.isVisible());
    });
    QVERIFY(prova.visto);
  }

  void reimpostaPutsBothMarginsToZero() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.sinistra = 12;
    r.alto = -3;
    prova.apri(r, [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.clicca(d.cmdOrigine);
      QCOMPARE(d.txtPrX.text(), QStringLiteral("0"));
      QCOMPARE(d.posto().alto, 0);
    });
    QVERIFY(prova.visto);
  }

  void thePreviewShowsTheImageAtScale() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.clicca(d.chkProporzioni);
      prova.scrivi(d.txtPrX, QStringLiteral("105"));
      prova.scrivi(d.txtPrW, QStringLiteral("210"));
      // A quarter of the sheet is left white on each side; the form is pale yellow.
      const QImage vista = dipinta(d);
      const int y = vista.height() / 3;
      QCOMPARE(vista.pixel(vista.width() / 4 - 3, y), qRgb(255, 255, 255));
      QVERIFY(vista.pixel(vista.width() / 4 + 3, y) != qRgb(255, 255, 255));
      QVERIFY(vista.pixel(vista.width() * 3 / 4 - 3, y) != qRgb(255, 255, 255));
      QCOMPARE(vista.pixel(vista.width() * 3 / 4 + 3, y), qRgb(255, 255, 255));
    });
    QVERIFY(prova.visto);
  }

  void onAMonochromePrinterThePreviewTurnsGreyAndThePrintStaysInColour() {
    DialogoDiProva prova;
    prova.stampante(Grigia(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      QVERIFY(!haColori(dipinta(d)));
      prova.clicca(d.cmdStampa);
    });
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
    QVERIFY(haColori(PdfLetto(prova.banco.stampanti.lavori.front().pages).immagine(1, 40)));
  }

  void onAColourPrinterThePreviewIsInColour() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) { QVERIFY(haColori(dipinta(d))); });
    QVERIFY(prova.visto);
  }

  void theListHoldsEveryPrinterAndTheOneInUseIsChosen() {
    DialogoDiProva prova;
    prova.banco.stampanti.metti(QStringLiteral("Altra"), prova::StampanteDiProva());
    prova.apri(prova.richiesta(), [](frmAvviaStampa& d) {
      QCOMPARE(d.cboPrinterNames.items(),
               (QStringList{QStringLiteral("Prova"), QStringLiteral("Altra")}));
      QCOMPARE(d.cboPrinterNames.text(), QStringLiteral("Prova"));
    });
    QVERIFY(prova.visto);
  }

  void choosingAPrinterDrawsItsSheetAndComingBackKeepsTheLandscape() {
    DialogoDiProva prova;
    prova.banco.stampanti.metti(QStringLiteral("Altra"), Grigia(prova::CartaA3()));
    prova.apri(prova.richiesta(), [](frmAvviaStampa& d) {
      d.cboPrinterNames.choose(QStringLiteral("Altra"));
      QCOMPARE(d.fraFoglio.caption(), QStringLiteral(" Dimensioni foglio: A3,  Verticale"));
      QVERIFY(!haColori(dipinta(d)));
      d.cboPrinterNames.choose(QStringLiteral("Prova"));
      QCOMPARE(d.fraFoglio.caption(), QStringLiteral(" Dimensioni foglio: A4,  Orizzontale"));
      QVERIFY(haColori(dipinta(d)));
    });
    QVERIFY(prova.visto);
  }

  void proprietaChangesTheSheetAndTheColours() {
    DialogoDiProva prova;
    prova.banco.pagina.risposta = [](platform::PrinterSettings& impostazioni) {
      impostazioni.paper = prova::CartaA3();
      impostazioni.colour = platform::ColourMode::Monochrome;
      return true;
    };
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      QVERIFY(d.lblFuoriFoglio.isVisible());
      prova.clicca(d.cmdProprieta);
      QCOMPARE(d.fraFoglio.caption(), QStringLiteral(" Dimensioni foglio: A3,  Orizzontale"));
      QVERIFY(!d.lblFuoriFoglio.isVisible());
      QVERIFY(!haColori(dipinta(d)));
      // Given up, nothing changes.
      prova.banco.pagina.risposta = {};
      prova.clicca(d.cmdProprieta);
      QCOMPARE(d.fraFoglio.caption(), QStringLiteral(" Dimensioni foglio: A3,  Orizzontale"));
    });
    QCOMPARE(prova.banco.pagina.chieste.size(), 2);
  }

  void chiudiPrintsNothing() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.clicca(d.cmdChiudi);
      QVERIFY(d.isUnloaded());
    });
    QVERIFY(prova.banco.stampanti.lavori.empty());
    QVERIFY(prova.messaggi().empty());
  }

  void escAndClosingTheWindowAreChiudi() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      d.txtPrX.setFocus();
      prova.batti(Qt::Key_Escape);
      QVERIFY(d.isUnloaded());
    });
    prova.apri(prova.richiesta(), [](frmAvviaStampa& d) {
      d.page()->window()->close();
      QVERIFY(d.isUnloaded());
    });
    QVERIFY(prova.banco.stampanti.lavori.empty());
  }

  void theWholeDialogWorksByKeyboardAlone() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.batti(Qt::Key_A, Qt::AltModifier);
      QVERIFY(d.zFrame2.isVisible());
      prova.batti(Qt::Key_I, Qt::AltModifier);
      QVERIFY(d.txtPrX.hasFocus());
      prova.batti(Qt::Key_U, Qt::AltModifier);
      QVERIFY(d.txtPrY.hasFocus());
      prova.batti(Qt::Key_E, Qt::AltModifier);
      QVERIFY(d.txtPrW.hasFocus());
      prova.batti(Qt::Key_Z, Qt::AltModifier);
      QVERIFY(d.txtPrH.hasFocus());
      prova.batti(Qt::Key_M, Qt::AltModifier);
      QVERIFY(!d.chkProporzioni.isChecked());
      prova.batti(Qt::Key_N, Qt::AltModifier);
      QVERIFY(d.cboPrinterNames.hasFocus());
      prova.batti(Qt::Key_P, Qt::AltModifier);
      QCOMPARE(prova.banco.pagina.chieste.size(), 1);
      prova.batti(Qt::Key_R, Qt::AltModifier);
      // Round with Tab: every control that takes the focus gets it once.
      QStringList giro;
      d.cboPrinterNames.setFocus();
      for (int i = 0; i < 30; ++i) {
        giro.append(QApplication::focusWidget()->objectName());
        prova.batti(Qt::Key_Tab);
        if (d.cboPrinterNames.hasFocus()) break;
      }
      for (const char* nome :
           {"cmdProprieta", "A3(0)", "Command1", "txtPrX", "txtPrY", "cmdOrigine", "txtPrW",
            "txtPrH", "chkProporzioni", "cmdStampa", "cmdChiudi"}) {
        QVERIFY2(giro.contains(QLatin1String(nome)), nome);
      }
      d.A3[0].setFocus();
      prova.batti(Qt::Key_Down);
      QVERIFY(d.A3[1].isSelected());
      prova.batti(Qt::Key_S, Qt::AltModifier);
      QVERIFY(d.isUnloaded());
    });
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
  }

  void stampaShowsThatItPrintsAndThenTheDialogGoes() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    bool etichetta = false;
    bool clessidra = false;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.banco.stampanti.mentreRisponde = [&] {
        etichetta = d.lblStampaInCorso.isVisible();
        clessidra = QApplication::overrideCursor() != nullptr;
      };
      prova.clicca(d.cmdStampa);
      QVERIFY(d.isUnloaded());
    });
    QVERIFY(etichetta);
    QVERIFY(clessidra);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    const platform::PrintJob& lavoro = prova.banco.stampanti.lavori.at(0);
    QCOMPARE(lavoro.title, QStringLiteral("Stampa foglio di prova"));
    QCOMPARE(lavoro.settings.orientation, Orientation::Landscape);
  }

  void aDoubleClickPrintsOnce() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      const QWidget* widget = d.cmdStampa.widget();
      const QPoint dove = widget->mapTo(widget->window(), widget->rect().center());
      QWindow* finestra = prova.finestra();
      prova.banco.stampanti.mentreRisponde = [&] {
        QTest::mouseClick(finestra, Qt::LeftButton, {}, dove);
      };
      QTest::mouseClick(finestra, Qt::LeftButton, {}, dove);
    });
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
  }

  void theFormBelowIsActivatedAgainAfterTheHandlerThatShowedTheDialog() {
    DialogoDiProva prova;
    // Each activation of this form begins its record anew.
    prova.forma.TestoStampa.append(QStringLiteral("segno"));
    prova.conDialogo([&](frmAvviaStampa& d) {
      prova.banco.tempo.after(0.1, [&] { d.cmdChiudi.click(); });
      QVERIFY(d.StampaFCPB(prova.richiesta()));
      QVERIFY(prova.forma.TestoStampa.text().contains(QStringLiteral("segno")));
    });
    QVERIFY(!prova.forma.TestoStampa.text().contains(QStringLiteral("segno")));
  }

  void withoutAnObjectItOpensForTheSettingsAlone() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.oggetto = {};
    r.titolo.clear();
    prova.apri(r, [&](frmAvviaStampa& d) {
      QCOMPARE(d.caption(), QStringLiteral("  Impostazioni stampante"));
      QCOMPARE(qRound(d.design().height), 4192);
      QVERIFY(!d.cmdStampa.isVisible());
      QVERIFY(d.cmdOK.isVisible() && d.imgPrinter.isVisible());
      QVERIFY(d.cmdOK.hasFocus());
      QCOMPARE(qRound(d.imgPrinter.left() / d.scale().x), 4080);
      QCOMPARE(qRound(d.imgPrinter.top() / d.scale().y), 2640);
      QVERIFY(!d.lblFuoriFoglio.isVisible());
      prova.clicca(d.cmdOK);
      QVERIFY(d.isUnloaded());
      QCOMPARE(d.stampante().nome(), QStringLiteral("Prova"));
    });
    QVERIFY(prova.visto);
    QVERIFY(prova.messaggi().empty());
  }

  void theImageMemoryIsFreedWhenTheDialogGoes() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      QVERIFY(d.immagine().presente());
      d.cmdChiudi.click();
      QVERIFY(!d.immagine().presente());
    });
    QVERIFY(prova.visto);
  }

  void theImageIsTheFormAsShownIn24BitsSharpEnoughForA3() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      const auto& intestazione = d.immagine().intestazione();
      QCOMPARE(int(intestazione.bit), 24);
      QCOMPARE(int(intestazione.piani), 1);
      QCOMPARE(intestazione.lunghezza, 40);
      QVERIFY(intestazione.larghezza >= 420 / 25.4 * 150);
      const QWidget* tela = prova.forma.page()->canvas();
      QVERIFY(vicino(double(intestazione.larghezza) / intestazione.altezza,
                     double(tela->width()) / tela->height(), 0.002));
      // The same picture as on the screen, but for the ring of the focus.
      const QImage schermo = prova.forma.page()->canvas()->grab().toImage();
      const QImage presa = d.immagine().punti();
      const int volte = presa.width() / schermo.width();
      const QPoint barra = prova.forma.n3.widget()->mapTo(tela, QPoint(4, 4));
      QCOMPARE(presa.pixel(barra * volte), schermo.pixel(barra));
      QCOMPARE(presa.pixel(5, 5), schermo.pixel(5 / volte, 5 / volte));
    });
    QVERIFY(prova.visto);
  }

  void theRingOfTheFocusIsNotPrinted() {
    DialogoDiProva prova;
    prova.forma.PulsanteNumero[4].setFocus();
    QVERIFY(prova.forma.PulsanteNumero[4].hasFocus());
    QImage con;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) { con = d.immagine().punti(); });
    const QWidget* pulsante = prova.forma.PulsanteNumero[4].widget();
    const QWidget* altro = prova.forma.PulsanteNumero[5].widget();
    const QWidget* tela = prova.forma.page()->canvas();
    const int volte = con.width() / tela->width();
    // Just inside of the edge both buttons look the same.
    const QRgb a = con.pixel(pulsante->mapTo(tela, QPoint(pulsante->width() / 2, 2)) * volte);
    const QRgb b = con.pixel(altro->mapTo(tela, QPoint(altro->width() / 2, 2)) * volte);
    QCOMPARE(a, b);
  }
};

QTEST_MAIN(FrmAvviaStampaTest)
#include "frm_avvia_stampa_test.moc"
