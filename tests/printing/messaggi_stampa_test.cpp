#include <QApplication>
#include <QLineEdit>

#include "dialogo_di_prova.h"
#include "support/iscrizione.h"

namespace messaggi_stampa_test {

using prova::DialogoDiProva;
using somme::frmAvviaStampa;

namespace {

const QString kDocumento = QStringLiteral(" Errore nella stampa del documento.");

void verifica(const platform::MessageBox& messaggio, const QString& testo, const QString& titolo) {
  QCOMPARE(messaggio.text, testo);
  QCOMPARE(messaggio.title, titolo);
  QVERIFY(messaggio.icon == platform::BoxIcon::Critical);
  QVERIFY(messaggio.buttons == platform::BoxButtons::Ok);
}

}  // namespace

// Everything that the printing of an image can say.
class MessaggiStampaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anObjectOfTheWrongKind() {
    DialogoDiProva prova;
    QObject altro;
    auto r = prova.richiesta();
    r.oggetto = &altro;
    QVERIFY(!prova.apri(r));
    QVERIFY(!prova.visto);
    QCOMPARE(prova.messaggi().size(), size_t(1));
    verifica(prova.messaggi()[0], QStringLiteral("L' oggetto da stampare\ne' di tipo errato.\n\n"),
             kDocumento);
  }

