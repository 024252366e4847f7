#include "platform/forms/accessible_events.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "platform/forms/accessible_labels.h"
#include "platform/forms/controls/label_widget.h"
#include "support/iscrizione.h"

namespace accessible_events_test {

using Told = std::vector<std::pair<QObject*, QAccessible::Event>>;

// What assistive technology gets of what the toolkit tells.
class AccessibleEventsTest : public QObject {
  Q_OBJECT

 private:
  Told told_;

  [[nodiscard]] int count(QObject* object, QAccessible::Event type) const {
    return int(std::count(told_.begin(), told_.end(), std::pair(object, type)));
  }

  // As the toolkit does: what has a class of its own is told by that class alone.
  static void happens(QObject& object, QAccessible::Event type) {
    QAccessibleEvent event(&object, type);
    platform::hearAccessibleEvent(&event);
  }
  static void cursorMoves(QLineEdit& box) {
    QAccessibleTextCursorEvent event(&box, 0);
    platform::hearAccessibleEvent(&event);
  }
  static void valueChanges(QLineEdit& box) {
    QAccessibleValueChangeEvent event(&box, QString());
    platform::hearAccessibleEvent(&event);
  }
  static void isWrittenInto(QLineEdit& box) {
    cursorMoves(box);
    valueChanges(box);
  }
  static void disables(QWidget& widget, bool disabled) {
    widget.setDisabled(disabled);
    QAccessible::State state;
    state.disabled = true;
    QAccessibleStateChangeEvent event(&widget, state);
    platform::hearAccessibleEvent(&event);
  }

 private Q_SLOTS:
  void init() {
    told_.clear();
    platform::installAccessibleEvents(
        [this](QAccessibleEvent& event) { told_.emplace_back(event.object(), event.type()); });
  }

  void ofAFocusThatWandersOnlyTheLastPlaceIsTold() {
    QWidget window;
    QLineEdit one(&window);
    QLineEdit two(&window);
    window.show();
    happens(one, QAccessible::Focus);
    happens(two, QAccessible::Focus);
    happens(one, QAccessible::Focus);
    happens(two, QAccessible::Focus);
    QVERIFY(told_.empty());
    QCoreApplication::processEvents();
    QCOMPARE(told_, (Told{{&two, QAccessible::Focus}}));
    happens(one, QAccessible::Focus);
    QCoreApplication::processEvents();
    QCOMPARE(count(&one, QAccessible::Focus), 1);
  }

  void theFocusOfSomethingThatHasGoneMeanwhileIsNotTold() {
    QWidget window;
    auto* box = new QLineEdit(&window);
    window.show();
    happens(*box, QAccessible::Focus);
    delete box;
    QCoreApplication::processEvents();
    QVERIFY(told_.empty());
  }

  void theTextOfAHiddenBoxIsNotToldAndThatOfAShownOneIs() {
    QWidget window;
    QLineEdit hidden(&window);
    QLineEdit shown(&window);
    hidden.hide();
    window.show();
    isWrittenInto(hidden);
    isWrittenInto(shown);
    QCOMPARE(told_,
             (Told{{&shown, QAccessible::TextCaretMoved}, {&shown, QAccessible::ValueChanged}}));
    // Names and descriptions are remembered by whoever listens.
    happens(hidden, QAccessible::NameChanged);
    QCOMPARE(count(&hidden, QAccessible::NameChanged), 1);
  }

  void whatASentenceTellsIsNotToldByItsBoxAsWell() {
    QWidget window;
    QLineEdit box(&window);
    window.show();
    {
      const platform::WritingNotTold once;
      isWrittenInto(box);
      happens(box, QAccessible::NameChanged);
    }
    QCOMPARE(told_, (Told{{&box, QAccessible::NameChanged}}));
    isWrittenInto(box);
    QCOMPARE(count(&box, QAccessible::ValueChanged), 1);
  }

