#include <QApplication>
#include <QDir>
#include <QRegularExpression>

#include "../platform/devices/full_disk.h"
#include "../platform/devices/print_server.h"
#include "dialogo_di_prova.h"
#include "platform/devices/qt_time_source.h"
#include "platform/devices/system_printers.h"
#include "printing/modulo_stampa.h"
#include "support/iscrizione.h"
#include "support/pdf_letto.h"

namespace carta_test {

using devices_test::FullDisk;
using devices_test::PrintServer;
using prova::DialogoDiProva;
using prova::PdfLetto;
using somme::frmAvviaStampa;

namespace {

constexpr int kPunti = 200;  // to the inch, of the pictures that are measured

// The real printers of a machine, in the place of the scripted ones.
struct Macchina {
  explicit Macchina(DialogoDiProva& prova, const QByteArray& server) {
    qputenv("CUPS_SERVER", server);
    prova.banco.stampanti.vere = &stampanti;
  }

  [[nodiscard]] QStringList file() const {
    return QDir(cartella.path()).entryList(QDir::Files | QDir::Hidden);
  }
  [[nodiscard]] QByteArray contenuto(const QString& nome) const {
    QFile file(cartella.filePath(nome));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir cartella;
  platform::QtTimeSource tempo;
  platform::SystemPrinters stampanti{
      tempo, platform::PdfFolder({cartella.path()}, [] { return QDateTime::currentDateTime(); })};
};

void scegliA3(DialogoDiProva& prova) {
  prova.banco.pagina.risposta = [](platform::PrinterSettings& impostazioni) {
    impostazioni.paper = prova::CartaA3();
    return true;
  };
}

bool vicino(double a, double b, double quanto) {
  return std::abs(a - b) <= quanto;
}

}  // namespace

// What comes out of real printers: the built-in one, and a queue of a print server.
class CartaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theBuiltInPrinterMakesOneFileOfARecord() {
    DialogoDiProva prova;
    Macchina macchina(prova, "127.0.0.1:1");
    prova.forma.TestoStampa.append(QStringLiteral("     3 +  4 =  7\r\n"));
    prova.forma.mnuStampa.click();
    prova.banco.clicca(prova.forma.CommandStampa);
    const QStringList file = macchina.file();
    QCOMPARE(file.size(), 1);
    QVERIFY2(file[0].startsWith(QStringLiteral("Esercitazioni sulle somme ")), qPrintable(file[0]));
    const PdfLetto letto(macchina.contenuto(file[0]));
    QCOMPARE(letto.pagine(), 1);
    QVERIFY(vicino(letto.millimetri().width(), 210, 0.2));
    QVERIFY(vicino(letto.millimetri().height(), 297, 0.2));
    QVERIFY(letto.testo(1).contains(QStringLiteral("7")));
  }

