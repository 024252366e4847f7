#include "printing/frm_avvia_stampa.h"

#include <QApplication>

#include "dialogo_di_prova.h"
#include "platform/forms/text_block.h"
#include "support/iscrizione.h"
#include "support/pdf_letto.h"

namespace anteprima_test {

using prova::DialogoDiProva;
using prova::dipinta;
using prova::Grigia;
using prova::haColori;
using prova::PdfLetto;
using somme::frmAvviaStampa;

namespace {

constexpr platform::Rgb kRosso{255, 0, 0};
constexpr platform::Rgb kBianco{255, 255, 255};

bool vicino(double a, double b, double quanto) {
  return std::abs(a - b) <= quanto;
}

}  // namespace

// The preview of the print dialog, its warning, and the image that it shows.
class AnteprimaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
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
      const double pixel = d.scale().pixel.count();
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

  void aSheetOnWhichAllFitsFillsItsFrame_data() {
    QTest::addColumn<QSize>("finestra");
    for (const QSize lato : {QSize(800, 600), QSize(1366, 768), QSize(1920, 1080)}) {
      QTest::addRow("%dx%d", lato.width(), lato.height()) << lato;
    }
  }
  void aSheetOnWhichAllFitsFillsItsFrame() {
    QFETCH(QSize, finestra);
    DialogoDiProva prova(finestra);
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    // The sheet's share of the frame across and down; it lies in it as a whole.
    const auto parte = [](frmAvviaStampa& d) {
      const QRect foglio = d.shpBordo.widget()->geometry();
      const QRect cornice = d.fraFoglio.widget()->rect();
      if (!cornice.adjusted(4, 4, -4, -4).contains(foglio)) return QSizeF();
      return QSizeF(double(foglio.width()) / cornice.width(),
                    double(foglio.height()) / cornice.height());
    };
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      QVERIFY(parte(d).width() > 0.88 && parte(d).height() > 0.82);
      // What lies beyond the sheet wants room beside it, and gives it back.
      d.Command1.click();
      prova.scrivi(d.txtPrX, QStringLiteral("60"));
      QVERIFY(parte(d).width() > 0.5 && parte(d).width() < 0.7);
      prova.scrivi(d.txtPrX, QStringLiteral("1"));
      QVERIFY(parte(d).width() > 0.88);
    });
    auto r = prova.richiesta();
    r.orientamento = 1;
    prova.apri(r, [&](frmAvviaStampa& d) { QVERIFY(parte(d).height() > 0.85); });
  }

  void whatWouldBeLostBeyondThePaperIsSeenFaintBesideIt() {
    const auto oltre = [](bool grande, bool spostata) {
      DialogoDiProva prova;
      if (grande) prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
      QImage accanto;
      prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
        if (spostata) d.Command1.click();
        if (spostata) prova.scrivi(d.txtPrX, QStringLiteral("60"));
        const QRect foglio = d.shpBordo.widget()->geometry();
        const QWidget& cornice = *d.fraFoglio.widget();
        accanto = d.fraFoglio.widget()->grab().toImage().copy(foglio.right() + 4, foglio.top() + 4,
                                                              cornice.width() - foglio.right() - 12,
                                                              foglio.height() - 8);
      });
      QSet<QRgb> colori;
      for (int y = 0; y < accanto.height(); ++y) {
        for (int x = 0; x < accanto.width(); ++x) colori.insert(accanto.pixel(x, y));
      }
      return colori;
    };
    QCOMPARE(oltre(true, false), QSet<QRgb>{qRgb(245, 245, 245)});
    double contrasto = 1;
    for (const QRgb colore : oltre(false, false)) {
      contrasto = std::max(contrasto, platform::contrast(colore, qRgb(245, 245, 245)));
    }
    QVERIFY2(contrasto >= 3 && contrasto <= 7, qPrintable(QString::number(contrasto)));
    QVERIFY(oltre(true, true).size() > 10);
  }

  void onAMonochromePrinterThePreviewTurnsGrayAndThePrintStaysInColor() {
    DialogoDiProva prova;
    prova.stampante(Grigia(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      QVERIFY(!haColori(dipinta(d)));
      prova.clicca(d.cmdStampa);
    });
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
    QVERIFY(haColori(PdfLetto(prova.banco.stampanti.lavori.front().pages).immagine(1, 40)));
  }

  void onAColorPrinterThePreviewIsInColor() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) { QVERIFY(haColori(dipinta(d))); });
    QVERIFY(prova.visto);
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

const prova::Iscrizione<AnteprimaTest, QApplication> kIscritta;

}  // namespace anteprima_test

#include "anteprima_test.moc"
