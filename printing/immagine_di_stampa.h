#pragma once

#include <QImage>
#include <functional>

namespace somme::inline stampa {

// The header of an image in memory: 24 bits a pixel, one plane, no compression.
struct IntestazioneImmagine {
  qint32 lunghezza = 40;  // of the header itself, bytes
  qint32 larghezza = 0;   // pixels
  qint32 altezza = 0;
  qint16 piani = 1;
  qint16 bit = 24;
  qint32 compressione = 0;

  friend bool operator==(const IntestazioneImmagine&, const IntestazioneImmagine&) = default;
};

// The bytes of an image of so many pixels, each row filled up to whole groups of 4; 0 for a depth
// other than 1, 4, 8, 16, 24 or 32 bits a pixel.
[[nodiscard]] qint64 DimensioneImmagine(qint32 larghezza, qint32 altezza, int bit);

// The captured image that goes to the printer.
class ImmagineDiStampa {
 public:
  // Makes room for an image of 24 bits a pixel; null where there is none.
  using Memoria = std::function<QImage(QSize lato)>;
  [[nodiscard]] static QImage MemoriaComune(QSize lato);

  // Reads a picture. dispositivoAdatto: whether the printer takes images at all. Throws
  // ErroreDiStampa for a printer that does not, a picture of an unknown depth, and where there is
  // no memory.
  void LeggiImmagine(const QImage& figura, bool dispositivoAdatto,
                     const Memoria& memoria = MemoriaComune);
  void Libera();

  [[nodiscard]] bool presente() const { return !punti_.isNull(); }
  [[nodiscard]] const IntestazioneImmagine& intestazione() const { return intestazione_; }
  [[nodiscard]] const QImage& punti() const { return punti_; }
  // The image small enough to be drawn anew at every change of a field; `grigia`: each pixel as the
  // average of its three colours, cut off to a whole number.
  [[nodiscard]] const QImage& Ridotta(bool grigia) const { return grigia ? grigia_ : ridotta_; }

 private:
  IntestazioneImmagine intestazione_;
  QImage punti_;
  QImage ridotta_;
  QImage grigia_;
};

// A copy in which each pixel has the average of its three colours, cut off to a whole number.
[[nodiscard]] QImage InGrigio(const QImage& immagine);

}  // namespace somme::inline stampa
