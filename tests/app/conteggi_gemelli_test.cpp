#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <algorithm>

#include "app/tabella_forme.h"
#include "exercises/core/forma_esercizio.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/iscrizione.h"
#include "support/lati_e_lingue.h"

namespace conteggi_gemelli_test {

using prova::Banco;
using somme::FormaEsercizio;

namespace {

// The place of a label's last letter, a nought, in its picture: the letters are dark, the ground is
// not. Border and corners are left out.
QRect ultimaCifra(const QPixmap& etichetta) {
  constexpr int kBordo = 3;
  const QImage immagine = etichetta.toImage().convertToFormat(QImage::Format_RGB32);
  const auto scura = [&immagine](int x, int y) {
    // Looked at for millions of points: most of them are told by two of their colours.
    const QRgb punto = reinterpret_cast<const QRgb*>(immagine.constScanLine(y))[x];
    const int rosso = qRed(punto);
    const int verde = qGreen(punto);
    if (rosso + verde >= 280) return false;
    const int blu = qBlue(punto);
    const int minore = qMin(qMin(rosso, verde), blu);
    const int maggiore = qMax(qMax(rosso, verde), blu);
    return (minore + maggiore) / 2 < 70;
  };
  const auto colonna = [&](int x) {
    for (int y = kBordo; y < immagine.height() - kBordo; ++y) {
      if (scura(x, y)) return true;
    }
    return false;
  };
  int destra = immagine.width() - 1 - kBordo;
  while (destra > kBordo && !colonna(destra)) --destra;
  int sinistra = destra;
  while (sinistra > kBordo && colonna(sinistra - 1)) --sinistra;
  QRect cifra;
  for (int x = sinistra; x <= destra; ++x) {
    for (int y = kBordo; y < immagine.height() - kBordo; ++y) {
      if (scura(x, y)) cifra |= QRect(x, y, 1, 1);
    }
  }
  return cifra;
}

}  // namespace

// The two counts of a form stand side by side, and are read as a pair.
class ConteggiGemelliTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theTwoCountsAreWrittenInLettersOfOneSize_data() { prova::ogniLatoInOgniLingua(); }
  void theTwoCountsAreWrittenInLettersOfOneSize() {
    QFETCH(QSize, lato);
    QFETCH(QString, lingua);
    Banco banco(lato);
    QVERIFY(QFile::exists(banco.percorso(lingua + QStringLiteral(".lng"))));
    banco.ambiente->stato.LinguaCorrente = lingua;
    int forme = 0;
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      if (scheda.genere != somme::Genere::Esercizio) continue;
      prova::ComeDalMenu(*banco.ambiente, scheda.nome);
      banco.ambiente->stato.ContaEsatti = 120;
      banco.ambiente->stato.ContaErrati = 0;
      const auto& forma = banco.apri<FormaEsercizio>(scheda.nome);
      const QRect esatti = ultimaCifra(forma.EtichettaEsatti.widget()->grab());
      const QRect errati = ultimaCifra(forma.EtichettaErrati.widget()->grab());
      QVERIFY2(esatti.height() > 4, qPrintable(forma.name()));
      const QString misure = QStringLiteral("%1: %2x%3, %4x%5")
                                 .arg(forma.name())
                                 .arg(esatti.width())
                                 .arg(esatti.height())
                                 .arg(errati.width())
                                 .arg(errati.height());
      QVERIFY2(esatti.height() == errati.height(), qPrintable(misure));
      // Between two columns of pixels a letter may take one more.
      QVERIFY2(std::abs(esatti.width() - errati.width()) <= 1, qPrintable(misure));
      ++forme;
    }
    QCOMPARE(forme, 23);
  }
};

const prova::Iscrizione<ConteggiGemelliTest, QApplication> kIscritta;

}  // namespace conteggi_gemelli_test

#include "conteggi_gemelli_test.moc"
