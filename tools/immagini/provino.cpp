// Draws a contact sheet: every picture of a folder in the sizes and on the grounds that it meets in
// the program, then in grey and as a silhouette, with the renderer that the program uses.
//
//   provino FOLDER SHEET.png [NAME...]     NAME: a picture without ".svg"; without one, all

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <array>
#include <cstdio>

namespace {

constexpr int kMargine = 8;
constexpr int kLatoGrande = 192;
constexpr int kAltezzaRiga = kLatoGrande + 2 * kMargine;
constexpr std::array kLati = {64, 35, 24, 16};
// Backgrounds of forms, panels and keys, and of a key that the scanning has reached.
constexpr std::array<QRgb, 5> kFondi = {0xffffffff, 0xffffffc0, 0xffffc0ff, 0xffe0e0e0, 0xffff0000};

// The picture as large as a square of side pixels holds it, in its own proportions.
QImage Disegna(QSvgRenderer& disegno, int lato) {
  const QSize misura = disegno.defaultSize().scaled(lato, lato, Qt::KeepAspectRatio);
  QImage immagine(misura, QImage::Format_ARGB32_Premultiplied);
  immagine.fill(Qt::transparent);
  QPainter pennello(&immagine);
  disegno.render(&pennello);
  return immagine;
}

// Only where the picture is: opaque pixels become black.
QImage Sagoma(QImage immagine) {
  QPainter pennello(&immagine);
  pennello.setCompositionMode(QPainter::CompositionMode_SourceIn);
  pennello.fillRect(immagine.rect(), Qt::black);
  return immagine;
}

QImage Grigia(const QImage& immagine) {
  QImage fondo(immagine.size(), QImage::Format_RGB32);
  fondo.fill(Qt::white);
  QPainter(&fondo).drawImage(0, 0, immagine);
  return fondo.convertToFormat(QImage::Format_Grayscale8);
}

// One row: large on each ground, beside it the small sizes under each other, then grey, silhouette.
QImage Riga(QSvgRenderer& disegno) {
  constexpr int kLarghezzaFondo = kLatoGrande + kLati[0] + 3 * kMargine;
  constexpr int kLarghezza =
      int(kFondi.size()) * kLarghezzaFondo + 2 * (kLati[0] + kMargine) + kMargine;
  QImage riga(kLarghezza, kAltezzaRiga, QImage::Format_RGB32);
  riga.fill(Qt::white);
  QPainter pennello(&riga);
  int sinistra = 0;
  for (const QRgb fondo : kFondi) {
    pennello.fillRect(sinistra, 0, kLarghezzaFondo, kAltezzaRiga, QColor(fondo));
    pennello.drawImage(sinistra + kMargine, kMargine, Disegna(disegno, kLatoGrande));
    int sopra = kMargine;
    for (const int lato : kLati) {
      pennello.drawImage(sinistra + kLatoGrande + 2 * kMargine, sopra, Disegna(disegno, lato));
      sopra += lato + kMargine;
    }
    sinistra += kLarghezzaFondo;
  }
  sinistra += kMargine;
  pennello.drawImage(sinistra, kMargine, Grigia(Disegna(disegno, kLati[0])));
  pennello.drawImage(sinistra, 2 * kMargine + kLati[0], Grigia(Disegna(disegno, 32)));
  sinistra += kLati[0] + kMargine;
  pennello.drawImage(sinistra, kMargine, Sagoma(Disegna(disegno, kLati[0])));
  pennello.drawImage(sinistra, 2 * kMargine + kLati[0], Sagoma(Disegna(disegno, 32)));
  return riga;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication programma(argc, argv);
  const QStringList argomenti = QCoreApplication::arguments();
  if (argomenti.size() < 3) {
    std::fputs("provino FOLDER SHEET.png [NAME...]\n", stderr);
    return 2;
  }
  const QDir cartella(argomenti[1]);
  QStringList nomi = argomenti.mid(3);
  for (QString& nome : nomi) nome += QStringLiteral(".svg");
  if (nomi.isEmpty()) nomi = cartella.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);

  QList<QImage> righe;
  for (const QString& nome : std::as_const(nomi)) {
    QSvgRenderer disegno(cartella.filePath(nome));
    if (!disegno.isValid()) {
      std::fprintf(stderr, "%s: not a picture\n", qPrintable(nome));
      return 1;
    }
    righe += Riga(disegno);
  }
  if (righe.isEmpty()) {
    std::fputs("no pictures\n", stderr);
    return 1;
  }
  QImage foglio(righe[0].width(), int(righe.size()) * kAltezzaRiga, QImage::Format_RGB32);
  QPainter pennello(&foglio);
  for (int i = 0; i < righe.size(); ++i) pennello.drawImage(0, i * kAltezzaRiga, righe[i]);
  pennello.end();
  return foglio.save(argomenti[2]) ? 0 : 1;
}
