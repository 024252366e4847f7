#include "immagini/immagini.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/forms/drawing.h"
#include "support/iscrizione.h"

namespace immagini_test {

namespace {

const QString Cartella = QStringLiteral(CARTELLA_IMMAGINI "/");

// As the program has it.
platform::Drawing DisegnoDi(const QString& nome) {
  QFile file(QStringLiteral(":/immagini/%1.drawing").arg(nome));
  return file.open(QIODevice::ReadOnly) ? platform::Drawing::fromBytes(file.readAll())
                                        : platform::Drawing();
}

QImage Disegna(const QString& nome, QSize misura) {
  QImage immagine(misura, QImage::Format_ARGB32);
  immagine.fill(Qt::transparent);
  QPainter pennello(&immagine);
  DisegnoDi(nome).paint(pennello, QRectF(QPointF(), QSizeF(misura)));
  return immagine;
}

// In its own proportions, lato pixels on the longer side.
QImage Disegna(const QString& nome, int lato) {
  const QSvgRenderer disegno(Cartella + nome + QStringLiteral(".svg"));
  return Disegna(nome, disegno.viewBox().size().scaled(lato, lato, Qt::KeepAspectRatio));
}

// Into the middle of a square, as a button shows it.
QImage DisegnaInQuadrato(const QString& nome, int lato) {
  const QImage immagine = Disegna(nome, lato);
  QImage quadrato(lato, lato, QImage::Format_ARGB32);
  quadrato.fill(Qt::transparent);
  QPainter(&quadrato).drawImage((lato - immagine.width()) / 2, (lato - immagine.height()) / 2,
                                immagine);
  return quadrato;
}

bool Piena(const QImage& immagine, int x, int y) {
  return immagine.valid(x, y) && qAlpha(immagine.pixel(x, y)) >= 128;
}

// The largest difference between two images of one size in any channel of any pixel, 0 to 255.
int Distanza(const QImage& a, const QImage& b) {
  int massima = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb uno = a.pixel(x, y);
      const QRgb altro = b.pixel(x, y);
      massima = std::max(
          {massima, std::abs(qRed(uno) - qRed(altro)), std::abs(qGreen(uno) - qGreen(altro)),
           std::abs(qBlue(uno) - qBlue(altro)), std::abs(qAlpha(uno) - qAlpha(altro))});
    }
  }
  return massima;
}

// Edges fall on pixels with another rounding; nobody sees less than this.
constexpr int kInvisibile = 16;

// Relative luminance and contrast as the accessibility guidelines define them.
double Luminanza(QRgb colore) {
  const auto lineare = [](int valore) {
    const double v = valore / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineare(qRed(colore)) + 0.7152 * lineare(qGreen(colore)) +
         0.0722 * lineare(qBlue(colore));
}

double Contrasto(QRgb a, QRgb b) {
  const auto [minore, maggiore] = std::minmax({Luminanza(a), Luminanza(b)});
  return (maggiore + 0.05) / (minore + 0.05);
}

// Share of the two shapes' common area that only one of them covers: 0 alike, 1 nothing in common.
double DifferenzaSagome(const QImage& a, const QImage& b) {
  int unione = 0;
  int diversi = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      unione += int(Piena(a, x, y) || Piena(b, x, y));
      diversi += int(Piena(a, x, y) != Piena(b, x, y));
    }
  }
  return double(diversi) / unione;
}

// Mean difference of the greys (0 to 255) on white, where at least one of the two is.
double DifferenzaGrigi(const QImage& a, const QImage& b) {
  const auto grigio = [](const QImage& immagine, int x, int y) {
    const QRgb p = immagine.pixel(x, y);
    return (qGray(p) * qAlpha(p) + 255 * (255 - qAlpha(p))) / 255;
  };
  int unione = 0;
  int somma = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (!Piena(a, x, y) && !Piena(b, x, y)) continue;
      ++unione;
      somma += std::abs(grigio(a, x, y) - grigio(b, x, y));
    }
  }
  return double(somma) / unione;
}