  void anObjectWithoutAWindow() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.oggetto = static_cast<platform::Control*>(&prova.forma.mnuStampa);
    QVERIFY(!prova.apri(r));
    verifica(prova.messaggi().at(0),
             QStringLiteral("L' oggetto da stampare \"mnuStampa\"\n"
                            "non espone la proprieta' hWnd.\n\n"),
             kDocumento);
  }

  void sizesNotAboveZero() {
    DialogoDiProva prova;
    for (const QSize lato : {QSize(0, 297), QSize(420, 0), QSize(-1, -1)}) {
      auto r = prova.richiesta();
      r.larghezza = lato.width();
      r.altezza = lato.height();
      QVERIFY(!prova.apri(r));
      verifica(prova.messaggi().back(),
               QStringLiteral("\nParametri errati.\nLa larghezza e l' altezza di stampa\n"
                              "richieste devono essere > 0.\n\n"),
               kDocumento);
    }
    QCOMPARE(prova.messaggi().size(), size_t(3));
    QVERIFY(!prova.visto);
  }

  void aCaptureThatFailsIsToldWithItsSource() {
    DialogoDiProva prova;
    prova.forma.Picture1.setWidth(0);
    auto r = prova.richiesta();
    r.oggetto = static_cast<platform::Control*>(&prova.forma.Picture1);
    r.usaImmagine = true;
    QVERIFY(!prova.apri(r));
    QCOMPARE(prova.messaggi().size(), size_t(2));
    verifica(prova.messaggi()[0],
             QStringLiteral("Errore 5\nChiamata di routine o argomento non validi"),
             QStringLiteral(" Errore nella stampa di Picture1"));
    verifica(prova.messaggi()[1],
             QStringLiteral("Si e' verificata una condizione\n"
                            "inaspettata elaborando l' immagine.\n\n"),
             kDocumento);
  }

  void aPictureBoxIsTakenByItsOwnPicture() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.oggetto = static_cast<platform::Control*>(&prova.forma.Picture1);
    // It keeps none.
    QVERIFY(!prova.apri(r));
    verifica(prova.messaggi().at(0),
             QStringLiteral("Si e' verificata una condizione\n"
                            "inaspettata elaborando l' immagine.\n\n"),
             kDocumento);
    QImage figura(30, 20, QImage::Format_RGB32);
    figura.fill(Qt::green);
    prova.forma.Picture1.setPicture(figura, {0, 0, 30, 20});
    QVERIFY(prova.apri(r, [](frmAvviaStampa& d) {
      QCOMPARE(d.immagine().punti().size(), QSize(30, 20));
      QCOMPARE(d.immagine().punti().pixel(3, 3), qRgb(0, 255, 0));
    }));
    QVERIFY(prova.visto);
  }

  void anOrientationThatIsNone() {
    DialogoDiProva prova;
    for (const int orientamento : {0, 3, -1}) {
      prova.conDialogo([&](frmAvviaStampa& d) {
        const frmAvviaStampa::Foglio foglio = d.FoglioStampa(orientamento);
        QCOMPARE(foglio.larghezza, -1);
        QCOMPARE(foglio.altezza, -1);
        QVERIFY(!foglio.ok);
      });
      verifica(prova.messaggi().back(), QStringLiteral("Orientamento errato"), kDocumento);
    }
  }

  void theSheetIsMeasuredInTheDirectionAskedFor() {
    DialogoDiProva prova;
    prova.conDialogo([&](frmAvviaStampa& d) {
      const frmAvviaStampa::Foglio traverso = d.FoglioStampa(2);
      QCOMPARE(traverso.larghezza, 297);
      QCOMPARE(traverso.altezza, 210);
      QVERIFY(traverso.ok);
      // Without one it stays as it was written.
      QCOMPARE(d.FoglioStampa().larghezza, 297);
      QCOMPARE(d.FoglioStampa(1).larghezza, 210);
    });
    QVERIFY(prova.messaggi().empty());
  }

  void withNoPrinterAtAllASheetShowsOneMessageThatOfTheSizes() {
    DialogoDiProva prova;
    prova.banco.stampanti.nessuna();
    prova.forma.TestoStampa.append(QStringLiteral("segno"));
    prova.conDialogo([&](frmAvviaStampa& d) {
      const frmAvviaStampa::Foglio foglio = d.FoglioStampa(2);
      QCOMPARE(foglio.larghezza, -1);
      QCOMPARE(foglio.altezza, -1);
      auto r = prova.richiesta();
      r.larghezza = foglio.larghezza;
      r.altezza = foglio.altezza;
      QVERIFY(!d.StampaFCPB(r));
      QVERIFY(d.isUnloaded());
    });
    QCOMPARE(prova.messaggi().size(), size_t(1));
    QVERIFY(prova.messaggi()[0].text.contains(QStringLiteral("devono essere > 0.")));
    // The program goes on, and what is on the screen is activated again.
    QVERIFY(!prova.banco.fine.stato);
    QVERIFY(!prova.forma.TestoStampa.text().contains(QStringLiteral("segno")));
  }

  void withNoPrinterAtAllTheDialogAloneEndsInSilence() {
    DialogoDiProva prova;
    prova.banco.stampanti.nessuna();
    QVERIFY(!prova.apri(prova.richiesta()));
    QVERIFY(prova.messaggi().empty());
    QVERIFY(!prova.visto);
  }

  void aPrinterThatCannotBeReached() {
    DialogoDiProva prova;
    prova.banco.stampanti.stampanti.clear();
    prova.conDialogo([](frmAvviaStampa& d) { QCOMPARE(d.FoglioStampa(2).larghezza, -1); });
    QCOMPARE(prova.messaggi().size(), size_t(1));
    verifica(prova.messaggi()[0], QStringLiteral("Non posso accedere alla stampante richiesta."),
             QStringLiteral(" Errore nell'accesso alla stampante"));
  }

  void aPrinterThatRefusesItsSettings() {
    DialogoDiProva prova;
    prova.banco.stampanti.stampanti[QStringLiteral("Prova")].access =
        platform::Printers::Access::SettingsRefused;
    prova.conDialogo([](frmAvviaStampa& d) { QCOMPARE(d.FoglioStampa(2).larghezza, -1); });
    QCOMPARE(prova.messaggi().size(), size_t(1));
    verifica(prova.messaggi()[0], QStringLiteral("Errore nella stampa del documento."),
             QStringLiteral(" Errore"));
  }

  void aPrinterChosenInTheListThatCannotBeReachedLeavesTheSheetAsItIs() {
    DialogoDiProva prova;
    prova.banco.stampanti.elenco.names.append(QStringLiteral("Spenta"));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      const QString prima = d.fraFoglio.caption();
      d.cboPrinterNames.choose(QStringLiteral("Spenta"));
      QCOMPARE(prova.messaggi().size(), size_t(1));
      QCOMPARE(d.fraFoglio.caption(), prima);
      // Printing on it is refused, too.
      prova.clicca(d.cmdStampa);
    });
    QCOMPARE(prova.messaggi().size(), size_t(2));
    QVERIFY(prova.messaggi()[1].text.endsWith(QStringLiteral("prhDC = 0")));
    QVERIFY(prova.banco.stampanti.lavori.empty());
  }

  void aPrintExactlyAsLargeAsTheSheetPassesAndOneMillimetreMoreDoesNot() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    const auto stampa = [&](const QString& larghezza, const QString& altezza, const QString& x,
                            const QString& y) {
      prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
        d.Command1.click();
        prova.clicca(d.chkProporzioni);
        prova.scrivi(d.txtPrW, larghezza);
        prova.scrivi(d.txtPrH, altezza);
        prova.scrivi(d.txtPrX, x);
        prova.scrivi(d.txtPrY, y);
        d.cmdStampa.click();
        QVERIFY(d.isUnloaded());
      });
    };
    const QString zero = QStringLiteral("0");
    stampa(QStringLiteral("420"), QStringLiteral("297"), zero, zero);
    QVERIFY(prova.messaggi().empty());
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
    stampa(QStringLiteral("421"), QStringLiteral("297"), zero, zero);
    stampa(QStringLiteral("420"), QStringLiteral("298"), zero, zero);
    stampa(QStringLiteral("420"), QStringLiteral("297"), QStringLiteral("1"), zero);
    stampa(QStringLiteral("420"), QStringLiteral("297"), zero, QStringLiteral("1"));
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
    QCOMPARE(prova.messaggi().size(), size_t(4));
    for (const platform::MessageBox& messaggio : prova.messaggi()) {
      verifica(messaggio,
               QStringLiteral("Le dimensioni di stampa richieste\n"
                              "sono superiori a quelle del foglio\n"
                              "della stampante selezionata.\n\n"
                              "Prova a modificare le impostazioni."),
               QStringLiteral(" Errore nelle dimensioni del foglio"));
    }
  }

  void aPrinterThatRefusesTheJob() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.banco.stampanti.esito = {};
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) { prova.clicca(d.cmdStampa); });
    QCOMPARE(prova.messaggi().size(), size_t(1));
    const QString testo = prova.messaggi()[0].text;
    static const QRegularExpression righe(QStringLiteral(
        "^La funzione di Stampa\nha trovato una situazione imprevista.\n\n"
        "Codice di errore = 482\nStampa interrotta.\nR1 = 0\nR2 = 1\nR3 = [1-9]\\d+\nR4 = 0$"));
    QVERIFY2(righe.match(testo).hasMatch(), qPrintable(testo));
    QCOMPARE(prova.messaggi()[0].title, QStringLiteral(" Si è verificato un errore nella stampa"));
    QVERIFY(prova.messaggi()[0].icon == platform::BoxIcon::Critical);
  }

  void aPrinterThatBreaksOffInTheMiddle() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.banco.stampanti.esito = {23, false};
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) { prova.clicca(d.cmdStampa); });
    QVERIFY(prova.messaggi().at(0).text.contains(QStringLiteral("R1 = 23\n")));
    QVERIFY(prova.messaggi().at(0).text.endsWith(QStringLiteral("R4 = 0")));
  }

  void aQueueThatVanishesBetweenOpeningAndPrinting() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.banco.stampanti.stampanti.clear();
      prova.clicca(d.cmdStampa);
      QVERIFY(d.isUnloaded());
    });
    QCOMPARE(prova.messaggi().size(), size_t(1));
    verifica(prova.messaggi()[0],
             QStringLiteral("La funzione di Stampa\nha trovato una situazione imprevista.\n\n"
                            "Codice di errore = 482\nprhDC = 0"),
             QStringLiteral(" Si è verificato un errore nella stampa"));
    QVERIFY(prova.banco.stampanti.lavori.empty());
  }

  void aPrinterThatTakesNoImages() {
    DialogoDiProva prova;
    platform::PrinterTraits stampante = prova::StampanteDiProva();
    stampante.takesPages = false;
    prova.stampante(stampante);
    prova.conDialogo([&](frmAvviaStampa& d) {
      QVERIFY(d.FoglioStampa(2).ok);
      QVERIFY(!d.StampaFCPB(prova.richiesta()));
    });
    verifica(prova.messaggi().at(0), QStringLiteral("This device does not support DIB's\n\n"),
             kDocumento);
  }

  void aPictureOfAnUnknownDepth() {
    DialogoDiProva prova;
    QImage figura(30, 20, QImage::Format_RGBA64);
    figura.fill(Qt::green);
    prova.forma.Picture1.setPicture(figura, {0, 0, 30, 20});
    auto r = prova.richiesta();
    r.oggetto = static_cast<platform::Control*>(&prova.forma.Picture1);
    QVERIFY(!prova.apri(r));
    verifica(prova.messaggi().at(0),
             QStringLiteral("Formato grafico sconosciuto.\n\n"
                            "L' operazione di stampa viene interrotta.\n\n"),
             kDocumento);
  }

  void aPreviewThatCannotBeDrawn() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      const_cast<somme::ImmagineDiStampa&>(d.immagine()).Libera();
      d.cmdOrigine.click();
      d.updPrX.step(1);
    });
    QVERIFY(!prova.messaggi().empty());
    verifica(prova.messaggi()[0], QStringLiteral("Errore di Copia"),
             QStringLiteral(" Errore nell'anteprima"));
  }
};

const prova::Iscrizione<MessaggiStampaTest, QApplication> kIscritta;

}  // namespace messaggi_stampa_test

#include "messaggi_stampa_test.moc"
