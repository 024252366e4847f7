#include "platform/forms/session_end.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include "platform/forms/qt_message_boxes.h"
#include "platform/forms/qt_page_setup.h"
#include "stage.h"
#include "support/iscrizione.h"
#include "support/session.h"

namespace session_end_test {

using platform::SessionEnd;
using prova::endSession;
using trial::kOne;
using trial::Stage;
using trial::TrialForm;

// The end of the desktop's session, as the desktop tells it: the program is asked to quit.
class SessionEndTest : public QObject {
  Q_OBJECT

  // Ends the session while something holds the program, and gives the status that the program has
  // ended with by then; the process would be gone.
  static std::optional<int> endDuring(Stage& stage, const std::function<void()>& hold) {
    std::optional<int> status;
    QTimer::singleShot(0, &stage.runtime->window(), [&] {
      endSession();
      status = stage.end.stato;
      if (QWidget* open = QApplication::activeModalWidget()) {
        open->findChildren<QPushButton*>().first()->click();
      }
    });
    TrialForm& form = stage.current();
    form.run([&] { hold(); });
    return status;
  }

 private Q_SLOTS:
  void withoutADialogItEndsTheProgramAndItsForm() {
    Stage stage;
    stage.show(kOne);
    const SessionEnd end(*stage.runtime);
    stage.log.clear();
    endSession();
    QCOMPARE(stage.end.stato, std::optional(0));
    QVERIFY2(stage.log.join(u' ').contains(QStringLiteral("unload"), Qt::CaseInsensitive),
             qPrintable(stage.log.join(u' ')));
  }

  void aBoxThatWantsItsAnswerDoesNotRefuseIt() {
    Stage stage;
    stage.show(kOne);
    const SessionEnd end(*stage.runtime);
    platform::QtMessageBoxes boxes(
        [] {
          return platform::ButtonWords{QStringLiteral("OK"), QStringLiteral("Yes"),
                                       QStringLiteral("No")};
        },
        [&stage]() -> QWidget* { return &stage.runtime->window(); });
    const auto status = endDuring(stage, [&boxes] {
      boxes.show({.text = QStringLiteral("?"), .buttons = platform::BoxButtons::YesNo});
    });
    QCOMPARE(status, std::optional(0));
  }

  void anOpenPageSetUpDoesNotRefuseIt() {
    Stage stage;
    stage.show(kOne);
    const SessionEnd end(*stage.runtime);
    platform::QtPageSetup setup([] { return platform::PageSetupWords{}; },
                                [](const platform::Paper&) { return QString(); },
                                [&stage]() -> QWidget* { return &stage.runtime->window(); });
    const auto status = endDuring(stage, [&setup] {
      platform::PrinterSettings settings;
      (void)setup.choose(QStringLiteral("Printer"), {}, settings);
    });
    QCOMPARE(status, std::optional(0));
  }

  void anOpenMenuDoesNotRefuseIt() {
    Stage stage;
    stage.show(kOne);
    const SessionEnd end(*stage.runtime);
    stage.tap(Qt::Key_M, Qt::AltModifier, QStringLiteral("m"));
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    stage.log.clear();
    endSession();
    QCOMPARE(stage.end.stato, std::optional(0));
    QVERIFY(stage.log.contains(QStringLiteral("One.Unload")));
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
  }

  void aWaitForAPrinterDoesNotRefuseIt() {
    Stage stage;
    stage.show(kOne);
    const SessionEnd end(*stage.runtime);
    bool wentOn = false;
    const auto status = endDuring(stage, [&] {
      stage.runtime->waitDeaf([] { QTest::qWait(50); });
      wentOn = true;
    });
    QCOMPARE(status, std::optional(0));
    QVERIFY(!wentOn);
  }
};

const prova::Iscrizione<SessionEndTest, QApplication> kIscritta;

}  // namespace session_end_test

#include "session_end_test.moc"
