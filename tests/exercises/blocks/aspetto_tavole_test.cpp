#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <map>

#include "blocchi_di_prova.h"
#include "exercises/blocks/forma_blocchi_tastiera.h"
#include "platform/forms/drawing.h"
#include "support/iscrizione.h"

namespace aspetto_tavole_test {

using namespace prova;
using platform::Board;

namespace {

// The colour that most of a picture has, of those that are neither dark nor nearly white.
QColor Tinta(const QImage& immagine) {
  std::map<QRgb, int> quante;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      const QColor colore = immagine.pixelColor(x, y);
      if (colore.alpha() == 255 && colore.lightness() > 60 && colore.lightness() < 225) {
        ++quante[colore.rgb()];
      }
    }
  }
  const auto prima = std::ranges::max_element(
      quante, [](const auto& a, const auto& b) { return a.second < b.second; });
  return prima == quante.end() ? QColor() : QColor(prima->first);
}

QColor PiuScuro(const QImage& immagine) {
  QColor scuro = Qt::white;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      const QColor colore = immagine.pixelColor(x, y);
      if (colore.alpha() == 255 && colore.lightness() < scuro.lightness()) scuro = colore;
    }
  }
  return scuro;
}

// A program's picture, large.
QImage Figura(const char* nome) {
  QFile file(QStringLiteral(":/immagini/%1.drawing").arg(QLatin1String(nome)));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const auto disegno = platform::Drawing::fromBytes(file.readAll());
  QImage immagine((disegno.box().size() * 8).toSize(), QImage::Format_ARGB32);
  immagine.fill(Qt::transparent);
  QPainter pittore(&immagine);
  disegno.paint(pittore, immagine.rect());
  return immagine;
}

bool Simili(const QColor& a, const QColor& b) {
  constexpr int kSfumatura = 3;  // of 255
  return a.isValid() && b.isValid() && std::abs(a.red() - b.red()) <= kSfumatura &&
         std::abs(a.green() - b.green()) <= kSfumatura &&
         std::abs(a.blue() - b.blue()) <= kSfumatura;
}

QImage Clip(const Board& tavola, const QString& clip) {
  const QRect posto = Banco::filmato(tavola).clipPlace(clip).toAlignedRect();
  return tavola.widget()->grab(posto).toImage();
}

}  // namespace

// How the boards look on their forms, beside the pictures on the buttons.
class AspettoTavoleTest : public QObject {
  Q_OBJECT

  static somme::FormaBlocchiTastiera& apri(Banco& banco, std::string_view nome, qint16 livello,
                                           const Sorte& sorte) {
    banco.ambiente->stato.TipoEsercizio = livello;
    banco.sorte.scrivi(sorte);
    return banco.apri<somme::FormaBlocchiTastiera>(nome);
  }
  static somme::FormaBlocchiTastiera& apriLU(Banco& banco) {
    return apri(banco, somme::forme::kFormLU, kConESenzaCambio, casoLU(24, 13));
  }
  static somme::FormaBlocchiTastiera& apriHLU(Banco& banco) {
    return apri(banco, somme::forme::kFormHLU, kConESenzaCambi, casoHLU(111, 111));
  }
  // The side of the smallest cube of a board, with its outline, in pixels.
  static double cubo(const Board& tavola) {
    return Banco::filmato(tavola).clipPlace(QStringLiteral("u1")).width();
  }

  static void finestre() {
    QTest::addColumn<QSize>("lato");
    for (const QSize lato : {QSize(800, 600), QSize(1366, 768), QSize(1920, 1080)}) {
      QTest::addRow("%d by %d", lato.width(), lato.height()) << lato;
    }
  }

 private Q_SLOTS:
  void blocksAreLargeInASmallWindow() {
    Banco banco({800, 600});
    {
      auto& forma = apriLU(banco);
      for (const Board* tavola :
           {&forma.ShockwaveFlash1, &forma.ShockwaveFlash2, &forma.ShockwaveFlash3}) {
        QVERIFY2(cubo(*tavola) >= 18, qPrintable(QString::number(cubo(*tavola))));
      }
    }
    auto& forma = apriHLU(banco);
    for (const Board* tavola :
         {&forma.ShockwaveFlash1, &forma.ShockwaveFlash2, &forma.ShockwaveFlash3}) {
      QVERIFY2(cubo(*tavola) >= 9, qPrintable(QString::number(cubo(*tavola))));
    }
  }

  void nothingWhiteLiesBesideABoard_data() { finestre(); }
  void nothingWhiteLiesBesideABoard() {
    QFETCH(QSize, lato);
    Banco banco(lato);
    auto& forma = apriLU(banco);
    unisci(banco, forma);
    const QImage unita = forma.ShockwaveFlash3.widget()->grab().toImage();
    const int mezzo = unita.height() / 2;
    const QColor piano = unita.pixelColor(1, mezzo);
    QVERIFY(piano.lightness() < 240);
    // The same lies between the trays.
    const QRectF primo = Banco::filmato(forma.ShockwaveFlash3).clipPlace(QStringLiteral("da1"));
    const QRectF ultimo = Banco::filmato(forma.ShockwaveFlash3).clipPlace(QStringLiteral("u1"));
    int tra = 0;
    for (int x = int(primo.left()); x < int(ultimo.left()); ++x) {
      tra += int(unita.pixelColor(x, 2 + mezzo / 40) == piano);
      tra += int(unita.pixelColor(x, mezzo) == piano);
    }
    QVERIFY(tra > 0);
    for (const int x : {1, unita.width() - 2}) {
      for (int y = 1; y < unita.height() - 1; ++y) QCOMPARE(unita.pixelColor(x, y), piano);
    }
  }

  void blocksHaveTheColorsAndTheOutlineOfThePictures() {
    Banco banco({1366, 768});
    auto& forma = apriHLU(banco);
    costruisci(banco, forma, 111);
    // Pictures in which a kind of block has most of the colour, from the left end or a half.
    const struct {
      const char* clip;
      const char* figura;
      bool daMeta;
    } specie[] = {{"u1", "cambio_u_da", true},
                  {"da1", "livello_lu_decine", false},
                  {"h1", "livello_hlu_unita", false}};
    for (const auto& una : specie) {
      const QImage blocco = Clip(forma.ShockwaveFlash1, QString::fromLatin1(una.clip));
      const QImage intera = Figura(una.figura);
      const QImage figura =
          una.daMeta ? intera.copy(intera.rect().adjusted(intera.width() / 2, 0, 0, 0)) : intera;
      QVERIFY2(Simili(Tinta(blocco), Tinta(figura)), una.clip);
      QVERIFY2(Simili(PiuScuro(blocco), PiuScuro(figura)), una.clip);
    }
  }
};

const prova::Iscrizione<AspettoTavoleTest, QApplication> kIscritta;

}  // namespace aspetto_tavole_test

#include "aspetto_tavole_test.moc"
