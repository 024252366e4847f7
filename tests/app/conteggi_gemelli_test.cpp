#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <cstdlib>

#include "app/tabella_forme.h"
#include "exercises/core/forma_esercizio.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/ink.h"
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
  const auto scura = [](QRgb punto) {
    const int minore = qMin(qMin(qRed(punto), qGreen(punto)), qBlue(punto));
    const int maggiore = qMax(qMax(qRed(punto), qGreen(punto)), qBlue(punto));
    return (minore + maggiore) / 2 < 70;
  };
  const auto striscia = [&](int da, int a) {
    return immagine.copy(da, kBordo, a - da + 1, immagine.height() - 2 * kBordo);
  };
  const auto colonna = [&](int x) { return !prova::inkIn(striscia(x, x), scura).isEmpty(); };
  const int destra =
      prova::inkIn(striscia(kBordo, immagine.width() - 1 - kBordo), scura).right() + kBordo;
  int sinistra = destra;
  while (sinistra > kBordo && colonna(sinistra - 1)) --sinistra;
  return prova::inkIn(striscia(sinistra, destra), scura);
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
