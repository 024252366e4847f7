#include "printing/modulo_stampa.h"

#include <QApplication>
#include <QRegularExpression>

#include "app/shared/nomi_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "platform/base/run_time_error.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/pdf_letto.h"

namespace modulo_stampa_test {

using platform::RunTimeError;
using prova::Banco;
using prova::PdfLetto;
using somme::FormaBarrePulsanti;

namespace {

constexpr double kMillimetriPerTwip = 25.4 / 1440;
constexpr int kMargine = 1440;

FormaBarrePulsanti& apri(Banco& banco) {
  banco.ambiente->stato.LimiteEsercizio = 10;
  return banco.apri<FormaBarrePulsanti>(somme::forme::kFormBarre10);
}

// Numbered lines, each a word of its own.
QString righe(int quante, int prima = 0) {
  QString testo;
  for (int i = prima; i < prima + quante; ++i) {
    testo += QStringLiteral("riga%1\r\n").arg(i, 5, 10, QLatin1Char('0'));
  }
  return testo;
}

QStringList paroleDi(const QString& testo) {
  return testo.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
}

QByteArray stampa(Banco& banco, FormaBarrePulsanti& forma, const QString& testo,
                  int margine = kMargine) {
  forma.TestoStampa.setText(testo);
  somme::StampaTestoRicco(*banco.ambiente, forma.TestoStampa, margine, margine, margine, margine);
  return banco.stampanti.lavori.back().pages;
}

// How many lines fill a page of the printer exactly.
int righePerPagina(const FormaBarrePulsanti& forma, const QRectF& rettangolo) {
  const qsizetype seguente = forma.TestoStampa.formatRange(nullptr, rettangolo, 0);
  return int(forma.TestoStampa.text().left(seguente).count(u'\n'));
}

QRectF paginaA4() {
  return somme::RettangoloDiDisegno({kMargine, kMargine, kMargine, kMargine},
                                    {210 / kMillimetriPerTwip, 297 / kMillimetriPerTwip, 0, 0});
}

int erroreDi(const std::function<void()>& azione) {
  try {
    azione();
  } catch (const RunTimeError& errore) {
    return errore.number();
  }
  return 0;
}

}  // namespace

// The record on paper.
class ModuloStampaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void commandStampaPrintsTheRecordOnTheDefaultPrinterAndLeavesThePanelOpen() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    forma.mnuStampa.click();
    QVERIFY(forma.CommandStampa.isEnabled());
    forma.TestoStampa.append(QStringLiteral("     3 +  4 =  7\r\n"));
    banco.clicca(forma.CommandStampa);
    QCOMPARE(banco.stampanti.lavori.size(), size_t(1));
    const platform::PrintJob& lavoro = banco.stampanti.lavori.front();
    QCOMPARE(lavoro.printer, QStringLiteral("Prova"));
    QCOMPARE(lavoro.title, QStringLiteral("Esercitazioni sulle somme"));
    const PdfLetto letto(lavoro.pages);
    QCOMPARE(letto.pagine(), 1);
    const QString testo = letto.testo(1);
    QVERIFY2(testo.contains(QStringLiteral("Uso delle barre - Fino al 10")), qPrintable(testo));
    QCOMPARE(paroleDi(testo).last(), QStringLiteral("7"));
    QVERIFY(letto.caratteriInclusi());
    QVERIFY(forma.PictureStampa.isVisible());
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  void aRecordWithoutASolvedSumIsItsTitleAlone() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    forma.mnuStampa.click();
    banco.clicca(forma.CommandStampa);
    QCOMPARE(banco.stampanti.lavori.size(), size_t(1));
    const PdfLetto letto(banco.stampanti.lavori.front().pages);
    QCOMPARE(letto.pagine(), 1);
    QCOMPARE(paroleDi(letto.testo(1)), paroleDi(QStringLiteral("Uso delle barre - Fino al 10")));
  }

  void theMarginsAreAnInchFromTheEdgesOfTheSheet() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    // Full lines of full pages: the ink reaches every margin.
    forma.TestoStampa.setText(QStringLiteral("\u2588").repeated(9000));
    forma.mnuStampa.click();
    banco.clicca(forma.CommandStampa);
    const PdfLetto letto(banco.stampanti.lavori.front().pages);
    QVERIFY(letto.pagine() > 2);
    // The last page is not full.
    for (int pagina = 1; pagina < letto.pagine(); ++pagina) {
      const QRectF ink = prova::inchiostro(letto.immagine(pagina, 150), 150);
      QVERIFY2(std::abs(ink.left() - 25.4) < 0.6, qPrintable(QString::number(ink.left())));
      QVERIFY2(ink.right() <= 210 - 25.4 + 0.3, qPrintable(QString::number(ink.right())));
      QVERIFY2(ink.right() > 210 - 25.4 - 6, qPrintable(QString::number(ink.right())));
      QVERIFY2(ink.bottom() <= 297 - 25.4 + 0.3, qPrintable(QString::number(ink.bottom())));
      QVERIFY2(ink.bottom() > 297 - 25.4 - 9, qPrintable(QString::number(ink.bottom())));
      QVERIFY2(ink.top() >= 25.4 - 0.3 && ink.top() < 25.4 + 4,
               qPrintable(QString::number(ink.top())));
    }
  }

  void theRectangleIsCountedFromTheCornerThatThePrinterReaches() {
    const QRectF r = somme::RettangoloDiDisegno({1440, 1500, 1600, 1700}, {11906, 16838, 300, 200});
    QCOMPARE(r.left(), 1140.0);
    QCOMPARE(r.top(), 1300.0);
    QCOMPARE(r.right(), 11906.0 - 1600 - 300);
    QCOMPARE(r.bottom(), 16838.0 - 1700 - 200);
  }

  void whatAPrinterDoesNotReachDoesNotMoveTheTextOnThePaper() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    const QRectF plain =
        prova::inchiostro(PdfLetto(stampa(banco, forma, righe(1))).immagine(1, 150), 150);
    platform::Paper carta = prova::CartaA4();
    carta.left = 6.35;
    carta.top = 12.7;
    banco.stampanti.metti(QStringLiteral("Prova"), prova::StampanteDiProva(carta));
    const QRectF shifted =
        prova::inchiostro(PdfLetto(stampa(banco, forma, righe(1))).immagine(1, 150), 150);
    QVERIFY(std::abs(plain.left() - shifted.left()) < 0.3);
    QVERIFY(std::abs(plain.top() - shifted.top()) < 0.3);
  }

  void aRecordOfOneLineTakesOnePageTrueToSize() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    const PdfLetto letto(stampa(banco, forma, righe(1)));
    QCOMPARE(letto.pagine(), 1);
    QVERIFY(std::abs(letto.millimetri().width() - 210) < 0.2);
    QVERIFY(std::abs(letto.millimetri().height() - 297) < 0.2);
    QCOMPARE(paroleDi(letto.testo(1)), QStringList{QStringLiteral("riga00000")});
  }

  void anEmptyRecordTakesOnePage() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    QCOMPARE(PdfLetto(stampa(banco, forma, {})).pagine(), 1);
  }

  void aRecordOfExactlyOnePageTakesNoSecondOne() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    forma.TestoStampa.setText(righe(500));
    const int perPagina = righePerPagina(forma, paginaA4());
    QVERIFY2(perPagina > 20 && perPagina < 80, qPrintable(QString::number(perPagina)));
    QCOMPARE(PdfLetto(stampa(banco, forma, righe(perPagina))).pagine(), 1);
    QCOMPARE(PdfLetto(stampa(banco, forma, righe(perPagina + 1))).pagine(), 2);
  }

  void aRecordThatFitsIsSetInOneCallOfTheFormatRange() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    forma.TestoStampa.setText(righe(20));
    QCOMPARE(forma.TestoStampa.formatRange(nullptr, paginaA4(), 0),
             forma.TestoStampa.text().size());
  }

  void noLineIsLostOrDoubledAtAPageBreak() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    forma.TestoStampa.setText(righe(500));
    const int perPagina = righePerPagina(forma, paginaA4());
    const int quante = 2 * perPagina + 7;
    const PdfLetto letto(stampa(banco, forma, righe(quante)));
    QCOMPARE(letto.pagine(), 3);
    QCOMPARE(paroleDi(letto.testo(1)).size(), perPagina);
    QCOMPARE(paroleDi(letto.testo(3)).size(), 7);
    QStringList tutte;
    for (int pagina = 1; pagina <= 3; ++pagina) tutte += paroleDi(letto.testo(pagina));
    QCOMPARE(tutte, paroleDi(righe(quante)));
  }

  void noCharacterIsLostOrDoubledOnAnyPaper_data() {
    QTest::addColumn<double>("larghezza");
    QTest::addColumn<double>("altezza");
    QTest::newRow("A4") << 210.0 << 297.0;
    QTest::newRow("A3") << 297.0 << 420.0;
    QTest::newRow("A7") << 74.0 << 105.0;
    QTest::newRow("a label smaller than its margins") << 50.0 << 30.0;
    QTest::newRow("a sheet lower than a line") << 100.0 << 4.0;
    QTest::newRow("a sheet narrower than a letter") << 2.0 << 297.0;
  }
  void noCharacterIsLostOrDoubledOnAnyPaper() {
    QFETCH(double, larghezza);
    QFETCH(double, altezza);
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    const QRectF area = somme::RettangoloDiDisegno(
        {kMargine, kMargine, kMargine, kMargine},
        {larghezza / kMillimetriPerTwip, altezza / kMillimetriPerTwip, 0, 0});
    // Long words, long lines, empty lines, no line end at the end, one long paragraph.
    QString testo = righe(40) + QStringLiteral("\r\n\n\r");
    for (int i = 0; i < 800; ++i) testo += QStringLiteral("parola%1 ").arg(i);
    testo += QStringLiteral("\n") + QStringLiteral("x").repeated(700);
    forma.TestoStampa.setText(testo);
    qsizetype da = 0;
    while (da < testo.size()) {
      const qsizetype seguente = forma.TestoStampa.formatRange(nullptr, area, da);
      QVERIFY2(seguente > da, "a page took nothing");
      da = seguente;
    }
    QCOMPARE(da, testo.size());
  }

  void aPageBreakInsideOfALongParagraphFallsBetweenTwoLines() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    QString testo;
    for (int i = 0; i < 3000; ++i) testo += QStringLiteral("p%1 ").arg(i, 4, 10, QLatin1Char('0'));
    const PdfLetto letto(stampa(banco, forma, testo));
    QVERIFY(letto.pagine() > 2);
    QStringList tutte;
    for (int pagina = 1; pagina <= letto.pagine(); ++pagina) tutte += paroleDi(letto.testo(pagina));
    QCOMPARE(tutte, paroleDi(testo));
  }

  void theSizeOfTheWindowDoesNotChangeThePrint() {
    Banco small({800, 600});
    Banco large({1900, 1200});
    const PdfLetto a(stampa(small, apri(small), righe(60)));
    const PdfLetto b(stampa(large, apri(large), righe(60)));
    QCOMPARE(a.testo(1), b.testo(1));
    QCOMPARE(a.pagine(), b.pagine());
  }

  void theRecordTakesThePrintersOwnPaperAndDirection() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    platform::PrinterTraits stampante = prova::StampanteDiProva(prova::CartaA3());
    stampante.standard.orientation = platform::Orientation::Landscape;
    banco.stampanti.metti(QStringLiteral("Prova"), stampante);
    const PdfLetto letto(stampa(banco, forma, righe(1)));
    QVERIFY(std::abs(letto.millimetri().width() - 420) < 0.2);
    QVERIFY(std::abs(letto.millimetri().height() - 297) < 0.2);
    QCOMPARE(banco.stampanti.lavori.back().settings, stampante.standard);
  }

  void aQueueGetsUprightPagesWithTheTextTurned() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    platform::PrinterTraits stampante = prova::StampanteDiProva();
    stampante.standard.orientation = platform::Orientation::Landscape;
    stampante.feedsUpright = true;
    banco.stampanti.metti(QStringLiteral("Prova"), stampante);
    const PdfLetto letto(stampa(banco, forma, righe(1)));
    QVERIFY(std::abs(letto.millimetri().width() - 210) < 0.2);
    // The upper left corner of the text lies at the lower left of the sheet.
    const QRectF ink = prova::inchiostro(letto.immagine(1, 100), 100);
    QVERIFY(ink.left() < 40 && ink.bottom() > 260);
    QVERIFY(ink.height() > ink.width());
    // On the second page as well.
    const PdfLetto lungo(stampa(banco, forma, righe(200)));
    QVERIFY(lungo.pagine() > 1);
    QVERIFY(std::abs(lungo.millimetri(2).width() - 210) < 0.2);
    const QRectF seconda = prova::inchiostro(lungo.immagine(2, 100), 100);
    QVERIFY(seconda.left() < 40 && seconda.bottom() > 260);
  }

  void withoutAPrinterTheRecordIsRunTimeError482() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    banco.stampanti.nessuna();
    QCOMPARE(erroreDi([&] { stampa(banco, forma, righe(1)); }), 482);
  }

  void aPrinterThatRefusesIsRunTimeError482() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    banco.stampanti.esito = {};
    QCOMPARE(erroreDi([&] { stampa(banco, forma, righe(1)); }), 482);
    banco.stampanti.esito = {17, false};
    QCOMPARE(erroreDi([&] { stampa(banco, forma, righe(1)); }), 482);
  }

  void aPrinterThatCannotBeOpenedIsRunTimeError482() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    banco.stampanti.stampanti.clear();
    QCOMPARE(erroreDi([&] { stampa(banco, forma, righe(1)); }), 482);
  }

  void aPrinterThatTakesNoPagesIsRunTimeError482() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    banco.stampanti.stampanti[QStringLiteral("Prova")].traits.takesPages = false;
    QCOMPARE(erroreDi([&] { stampa(banco, forma, righe(1)); }), 482);
    QVERIFY(banco.stampanti.lavori.empty());
  }

  void aFailedPrintShowsTheBoxOfTheRunTimeAndEndsTheProgram() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    banco.stampanti.esito = {};
    forma.mnuStampa.click();
    banco.clicca(forma.CommandStampa);
    QCOMPARE(banco.messaggi.mostrati.size(), size_t(1));
    QCOMPARE(banco.messaggi.mostrati.front().text,
             QStringLiteral("Errore di run-time '482':\n\nErrore della stampante"));
    QVERIFY(banco.fine.stato.value_or(0) != 0);
  }

  void noPrinterIsAskedForAnythingBeforeAPrint() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    int domande = 0;
    banco.stampanti.mentreRisponde = [&domande] { ++domande; };
    forma.mnuStampa.click();
    QCOMPARE(domande, 0);
    QVERIFY(banco.stampanti.aperte.isEmpty());
    banco.clicca(forma.CommandStampa);
    QVERIFY(domande > 0);
  }

  void aPrintServerThatDoesNotTellItsDefaultIsAFailedPrintAndNoOtherPrinterIsTaken() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    banco.stampanti.elenco.standard.clear();
    QCOMPARE(erroreDi([&] { stampa(banco, forma, righe(1)); }), 482);
    QVERIFY(banco.stampanti.aperte.isEmpty());
    QVERIFY(banco.stampanti.lavori.empty());
  }
};

const prova::Iscrizione<ModuloStampaTest, QApplication> kIscritta;

}  // namespace modulo_stampa_test

#include "modulo_stampa_test.moc"
