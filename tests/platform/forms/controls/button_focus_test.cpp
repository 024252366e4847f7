#include <QAccessible>
#include <QApplication>

#include "clicks.h"
#include "platform/forms/controls/button.h"
#include "support/iscrizione.h"

namespace button_focus_test {

using trial::Clicks;
using trial::Stage;

// The focus on buttons: where it goes, how it is seen, what is spoken of it.
class ButtonFocusTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void arrowsMoveNoFocusAmongButtons() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
      stage.tap(key);
      QVERIFY(clicks.form.First.hasFocus());
    }
  }

  void theFocusGoesOnWhenItsButtonIsDisabled() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.Second.setEnabled(false);
    clicks.form.First.setFocus();
    clicks.form.First.setEnabled(false);
    QVERIFY(clicks.form.Third.hasFocus());
  }

  void theFocusGoesOnWhenItsButtonIsHidden() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    clicks.form.First.setVisible(false);
    QVERIFY(clicks.form.Second.hasFocus());
    // From the last control it goes on with the first that can take it.
    clicks.form.Number[2].setFocus();
    clicks.form.Number[2].setVisible(false);
    QVERIFY(clicks.form.Second.hasFocus());
  }

  void whereNothingCanTakeTheFocusNothingHasIt() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    for (platform::Control* control : clicks.form.controls()) control->setEnabled(false);
    stage.tap(Qt::Key_Space);
    stage.tap(Qt::Key_Tab);
    QCOMPARE(clicks.first, 0);
    for (const platform::Control* control : clicks.form.controls()) {
      QVERIFY(!control->hasFocus());
    }
  }

  void whereNothingElseCanTakeTheFocusHidingLeavesItNowhere() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    for (platform::Control* control : clicks.form.controls()) {
      if (control != &clicks.form.First) control->setEnabled(false);
    }
    clicks.form.First.setVisible(false);
    QVERIFY(!clicks.form.First.hasFocus());
    QCOMPARE(QApplication::focusWidget(), nullptr);
  }

  void givingTheFocusToWhatCannotTakeItDoesNothing() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    clicks.form.Second.setEnabled(false);
    clicks.form.Third.setVisible(false);
    clicks.form.Second.setFocus();
    QVERIFY(clicks.form.First.hasFocus());
    clicks.form.Third.setFocus();
    QVERIFY(clicks.form.First.hasFocus());
    clicks.form.MenuAct.setFocus();
    QVERIFY(clicks.form.First.hasFocus());
    clicks.form.PanelSecond.setFocus();
    QVERIFY(clicks.form.First.hasFocus());
    // Once it can, it does not come by itself.
    clicks.form.Second.setEnabled(true);
    QVERIFY(clicks.form.First.hasFocus());
  }

  void theFocusCanBeSeenOnAFaceOfAnyColor() {
    Stage stage;
    const Clicks clicks(stage);
    for (const platform::Button* button : {&clicks.form.First, &clicks.form.Number[0]}) {
      clicks.form.Third.setFocus();
      const QImage without = button->widget()->grab().toImage();
      button->widget()->setFocus();
      const QImage with = button->widget()->grab().toImage();
      // Two pixels at least, three to one, in the middle of each side.
      int changed = 0;
      for (int y = 0; y < with.height() / 2; ++y) {
        const QColor before = without.pixelColor(with.width() / 2, y);
        const QColor after = with.pixelColor(with.width() / 2, y);
        if (platform::contrast(before, after) >= 3) ++changed;
      }
      QVERIFY(changed >= 2);
    }
  }

  void aButtonIsSpokenByItsCaptionOrElseByItsToolTip() {
    Stage stage;
    const Clicks clicks(stage);
    const auto spoken = [](const platform::Button& button) {
      return QAccessible::queryAccessibleInterface(button.widget())->text(QAccessible::Name);
    };
    QCOMPARE(spoken(clicks.form.First), QStringLiteral("First"));
    clicks.form.First.setCaption(QStringLiteral("a&vanti"));
    QCOMPARE(spoken(clicks.form.First), QStringLiteral("avanti"));
    clicks.form.First.setCaption(QStringLiteral(" "));
    clicks.form.First.setToolTip(QStringLiteral("Forward"));
    QCOMPARE(spoken(clicks.form.First), QStringLiteral("Forward"));
  }
};

const prova::Iscrizione<ButtonFocusTest, QApplication> kIscritta;

}  // namespace button_focus_test

#include "button_focus_test.moc"
