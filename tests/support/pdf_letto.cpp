#include "support/pdf_letto.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <stdexcept>

#include "support/ink.h"

namespace prova {

namespace {

constexpr double kMillimetriPerPunto = 25.4 / 72;

}  // namespace

PdfLetto::PdfLetto(const QByteArray& documento)
    : file_(cartella_.filePath(QStringLiteral("a.pdf"))) {
  QFile file(file_);
  if (!file.open(QIODevice::WriteOnly) || file.write(documento) != documento.size()) {
    throw std::runtime_error("the test cannot write its own folder");
  }
  file.close();
  const QString detto = QString::fromUtf8(
      esegui(QStringLiteral("pdfinfo"), {QStringLiteral("-l"), QStringLiteral("100000"), file_}));
  static const QRegularExpression misura(
      QStringLiteral("Page +\\d+ size: +([\\d.]+) x ([\\d.]+) pts"));
  for (auto i = misura.globalMatch(detto); i.hasNext();) {
    const QRegularExpressionMatch trovata = i.next();
    misure_.emplace_back(trovata.captured(1).toDouble() * kMillimetriPerPunto,
                         trovata.captured(2).toDouble() * kMillimetriPerPunto);
  }
  static const QRegularExpression titolo(QStringLiteral("Title: +(.*)\n"));
  titolo_ = titolo.match(detto).captured(1);
}

QByteArray PdfLetto::esegui(const QString& programma, const QStringList& argomenti) const {
  QProcess processo;
  processo.start(programma, argomenti);
  if (!processo.waitForFinished(60000) || processo.exitStatus() != QProcess::NormalExit ||
      processo.exitCode() != 0) {
    throw std::runtime_error(programma.toStdString() +
                             " failed: " + processo.readAllStandardError().toStdString());
  }
  return processo.readAllStandardOutput();
}

QString PdfLetto::testo(int pagina) const {
  const QString numero = QString::number(pagina);
  return QString::fromUtf8(esegui(QStringLiteral("pdftotext"),
                                  {QStringLiteral("-layout"), QStringLiteral("-f"), numero,
                                   QStringLiteral("-l"), numero, file_, QStringLiteral("-")}));
}

bool PdfLetto::caratteriInclusi() const {
  const QStringList righe = QString::fromUtf8(esegui(QStringLiteral("pdffonts"), {file_}))
                                .split(u'\n', Qt::SkipEmptyParts);
  for (int i = 2; i < righe.size(); ++i) {
    // ... emb sub uni object ID
    static const QRegularExpression coda(
        QStringLiteral("(yes|no) +(yes|no) +(yes|no) +\\d+ +\\d+$"));
    if (coda.match(righe[i].trimmed()).captured(1) != QStringLiteral("yes")) return false;
  }
  return righe.size() > 2;
}

QImage PdfLetto::immagine(int pagina, int puntiPerPollice) const {
  return disegna(pagina, puntiPerPollice, {});
}

QImage PdfLetto::inGrigio(int pagina, int puntiPerPollice) const {
  return disegna(pagina, puntiPerPollice, {QStringLiteral("-gray")});
}

QImage PdfLetto::disegna(int pagina, int puntiPerPollice, const QStringList& come) const {
  const QString numero = QString::number(pagina);
  // Plain pixels by way of the pipe: to pack and unpack them would take as long as to draw them.
  return QImage::fromData(
      esegui(QStringLiteral("pdftoppm"),
             come + QStringList{QStringLiteral("-r"), QString::number(puntiPerPollice),
                                QStringLiteral("-f"), numero, QStringLiteral("-l"), numero,
                                QStringLiteral("-singlefile"), file_}));
}

QRectF inchiostro(const QImage& immagine, int puntiPerPollice, int soglia) {
  const QImage colori = immagine.convertToFormat(QImage::Format_RGB32);
  const QRect ink = inkIn(colori, [soglia](QRgb punto) { return qGray(punto) < soglia; });
  const double mm = 25.4 / puntiPerPollice;
  return {ink.x() * mm, ink.y() * mm, ink.width() * mm, ink.height() * mm};
}

}  // namespace prova
