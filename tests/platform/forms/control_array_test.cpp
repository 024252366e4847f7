#include "platform/forms/control_array.h"

#include <QApplication>
#include <QWidget>
#include <cmath>
#include <stdexcept>

#include "stage.h"
#include "support/iscrizione.h"

namespace control_array_test {

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

// Whether one of two siblings is painted over the other.
bool liesOver(const platform::Control& upper, const platform::Control& lower) {
  const QObjectList& siblings = upper.widget()->parentWidget()->children();
  return siblings.indexOf(upper.widget()) > siblings.indexOf(lower.widget());
}

}  // namespace

// Arrays of controls, their copies made at run time, and what lies over what.
class ControlArrayTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void elementsOfTheDesignAreThereWithTheirNames() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QCOMPARE(form.Number.count(), 3);
    QCOMPARE(form.Number[2].name(), QStringLiteral("Number(2)"));
    QCOMPARE(form.Number[2].index(), 2);
    QCOMPARE(form.Number[2].widget()->objectName(), QStringLiteral("Number(2)"));
    QCOMPARE(form.First.index(), -1);
    QCOMPARE(form.First.widget()->objectName(), QStringLiteral("First"));
  }

  void aCopyIsHiddenAndLooksLikeElementZero() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Square[0].setPlace(100, 200, 300, 400);
    form.Square[0].setBackColor({1, 2, 3});
    form.Square[0].setForeColor({4, 5, 6});
    form.Square[0].setVisible(true);
    const platform::Label& copy = form.Square.load(7);
    QCOMPARE(copy.name(), QStringLiteral("Square(7)"));
    QCOMPARE(copy.widget()->objectName(), QStringLiteral("Square(7)"));
    QVERIFY(!copy.isVisible());
    QVERIFY(copy.widget()->isHidden());
    QCOMPARE(copy.designPlace(), form.Square[0].designPlace());
    QCOMPARE(copy.widget()->geometry(), form.Square[0].widget()->geometry());
    QCOMPARE(copy.widget()->font(), form.Square[0].widget()->font());
    QCOMPARE(copy.backColor(), (platform::Rgb{1, 2, 3}));
    QCOMPARE(copy.foreColor(), (platform::Rgb{4, 5, 6}));
    QCOMPARE(copy.caption(), QStringLiteral(" "));
    QVERIFY(form.controls().back() == &copy);
  }

  void aCopyIsLikeElementZeroAsItStandsAtThatMoment() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Number[0].setCaption(QStringLiteral("&seven"));
    form.Number[0].setEnabled(false);
    form.Number[0].setToolTip(QStringLiteral("tip"));
    form.Number[0].setTag(QStringLiteral("tag"));
    form.Number[0].setFontSize(33);
    form.Number[0].setMousePointer(0);
    const platform::Button& copy = form.Number.load(3);
    QCOMPARE(copy.caption(), QStringLiteral("&seven"));
    QVERIFY(!copy.isEnabled());
    QVERIFY(!copy.widget()->isEnabled());
    QCOMPARE(copy.toolTip(), QStringLiteral("tip"));
    QCOMPARE(copy.tag(), QStringLiteral("tag"));
    QVERIFY(std::abs(copy.fontSize() - 33) < 1e-9);
    QCOMPARE(copy.mousePointer(), 0);
  }

  void makingAnElementThatExistsDoesNothing() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    platform::Label& first = form.Square[1];
    first.setVisible(true);
    first.setCaption(QStringLiteral("kept"));
    const std::size_t before = form.controls().size();
    QCOMPARE(&form.Square.load(1), &first);
    QCOMPARE(&form.Square.load(0), &form.Square[0]);
    QCOMPARE(first.caption(), QStringLiteral("kept"));
    QVERIFY(first.isVisible());
    QCOMPARE(form.controls().size(), before);
    QCOMPARE(form.Square.count(), 2);
  }

  void anElementThatIsNotThereCannotBeAskedFor() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QVERIFY(!form.Square.contains(9));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)form.Square[9]);
  }

  void elementsComeInTheOrderOfTheirIndices() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Square.load(9);
    form.Square.load(4);
    std::vector<int> seen;
    form.Square.forEach([&seen](platform::Label& label) { seen.push_back(label.index()); });
    QCOMPARE(seen, (std::vector<int>{0, 1, 4, 9}));
  }

  void aCopyOfAButtonCanBeClickedAndHasItsTurnInTheTabOrder() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    platform::Button& copy = form.Number.load(3);
    copy.setLeft(form.width() * 0.8);
    copy.setVisible(true);
    int clicks = 0;
    copy.onClick([&clicks] { ++clicks; });
    stage.click(copy);
    QCOMPARE(clicks, 1);
    form.Number[2].setFocus();
    stage.tap(Qt::Key_Tab);
    QVERIFY(copy.hasFocus());
  }

  void labelsAndPicturesLieBelowButtonsAndPanelsWhateverTheirRows() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    for (const platform::Control* painted : std::initializer_list<const platform::Control*>{
             &form.Words, &form.Square[0], &form.Square[1], &form.Sign}) {
      QVERIFY(liesOver(form.First, *painted));
      QVERIFY(liesOver(form.Number[0], *painted));
      QVERIFY(liesOver(form.Panel, *painted));
    }
  }

  void linesLieAboveLabelsAndBelowButtons() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QVERIFY(liesOver(form.Stripe, form.Words));
    QVERIFY(liesOver(form.Stripe, form.Square[1]));
    QVERIFY(liesOver(form.First, form.Stripe));
  }

  void whatIsMadeAtRunTimeStaysBelowLinesAndButtons() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    for (int i = 2; i < 10; ++i) {
      const platform::Label& copy = form.Square.load(i);
      QVERIFY(liesOver(form.Stripe, copy));
      QVERIFY(liesOver(form.First, copy));
      QVERIFY(liesOver(form.Number[2], copy));
      QVERIFY(liesOver(copy, form.Square[0]));
      QVERIFY(liesOver(copy, form.Square[i - 1]));
    }
  }

  void whatIsBroughtToTheFrontLiesOverEverything() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Square[0].bringToFront();
    QVERIFY(liesOver(form.Square[0], form.First));
    QVERIFY(liesOver(form.Square[0], form.Square[1]));
    form.Panel.cover();
    QVERIFY(liesOver(form.Panel, form.Square[0]));
  }

  void aCopyMadeUnderACoveringPanelStaysUnderIt() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Panel.cover();
    platform::Button& button = form.Number.load(3);
    platform::Label& label = form.Square.load(2);
    button.setVisible(true);
    QVERIFY(liesOver(form.Panel, button));
    QVERIFY(liesOver(form.Panel, label));
    QVERIFY(!button.isLive());
  }
};

const prova::Iscrizione<ControlArrayTest, QApplication> kIscritta;

}  // namespace control_array_test

#include "control_array_test.moc"
