// Draws a picture in one size, on nothing: the icons of the desktop, in the sizes that it asks for.
//
//   icona PICTURE.svg ICON.png SIDE     SIDE: in pixels

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char* argv[]) {
  const QCoreApplication programma(argc, argv);
  const QStringList argomenti = QCoreApplication::arguments();
  const int lato = argomenti.value(3).toInt();
  if (argomenti.size() != 4 || lato <= 0) {
    std::fprintf(stderr, "icona PICTURE.svg ICON.png SIDE\n");
    return 2;
  }
  QSvgRenderer disegno(argomenti[1]);
  QImage immagine(lato, lato, QImage::Format_ARGB32_Premultiplied);
  immagine.fill(Qt::transparent);
  QPainter pennello(&immagine);
  disegno.render(&pennello);
  pennello.end();
  QDir().mkpath(QFileInfo(argomenti[2]).path());
  if (!disegno.isValid() || !immagine.save(argomenti[2], "PNG")) {
    std::fprintf(stderr, "%s cannot be drawn\n", qPrintable(argomenti[1]));
    return 1;
  }
  return 0;
}
