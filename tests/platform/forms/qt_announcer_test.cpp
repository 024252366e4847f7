#include "platform/forms/qt_announcer.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/forms/accessible_events.h"
#include "platform/forms/controls/key_panel_widget.h"
#include "support/desktop_di_prova.h"
#include "support/iscrizione.h"

namespace qt_announcer_test {

using platform::QtAnnouncer;

namespace {

// A window with two boxes, somebody who listens, and what they hear: "box: words", and "focus on
// box" for a focus that is told.
class Ground {
 public:
  // breath: as for the announcer.
  explicit Ground(int breath = QtAnnouncer::kBreath)
      : announcer(
            [this](QWidget& speaker, const QString& words) {
              heard += nameOf(&speaker) + QStringLiteral(": ") + words;
            },
            breath) {
    for (QLineEdit* box : {&one, &two}) {
      box->setAccessibleName(box == &one ? QStringLiteral("one") : QStringLiteral("two"));
    }
    window.setAccessibleName(QStringLiteral("window"));
    platform::installAccessibleEvents([this](QAccessibleEvent& event) {
      if (event.type() == QAccessible::Focus) {
        heard += QStringLiteral("focus on ") + nameOf(event.object());
      }
    });
    window.show();
    window.activateWindow();
    one.setFocus();
    if (!QTest::qWaitForWindowActive(&window)) qFatal("the window does not come");
    (void)listen();
  }
  ~Ground() { platform::installAccessibleEvents(); }
  Ground(const Ground&) = delete;
  Ground& operator=(const Ground&) = delete;

  // What has been heard once events have run.
  QStringList listen() {
    for (int i = 0; i < 4; ++i) QCoreApplication::processEvents();
    return std::exchange(heard, {});
  }

  prova::DesktopDiProva desktop;
  QWidget window;
  QLineEdit one{&window};
  QLineEdit two{&window};
  QStringList heard;
  QtAnnouncer announcer;

 private:
  static QString nameOf(QObject* object) {
    return qobject_cast<QWidget*>(object)->accessibleName();
  }
};

}  // namespace

// How the program's sentences come to a screen reader.
class QtAnnouncerTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatIsToldWhileOneEventIsHandledIsSpokenTogetherInItsOrder() {
    Ground ground;
    ground.announcer.announce(QStringLiteral("Right. 1"));
    ground.announcer.announce(QStringLiteral("3 + 4 = 7"));
    ground.announcer.announce(QStringLiteral("5 + 2 ="));
    QVERIFY(ground.heard.isEmpty());
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: Right. 1. 3 + 4 = 7. 5 + 2 =")});
    QVERIFY(ground.listen().isEmpty());
  }

  void whatIsToldLaterIsSpokenByItself() {
    Ground ground;
    ground.announcer.announce(QStringLiteral("Wrong. 1"));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: Wrong. 1")});
    ground.announcer.announce(QStringLiteral("Wrong. 2"));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: Wrong. 2")});
  }

  void itIsSpokenAfterTheFocusHasMovedOnBehalfOfWhatHasItThen() {
    Ground ground;
    ground.announcer.announce(QStringLiteral("Right. 1"));
    ground.two.setFocus();
    QCOMPARE(ground.listen(),
             (QStringList{QStringLiteral("focus on two"), QStringLiteral("two: Right. 1")}));
  }

  void afterTheFocusAlsoWhereThatMovesOnceMoreFromTheQueue() {
    Ground ground;
    ground.announcer.announce(QStringLiteral("Right. 1"));
    QMetaObject::invokeMethod(
        &ground.two, [&ground] { ground.two.setFocus(); }, Qt::QueuedConnection);
    QCOMPARE(ground.listen(),
             (QStringList{QStringLiteral("focus on two"), QStringLiteral("two: Right. 1")}));
  }