QStringList avvisi;

void Raccogli(QtMsgType /*tipo*/, const QMessageLogContext& /*contesto*/, const QString& testo) {
  avvisi += testo;
}

}  // namespace

class ImmaginiTest : public QObject {
  Q_OBJECT

 private:
  static QStringList Nomi() {
    QStringList nomi;
    for (const QString& file : QDir(Cartella).entryList({QStringLiteral("*.svg")})) {
      nomi += file.chopped(4);
    }
    return nomi;
  }

  static void OgniImmagine() {
    QTest::addColumn<QString>("nome");
    for (const QString& nome : Nomi()) QTest::newRow(qPrintable(nome)) << nome;
  }

  // Every two pictures of which a pupil can meet both in one place.
  static void OgniCoppia() {
    const std::array<QStringList, 3> insiemi = {
        QStringLiteral("si no aiuto avanti conferma cestino stampante chiudi indietro esci")
            .split(u' '),
        QStringLiteral("menu_barre menu_tabella menu_blocchi menu_numeri menu_abaco esci icona")
            .split(u' '),
        QStringLiteral("cambio_u_da cambio_da_h palline_h_k avanti cestino conferma").split(u' ')};
    QTest::addColumn<QString>("prima");
    QTest::addColumn<QString>("seconda");
    for (const QStringList& insieme : insiemi) {
      for (int i = 0; i < insieme.size(); ++i) {
        for (int j = 0; j < i; ++j) {
          QTest::addRow("%s and %s", qPrintable(insieme[j]), qPrintable(insieme[i]))
              << insieme[j] << insieme[i];
        }
      }
    }
  }

 private Q_SLOTS:
  void initTestCase() {
    somme::PreparaImmagini();
    QVERIFY(!Nomi().isEmpty());
  }

  void preparingThemAgainChangesNothing() {
    const QStringList prima = Nomi();
    somme::PreparaImmagini();
    QCOMPARE(Nomi(), prima);
  }

  void thePicturesThatTheFormsNameAreThere_data() {
    QTest::addColumn<QString>("nome");
    for (const char* nome : {"si",
                             "no",
                             "aiuto",
                             "avanti",
                             "conferma",
                             "cestino",
                             "stampante",
                             "chiudi",
                             "icona",
                             "puntatore",
                             "avvio_sinistra",
                             "avvio_destra",
                             "menu_barre",
                             "menu_tabella",
                             "menu_blocchi",
                             "menu_numeri",
                             "menu_abaco",
                             "esci",
                             "indietro",
                             "cambio_u_da",
                             "cambio_da_h",
                             "palline_u_da",
                             "palline_da_h",
                             "palline_h_k",
                             "foglio_palline_u_da",
                             "foglio_palline_da_h",
                             "foglio_palline_h_k",
                             "stampante_grande",
                             "matita"}) {
      QTest::newRow(nome) << QString::fromLatin1(nome);
    }
  }
  void thePicturesThatTheFormsNameAreThere() {
    QFETCH(QString, nome);
    QVERIFY(QFile::exists(Cartella + nome + QStringLiteral(".svg")));
  }

