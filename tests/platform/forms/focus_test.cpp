#include <QApplication>

#include "below.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace focus_test {

using trial::Below;
using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

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
    {
      Held held(stage, below.form);
      below.form.Panel.setVisible(false);
      QVERIFY(below.form.Second.hasFocus());
      held.clickOn(below.form.First);
      QVERIFY(below.form.Second.hasFocus());
    }
    stage.click(below.form.First);
    QVERIFY(below.form.First.hasFocus());
    QCOMPARE(below.clicks, 1);
  }

  void whereNothingElseCanTakeItAButtonHeldOnTheListLeavesNoFocus() {
    Stage stage;
    Below below(stage);
    Held held(stage, below.form);
    for (platform::Control* control : below.form.controls()) {
      if (below.form.isCovered(*control)) control->setEnabled(false);
    }
    below.form.Panel.setVisible(false);
    held.clickOn(below.form.First);
    QCOMPARE(QApplication::focusWidget(), nullptr);
  }

  void aButtonHeldOnAListWhoseFormHasGoneBehindAnotherBringsTheFocusNotBackToTheList() {
    Stage stage;
    Below below(stage);
    Held held(stage, below.form);
    TrialForm& two = stage.show(trial::kTwo);
    two.Second.setFocus();
    QVERIFY(two.Second.hasFocus());
    held.clickOn(two.First);
    QVERIFY(two.Second.hasFocus());
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

}  // namespace focus_test

#include "focus_test.moc"
