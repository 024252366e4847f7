// Draws a picture once, for the program to repeat at any size.
//
//   registra PICTURE.svg PICTURE.drawing

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <cstdio>

#include "tools/immagini/registratore.h"

int main(int argc, char* argv[]) {
  const QCoreApplication programma(argc, argv);
  const QStringList argomenti = QCoreApplication::arguments();
  if (argomenti.size() != 3) {
    std::fprintf(stderr, "registra PICTURE.svg PICTURE.drawing\n");
    return 2;
  }
  QFile figura(argomenti[1]);
  const bool aperta = figura.open(QIODevice::ReadOnly);
  const auto disegno = aperta ? somme::Registra(figura.readAll()) : std::nullopt;
  if (!disegno || disegno->isEmpty()) {
    std::fprintf(stderr, "%s cannot be drawn\n", qPrintable(argomenti[1]));
    return 1;
  }
  QFile registro(argomenti[2]);
  const QByteArray byte = disegno->toBytes();
  if (!registro.open(QIODevice::WriteOnly) || registro.write(byte) != byte.size() ||
      !registro.flush()) {
    std::fprintf(stderr, "%s cannot be written\n", qPrintable(argomenti[2]));
    return 1;
  }
  return 0;
}
