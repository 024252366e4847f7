#include "printing/frm_avvia_stampa.h"

#include <QApplication>

#include "dialogo_di_prova.h"
#include "support/iscrizione.h"

namespace frm_avvia_stampa_test {

using platform::Orientation;
using prova::DialogoDiProva;
using prova::dipinta;
using prova::Grigia;
using prova::haColori;
using somme::frmAvviaStampa;

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

  void theDialogIsAsLargeAsWhatItShows_data() {
    QTest::addColumn<QSize>("finestra");
    QTest::newRow("800x600") << QSize(800, 600);
    QTest::newRow("1366x768") << QSize(1366, 768);
    QTest::newRow("1280x1024") << QSize(1280, 1024);
    QTest::newRow("1920x1080") << QSize(1920, 1080);
  }
  void theDialogIsAsLargeAsWhatItShows() {
    QFETCH(QSize, finestra);
    DialogoDiProva prova(finestra);
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      // How far below the lowest of what is shown the window ends, in twips of the design.
      const auto resto = [&d] {
        int basso = 0;
        const QWidget& tela = *d.page()->canvas();
        for (const QObject* figlio : tela.children()) {
          const auto* widget = qobject_cast<const QWidget*>(figlio);
          if (widget == nullptr || !widget->isVisible()) continue;
          basso = std::max(basso, widget->geometry().bottom() + 1);
        }
        return (tela.height() - basso) * d.scale().pixel.count() / d.scale().y;
      };
      const QRect principale = prova.banco.ambiente->fondo.window().frameGeometry();
      QVERIFY2(resto() >= 90 && resto() <= 150, qPrintable(QString::number(resto())));
      const int larga = d.page()->window()->width();
      const double scala = d.scale().x;
      prova.clicca(d.Command1);
      QVERIFY2(resto() >= 90 && resto() <= 150, qPrintable(QString::number(resto())));
      QCOMPARE(d.page()->window()->width(), larga);
      QCOMPARE(d.scale().x, scala);
      QVERIFY(d.page()->window()->frameGeometry().bottom() <= principale.bottom());
    });
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

  void theListHasThePrinterInUseAlsoWhereTheServerDoesNotTellItAnyMore() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.conDialogo([&](frmAvviaStampa& d) {
      QVERIFY(d.FoglioStampa(2).ok);
      // Asked once more, it does not answer in time: nothing but the file is left.
      prova.banco.stampanti.elenco = {{QStringLiteral("PDF")}, {}};
      prova.banco.stampanti.metti(QStringLiteral("PDF"), prova::StampanteDiProva());
      prova.banco.tempo.after(0.1, [&] {
        prova.lavora(d, [&](frmAvviaStampa&) {
          QCOMPARE(d.cboPrinterNames.items(),
                   (QStringList{QStringLiteral("Prova"), QStringLiteral("PDF")}));
          QCOMPARE(d.cboPrinterNames.text(), QStringLiteral("Prova"));
          prova.clicca(d.cmdStampa);
        });
      });
      d.StampaFCPB(prova.richiesta());
    });
    QVERIFY(prova.visto);
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
    QCOMPARE(prova.banco.stampanti.lavori[0].printer, QStringLiteral("Prova"));
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

  void proprietaChangesTheSheetAndTheColors() {
    DialogoDiProva prova;
    prova.banco.pagina.risposta = [](platform::PrinterSettings& impostazioni) {
      impostazioni.paper = prova::CartaA3();
      impostazioni.color = platform::ColorMode::Monochrome;
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
      QCOMPARE(d.stampante().impostazioni().orientation, Orientation::Landscape);
      prova.clicca(d.cmdChiudi);
      QVERIFY(d.isUnloaded());
      QCOMPARE(d.stampante().impostazioni().orientation, Orientation::Portrait);
    });
    QVERIFY(prova.visto);
    QVERIFY(prova.banco.stampanti.lavori.empty());
    QVERIFY(prova.messaggi().empty());
  }

  void whatWasSetInOneDialogIsForgottenInTheNext() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    const auto didascalia = [&] {
      QString letta;
      prova.apri(r, [&](frmAvviaStampa& d) {
        letta = d.fraFoglio.caption();
        d.cmdStampa.click();
      });
      return letta;
    };
    QCOMPARE(didascalia(), QStringLiteral(" Dimensioni foglio: A4,  Orizzontale"));
    r.orientamento = 0;
    QCOMPARE(didascalia(), QStringLiteral(" Dimensioni foglio: A4,  Verticale"));
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

  void everyArrowGoesThroughTheOptionsRoundAndRound() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.A3[0].setFocus();
      int chiesto = 0;
      for (const int tasto : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_Right,
                              Qt::Key_Right, Qt::Key_Left, Qt::Key_Left}) {
        chiesto = 1 - chiesto;
        prova.batti(tasto);
        QVERIFY(d.A3[chiesto].isSelected());
        QVERIFY(d.A3[chiesto].hasFocus());
      }
    });
  }

  void stampaShowsThatItPrintsAndThenTheDialogGoes() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    bool etichetta = false;
    QPointF scarto(1000, 1000);  // twips
    bool clessidra = false;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.banco.stampanti.mentreRisponde = [&] {
        etichetta = d.lblStampaInCorso.isVisible();
        const auto mezzo = [](const platform::Control& c) {
          return QPointF(c.left() + c.width() / 2, c.top() + c.height() / 2);
        };
        scarto = mezzo(d.lblStampaInCorso) - mezzo(d.PictureAnteprima);
        clessidra = QApplication::overrideCursor() != nullptr;
      };
      prova.clicca(d.cmdStampa);
      QVERIFY(d.isUnloaded());
    });
    QVERIFY(etichetta);
    QVERIFY(scarto.manhattanLength() < 1);
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
};

const prova::Iscrizione<FrmAvviaStampaTest, QApplication> kIscritta;

}  // namespace frm_avvia_stampa_test

#include "frm_avvia_stampa_test.moc"
