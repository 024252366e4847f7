#include <QApplication>
#include <QImage>

#include "barre10_di_prova.h"
#include "platform/forms/text_block.h"
#include "support/iscrizione.h"

namespace numeri_provati_test {

using prova::apriBarre10;
using prova::Banco;
using somme::FormaBarrePulsanti;

namespace {

constexpr QColor kDisco(24, 33, 59);

QImage Dipinto(FormaBarrePulsanti& forma, int numero) {
  return forma.PulsanteNumero[numero].widget()->grab().toImage();
}

// Where the digits stand, left of the mark.
QImage Cifra(const QImage& pulsante) {
  return pulsante.copy(pulsante.width() / 4, pulsante.height() / 3, pulsante.width() / 3,
                       pulsante.height() / 2);
}

QColor PiuScuro(const QImage& immagine) {
  QColor scuro = Qt::white;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      const QColor colore = immagine.pixelColor(x, y);
      if (colore.lightness() < scuro.lightness()) scuro = colore;
    }
  }
  return scuro;
}

bool Contiene(const QImage& immagine, const QColor& colore) {
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      if (immagine.pixelColor(x, y) == colore) return true;
    }
  }
  return false;
}

// How far the face of a button lies inside of its place at the left, in pixels.
int Rientro(const QImage& pulsante, const QColor& faccia) {
  for (int x = 0; x < pulsante.width(); ++x) {
    if (pulsante.pixelColor(x, pulsante.height() / 2) == faccia) return x;
  }
  return pulsante.width();
}

}  // namespace

// The numbers on the buttons of the bars, once they have been answers.
class NumeriProvatiTest : public QObject {
  Q_OBJECT

  static constexpr QColor kRossa{255, 0, 0};

 private Q_SLOTS:
  void aNumberTriedInVainIsQuietAndMarked() {
    Banco banco({800, 600});
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    QCOMPARE(PiuScuro(Cifra(Dipinto(forma, 5))), QColor(Qt::black));
    QVERIFY(!Contiene(Dipinto(forma, 5), kDisco));
    banco.clicca(forma.PulsanteNumero[5]);
    const QImage provato = Dipinto(forma, 5);
    const double quanto = platform::contrast(PiuScuro(Cifra(provato)), kRossa);
    // Large letters can still be read from 3 on.
    QVERIFY2(quanto >= 3 && quanto < 4, qPrintable(QString::number(quanto)));
    QVERIFY(Contiene(provato, kDisco));
    QVERIFY(platform::contrast(kDisco, kRossa) >= 3);
    QVERIFY(Rientro(provato, kRossa) > Rientro(Dipinto(forma, 9), kRossa) + 2);
    QCOMPARE(forma.PulsanteNumero[5].backColor(), (platform::Rgb{255, 0, 0}));
  }

  void theRightNumberStandsOutOfAllOthers() {
    Banco banco({800, 600});
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    const int prima = Rientro(Dipinto(forma, 7), kRossa);
    banco.clicca(forma.PulsanteNumero[5]);
    banco.clicca(forma.PulsanteNumero[7]);
    const QImage giusto = Dipinto(forma, 7);
    QVERIFY(!forma.PulsanteNumero[7].isEnabled());
    QCOMPARE(Rientro(giusto, kRossa), prima);
    QCOMPARE(PiuScuro(Cifra(giusto)), QColor(Qt::black));
    QVERIFY(Contiene(giusto, kDisco));
    for (const int altro : {0, 6, 10}) {
      QVERIFY(!Contiene(Dipinto(forma, altro), kDisco));
      QVERIFY(Rientro(Dipinto(forma, altro), QColor(224, 224, 224)) > prima + 2);
    }
  }

  void aNewCaseTakesTheMarksAway() {
    Banco banco({800, 600});
    FormaBarrePulsanti& forma = apriBarre10(banco, 7, 3);
    banco.clicca(forma.PulsanteNumero[5]);
    banco.clicca(forma.PulsanteNumero[7]);
    banco.sorte.scrivi({{7, 10}, {3, 8}});
    banco.clicca(forma.PulsanteAvanti);
    for (const int numero : {5, 7}) {
      QVERIFY(forma.PulsanteNumero[numero].isEnabled());
      QVERIFY(!Contiene(Dipinto(forma, numero), kDisco));
    }
  }
};

const prova::Iscrizione<NumeriProvatiTest, QApplication> kIscritta;

}  // namespace numeri_provati_test

#include "numeri_provati_test.moc"