  void aKeyPanelSpeaksThroughTheKeyThatItPointsAt() {
    Ground ground;
    platform::KeyPanelWidget panel(&ground.window, {}, {});
    QPushButton key(&panel);
    key.setAccessibleName(QStringLiteral("key"));
    panel.show();
    panel.setFocus();
    panel.pointAt(&key);
    (void)ground.listen();
    ground.announcer.announce(QStringLiteral("Wrong. 1"));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("key: Wrong. 1")});
  }

  void whereNothingHasTheFocusWhatHadItLastSpeaks() {
    Ground ground;
    ground.one.clearFocus();
    (void)ground.listen();
    ground.announcer.announce(QStringLiteral("Right. 1"));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: Right. 1")});
  }

  void whatIsNotOnTheScreenDoesNotSpeak() {
    Ground ground;
    ground.two.setFocusPolicy(Qt::NoFocus);
    ground.one.clearFocus();
    ground.one.hide();
    (void)ground.listen();
    ground.announcer.announce(QStringLiteral("Right. 1"));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("window: Right. 1")});
  }

  void whereNobodyIsThereToSpeakNothingIsKeptForLater() {
    Ground ground;
    ground.window.hide();
    ground.announcer.announce(QStringLiteral("Right. 1"));
    (void)ground.listen();
    ground.window.show();
    ground.window.activateWindow();
    ground.one.setFocus();
    (void)ground.listen();
    ground.announcer.announce(QStringLiteral("Wrong. 1"));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: Wrong. 1")});
  }

  void whereNobodyListensNothingIsSpokenNorKept() {
    auto ground = std::make_unique<Ground>();
    ground->desktop.ascolta(false);
    ground->announcer.announce(QStringLiteral("Right. 1"));
    QVERIFY(ground->listen().isEmpty());
    ground->desktop.ascolta(true);
    QVERIFY(ground->listen().isEmpty());
    ground->announcer.announce(QStringLiteral("Wrong. 1"));
    QCOMPARE(ground->listen(), QStringList{QStringLiteral("one: Wrong. 1")});
  }

  void behindABoxNothingIsSpokenAndAllOfItInItsOrderOnceTheLastBoxHasGone() {
    Ground ground;
    ground.announcer.announce(QStringLiteral("3 + 4 ="));
    ground.announcer.boxOpens();
    QVERIFY(ground.listen().isEmpty());
    ground.announcer.announce(QStringLiteral("1"));
    ground.announcer.boxOpens();
    ground.announcer.boxCloses();
    QVERIFY(ground.listen().isEmpty());
    ground.announcer.announce(QStringLiteral("12"));
    ground.announcer.boxCloses();
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: 3 + 4 =. 1. 12")});
    QVERIFY(ground.listen().isEmpty());
  }

  void whatABoxBreaksOffIsSpokenOnceMoreBeforeWhatWasToldBehindIt() {
    Ground ground;
    ground.announcer.announce(QStringLiteral("3 + 4 ="));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: 3 + 4 =")});
    ground.announcer.boxOpens();
    ground.announcer.announce(QStringLiteral("1"));
    ground.announcer.boxCloses();
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: 3 + 4 =. 1")});
    QVERIFY(ground.listen().isEmpty());
  }

  void whatWasSpokenToItsEndBeforeABoxIsNotSpokenAgain() {
    Ground ground(20);
    ground.announcer.announce(QStringLiteral("3 + 4 ="));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: 3 + 4 =")});
    QTest::qWait(40);
    ground.announcer.boxOpens();
    ground.announcer.boxCloses();
    QVERIFY(ground.listen().isEmpty());
  }

  void whatABoxBreaksOffIsNotSpokenAgainOnceThePageThatItWasAboutHasGone() {
    Ground ground;
    auto page = std::make_unique<QWidget>(&ground.window);
    QLineEdit there(page.get());
    there.setAccessibleName(QStringLiteral("there"));
    for (const bool deleted : {false, true}) {
      page->show();
      there.setFocus();
      (void)ground.listen();
      ground.announcer.announce(QStringLiteral("0 + 2 ="));
      QCOMPARE(ground.listen(), QStringList{QStringLiteral("there: 0 + 2 =")});
      page->hide();
      if (deleted) {
        there.setParent(nullptr);
        page.reset();
      }
      ground.one.setFocus();
      (void)ground.listen();
      ground.announcer.announce(QStringLiteral("3 + 4 ="));
      ground.announcer.boxOpens();
      ground.announcer.boxCloses();
      QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: 3 + 4 =")});
    }
  }

  void whatTheWindowToldIsSpokenAgainAfterABox() {
    Ground ground;
    ground.one.clearFocus();
    ground.one.hide();
    ground.two.hide();
    (void)ground.listen();
    ground.announcer.announce(QStringLiteral("3 + 4 ="));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("window: 3 + 4 =")});
    ground.announcer.boxOpens();
    ground.announcer.boxCloses();
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("window: 3 + 4 =")});
  }

  void afterABoxItIsSpokenAsSoonAsAWindowHasTheKeyboardAgain() {
    Ground ground;
    {
      ground.announcer.boxOpens();
      QMessageBox box(&ground.window);
      QTimer::singleShot(0, &box, [&] {
        ground.announcer.announce(QStringLiteral("3 + 4 ="));
        (void)ground.listen();
        box.accept();
      });
      box.exec();
    }
    ground.announcer.boxCloses();
    QVERIFY(!ground.listen().join(u' ').contains(QStringLiteral("3 + 4")));
    ground.announcer.announce(QStringLiteral("1"));
    QVERIFY(!ground.listen().join(u' ').contains(QStringLiteral("3 + 4")));
    ground.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&ground.window));
    QCOMPARE(ground.listen().count(QStringLiteral("one: 3 + 4 =. 1")), 1);
    ground.announcer.announce(QStringLiteral("12"));
    QCOMPARE(ground.listen(), QStringList{QStringLiteral("one: 12")});
  }

  void withoutABusTheDesktopsWordsGoNowhereAndLeaveNothingOnTheControls() {
    Ground ground;
    QtAnnouncer announcer;
    announcer.announce(QStringLiteral("Right. 1"));
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    (void)ground.listen();
    QCOMPARE(QAccessible::queryAccessibleInterface(&ground.one)->text(QAccessible::Description),
             QString());
  }
};

const prova::Iscrizione<QtAnnouncerTest, QApplication> kIscritta;

}  // namespace qt_announcer_test

#include "qt_announcer_test.moc"