  void theBuiltInPrinterMakesOneFileOfASheetTheRightWayRound() {
    DialogoDiProva prova;
    Macchina macchina(prova, "127.0.0.1:1");
    scegliA3(prova);
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.clicca(d.cmdProprieta);
      prova.clicca(d.cmdStampa);
    });
    QCOMPARE(prova.messaggi().size(), size_t(0));
    const QStringList file = macchina.file();
    QCOMPARE(file.size(), 1);
    const PdfLetto letto(macchina.contenuto(file[0]));
    QVERIFY(vicino(letto.millimetri().width(), 420, 0.2));
    QVERIFY(vicino(letto.millimetri().height(), 297, 0.2));
    const QRectF dove = prova::inchiostro(letto.immagine(1, kPunti), kPunti, 250);
    QVERIFY(vicino(dove.width(), 400, 0.3));
    QVERIFY(vicino(dove.height(), 280, 0.3));
  }

  void aFullDiskStopsThePrintWithItsMessageAndLeavesNothing() {
    DialogoDiProva prova;
    Macchina macchina(prova, "127.0.0.1:1");
    scegliA3(prova);
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.clicca(d.cmdProprieta);
      const FullDisk full;
      prova.clicca(d.cmdStampa);
    });
    QCOMPARE(prova.messaggi().size(), size_t(1));
    QVERIFY(prova.messaggi()[0].text.contains(QStringLiteral("Stampa interrotta.")));
    QVERIFY(macchina.file().isEmpty());
  }

  void aFullDiskIsARunTimeErrorForARecordAndLeavesNothing() {
    DialogoDiProva prova;
    Macchina macchina(prova, "127.0.0.1:1");
    prova.forma.mnuStampa.click();
    {
      const FullDisk full;
      prova.banco.clicca(prova.forma.CommandStampa);
    }
    QCOMPARE(prova.messaggi().size(), size_t(1));
    QVERIFY(prova.messaggi()[0].text.contains(QStringLiteral("'482'")));
    QVERIFY(macchina.file().isEmpty());
  }

  void aFolderThatHasGoneStopsThePrintWithItsMessage() {
    DialogoDiProva prova;
    Macchina macchina(prova, "127.0.0.1:1");
    scegliA3(prova);
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.clicca(d.cmdProprieta);
      QVERIFY(QDir(macchina.cartella.path()).removeRecursively());
      prova.clicca(d.cmdStampa);
    });
    QCOMPARE(prova.messaggi().size(), size_t(1));
    QVERIFY(prova.messaggi()[0].text.contains(QStringLiteral("Stampa interrotta.")));
    QVERIFY(macchina.file().isEmpty());
  }

  void aRecordGoesThroughAQueue() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(QStringLiteral("Prova")));
    QVERIFY(server.administer({QStringLiteral("-d"), QStringLiteral("Prova")}));
    DialogoDiProva prova;
    Macchina macchina(prova, server.address());
    QString testo;
    for (int i = 0; i < 100; ++i) testo += QStringLiteral("riga%1\r\n").arg(i);
    prova.forma.TestoStampa.setText(testo);
    somme::StampaTestoRicco(*prova.banco.ambiente, prova.forma.TestoStampa, 1440, 1440, 1440, 1440);
    const PdfLetto letto(server.takePrinted(QStringLiteral("Esercitazioni")));
    QVERIFY(letto.pagine() > 1);
    QVERIFY(vicino(letto.millimetri().width(), 210, 0.5));
    QVERIFY(vicino(letto.millimetri().height(), 297, 0.5));
    const QRectF dove = prova::inchiostro(letto.immagine(1, kPunti), kPunti);
    QVERIFY2(vicino(dove.left(), 25.4, 1.0), qPrintable(QString::number(dove.left())));
    QVERIFY2(dove.top() > 25.4 - 0.5 && dove.top() < 30, qPrintable(QString::number(dove.top())));
    QVERIFY(macchina.file().isEmpty());
  }

  void aSheetGoesThroughAQueueTrueToSizeAndTheRightWayRound() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    // What the queue would do by itself must not matter.
    QVERIFY(
        server.addQueue(QStringLiteral("Prova"),
                        {QStringLiteral("-o"), QStringLiteral("print-scaling-default=fit"),
                         QStringLiteral("-o"), QStringLiteral("orientation-requested-default=4")}));
    QVERIFY(server.administer({QStringLiteral("-d"), QStringLiteral("Prova")}));
    DialogoDiProva prova;
    Macchina macchina(prova, server.address());
    prova.banco.pagina.risposta = [&](platform::PrinterSettings& impostazioni) {
      const auto aperta = macchina.stampanti.open(QStringLiteral("Prova"));
      for (const platform::Paper& carta : aperta.traits.papers) {
        if (carta.code == 8) impostazioni.paper = carta;
      }
      return true;
    };
    auto r = prova.richiesta();
    r.titolo = QStringLiteral("foglio-di-prova");
    prova.apri(r, [&](frmAvviaStampa& d) {
      prova.clicca(d.cmdProprieta);
      d.Command1.click();
      prova.scrivi(d.txtPrX, QStringLiteral("10"));
      prova.scrivi(d.txtPrY, QStringLiteral("7"));
      prova.clicca(d.cmdStampa);
    });
    QCOMPARE(prova.messaggi().size(), size_t(0));
    const PdfLetto letto(server.takePrinted(QStringLiteral("foglio-di-prova")));
    QCOMPARE(letto.pagine(), 1);
    // The sheet is fed upright; the image lies on it turned to the left.
    QVERIFY(vicino(letto.millimetri().width(), 297, 0.5));
    QVERIFY(vicino(letto.millimetri().height(), 420, 0.5));
    const QRectF dove = prova::inchiostro(letto.immagine(1, kPunti), kPunti, 250);
    QVERIFY2(vicino(dove.left(), 7, 0.5), qPrintable(QString::number(dove.left())));
    QVERIFY2(vicino(dove.width(), 280, 0.5), qPrintable(QString::number(dove.width())));
    QVERIFY2(vicino(420 - dove.bottom(), 10, 0.5), qPrintable(QString::number(dove.bottom())));
    QVERIFY2(vicino(dove.height(), 400, 0.5), qPrintable(QString::number(dove.height())));
  }
};

const prova::Iscrizione<CartaTest, QApplication> kIscritta;

}  // namespace carta_test

#include "carta_test.moc"
