#include "platform/forms/geometry.h"
#include "platform/forms/menu_bar.h"

#include <QApplication>
#include <QWidget>
#include <cmath>
#include <random>

#include "stage.h"
#include "support/iscrizione.h"

namespace geometry_test {

using platform::clientPixels;
using platform::Scale;
using platform::scaleFor;
using platform::Twips;
using platform::TwipsRect;
using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

constexpr QSizeF kDesign{12000, 9000};

}  // namespace

// Twips, pixels, and the layout that keeps a form in proportion.
class GeometryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aPixelIsFifteenTwipsAtTheDesignSize() {
    const Scale scale = scaleFor({800, 600}, kDesign);
    QCOMPARE(scale, (Scale{1, 1, Twips(15)}));
    QCOMPARE(scale.pixels({150, 300, 1500, 750}), QRect(10, 20, 100, 50));
  }

  void eachDirectionFollowsItsOwnSideAndFontsTheSmallerFactor() {
    const Scale scale = scaleFor({1600, 900}, kDesign);
    QCOMPARE(scale.x, 2.0);
    QCOMPARE(scale.y, 1.5);
    QCOMPARE(scale.font(), 1.5);
    QCOMPARE(scale.pixels({150, 150, 1500, 1500}), QRect(20, 15, 200, 150));
    // 9 points are 12 pixels at 15 twips each.
    QCOMPARE(scale.fontPixels(9), 18.0);
    QCOMPARE((Scale{1, 2, Twips(15)}).font(), 1.0);
  }

  void noPageIsHigherThan24000TwipsOrWiderThan32000_data() {
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<double>("twips");
    QTest::newRow("1024x768") << QSize(1024, 768) << 15.0;
    QTest::newRow("the last height at 15") << QSize(2000, 1600) << 15.0;
    QTest::newRow("a height beyond it") << QSize(2000, 2000) << 12.0;
    QTest::newRow("the last width at 15") << QSize(2133, 1000) << 15.0;
    QTest::newRow("a width beyond it") << QSize(3200, 1600) << 10.0;
    QTest::newRow("3840x2160") << QSize(3840, 2160) << 32000.0 / 3840;
  }
  void noPageIsHigherThan24000TwipsOrWiderThan32000() {
    QFETCH(QSize, pixels);
    QFETCH(double, twips);
    const Scale scale = scaleFor(pixels, kDesign);
    QCOMPARE(scale.pixel.count(), twips);
    QVERIFY(kDesign.width() * scale.x <= 32000.001);
    QVERIFY(kDesign.height() * scale.y <= 24000.001);
    // The design fills the page whatever a pixel is worth.
    QCOMPARE(scale.pixels({0, 0, kDesign.width(), kDesign.height()}), QRect(QPoint(), pixels));
  }

  void aWindowNarrowerInShapeThanTheDesignLetterboxesThePage() {
    QCOMPARE(clientPixels({800, 600}, kDesign), QSize(800, 600));
    QCOMPARE(clientPixels({400, 600}, kDesign), QSize(400, 300));
    QCOMPARE(clientPixels({1600, 600}, kDesign), QSize(1600, 600));
    QCOMPARE(clientPixels({0, 0}, kDesign), QSize(1, 1));
  }

  void aDesignThatKeepsItsShapeLetterboxesAWiderWindowToo() {
    QCOMPARE(clientPixels({800, 600}, kDesign, true), QSize(800, 600));
    QCOMPARE(clientPixels({400, 600}, kDesign, true), QSize(400, 300));
    QCOMPARE(clientPixels({1600, 600}, kDesign, true), QSize(800, 600));
    QCOMPARE(clientPixels({0, 0}, kDesign, true), QSize(1, 1));
  }

  void aPageOfNoSizeIsNoError() {
    const Scale scale = scaleFor({0, 0}, kDesign);
    QVERIFY(scale.x > 0 && scale.y > 0 && std::isfinite(scale.x) && std::isfinite(scale.y));
  }

  void whatAbutsInTheDesignAbutsAtEverySize() {
    for (int width = 320; width <= 2600; width += 7) {
      const Scale scale = scaleFor({width, width * 3 / 5}, kDesign);
      int edge = scale.pixels({0, 0, 705, 705}).right();
      for (int i = 1; i < 12; ++i) {
        const QRect next = scale.pixels({705.0 * i, 705, 705, 705});
        QCOMPARE(next.left(), edge + 1);
        edge = next.right();
      }
    }
  }

  void aFormHasFifteenTwipsToThePixel() {
    Stage stage;
    const TrialForm& form = stage.show(kOne);
    QCOMPARE(form.width(), form.page()->canvas()->width() * 15.0);
    QCOMPARE(form.height(), form.page()->canvas()->height() * 15.0);
  }

  void aFormOnALargeScreenKeepsItsLengthsInSixteenBits() {
    Stage stage({3840, 2160});
    TrialForm& form = stage.show(kOne);
    QVERIFY(form.height() <= 24000.001);
    QVERIFY(form.width() <= 32000.001);
    // A place given in twips comes to where it belongs on the screen.
    form.Words.setPlace(form.width() / 2, form.height() / 2, form.width() / 4, form.height() / 4);
    const QSize page = form.page()->canvas()->size();
    QVERIFY(std::abs(form.Words.widget()->x() - page.width() / 2.0) <= 1);
    QVERIFY(std::abs(form.Words.widget()->height() - page.height() / 4.0) <= 1);
  }

  void aPageNarrowerInShapeStandsInTheMiddle() {
    Stage stage({400, 800});
    const TrialForm& form = stage.show(kOne);
    const QWidget* canvas = form.page()->canvas();
    QCOMPARE(canvas->size(), QSize(400, 300));
    QCOMPARE(canvas->x(), 0);
    const int above = canvas->y() - form.page()->menuBar()->height();
    const int below = form.page()->height() - canvas->geometry().bottom() - 1;
    QVERIFY(std::abs(above - below) <= 1);
  }

  void everyControlFollowsTheWindow() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    stage.resize({512, 400});
    const QSize small = form.page()->canvas()->size();
    for (const platform::Control* control : form.controls()) {
      // A line's widget is as thick as its stroke.
      if (control->widget() == nullptr || control == &form.Stripe) continue;
      const TwipsRect& place = control->designPlace();
      const QRect on = control->widget()->geometry();
      const QByteArray name = control->name().toUtf8();
      QVERIFY2(std::abs(on.left() - place.left * small.width() / 12000) <= 0.51, name);
      QVERIFY2(
          std::abs(on.right() + 1 - (place.left + place.width) * small.width() / 12000) <= 0.51,
          name);
      QVERIFY2(std::abs(on.top() - place.top * small.height() / 9000) <= 0.51, name);
      QVERIFY2(
          std::abs(on.bottom() + 1 - (place.top + place.height) * small.height() / 9000) <= 0.51,
          name);
    }
  }

  void twoHundredResizesLeaveNoDrift() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Square.load(2).setPlace(1000.5, 2000.25, 333, 444);
    form.First.setLeft(777);
    std::vector<QRect> pixels;
    std::vector<double> twips;
    const auto measure = [&] {
      pixels.clear();
      twips.clear();
      for (const platform::Control* control : form.controls()) {
        if (control->widget() != nullptr) pixels.push_back(control->widget()->geometry());
        twips.insert(twips.end(), {control->left(), control->top(), control->width(),
                                   control->height(), control->fontSize()});
      }
    };
    measure();
    const std::vector<QRect> pixelsBefore = pixels;
    const std::vector<double> twipsBefore = twips;
    std::minstd_rand chance(7);
    for (int i = 0; i < 200; ++i) {
      stage.resize({200 + int(chance() % 3000), 150 + int(chance() % 2000)});
    }
    stage.resize({1024, 768});
    measure();
    QCOMPARE(pixels, pixelsBefore);
    for (std::size_t i = 0; i < twips.size(); ++i) {
      QVERIFY(std::abs(twips[i] - twipsBefore[i]) < 1e-9);
    }
  }

  void whatCodeMovedOrMadeFollowsTheWindowToo() {
    Stage stage({800, 640});
    TrialForm& form = stage.show(kOne);
    platform::Label& made = form.Square.load(5);
    made.setPlace(form.width() / 4, form.height() / 2, form.width() / 8, form.height() / 8);
    form.Second.setPlace(form.width() / 2, form.height() / 4, form.width() / 4, form.height() / 4);
    stage.resize({1600, 1250});
    const QSize page = form.page()->canvas()->size();
    QVERIFY(std::abs(made.widget()->x() - page.width() / 4.0) <= 1);
    QVERIFY(std::abs(made.widget()->width() - page.width() / 8.0) <= 1);
    QVERIFY(std::abs(form.Second.widget()->y() - page.height() / 4.0) <= 1);
    QVERIFY(std::abs(form.Second.left() - form.width() / 2) < 1e-6);
  }

  void aPlaceGivenInTwipsIsReadBackExactly() {
    Stage stage({977, 731});
    TrialForm& form = stage.show(kOne);
    form.Words.setPlace(123.25, 456.5, 789.125, 1011);
    QVERIFY(std::abs(form.Words.left() - 123.25) < 1e-9);
    form.Words.setTop(17);
    form.Words.setHeight(18);
    form.Words.setWidth(19);
    form.Words.setLeft(20);
    QVERIFY(std::abs(form.Words.top() - 17) < 1e-9);
    QVERIFY(std::abs(form.Words.height() - 18) < 1e-9);
    QVERIFY(std::abs(form.Words.width() - 19) < 1e-9);
    QVERIFY(std::abs(form.Words.left() - 20) < 1e-9);
  }

  void fontsFollowTheSmallerOfTheTwoDirections() {
    Stage stage({800, 640});
    TrialForm& form = stage.show(kOne);
    const auto factor = [&form] { return form.scale().font(); };
    const double designPoints = 14.25;
    for (const QSize size : {QSize(800, 640), QSize(1600, 640), QSize(800, 1280)}) {
      stage.resize(size);
      QCOMPARE(form.Words.widget()->font().pixelSize(), qRound(designPoints * 20 * factor() / 15));
      QVERIFY(std::abs(form.Words.fontSize() - designPoints * factor()) < 1e-9);
    }
    const QSize page = form.page()->canvas()->size();
    QVERIFY(std::abs(factor() - std::min(page.width() / 800.0, page.height() / 600.0)) < 1e-9);
  }

  void aFontSizeCanBeHandedFromControlToControl() {
    Stage stage({1234, 777});
    TrialForm& form = stage.show(kOne);
    form.First.setFontSize(form.Words.fontSize());
    QCOMPARE(form.First.widget()->font().pixelSize(), form.Words.widget()->font().pixelSize());
    stage.resize({640, 480});
    QCOMPARE(form.First.widget()->font().pixelSize(), form.Words.widget()->font().pixelSize());
  }

  void controlsOfAHiddenFormTakeTheirPlacesWhenItIsShown() {
    Stage stage({800, 640});
    stage.show(kOne);
    (void)stage.runtime->forms().loaded("Two");
    stage.resize({1200, 900});
    const TrialForm& two = stage.show(trial::kTwo);
    QCOMPARE(two.width(), two.page()->canvas()->width() * 15.0);
    QCOMPARE(two.First.widget()->x(), qRound(600 * two.scale().x / 15));
  }
};

const prova::Iscrizione<GeometryTest, QApplication> kIscritta;

}  // namespace geometry_test

#include "geometry_test.moc"
