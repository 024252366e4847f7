#include "platform/forms/press_event.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

#include "platform/forms/qt_message_boxes.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace press_test {

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

// A press of assistive technology obeys the rules of a click.
class PressTest : public QObject {
  Q_OBJECT

  // A form that counts what is pressed on it.
  struct Pressed {
    explicit Pressed(Stage& stage) : form(stage.show(kOne)) {
      form.First.onClick([this] { ++buttons; });
      form.MenuPlain.onClick([this] { ++items; });
    }
    // On the button and on the menu item, several times, and until it has come to its end.
    void press() const {
      for (int i = 0; i < 3; ++i) {
        Stage::pressBySpeech(form.First);
        form.MenuPlain.action()->trigger();
      }
      QCoreApplication::processEvents();
    }

    TrialForm& form;
    int buttons = 0;
    int items = 0;
  };

 private Q_SLOTS:
  void itActsOnceForEachPress() {
    Stage stage;
    const Pressed pressed(stage);
    pressed.press();
    QCOMPARE(pressed.buttons, 3);
    QCOMPARE(pressed.items, 3);
  }

  void itDoesNothingWhileADeviceIsWaitedFor() {
    Stage stage;
    const Pressed pressed(stage);
    pressed.form.run([&] { stage.runtime->waitDeaf([&pressed] { pressed.press(); }); });
    QCoreApplication::processEvents();
    QCOMPARE(pressed.buttons, 0);
    QCOMPARE(pressed.items, 0);
    pressed.press();
    QCOMPARE(pressed.buttons, 3);
  }

  void itDoesNothingUnderABoxThatStandsOpen() {
    Stage stage;
    const Pressed pressed(stage);
    platform::QtMessageBoxes real(
        [] {
          return platform::ButtonWords{QStringLiteral("OK"), QStringLiteral("Yes"),
                                       QStringLiteral("No")};
        },
        [&stage] { return &stage.runtime->window(); });
    stage.boxes.mentreAperto = [&] { real.show(stage.boxes.mostrati.back()); };
    QTimer::singleShot(0, this, [&pressed] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      QVERIFY(box != nullptr);
      pressed.press();
      box->accept();
    });
    pressed.form.run([&stage] { stage.runtime->showBox({.text = QStringLiteral("Look")}); });
    QCoreApplication::processEvents();
    QCOMPARE(pressed.buttons, 0);
    QCOMPARE(pressed.items, 0);
  }

  void itDoesNothingOnAPageThatIsBeingLeft() {
    Stage stage;
    const Pressed pressed(stage);
    stage.prepare["Two"] = [&pressed](TrialForm& two) {
      two.loading = [&pressed] { pressed.press(); };
    };
    stage.runtime->forms().show("Two");
    QCOMPARE(pressed.buttons, 0);
    QCOMPARE(pressed.items, 0);
  }

  void itDoesNothingToAButtonThatWasDisabledMeanwhile() {
    Stage stage;
    const Pressed pressed(stage);
    Stage::pressBySpeech(pressed.form.First);
    pressed.form.First.setEnabled(false);
    QCoreApplication::processEvents();
    QCOMPARE(pressed.buttons, 0);
  }
};

const prova::Iscrizione<PressTest, QApplication> kIscritta;

}  // namespace press_test

#include "press_test.moc"
