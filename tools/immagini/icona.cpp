// Draws a picture on nothing: the icons of the desktop, in the sizes that it asks for.
//
//   icona PICTURE.svg ICON.png SIDE     SIDE: in pixels
//   icona PICTURE.svg ICON.ico          all sizes that Windows asks for, in one file

#include <QBuffer>
#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <array>
#include <cstdio>

namespace {

QByteArray Disegna(QSvgRenderer& disegno, int lato) {
  QImage immagine(lato, lato, QImage::Format_ARGB32_Premultiplied);
  immagine.fill(Qt::transparent);
  QPainter pennello(&immagine);
  disegno.render(&pennello);
  pennello.end();
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  return immagine.save(&png, "PNG") ? png.data() : QByteArray();
}

// A head, a row of 16 bytes for each picture, and the pictures one after the other.
QByteArray TutteInUna(QSvgRenderer& disegno) {
  constexpr std::array<int, 6> kLati{16, 24, 32, 48, 64, 256};
  constexpr quint16 kIcona = 1;
  constexpr quint16 kBit = 32;
  QByteArray righe;
  QByteArray immagini;
  QDataStream scritte(&righe, QIODevice::WriteOnly);
  scritte.setByteOrder(QDataStream::LittleEndian);
  scritte << quint16(0) << kIcona << quint16(kLati.size());
  const auto inizio = quint32(6 + 16 * kLati.size());
  for (const int lato : kLati) {
    const QByteArray png = Disegna(disegno, lato);
    if (png.isEmpty()) return {};
    const auto misura = quint8(lato);  // 256 is written as 0
    scritte << misura << misura << quint8(0) << quint8(0) << quint16(1) << kBit
            << quint32(png.size()) << quint32(inizio + quint32(immagini.size()));
    immagini += png;
  }
  return righe + immagini;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication programma(argc, argv);
  const QStringList argomenti = QCoreApplication::arguments();
  const bool insieme = argomenti.size() == 3 && argomenti[2].endsWith(QStringLiteral(".ico"));
  const int lato = argomenti.value(3).toInt();
  if (!insieme && (argomenti.size() != 4 || lato <= 0)) {
    std::fprintf(stderr, "icona PICTURE.svg ICON.png SIDE\nicona PICTURE.svg ICON.ico\n");
    return 2;
  }
  QSvgRenderer disegno(argomenti[1]);
  const QByteArray byte = insieme ? TutteInUna(disegno) : Disegna(disegno, lato);
  QDir().mkpath(QFileInfo(argomenti[2]).path());
  QFile icona(argomenti[2]);
  if (!disegno.isValid() || byte.isEmpty() || !icona.open(QIODevice::WriteOnly) ||
      icona.write(byte) != byte.size()) {
    std::fprintf(stderr, "%s cannot be drawn\n", qPrintable(argomenti[1]));
    return 1;
  }
  return 0;
}