  void aBoxThatSeveralLabelsAskForTellsWhatTheySayBeforeItsFocus() {
    QWidget window;
    QLineEdit box(&window);
    QLabel one(&window);
    QLabel two(&window);
    window.show();
    platform::bindLabel(one, box);
    happens(box, QAccessible::Focus);
    QCoreApplication::processEvents();
    QCOMPARE(told_, (Told{{&box, QAccessible::Focus}}));
    told_.clear();
    platform::bindLabel(two, box);
    happens(box, QAccessible::Focus);
    QCoreApplication::processEvents();
    QCOMPARE(told_, (Told{{&box, QAccessible::NameChanged}, {&box, QAccessible::Focus}}));
  }

  void ofALockedBoxTheTextIsToldAndTheCursorWhereItHasTheKeyboard() {
    QWidget window;
    QLineEdit locked(&window);
    QLineEdit other(&window);
    locked.setReadOnly(true);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other.setFocus();
    isWrittenInto(locked);
    QCOMPARE(told_, (Told{{&locked, QAccessible::ValueChanged}}));
    locked.setFocus();
    isWrittenInto(locked);
    QCOMPARE(count(&locked, QAccessible::TextCaretMoved), 1);
  }

  void inALockedBoxWithTheKeyboardTheCursorIsToldThatMovedWithoutTheText() {
    QWidget window;
    QLineEdit locked(&window);
    locked.setReadOnly(true);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    locked.setFocus();
    for (const auto* text : {"3", "4"}) {
      told_.clear();
      locked.setText(QString::fromLatin1(text));
      isWrittenInto(locked);
      QCOMPARE(told_, (Told{{&locked, QAccessible::ValueChanged}}));
      cursorMoves(locked);
      QCOMPARE(count(&locked, QAccessible::TextCaretMoved), 1);
    }
    // Also after a text that left the cursor where it was.
    locked.setText(QStringLiteral("5"));
    valueChanges(locked);
    cursorMoves(locked);
    QCOMPARE(count(&locked, QAccessible::TextCaretMoved), 2);
  }

  void ofASilentLabelNothingIsToldAndOfAnotherItsComingAndGoing() {
    platform::LabelWidget label(nullptr, platform::Align::Left, false, false);
    for (const auto comesOrGoes : {QAccessible::ObjectShow, QAccessible::ObjectHide}) {
      label.setSilent(true);
      happens(label, comesOrGoes);
      QCOMPARE(count(&label, comesOrGoes), 0);
      label.setSilent(false);
      happens(label, comesOrGoes);
      QCOMPARE(count(&label, comesOrGoes), 1);
    }
  }

  void whatComesAndGoesTogetherTellsWhatCameOfIt() {
    QWidget window;
    QLineEdit comes(&window);
    QLineEdit goes(&window);
    QLineEdit returns(&window);
    comes.hide();
    window.show();
    {
      const platform::ComingsToldTogether outer;
      {
        const platform::ComingsToldTogether inner;
        goes.hide();
        happens(goes, QAccessible::ObjectHide);
        returns.hide();
        happens(returns, QAccessible::ObjectHide);
        comes.show();
        happens(comes, QAccessible::ObjectShow);
      }
      returns.show();
      happens(returns, QAccessible::ObjectShow);
      QVERIFY(told_.empty());
    }
    QCOMPARE(told_, (Told{{&goes, QAccessible::ObjectHide}, {&comes, QAccessible::ObjectShow}}));
    happens(returns, QAccessible::ObjectHide);
    QCOMPARE(count(&returns, QAccessible::ObjectHide), 1);
  }

  void whatWasDisabledWhileItWasHiddenTellsItWhenItComes() {
    QWidget window;
    QLineEdit box(&window);
    QLineEdit other(&window);
    box.hide();
    other.hide();
    window.show();
    disables(box, true);
    disables(other, true);
    disables(other, false);
    QVERIFY(told_.empty());
    for (QLineEdit* shown : {&box, &other}) {
      shown->show();
      happens(*shown, QAccessible::ObjectShow);
    }
    QCOMPARE(told_, (Told{{&box, QAccessible::ObjectShow},
                          {&box, QAccessible::StateChanged},
                          {&other, QAccessible::ObjectShow}}));
    disables(box, false);
    QCOMPARE(count(&box, QAccessible::StateChanged), 2);
  }
};

const prova::Iscrizione<AccessibleEventsTest, QApplication> kIscritta;

}  // namespace accessible_events_test

#include "accessible_events_test.moc"
