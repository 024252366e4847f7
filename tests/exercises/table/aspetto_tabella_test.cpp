#include <QAction>
#include <QApplication>
#include <QImage>
#include <algorithm>
#include <cmath>

#include "app/shared/nomi_forme.h"
#include "exercises/table/form_tabella.h"
#include "platform/forms/text_block.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace aspetto_tabella_test {

using prova::Banco;
using somme::FormTabella;

namespace {

constexpr QColor kAperta(192, 255, 255);
constexpr QColor kRossa(255, 0, 0);
constexpr QColor kVerde(0, 255, 0);
constexpr QColor kAnello(10, 20, 90);
constexpr int kCelle = 100;

bool Simili(const QColor& a, const QColor& b) {
  constexpr int kSfumatura = 12;  // of 255
  return std::abs(a.red() - b.red()) < kSfumatura && std::abs(a.green() - b.green()) < kSfumatura &&
         std::abs(a.blue() - b.blue()) < kSfumatura;
}

// How many pixels of a picture have a colour.
int Quanti(const QImage& immagine, const QColor& colore) {
  int quanti = 0;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      quanti += int(Simili(immagine.pixelColor(x, y), colore));
    }
  }
  return quanti;
}

}  // namespace

// How the table looks: before an answer, at a wrong one, and at the right one, when it should be
// looked at.
class AspettoTabellaTest : public QObject {
  Q_OBJECT

  // The form with the case `a` + 1 and cells without numbers.
  static FormTabella& apri(Banco& banco, int a) {
    banco.ambiente->stato.TipoEsercizio = 0;
    banco.sorte.scrivi({{a, 98}});
    auto& forma = banco.apri<FormTabella>(somme::forme::kFormTabella);
    forma.mnudifficile.action()->trigger();
    QCoreApplication::processEvents();
    return forma;
  }
  static QImage dipinta(Banco& banco) { return banco.ambiente->fondo.window().grab().toImage(); }
  static QRect posto(Banco& banco, FormTabella& forma, int cella) {
    const QWidget* widget = forma.Numero[cella].widget();
    return {widget->mapTo(&banco.ambiente->fondo.window(), QPoint()), widget->size()};
  }
  static QRect tabella(Banco& banco, FormTabella& forma) {
    return posto(banco, forma, 0).united(posto(banco, forma, kCelle - 1));
  }
  static QImage cella(Banco& banco, FormTabella& forma, int quale) {
    return dipinta(banco).copy(posto(banco, forma, quale));
  }
  // Where an answer leaves its mark: the upper right quarter, without the cell's edge.
  static QImage angolo(Banco& banco, FormTabella& forma, int quale) {
    const QImage intera = cella(banco, forma, quale);
    const int mezza = intera.width() / 2;
    return intera.copy(mezza, 3, mezza - 3, intera.height() / 2 - 3);
  }
  // Edges and corners grow with the window: so many pixels where it is not large.
  static int cresciuti(QSize lato, int pixel) {
    constexpr double kUsuale = 768;
    return int(std::ceil(pixel * std::max(1.0, lato.height() / kUsuale)));
  }
  // The pixels of the focus ring, from a side of a cell inwards.
  static int anello(const QImage& cella, QPoint da, QPoint passo) {
    int spesso = 0;
    for (int i = 0; i < 3 * cella.width() / 8; ++i) {
      spesso += int(Simili(cella.pixelColor(da + i * passo), kAnello));
    }
    return spesso;
  }

