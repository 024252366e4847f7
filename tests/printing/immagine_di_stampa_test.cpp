#include "printing/immagine_di_stampa.h"

#include <QApplication>
#include <functional>

#include "dialogo_di_prova.h"
#include "printing/errore_di_stampa.h"
#include "support/iscrizione.h"
#include "support/pdf_letto.h"

namespace immagine_di_stampa_test {

using prova::DialogoDiProva;
using prova::PdfLetto;
using somme::ErroreDiStampa;
using somme::frmAvviaStampa;

namespace {

QString erroreDi(const std::function<void()>& azione) {
  try {
    azione();
  } catch (const ErroreDiStampa& errore) {
    return errore.descrizione;
  }
  return QStringLiteral("none");
}

}  // namespace

// The image that is printed: its bytes, its grays, its place on the paper.
class ImmagineDiStampaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anImageWithoutMemory() {
    somme::ImmagineDiStampa immagine;
    QImage figura(30, 20, QImage::Format_RGB32);
    figura.fill(Qt::green);
    QCOMPARE(
        erroreDi([&] { immagine.LeggiImmagine(figura, true, [](QSize) { return QImage(); }); }),
        QStringLiteral("hMem = 0"));
    QVERIFY(!immagine.presente());
  }

  void theBytesOfAnImageFillWholeGroupsOfFour() {
    QCOMPARE(somme::DimensioneImmagine(1, 1, 24), qint64(4));
    QCOMPARE(somme::DimensioneImmagine(3, 2, 24), qint64(24));
    QCOMPARE(somme::DimensioneImmagine(4, 2, 24), qint64(24));
    QCOMPARE(somme::DimensioneImmagine(33, 1, 1), qint64(8));
    QCOMPARE(somme::DimensioneImmagine(9, 1, 4), qint64(8));
    QCOMPARE(somme::DimensioneImmagine(5, 3, 8), qint64(24));
    QCOMPARE(somme::DimensioneImmagine(3, 1, 16), qint64(8));
    QCOMPARE(somme::DimensioneImmagine(3, 1, 32), qint64(12));
    QCOMPARE(somme::DimensioneImmagine(100000, 60000, 24), qint64(300000) * 60000);
    QCOMPARE(somme::DimensioneImmagine(3, 1, 15), qint64(0));
    QCOMPARE(somme::DimensioneImmagine(3, 1, 64), qint64(0));
  }

  void theGrayOfAPixelIsTheAverageOfItsColorsCutOff() {
    QImage immagine(1, 1, QImage::Format_RGB32);
    immagine.setPixel(0, 0, qRgb(10, 20, 31));
    QCOMPARE(somme::InGrigio(immagine).pixel(0, 0), qRgb(20, 20, 20));
    immagine.setPixel(0, 0, qRgb(255, 0, 0));
    QCOMPARE(somme::InGrigio(immagine).pixel(0, 0), qRgb(85, 85, 85));
  }

  void theImageStandsOnThePaperTrueToSize() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrX, QStringLiteral("10"));
      prova.scrivi(d.txtPrY, QStringLiteral("7"));
      prova.clicca(d.cmdStampa);
    });
    const PdfLetto letto(prova.banco.stampanti.lavori.at(0).pages);
    QCOMPARE(letto.pagine(), 1);
    QCOMPARE(letto.titolo(), QStringLiteral("Stampa foglio di prova"));
    QVERIFY(std::abs(letto.millimetri().width() - 420) < 0.2);
    QVERIFY(std::abs(letto.millimetri().height() - 297) < 0.2);
    // The form is pale yellow to its edges.
    constexpr int kPunti = 200;
    const QRectF dove = prova::inchiostro(letto.immagine(1, kPunti), kPunti, 250);
    QVERIFY2(std::abs(dove.left() - 10) < 0.3, qPrintable(QString::number(dove.left())));
    QVERIFY2(std::abs(dove.top() - 7) < 0.3, qPrintable(QString::number(dove.top())));
    QVERIFY2(std::abs(dove.width() - 400) < 0.3, qPrintable(QString::number(dove.width())));
    QVERIFY2(std::abs(dove.height() - 280) < 0.3, qPrintable(QString::number(dove.height())));
  }
};

const prova::Iscrizione<ImmagineDiStampaTest, QApplication> kIscritta;

}  // namespace immagine_di_stampa_test

#include "immagine_di_stampa_test.moc"
