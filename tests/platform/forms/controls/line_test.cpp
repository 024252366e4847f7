#include "platform/forms/controls/line.h"

#include <QApplication>

#include "platform/forms/controls/label.h"
#include "platform/forms/controls/picture_box.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"
#include "support/iscrizione.h"

namespace line_test {

using platform::Form;
using platform::Row;
using platform::row;

namespace {

extern const platform::FormDesign kDisegno;

class Prova : public Form {
 public:
  explicit Prova(platform::Runtime& runtime) : Form(runtime, kDisegno) {}

  platform::PictureBox Pannello{*this};
  platform::Line Linea{*this};
  platform::ControlArray<platform::Label> Quadro{*this};

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr std::string_view kDentro = platform::nameOf<&Prova::Pannello>;
constexpr auto kRighe = std::to_array<Row>({
    row<&Prova::Pannello>({1500, 1500, 6000, 3000}, {.back = platform::kWhite}),
    row<&Prova::Linea>({3000, 300, 0, 1500},
                       {.fore = platform::Rgb{255, 0, 0}, .borderWidth = 2, .in = kDentro}),
    row<&Prova::Quadro>(0, {2400, 600, 1200, 600},
                        {.back = platform::Rgb{0, 255, 0}, .in = kDentro}),
});
constexpr std::array<std::span<const Row>, 1> kTavole{kRighe};
const platform::FormDesign kDisegno{
    .name = "Prova", .caption = "Prova", .width = 15000, .height = 10500, .tables = kTavole};

using Fondo = prova::FondoDiProva<Prova>;

const QColor kRosso(255, 0, 0);

}  // namespace

class LineTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itStandsFromEndToEndInItsWidth() {
    Fondo fondo;
    const QImage immagine = fondo.forma().Pannello.widget()->grab().toImage();
    for (const int x : {199, 200}) {
      QCOMPARE(immagine.pixelColor(x, 25), kRosso);
      QCOMPARE(immagine.pixelColor(x, 115), kRosso);
      QCOMPARE(immagine.pixelColor(x, 15), QColor(Qt::white));
      QCOMPARE(immagine.pixelColor(x, 125), QColor(Qt::white));
    }
    QCOMPARE(immagine.pixelColor(197, 30), QColor(Qt::white));
    QCOMPARE(immagine.pixelColor(202, 30), QColor(Qt::white));
  }

  void bothItsXCanBeSet() {
    Fondo fondo;
    platform::Line& linea = fondo.forma().Linea;
    linea.setX1(4500);
    linea.setX2(4500);
    QCOMPARE(linea.x1(), 4500.0);
    QCOMPARE(linea.x2(), 4500.0);
    QCOMPARE(linea.y1(), 300.0);
    QCOMPARE(linea.y2(), 1800.0);
    const QImage immagine = fondo.forma().Pannello.widget()->grab().toImage();
    QCOMPARE(immagine.pixelColor(300, 60), kRosso);
    QCOMPARE(immagine.pixelColor(200, 25), QColor(Qt::white));
  }

  void itGrowsWithTheForm() {
    Fondo fondo;
    fondo.ridimensiona({2000, 1400});
    const QImage immagine = fondo.forma().Pannello.widget()->grab().toImage();
    for (const int x : {398, 399, 400, 401}) QCOMPARE(immagine.pixelColor(x, 60), kRosso);
    QCOMPARE(immagine.pixelColor(396, 60), QColor(Qt::white));
  }

  void itStandsOverLabelsMadeAfterwards() {
    Fondo fondo;
    platform::Label& copia = fondo.forma().Quadro.load(1);
    copia.setVisible(true);
    const QImage immagine = fondo.forma().Pannello.widget()->grab().toImage();
    QCOMPARE(immagine.pixelColor(200, 60), kRosso);
    QCOMPARE(immagine.pixelColor(190, 60), QColor(0, 255, 0));
  }
};

const prova::Iscrizione<LineTest, QApplication> kIscritta;

}  // namespace line_test

#include "line_test.moc"
