#include <QApplication>
#include <QPlainTextEdit>

#include <set>
#include <utility>

#include "below.h"
#include "painted.h"
#include "platform/forms/menu_bar.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace covering_panel_test {

using trial::Below;
using trial::Painted;
using trial::Stage;
using trial::TrialForm;

namespace {

int menuHeight(const TrialForm& form) {
  return form.page()->menuBar()->height();
}

}  // namespace

// A panel that covers its form, as the record of the solved cases does.
class CoveringPanelTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void openingGivesTheFocusToTheFirstButtonThatCanTakeIt() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    QVERIFY(below.form.PanelSecond.hasFocus());
    below.form.Panel.setVisible(false);
    below.form.PanelFirst.setEnabled(true);
    below.form.Panel.cover();
    QVERIFY(below.form.PanelFirst.hasFocus());
  }

  void thePanelCoversTheWholeFormAlsoAfterAResize() {
    Stage stage;
    Below below(stage);
    below.form.Panel.setPlace(100, 100, 200, 200);
    below.form.Panel.cover();
    const QWidget* canvas = below.form.page()->canvas();
    QCOMPARE(below.form.Panel.widget()->geometry(), canvas->rect());
    stage.resize({700, 533});
    QCOMPARE(below.form.Panel.widget()->geometry(), canvas->rect());
    stage.resize({3001, 2003});
    QCOMPARE(below.form.Panel.widget()->geometry(), canvas->rect());
  }

  void theStripsBesideItTakeItsColorAndGiveItBack_data() {
    QTest::addColumn<QSize>("window");
    QTest::newRow("as high as wide") << QSize(900, 900);
    QTest::newRow("5:4") << QSize(1280, 1024);
    QTest::newRow("an odd size") << QSize(701, 811);
    QTest::newRow("16:9") << QSize(1366, 768);
  }
  void theStripsBesideItTakeItsColorAndGiveItBack() {
    QFETCH(QSize, window);
    for (const bool gradient : {false, true}) {
      Stage stage(window);
      Below below(stage);
      if (gradient) below.form.paintGradient();
      below.form.Panel.setBackColor({0, 120, 40});
      const auto colors = [&below] {
        const platform::Page& page = *below.form.page();
        const QImage seen = below.form.page()->grab().toImage();
        std::set<QRgb> found;
        for (int y = page.canvas()->parentWidget()->height() - 1; y >= 0; --y) {
          if (y < menuHeight(below.form)) break;
          found.insert(seen.pixel(0, y));
          found.insert(seen.pixel(seen.width() - 1, y));
        }
        return found;
      };
      const std::set<QRgb> before = colors();
      below.form.Panel.cover();
      QCOMPARE(colors(), std::set<QRgb>{qRgb(0, 120, 40)});
      below.form.Panel.setVisible(false);
      QCOMPARE(colors(), before);
    }
  }

  void theStripsAreOnTheScreenAtOnce() {
    Stage stage({900, 900});
    Below below(stage);
    Painted painted(*below.form.page());
    below.form.Panel.cover();
    QCoreApplication::processEvents();
    QVERIFY(std::exchange(painted.times, 0) > 0);
    below.form.Panel.setVisible(false);
    QCoreApplication::processEvents();
    QVERIFY(painted.times > 0);
  }

  void theMouseReachesNothingThatIsCovered() {
    Stage stage;
    Below below(stage);
    const QPoint place = stage.centre(below.form.First);
    below.form.Panel.cover();
    stage.clickAt(place);
    QCOMPARE(below.clicks, 0);
    QVERIFY(!below.form.First.hasFocus());
  }

  void tabStaysInsideThePanel() {
    Stage stage;
    Below below(stage);
    below.form.PanelFirst.setEnabled(true);
    below.form.Panel.cover();
    for (int round = 0; round < 2; ++round) {
      stage.tap(Qt::Key_Tab);
      QVERIFY(below.form.PanelSecond.hasFocus());
      stage.tap(Qt::Key_Tab);
      QVERIFY(below.form.PanelText.hasFocus());
      stage.tap(Qt::Key_Tab);
      QVERIFY(below.form.PanelFirst.hasFocus());
    }
    stage.tap(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(below.form.PanelText.hasFocus());
    stage.tap(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(below.form.PanelSecond.hasFocus());
  }

  void theFocusStaysInsideWhenItsButtonIsDisabled() {
    Stage stage;
    Below below(stage);
    below.form.PanelFirst.setEnabled(true);
    below.form.Panel.cover();
    below.form.PanelFirst.setEnabled(false);
    QVERIFY(below.form.PanelSecond.hasFocus());
  }

  void theAccessKeysOfWhatIsCoveredAreDeadAndThoseOfThePanelLive() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    stage.tap(Qt::Key_F, Qt::AltModifier, QStringLiteral("f"));
    QCOMPARE(below.clicks, 0);
    stage.tap(Qt::Key_C, Qt::AltModifier, QStringLiteral("c"));
    QVERIFY(!below.form.Panel.isVisible());
    stage.tap(Qt::Key_F, Qt::AltModifier, QStringLiteral("f"));
    QCOMPARE(below.clicks, 1);
  }

  void menusStayLive() {
    Stage stage;
    Below below(stage);
    int acted = 0;
    int keyed = 0;
    below.form.MenuAct.onClick([&acted] { ++acted; });
    below.form.MenuKeyed.onClick([&keyed] { ++keyed; });
    below.form.Panel.cover();
    stage.tap(Qt::Key_A, Qt::AltModifier, QStringLiteral("a"));
    stage.tap(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(acted, 1);
    QCOMPARE(keyed, 1);
  }

  void closingGivesTheFocusBack() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    stage.tap(Qt::Key_Return);
    QVERIFY(!below.form.Panel.isVisible());
    QVERIFY(below.form.Second.hasFocus());
    // The Enter that closed the panel is no Enter of the button that has the focus now.
    QCOMPARE(below.clicks, 0);
  }

  void closingWithTheMouseGivesTheFocusBackToo() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    stage.click(below.form.PanelText);
    QVERIFY(below.form.PanelText.hasFocus());
    stage.click(below.form.PanelSecond);
    QVERIFY(below.form.Second.hasFocus());
  }

  void aPanelOpenedFromTheMenuWithTheKeyboardGivesTheFocusBackToo() {
    Stage stage;
    Below below(stage);
    below.form.MenuAct.onClick([&below] { below.form.Panel.cover(); });
    stage.tap(Qt::Key_Alt);
    stage.tap(Qt::Key_Return);
    QVERIFY(below.form.Panel.isVisible());
    QVERIFY(below.form.PanelSecond.hasFocus());
    stage.tap(Qt::Key_Return);
    QVERIFY(!below.form.Panel.isVisible());
    QVERIFY(below.form.Second.hasFocus());
  }

  void aFocusGivenToACoveredControlComesAtTheClosing() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    below.form.Third.setFocus();
    QVERIFY(below.form.PanelSecond.hasFocus());
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Third.hasFocus());
  }

  void whereTheOldFocusHasGoneAnotherControlTakesIt() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    below.form.Second.setEnabled(false);
    QVERIFY(below.form.PanelSecond.hasFocus());
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Third.hasFocus());
  }

  void assistiveTechnologyReachesNothingThatIsCoveredEither() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    below.form.Third.widget()->setFocus();
    QVERIFY(below.form.PanelSecond.hasFocus());
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Third.hasFocus());
  }

  void whereNothingHadTheFocusTheClosingLeavesItOnNoHiddenButton() {
    Stage stage;
    Below below(stage);
    QApplication::focusWidget()->clearFocus();
    below.form.Panel.cover();
    QVERIFY(below.form.PanelSecond.hasFocus());
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.First.hasFocus());
    below.form.Panel.cover();
    for (platform::Control* control : below.form.controls()) {
      if (!below.form.isCovered(*control)) continue;
      control->setEnabled(false);
    }
    below.form.Panel.setVisible(false);
    const QWidget* focus = QApplication::focusWidget();
    QVERIFY(focus == nullptr || focus->isVisible());
  }

  void theMenuBarKeepsTheFocusOverAnOpenPanelAndIsNotWhereItComesBackTo() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    stage.tap(Qt::Key_Alt);
    QVERIFY(!below.form.PanelSecond.hasFocus());
    stage.tap(Qt::Key_Escape);
    QVERIFY(below.form.PanelSecond.hasFocus());
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Second.hasFocus());
  }

  void hidingAPanelThatCoversNothingLeavesTheFocusAlone() {
    Stage stage;
    Below below(stage);
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Second.hasFocus());
  }

  void whereTheOldFocusIsHiddenAnotherControlTakesIt() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    below.form.Second.setVisible(false);
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Third.hasFocus());
  }

  void openingAnOpenPanelAgainForgetsNothing() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    below.form.Panel.cover();
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Second.hasFocus());
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Second.hasFocus());
  }

  void whatIsCoveredIsCoveredAndThePanelIsNot() {
    Stage stage;
    Below below(stage);
    QVERIFY(!below.form.isCovered(below.form.First));
    below.form.Panel.cover();
    QVERIFY(below.form.isCovered(below.form.First));
    QVERIFY(!below.form.isCovered(below.form.PanelSecond));
    QVERIFY(!below.form.isCovered(below.form.Panel));
    QVERIFY(!below.form.isCovered(below.form.MenuAct));
  }

  void aFormCanBeLeftWithItsPanelOpen() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    below.form.run([&] { stage.runtime->forms().pass(below.form, "Two"); });
    QCoreApplication::processEvents();
    QCOMPARE(stage.currentName(), QStringLiteral("Two"));
    QVERIFY(!stage.current().Panel.isVisible());
  }
};

const prova::Iscrizione<CoveringPanelTest, QApplication> kIscritta;

}  // namespace covering_panel_test

#include "covering_panel_test.moc"
