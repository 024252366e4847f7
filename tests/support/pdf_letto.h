#pragma once

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>
#include <QTemporaryDir>
#include <vector>

namespace prova {

// A PDF document as another program reads it.
class PdfLetto {
 public:
  explicit PdfLetto(const QByteArray& documento);

  [[nodiscard]] int pagine() const { return int(misure_.size()); }
  // Of a page, counted from 1, in millimetres.
  [[nodiscard]] QSizeF millimetri(int pagina = 1) const { return misure_.at(size_t(pagina - 1)); }
  // The text of a page, line by line as it stands there.
  [[nodiscard]] QString testo(int pagina) const;
  [[nodiscard]] QString titolo() const { return titolo_; }
  // Whether every font is in the document.
  [[nodiscard]] bool caratteriInclusi() const;
  [[nodiscard]] QImage immagine(int pagina, int puntiPerPollice) const;
  // The same without its colours, in half the time.
  [[nodiscard]] QImage inGrigio(int pagina, int puntiPerPollice) const;

 private:
  [[nodiscard]] QByteArray esegui(const QString& programma, const QStringList& argomenti) const;
  [[nodiscard]] QImage disegna(int pagina, int puntiPerPollice, const QStringList& come) const;

  QTemporaryDir cartella_;
  QString file_;
  QString titolo_;
  std::vector<QSizeF> misure_;
};

// Where the ink of an image lies, in millimetres; whatever is darker than the threshold is ink.
[[nodiscard]] QRectF inchiostro(const QImage& immagine, int puntiPerPollice, int soglia = 128);

}  // namespace prova
