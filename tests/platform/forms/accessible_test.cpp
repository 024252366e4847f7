#include "platform/forms/accessible.h"

#include <QAccessible>
#include <QApplication>

#include "stage.h"
#include "support/iscrizione.h"

namespace accessible_test {

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

QAccessibleInterface& spoken(const platform::Control& control) {
  return *QAccessible::queryAccessibleInterface(control.widget());
}

}  // namespace

// What assistive technology gets to know.
class AccessibleTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void eachKindOfControlHasItsRole() {
    Stage stage;
    const TrialForm& form = stage.show(kOne);
    QCOMPARE(spoken(form.First).role(), QAccessible::Button);
    QCOMPARE(spoken(form.Words).role(), QAccessible::StaticText);
    QCOMPARE(spoken(form.Sign).role(), QAccessible::Graphic);
    QCOMPARE(spoken(form.Panel).role(), QAccessible::Grouping);
    QCOMPARE(spoken(form.PanelText).role(), QAccessible::EditableText);
    QVERIFY(spoken(form.PanelText).state().readOnly);
  }

  void eachControlHasASpokenNameAndNeverItsInternalOne() {
    Stage stage;
    const TrialForm& form = stage.show(kOne);
    QCOMPARE(spoken(form.First).text(QAccessible::Name), QStringLiteral("First"));
    QCOMPARE(spoken(form.Words).text(QAccessible::Name), QStringLiteral("Words"));
    QCOMPARE(spoken(form.Sign).text(QAccessible::Name), QStringLiteral("Right"));
    QCOMPARE(spoken(form.Panel).text(QAccessible::Name), QStringLiteral("The record"));
    QCOMPARE(spoken(form.PanelText).text(QAccessible::Name), QStringLiteral("The lines"));
  }

  void aLabelIsSpokenByItsToolTipAndItsWords() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Square[0].setCaption(QStringLiteral(" 7"));
    QCOMPARE(spoken(form.Square[0]).text(QAccessible::Name), QStringLiteral("7"));
    form.Square[0].setToolTip(QStringLiteral("Red bar"));
    QCOMPARE(spoken(form.Square[0]).text(QAccessible::Name), QStringLiteral("Red bar: 7"));
    form.Square[0].setCaption(QString());
    QCOMPARE(spoken(form.Square[0]).text(QAccessible::Name), QStringLiteral("Red bar"));
  }

  void ofLabelsThatAreReadTogetherOneSpeaksAndTheOthersAreNotThere() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Square[0].setCaption(QStringLiteral("7"));
    QVERIFY(!spoken(form.Words).state().invisible);
    form.Square[0].setSpokenName(QStringLiteral("73"));
    form.Words.setSpokenName(QString());
    QCOMPARE(spoken(form.Square[0]).text(QAccessible::Name), QStringLiteral("73"));
    QVERIFY(spoken(form.Words).state().invisible);
    QCOMPARE(spoken(form.Words).text(QAccessible::Name), QString());
    form.Square[0].setCaption(QStringLiteral("8"));
    QCOMPARE(spoken(form.Square[0]).text(QAccessible::Name), QStringLiteral("73"));
    form.Words.setSpokenName(QStringLiteral("4"));
    QVERIFY(!spoken(form.Words).state().invisible);
  }

  void aNameFollowsTheLanguage() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Sign.setToolTip(QStringLiteral("Giusto"));
    form.Panel.setToolTip(QStringLiteral("Elenco"));
    form.PanelText.setToolTip(QStringLiteral("Righe"));
    QCOMPARE(spoken(form.Sign).text(QAccessible::Name), QStringLiteral("Giusto"));
    QCOMPARE(spoken(form.Panel).text(QAccessible::Name), QStringLiteral("Elenco"));
    QCOMPARE(spoken(form.PanelText).text(QAccessible::Name), QStringLiteral("Righe"));
  }

  void whatIsDisabledOrHiddenIsToldSo() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QVERIFY(!spoken(form.First).state().disabled);
    form.First.setEnabled(false);
    QVERIFY(spoken(form.First).state().disabled);
    QVERIFY(!spoken(form.First)
                 .actionInterface()
                 ->actionNames()
                 .contains(QAccessibleActionInterface::pressAction()));
    form.Second.setVisible(false);
    QVERIFY(spoken(form.Second).state().invisible);
  }

  void anAnnouncementIsSpokenAndLeavesNothingOnTheControls() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.First.setFocus();
    form.announce(QStringLiteral("Right. 3"));
    form.Second.setFocus();
    form.announce(QStringLiteral("Wrong. 1"));
    QCOMPARE(stage.announcer.detti,
             (QStringList{QStringLiteral("Right. 3"), QStringLiteral("Wrong. 1")}));
    QCOMPARE(spoken(form.First).text(QAccessible::Description), QString());
    QCOMPARE(spoken(form.Second).text(QAccessible::Description), QString());
  }
};

const prova::Iscrizione<AccessibleTest, QApplication> kIscritta;

}  // namespace accessible_test

#include "accessible_test.moc"
