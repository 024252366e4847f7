#include "printing/documento.h"

#include <QApplication>
#include <QDataStream>
#include <QFont>
#include <QImage>
#include <QPicture>
#include <vector>

#include "support/iscrizione.h"
#include "support/pdf_letto.h"
#include "support/stampanti_di_prova.h"

namespace documento_test {

using prova::PdfLetto;
using somme::Documento;

namespace {

constexpr int kPunti = 150;  // per inch, of what is looked at
constexpr double kVicino = 0.3;

double InPunti(double millimetri) {
  return millimetri / 25.4 * Documento::kPuntiPerPollice;
}

// Two pages: on the first a frame of 100 by 50 millimetres, 30 from the left and 40 from the top,
// and a picture in it; on the second a word, the same way scaled as the first.
QByteArray Disegna(platform::PageFormat formato, platform::Orientation verso) {
  platform::PrinterTraits stampante = prova::StampanteDiProva();
  stampante.pages = formato;
  platform::PrinterSettings impostazioni = stampante.standard;
  impostazioni.orientation = verso;
  Documento documento(stampante, impostazioni, QStringLiteral("prova"));
  if (!documento.Inizia()) return {};
  QPainter& pittore = documento.Pittore();
  pittore.scale(2, 2);
  pittore.fillRect(QRectF(InPunti(15), InPunti(20), InPunti(50), InPunti(25)), Qt::black);
  QImage bianca(64, 32, QImage::Format_RGB32);
  bianca.fill(Qt::white);
  pittore.drawImage(QRectF(InPunti(20), InPunti(22), InPunti(40), InPunti(20)), bianca);
  if (!documento.NuovaPagina()) return {};
  QFont carattere(QStringLiteral("Liberation Sans"));
  carattere.setPixelSize(int(InPunti(10)));
  pittore.setFont(carattere);
  pittore.drawText(QPointF(InPunti(20), InPunti(50)), QStringLiteral("HHHHHH"));
  return documento.Chiudi();
}

// As a printer of so many dots an inch draws them on A4.
std::vector<QImage> PagineDi(const QByteArray& disegno, QSizeF foglio) {
  QDataStream letto(disegno);
  qint32 quante = 0;
  letto >> quante;
  std::vector<QImage> pagine;
  for (qint32 i = 0; i < quante; ++i) {
    QPicture pagina;
    letto >> pagina;
    QImage& carta = pagine.emplace_back((foglio / 25.4 * kPunti).toSize(), QImage::Format_RGB32);
    carta.fill(Qt::white);
    QPainter pittore(&carta);
    const double scala = double(kPunti) / platform::kDrawingDotsPerInch;
    pittore.scale(scala, scala);
    pittore.drawPicture(0, 0, pagina);
  }
  return pagine;
}

bool Vicini(const QRectF& a, const QRectF& b) {
  return std::abs(a.left() - b.left()) <= kVicino && std::abs(a.top() - b.top()) <= kVicino &&
         std::abs(a.right() - b.right()) <= kVicino && std::abs(a.bottom() - b.bottom()) <= kVicino;
}

}  // namespace

// The pages of a print, in the formats that printers take.
class DocumentoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aDrawingHasThePagesOfTheDocumentTrueToSize_data() {
    QTest::addColumn<int>("verso");
    QTest::newRow("upright") << int(platform::Orientation::Portrait);
    QTest::newRow("across") << int(platform::Orientation::Landscape);
  }
  void aDrawingHasThePagesOfTheDocumentTrueToSize() {
    QFETCH(int, verso);
    const auto orientamento = platform::Orientation(verso);
    const PdfLetto documento(Disegna(platform::PageFormat::Pdf, orientamento));
    const std::vector<QImage> disegnate =
        PagineDi(Disegna(platform::PageFormat::Drawing, orientamento), documento.millimetri());
    QCOMPARE(int(disegnate.size()), documento.pagine());
    QCOMPARE(documento.pagine(), 2);
    const QRectF cornice = prova::inchiostro(disegnate[0], kPunti);
    QVERIFY(Vicini(cornice, QRectF(30, 40, 100, 50)));
    QVERIFY(qGray(disegnate[0].pixel(disegnate[0].rect().topLeft() +
                                     QPoint(80, 65) * kPunti / 25)) > 200);
    for (int pagina = 1; pagina <= 2; ++pagina) {
      const QRectF ink = prova::inchiostro(disegnate[size_t(pagina - 1)], kPunti);
      QVERIFY(Vicini(ink, prova::inchiostro(documento.immagine(pagina, kPunti), kPunti)));
    }
  }
};

namespace {
const prova::Iscrizione<DocumentoTest, QApplication> kIscritta;
}

}  // namespace documento_test

#include "documento_test.moc"
