#include <QApplication>
#include <QDialog>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/forms/keys/key_guard.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace lost_release_test {

using trial::kOne;
using trial::kTwo;
using trial::Stage;
using trial::TrialForm;

namespace {

// A button of a form that counts its clicks.
struct Counted {
  explicit Counted(Stage& at) : form(at.show(kOne)), stage(at) {
    form.First.onClick([this] { ++clicks; });
  }
  void pressWhileWaitedFor() {
    form.run([this] { stage.runtime->waitDeaf([this] { stage.pressMouse(form.First); }); });
  }
  TrialForm& form;
  Stage& stage;
  int clicks = 0;
};

// A click that follows so fast on the one before that the desktop pairs the two, by their place on
// the screen alone.
void clickOnceMore(QWindow& window, QPoint screen) {
  QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
  QTest::mouseClick(&window, Qt::LeftButton, {}, window.mapFromGlobal(screen));
}

}  // namespace

// Of a press and its release only one reaches a window of ours.
class LostReleaseTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theReleaseOfAPressThatWasDroppedDoesNothing() {
    Stage stage;
    Counted button(stage);
    button.pressWhileWaitedFor();
    stage.releaseMouse(stage.centre(button.form.First));
    QCOMPARE(button.clicks, 0);
    stage.click(button.form.First);
    QCOMPARE(button.clicks, 1);
  }

  // A box has opened meanwhile: Qt tells no window of the release.
  void whereItNeverComesTheNextClickActs() {
    Stage stage;
    Counted button(stage);
    button.pressWhileWaitedFor();
    QDialog box(&stage.runtime->window());
    QPushButton ok(&box);
    int oks = 0;
    connect(&ok, &QPushButton::clicked, this, [&oks] { ++oks; });
    box.open();
    stage.releaseMouse(stage.centre(button.form.First));
    QTest::mouseClick(box.windowHandle(), Qt::LeftButton, {}, ok.geometry().center());
    QCOMPARE(oks, 1);
    QCOMPARE(button.clicks, 0);
  }

  void theSecondHalfOfADoubleClickInABoxDoesNotReachThePage() {
    Stage stage;
    Counted button(stage);
    const QPoint screen = stage.window()->mapToGlobal(stage.centre(button.form.First));
    stage.click(button.form.First);
    clickOnceMore(*stage.window(), screen);
    QCOMPARE(button.clicks, 2);
    QWidget box;
    box.setGeometry({screen - QPoint(50, 50), QSize(100, 100)});
    box.show();
    QTest::mouseClick(box.windowHandle(), Qt::LeftButton, {}, {50, 50});
    box.hide();
    clickOnceMore(*stage.window(), screen);
    QCOMPARE(button.clicks, 2);
    stage.click(button.form.First);
    QCOMPARE(button.clicks, 3);
  }

  void aDialogIsNotClosedWhileADeviceIsWaitedFor() {
    Stage stage;
    stage.show(kOne);
    platform::Form& two = stage.runtime->forms().loaded(kTwo.name);
    bool stayed = false;
    bool kept = false;
    QTimer::singleShot(0, this, [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      QVERIFY(dialog != nullptr);
      stage.runtime->waitDeaf([&] {
        dialog->close();
        stayed = dialog->isVisible();
        kept = !stage.log.contains(QStringLiteral("Two.Unload"));
      });
      dialog->close();
    });
    stage.runtime->forms().showModal(two);
    QVERIFY(stayed);
    QVERIFY(kept);
    QVERIFY(stage.log.contains(QStringLiteral("Two.Unload")));
  }
};

const prova::Iscrizione<LostReleaseTest, QApplication> kIscritta;

}  // namespace lost_release_test

#include "lost_release_test.moc"