  static void finestre() {
    QTest::addColumn<QSize>("lato");
    for (const QSize lato : {QSize(800, 600), QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080),
                             QSize(3840, 2160)}) {
      QTest::addRow("%d by %d", lato.width(), lato.height()) << lato;
    }
  }

 private Q_SLOTS:
  void theCellsKeepTheirSizeAtTheRightAnswer_data() { finestre(); }
  void theCellsKeepTheirSizeAtTheRightAnswer() {
    QFETCH(QSize, lato);
    Banco banco(lato);
    FormTabella& forma = apri(banco, 46);
    banco.clicca(forma.Numero[47]);
    QVERIFY(!forma.Numero[0].isEnabled());
    const int orlo = cresciuti(lato, 3);  // pixels from the side of a cell to its face
    const QImage immagine = dipinta(banco);
    for (int i = 0; i < kCelle; ++i) {
      const QRect dove = posto(banco, forma, i).adjusted(orlo, orlo, -orlo, -orlo);
      const QPoint mezzo = dove.center();
      const QColor faccia = i == 47 ? kVerde : kAperta;
      QVERIFY(Simili(immagine.pixelColor(dove.left(), mezzo.y()), faccia));
      QVERIFY(Simili(immagine.pixelColor(mezzo.x(), dove.top()), faccia));
      QVERIFY(Simili(immagine.pixelColor(mezzo.x(), dove.bottom() - orlo), faccia));
    }
  }

  void nothingOfTheGroundShowsBetweenTheCells_data() { finestre(); }
  void nothingOfTheGroundShowsBetweenTheCells() {
    QFETCH(QSize, lato);
    Banco banco(lato);
    FormTabella& forma = apri(banco, 46);
    const auto gialli = [&] {
      // The table's own corners are round.
      const int tonda = cresciuti(lato, 8);
      const QRect tutta = tabella(banco, forma);
      const QImage immagine = dipinta(banco);
      int quanti = 0;
      for (int y = tutta.top(); y <= tutta.bottom(); ++y) {
        for (int x = tutta.left(); x <= tutta.right(); ++x) {
          const bool aiLati = x < tutta.left() + tonda || x > tutta.right() - tonda;
          const bool inCima = y < tutta.top() + tonda || y > tutta.bottom() - tonda;
          const QColor colore = immagine.pixelColor(x, y);
          quanti += int(!(aiLati && inCima) && colore.red() > 160 && colore.green() > 160 &&
                        colore.blue() < colore.green() - 40);
        }
      }
      return quanti;
    };
    QCOMPARE(gialli(), 0);
    banco.clicca(forma.Numero[47]);
    QCOMPARE(gialli(), 0);
  }

  void theFocusRingOfACellIsWhole_data() { finestre(); }
  void theFocusRingOfACellIsWhole() {
    QFETCH(QSize, lato);
    Banco banco(lato);
    FormTabella& forma = apri(banco, 46);
    for (const int quale : {0, 9, 44, 90, 99}) {
      forma.Numero[quale].setFocus();
      const QImage immagine = cella(banco, forma, quale);
      const int x = immagine.width() / 2;
      const int y = immagine.height() / 2;
      const int sinistra = anello(immagine, {0, y}, {1, 0});
      const int destra = anello(immagine, {immagine.width() - 1, y}, {-1, 0});
      const int sopra = anello(immagine, {x, 0}, {0, 1});
      const int sotto = anello(immagine, {x, immagine.height() - 1}, {0, -1});
      QVERIFY(sinistra >= 2);
      // A side that begins in the middle of a pixel is smoothed.
      for (const int altra : {destra, sopra, sotto}) QVERIFY(std::abs(altra - sinistra) <= 1);
    }
  }

  void aJudgedCellBearsAMarkThatStandsOutOfItsColor_data() { finestre(); }
  void aJudgedCellBearsAMarkThatStandsOutOfItsColor() {
    QFETCH(QSize, lato);
    Banco banco(lato);
    FormTabella& forma = apri(banco, 46);
    banco.clicca(forma.Numero[12]);
    banco.clicca(forma.Numero[47]);
    constexpr double kSegno = 3;  // contrast of a mark
    constexpr QColor kDisco(24, 33, 59);
    for (const auto& [quale, faccia] : {std::pair{12, kRossa}, std::pair{47, kVerde}}) {
      const QImage segno = angolo(banco, forma, quale);
      const int disco = Quanti(segno, kDisco);
      QVERIFY(disco * 10 > segno.width() * segno.height());
      QVERIFY(Quanti(segno, Qt::white) * 10 > disco);
      QVERIFY(Quanti(segno, faccia) > disco / 2);
      QVERIFY(platform::contrast(kDisco, faccia) >= kSegno);
      QVERIFY(platform::contrast(kDisco, Qt::white) >= kSegno);
    }
    // Without colours, too, the two are told from each other, and from a cell that was not judged.
    QImage giusta = angolo(banco, forma, 47).convertToFormat(QImage::Format_Mono);
    QImage sbagliata = angolo(banco, forma, 12).convertToFormat(QImage::Format_Mono);
    QVERIFY(giusta != sbagliata.scaled(giusta.size()));
    QCOMPARE(Quanti(angolo(banco, forma, 11), kDisco), 0);
  }

  void aNewCaseTakesTheMarksAway() {
    Banco banco({800, 600});
    FormTabella& forma = apri(banco, 46);
    const QImage prima = angolo(banco, forma, 12);
    banco.clicca(forma.Numero[12]);
    banco.clicca(forma.Numero[47]);
    QVERIFY(angolo(banco, forma, 12) != prima);
    banco.sorte.scrivi({{30, 98}});
    banco.clicca(forma.PulsanteAvanti);
    QCOMPARE(angolo(banco, forma, 12), prima);
    banco.clicca(forma.Numero[31]);
    QCOMPARE(Quanti(angolo(banco, forma, 12), QColor(24, 33, 59)), 0);
  }
};

const prova::Iscrizione<AspettoTabellaTest, QApplication> kIscritta;

}  // namespace aspetto_tabella_test

#include "aspetto_tabella_test.moc"
