#include "platform/forms/controls/shape.h"

#include <QApplication>

#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"
#include "support/iscrizione.h"

namespace shape_test {

using platform::Shape;

namespace {

constexpr platform::Rgb kGreen{0, 192, 0};
constexpr platform::Rgb kGround{255, 255, 192};

// A form with a wide frame and a fine one.
class ShapeForm final : public platform::Form {
 public:
  explicit ShapeForm(platform::Runtime& runtime);

  Shape Wide{*this};
  Shape Fine{*this};

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRows = std::to_array<platform::Row>({
    platform::row<&ShapeForm::Wide>({1500, 1500, 3000, 1500}, {.fore = kGreen, .borderWidth = 9}),
    platform::row<&ShapeForm::Fine>({6000, 1500, 3000, 1500}, {.fore = kGreen, .back = kGround}),
});
constexpr std::array<std::span<const platform::Row>, 1> kTables{kRows};

ShapeForm::ShapeForm(platform::Runtime& runtime)
    : Form(runtime,
           {.name = "Prova", .caption = "", .width = 15000, .height = 10500, .tables = kTables}) {}

}  // namespace

// Rectangles painted on a form.
class ShapeTest : public QObject {
  Q_OBJECT

  using Ground = prova::FondoDiProva<ShapeForm>;

 private Q_SLOTS:
  void halfOfTheEdgeStandsOutsideOfThePlace() {
    Ground ground({1000, 700});
    ShapeForm& form = ground.forma();
    const QRect place = form.scale().pixels(form.Wide.designPlace());
    QCOMPARE(form.Wide.widget()->geometry(), place.adjusted(-4, -4, 4, 4));
    const QImage page = form.Wide.widget()->parentWidget()->grab().toImage();
    const QRgb green = QColor(0, 192, 0).rgb();
    const int middle = place.center().y();
    QVERIFY(page.pixel(place.left() - 5, middle) != green);
    QCOMPARE(page.pixel(place.left() - 4, middle), green);
    QCOMPARE(page.pixel(place.left() + 4, middle), green);
    QVERIFY(page.pixel(place.left() + 5, middle) != green);
  }

  void aFineEdgeStandsInsideAndItsGroundFillsThePlace() {
    Ground ground({1000, 700});
    ShapeForm& form = ground.forma();
    QCOMPARE(form.Fine.widget()->geometry(), form.scale().pixels(form.Fine.designPlace()));
    const QImage shape = form.Fine.widget()->grab().toImage();
    QCOMPARE(shape.pixel(shape.width() / 2, shape.height() / 2), QColor(255, 255, 192).rgb());
  }

  void theEdgeGrowsWithThePageAndNeverShrinks() {
    Ground ground({2000, 1400});
    ShapeForm& form = ground.forma();
    QCOMPARE(form.Wide.widget()->geometry(),
             form.scale().pixels(form.Wide.designPlace()).adjusted(-9, -9, 9, 9));
    ground.ridimensiona({500, 350});
    QCOMPARE(form.Wide.widget()->geometry(),
             form.scale().pixels(form.Wide.designPlace()).adjusted(-4, -4, 4, 4));
  }

  void itTakesNoMouse() {
    Ground ground;
    QVERIFY(ground.forma().Wide.widget()->testAttribute(Qt::WA_TransparentForMouseEvents));
  }
};

const prova::Iscrizione<ShapeTest, QApplication> kIscritta;

}  // namespace shape_test

#include "shape_test.moc"