  void everyPictureOfTheFolderIsInTheProgram() {
    const QDir sorgenti(QStringLiteral(CARTELLA_IMMAGINI));
    QStringList attesi;
    for (const QString& file :
         sorgenti.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name)) {
      attesi += file.chopped(3) + QStringLiteral("drawing");
    }
    QCOMPARE(QDir(QStringLiteral(":/immagini")).entryList(QDir::Files, QDir::Name), attesi);
  }

  void theProgramDrawsAPictureAsItsFileDoes_data() { OgniImmagine(); }
  void theProgramDrawsAPictureAsItsFileDoes() {
    QFETCH(QString, nome);
    QSvgRenderer disegno(Cartella + nome + QStringLiteral(".svg"));
    for (const int lato : {16, 31, 64, 200}) {
      const QImage immagine = Disegna(nome, lato);
      QImage daFile(immagine.size(), immagine.format());
      daFile.fill(Qt::transparent);
      QPainter pennello(&daFile);
      disegno.render(&pennello);
      pennello.end();
      QVERIFY(Distanza(immagine, daFile) <= kInvisibile);
    }
  }

  void everyPictureIsReadWithoutAWarning_data() { OgniImmagine(); }
  void everyPictureIsReadWithoutAWarning() {
    QFETCH(QString, nome);
    avvisi.clear();
    const QtMessageHandler prima = qInstallMessageHandler(Raccogli);
    QSvgRenderer disegno(Cartella + nome + QStringLiteral(".svg"));
    Disegna(nome, 64);
    qInstallMessageHandler(prima);
    QCOMPARE(avvisi, QStringList());
    QVERIFY(disegno.isValid());
  }

  void aPictureHasAViewBoxAndOnlyWhatTheRendererDraws_data() { OgniImmagine(); }
  void aPictureHasAViewBoxAndOnlyWhatTheRendererDraws() {
    QFETCH(QString, nome);
    static const QStringList elementi =
        QStringLiteral("svg title g path rect circle ellipse").split(u' ');
    static const QStringList estranei =
        QStringLiteral("class style filter mask clip-path").split(u' ');
    QFile file(Cartella + nome + QStringLiteral(".svg"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader lettore(&file);
    QVERIFY(lettore.readNextStartElement());
    QVERIFY(lettore.attributes().hasAttribute(QStringLiteral("viewBox")));
    do {
      if (!lettore.isStartElement()) continue;
      QVERIFY2(elementi.contains(lettore.name()), qPrintable(lettore.name().toString()));
      for (const QString& estraneo : estranei) {
        QVERIFY2(!lettore.attributes().hasAttribute(estraneo), qPrintable(estraneo));
      }
    } while (lettore.readNext() != QXmlStreamReader::EndDocument && !lettore.hasError());
    QVERIFY2(!lettore.hasError(), qPrintable(lettore.errorString()));
  }

  void everyPictureShowsSomethingAtEverySize_data() {
    QTest::addColumn<QString>("nome");
    QTest::addColumn<int>("lato");
    for (const QString& nome : Nomi()) {
      for (const int lato : {16, 32, 64, 256}) {
        QTest::addRow("%s %d", qPrintable(nome), lato) << nome << lato;
      }
    }
  }
  void everyPictureShowsSomethingAtEverySize() {
    QFETCH(QString, nome);
    QFETCH(int, lato);
    const QImage immagine = Disegna(nome, lato);
    int piene = 0;
    int chiare = 0;
    int scure = 0;
    for (int y = 0; y < immagine.height(); ++y) {
      for (int x = 0; x < immagine.width(); ++x) {
        if (!Piena(immagine, x, y)) continue;
        ++piene;
        const int grigio = qGray(immagine.pixel(x, y));
        chiare += int(grigio > 110);
        scure += int(grigio < 80);
      }
    }
    const int area = immagine.width() * immagine.height();
    QVERIFY2(piene * 4 > area, qPrintable(QString::number(piene)));
    QVERIFY2(chiare * 20 > piene, qPrintable(QString::number(chiare)));
    QVERIFY2(scure * 20 > piene, qPrintable(QString::number(scure)));
  }

  void nothingIsCutOffAtTheEdge_data() { OgniImmagine(); }
  void nothingIsCutOffAtTheEdge() {
    QFETCH(QString, nome);
    // The renderer does not clip: what lies outside the view box shows in a margin around it.
    constexpr int kMargine = 16;
    QSvgRenderer disegno(Cartella + nome + QStringLiteral(".svg"));
    const QSize misura = disegno.viewBox().size().scaled(256, 256, Qt::KeepAspectRatio);
    QImage immagine(misura.grownBy({kMargine, kMargine, kMargine, kMargine}),
                    QImage::Format_ARGB32);
    immagine.fill(Qt::transparent);
    QPainter pennello(&immagine);
    const QRect dentro(QPoint(kMargine, kMargine), misura);
    disegno.render(&pennello, dentro);
    for (int y = 0; y < immagine.height(); ++y) {
      for (int x = 0; x < immagine.width(); ++x) {
        if (!dentro.contains(x, y)) QVERIFY(!Piena(immagine, x, y));
      }
    }
  }

  // White, the forms' yellow and pink, the panels' green, the keys' grey, and the red of a key that
  // the scanning has reached.
  void theOutlineStandsOutOfEveryGround_data() { OgniImmagine(); }
  void theOutlineStandsOutOfEveryGround() {
    QFETCH(QString, nome);
    const QImage immagine = Disegna(nome, 256);
    int bordo = 0;
    int debole = 0;
    for (int y = 2; y < immagine.height() - 2; ++y) {
      for (int x = 2; x < immagine.width() - 2; ++x) {
        // Wholly covered, and two pixels away from where the picture ends.
        if (qAlpha(immagine.pixel(x, y)) < 255) continue;
        if (Piena(immagine, x - 2, y) && Piena(immagine, x + 2, y) && Piena(immagine, x, y - 2) &&
            Piena(immagine, x, y + 2)) {
          continue;
        }
        ++bordo;
        for (const QRgb fondo :
             {0xffffffffU, 0xffffffc0U, 0xffffc0ffU, 0xffc0ffc0U, 0xffe0e0e0U, 0xffff0000U}) {
          if (Contrasto(immagine.pixel(x, y), fondo) >= 3.0) continue;
          ++debole;
          break;
        }
      }
    }
    QVERIFY(bordo > 0);
    QVERIFY2(debole * 100 <= bordo, qPrintable(QStringLiteral("%1 of %2").arg(debole).arg(bordo)));
  }

  void picturesThatAreMetTogetherDifferAsSilhouettes_data() { OgniCoppia(); }
  void picturesThatAreMetTogetherDifferAsSilhouettes() {
    QFETCH(QString, prima);
    QFETCH(QString, seconda);
    const double differenza =
        DifferenzaSagome(DisegnaInQuadrato(prima, 32), DisegnaInQuadrato(seconda, 32));
    QVERIFY2(differenza >= 0.15, qPrintable(QString::number(differenza)));
  }

  void picturesThatAreMetTogetherDifferInGray_data() { OgniCoppia(); }
  void picturesThatAreMetTogetherDifferInGray() {
    QFETCH(QString, prima);
    QFETCH(QString, seconda);
    const double differenza =
        DifferenzaGrigi(DisegnaInQuadrato(prima, 32), DisegnaInQuadrato(seconda, 32));
    QVERIFY2(differenza >= 32, qPrintable(QString::number(differenza)));
  }

  void thePointersHotSpotIsTheTipOfTheFinger() {
    const QImage puntatore = Disegna(QStringLiteral("puntatore"), QSize(32, 32));
    QVERIFY(Piena(puntatore, somme::kPuntaX, somme::kPuntaY));
    // Nothing lies higher but the smoothing of the outline.
    for (int y = 0; y < somme::kPuntaY; ++y) {
      for (int x = 0; x < 32; ++x) {
        if (std::abs(x - somme::kPuntaX) > 2) QCOMPARE(qAlpha(puntatore.pixel(x, y)), 0);
      }
    }
    // And no part of the picture on that row is far from it.
    for (int x = 0; x < 32; ++x) {
      if (Piena(puntatore, x, somme::kPuntaY)) QVERIFY(std::abs(x - somme::kPuntaX) <= 3);
    }
  }
};

const prova::Iscrizione<ImmaginiTest, QCoreApplication> kIscritta;

}  // namespace immagini_test

#include "immagini_test.moc"
