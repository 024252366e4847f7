#include "platform/forms/page.h"
#include "platform/forms/menu_bar.h"

#include <QApplication>
#include <QImage>
#include <cmath>
#include <set>

#include "stage.h"
#include "support/iscrizione.h"

namespace page_test {

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

const QColor kLast(255, 255, 0);

// The background alone: nothing stands on the form.
TrialForm& bare(Stage& stage) {
  TrialForm& form = stage.show(kOne);
  for (platform::Control* control : form.controls()) {
    if (control->widget() != nullptr) control->setVisible(false);
  }
  return form;
}

QImage canvasOf(const TrialForm& form) {
  return form.page()->canvas()->grab().toImage();
}

}  // namespace

// The ground of a form's page.
class PageTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void withoutAGradientTheGroundHasTheColorOfTheDesign() {
    Stage stage;
    const QImage image = canvasOf(bare(stage));
    QCOMPARE(image.pixelColor(3, 3), QColor(255, 255, 192));
    QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), QColor(255, 255, 192));
  }

  void theGradientIs256BandsFromWhiteToYellow() {
    Stage stage({1024, 900});
    TrialForm& form = bare(stage);
    form.paintGradient();
    const QImage image = canvasOf(form);
    QCOMPARE(image.pixelColor(0, 0), QColor(255, 255, 255));
    QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), kLast);
    std::set<int> blues;
    int before = 255;
    for (int y = 0; y < image.height(); ++y) {
      const QColor color = image.pixelColor(image.width() / 2, y);
      QCOMPARE(color.red(), 255);
      QCOMPARE(color.green(), 255);
      QVERIFY(color.blue() == before || color.blue() == before - 1);
      before = color.blue();
      blues.insert(before);
      // Bands of equal height, counted from the top.
      const double band = (y + 0.5) * 256 / image.height();
      QVERIFY(std::abs((255 - color.blue()) - std::floor(band)) <= 1);
      QCOMPARE(image.pixelColor(0, y), color);
      QCOMPARE(image.pixelColor(image.width() - 1, y), color);
    }
    QCOMPARE(blues.size(), std::size_t(256));
  }

  void everyRowOfTheGradientIsPaintedAlsoAlone() {
    Stage stage({800, 768});
    TrialForm& form = bare(stage);
    form.paintGradient();
    const QImage whole = canvasOf(form);
    for (int y = 0; y < whole.height(); ++y) {
      QImage row(whole.width(), 1, QImage::Format_RGB32);
      row.fill(Qt::magenta);
      const QRegion alone(0, y, whole.width(), 1);
      form.page()->canvas()->render(&row, QPoint(), alone, QWidget::RenderFlags());
      QCOMPARE(row.pixelColor(5, 0), whole.pixelColor(5, y));
    }
  }

  void theGradientKeepsItsSizeAndWhatIsUncoveredShowsTheLastColor() {
    Stage stage({800, 700});
    TrialForm& form = bare(stage);
    form.paintGradient();
    const QImage small = canvasOf(form);
    stage.resize({1200, 1050});
    const QImage large = canvasOf(form);
    QVERIFY(large.height() > small.height() && large.width() > small.width());
    QCOMPARE(large.copy(small.rect()), small);
    for (int y = 0; y < large.height(); y += 7) {
      for (int x = 0; x < large.width(); x += 7) {
        if (small.rect().contains(x, y)) continue;
        QCOMPARE(large.pixelColor(x, y), kLast);
      }
    }
    // Smaller again it is cut, not squeezed.
    stage.resize({400, 360});
    const QImage cut = canvasOf(form);
    QCOMPARE(cut, small.copy(cut.rect()));
  }

  void theNextPaintingTakesTheNewSize() {
    Stage stage({800, 700});
    TrialForm& form = bare(stage);
    form.paintGradient();
    stage.resize({1200, 1050});
    form.paintGradient();
    const QImage image = canvasOf(form);
    QCOMPARE(image.pixelColor(5, image.height() / 2).blue() / 4, 127 / 4);
  }

  void theControlsStandOnTopOfTheGradient() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.paintGradient();
    const QImage image = canvasOf(form);
    const QPoint inside = form.Square[0].widget()->geometry().center();
    QCOMPARE(image.pixelColor(inside), QColor(0, 255, 255));
  }

  void aPageWithoutMenusHasNoMenuBar() {
    Stage stage;
    const TrialForm& form = stage.show(kOne);
    QVERIFY(form.page()->hasMenuBar());
    QCOMPARE(form.page()->canvas()->y(), form.page()->menuBar()->height());
    platform::Page plain(stage.current(), nullptr);
    plain.resize(800, 600);
    plain.arrange();
    QVERIFY(!plain.hasMenuBar());
    QCOMPARE(plain.canvas()->geometry(), QRect(0, 0, 800, 600));
  }

  void aPageIsArrangedOnceForASize() {
    Stage stage;
    stage.show(kOne);
    platform::Page plain(stage.current(), nullptr);
    plain.resize(800, 600);
    QVERIFY(plain.arrange());
    QVERIFY(!plain.arrange());
    plain.resize(801, 601);
    QVERIFY(plain.arrange());
  }
};

const prova::Iscrizione<PageTest, QApplication> kIscritta;

}  // namespace page_test

#include "page_test.moc"
