#include "printing/immagine_di_stampa.h"

#include <QPainter>

#include "printing/errore_di_stampa.h"

namespace somme::inline stampa {

namespace {

constexpr int kLatoRidotta = 900;  // pixels of the longer side, about two to one of the preview

constexpr bool Conosciuta(int bit) {
  return bit == 1 || bit == 4 || bit == 8 || bit == 16 || bit == 24 || bit == 32;
}

}  // namespace

qint64 DimensioneImmagine(qint32 larghezza, qint32 altezza, int bit) {
  if (!Conosciuta(bit)) return 0;
  constexpr qint64 kBitPerGruppo = 32;
  const qint64 gruppi = (qint64(larghezza) * bit + kBitPerGruppo - 1) / kBitPerGruppo;
  return gruppi * 4 * altezza;
}

QImage ImmagineDiStampa::MemoriaComune(QSize lato) {
  return {lato, QImage::Format_RGB888};
}

void ImmagineDiStampa::LeggiImmagine(const QImage& figura, bool dispositivoAdatto,
                                     const Memoria& memoria) {
  Libera();
  const auto errore = [](const QString& descrizione) {
    return ErroreDiStampa{ErroreDiStampa::kStampante, descrizione};
  };
  if (!dispositivoAdatto) throw errore(QStringLiteral("This device does not support DIB's"));
  if (DimensioneImmagine(figura.width(), figura.height(), figura.depth()) == 0) {
    throw errore(
        QStringLiteral("Formato grafico sconosciuto.\n\n"
                       "L' operazione di stampa viene interrotta."));
  }
  punti_ = memoria(figura.size());
  if (punti_.isNull()) throw errore(QStringLiteral("hMem = 0"));
  intestazione_ = {.larghezza = figura.width(), .altezza = figura.height()};
  QPainter pittore(&punti_);
  pittore.fillRect(punti_.rect(), Qt::white);
  pittore.drawImage(punti_.rect(), figura);
  pittore.end();
  ridotta_ =
      punti_.scaled(kLatoRidotta, kLatoRidotta, Qt::KeepAspectRatio, Qt::SmoothTransformation)
          .convertToFormat(QImage::Format_RGB32);
  grigia_ = InGrigio(ridotta_);
}

void ImmagineDiStampa::Libera() {
  *this = ImmagineDiStampa();
}

QImage InGrigio(const QImage& immagine) {
  QImage grigia = immagine.convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < grigia.height(); ++y) {
    auto* riga = reinterpret_cast<QRgb*>(grigia.scanLine(y));
    for (int x = 0; x < grigia.width(); ++x) {
      const int media = (qRed(riga[x]) + qGreen(riga[x]) + qBlue(riga[x])) / 3;
      riga[x] = qRgb(media, media, media);
    }
  }
  return grigia;
}

}  // namespace somme::inline stampa
