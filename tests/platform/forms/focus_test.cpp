#include <QApplication>

#include "stage.h"
#include "support/iscrizione.h"

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

// A form whose second button has the focus.
struct Below {
  explicit Below(Stage& stage) : form(stage.show(kOne)) {
    form.First.onClick([this] { ++clicks; });
    form.Second.setFocus();
  }

  TrialForm& form;
  int clicks = 0;
};

// Presses the right button on the list of the form's panel and holds it; a click of the left one
// somewhere else then gives the focus to the list, wherever that is by then.
class Held {
 public:
  Held(Stage& stage, TrialForm& form) : stage_(stage) {
    form.Panel.cover();
    point_ = stage.centre(form.PanelText);
    QTest::mousePress(stage.window(), Qt::RightButton, {}, point_);
  }
  ~Held() { QTest::mouseRelease(stage_.window(), Qt::RightButton, {}, point_); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

  void clickOn(const platform::Control& control) {
    point_ = stage_.centre(control);
    QTest::mouseClick(stage_.window(), Qt::LeftButton, {}, point_);
  }

 private:
  Stage& stage_;
  QPoint point_;
};

}  // namespace

// Where the focus goes, and where not.
class FocusTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whereNothingHadItAButtonHeldOnTheListGivesItToTheFirstControl() {
    Stage stage;
    Below below(stage);
    Held held(stage, below.form);
    below.form.Panel.setVisible(false);
    QApplication::focusWidget()->clearFocus();
    held.clickOn(below.form.Second);
    QVERIFY(below.form.First.hasFocus());
  }

  void whereNothingHadItAButtonHeldOnAListBehindGivesItToTheFormInFront() {
    for (const bool late : {false, true}) {
      Stage stage;
      if (late) (void)stage.show(trial::kTwo);
      Below below(stage);
      Held held(stage, below.form);
      TrialForm& two = stage.show(trial::kTwo);
      if (QApplication::focusWidget() != nullptr) QApplication::focusWidget()->clearFocus();
      held.clickOn(two.Second);
      QVERIFY(two.First.hasFocus());
    }
  }

  void aControlWithoutAWidgetTakesNoFocus() {
    Stage stage;
    Below below(stage);
    below.form.Clock.setEnabled(true);
    below.form.Clock.setFocus();
    QVERIFY(below.form.Second.hasFocus());
  }

  void whatIsDisabledBelowAPanelDoesNotGetTheFocusWhenThatCloses() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    below.form.Third.setEnabled(false);
    below.form.Third.setFocus();
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Second.hasFocus());
  }

  void whatIsHiddenBelowAPanelDoesNotGetTheFocusWhenThatCloses() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    below.form.Third.setVisible(false);
    below.form.Third.setFocus();
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Second.hasFocus());
  }

  void whatIsNotOnTheScreenYetGetsNoFocusForLater() {
    Stage stage;
    stage.prepare["One"] = [](TrialForm& form) {
      form.loading = [&form] { form.Third.setFocus(); };
    };
    TrialForm& form = stage.show(kOne);
    QVERIFY(!form.Third.hasFocus());
  }

  void aButtonHeldOnItsListWhileItClosesBringsTheFocusNotBackToTheList() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    QWindow* window = stage.runtime->window().windowHandle();
    QTest::mousePress(window, Qt::RightButton, {}, stage.centre(below.form.PanelText));
    below.form.Panel.setVisible(false);
    QVERIFY(below.form.Second.hasFocus());
    QTest::mouseClick(window, Qt::LeftButton, {}, stage.centre(below.form.First));
    QVERIFY(below.form.Second.hasFocus());
    QTest::mouseRelease(window, Qt::RightButton, {}, stage.centre(below.form.First));
    QTest::mouseClick(window, Qt::LeftButton, {}, stage.centre(below.form.First));
    QVERIFY(below.form.First.hasFocus());
    QCOMPARE(below.clicks, 1);
  }

  void whereNothingElseCanTakeItAButtonHeldOnTheListLeavesNoFocus() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    QWindow* window = stage.runtime->window().windowHandle();
    QTest::mousePress(window, Qt::RightButton, {}, stage.centre(below.form.PanelText));
    for (platform::Control* control : below.form.controls()) {
      if (below.form.isCovered(*control)) control->setEnabled(false);
    }
    below.form.Panel.setVisible(false);
    QTest::mouseClick(window, Qt::LeftButton, {}, stage.centre(below.form.First));
    QCOMPARE(QApplication::focusWidget(), nullptr);
    QTest::mouseRelease(window, Qt::RightButton, {}, stage.centre(below.form.First));
  }

  void aButtonHeldOnAListWhoseFormHasGoneBehindAnotherBringsTheFocusNotBackToTheList() {
    Stage stage;
    Below below(stage);
    below.form.Panel.cover();
    QWindow* window = stage.runtime->window().windowHandle();
    QTest::mousePress(window, Qt::RightButton, {}, stage.centre(below.form.PanelText));
    TrialForm& two = stage.show(trial::kTwo);
    two.Second.setFocus();
    QVERIFY(two.Second.hasFocus());
    QTest::mouseClick(window, Qt::LeftButton, {}, stage.centre(two.First));
    QVERIFY(two.Second.hasFocus());
    QTest::mouseRelease(window, Qt::RightButton, {}, stage.centre(two.First));
  }

  void whatIsHiddenWhileItsFormStandsBehindAnotherCostsTheFormNoFocus() {
    Stage stage;
    Below below(stage);
    TrialForm& two = stage.show(trial::kTwo);
    below.form.Third.setVisible(false);
    two.run([&] { stage.runtime->forms().unload(two); });
    QCoreApplication::processEvents();
    QCOMPARE(stage.currentName(), QStringLiteral("One"));
    QVERIFY(below.form.Second.hasFocus());
  }
};

const prova::Iscrizione<FocusTest, QApplication> kIscritta;
#include "focus_test.moc"
