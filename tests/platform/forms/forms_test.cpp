#include "platform/forms/forms.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>

#include "leading_form.h"
#include "platform/base/run_time_error.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace forms_test {

using trial::kOne;
using trial::kThree;
using trial::kTwo;
using trial::leading;
using trial::Stage;
using trial::TrialForm;
using trial::words;

// The one window, its forms, and the moves between them.
class FormsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aShowingIsLoadResizePageAndActivateBeforeTheCallReturns() {
    Stage stage;
    stage.show(kOne);
    stage.log.clear();
    stage.prepare["Two"] = [&](TrialForm& two) {
      const auto note = [&stage, &two] {
        stage.log.append(two.page()->isVisible() ? QStringLiteral("on") : QStringLiteral("off"));
      };
      two.loading = two.resizing = two.activating = note;
    };
    stage.runtime->forms().show(kTwo.name);
    QCOMPARE(stage.log, words({"Two.Load", "off", "Two.Resize", "off", "Two.Activate", "on"}));
  }

  void theFormHasItsSizeFromItsLoadOn() {
    Stage stage;
    stage.show(kOne);
    std::vector<double> widths;
    stage.prepare["Two"] = [&](TrialForm& two) {
      two.loading = two.resizing = two.activating = [&] { widths.push_back(two.width()); };
    };
    const TrialForm& two = stage.show(kTwo);
    QCOMPARE(widths, std::vector<double>(3, two.width()));
    QCOMPARE(two.width(), two.page()->canvas()->width() * 15.0);
  }

  void passingShowsTheNextFormAndThenUnloadsTheOld() {
    Stage stage;
    TrialForm& one = leading(stage, [](TrialForm&) {});
    stage.click(one.First);
    QCOMPARE(stage.log, words({"Two.Load", "Two.Resize", "Two.Activate", "One.Unload"}));
    QCOMPARE(stage.runtime->forms().all().size(), std::size_t(1));
  }

  void aFormThatIsLoadedIsShownWithoutAnotherLoad() {
    Stage stage;
    stage.show(kOne);
    TrialForm& two = stage.show(kTwo);
    stage.log.clear();
    stage.show(kOne);
    QCOMPARE(stage.log, words({"One.Resize", "One.Activate"}));
    stage.log.clear();
    QCOMPARE(&stage.show(kTwo), &two);
    QCOMPARE(stage.log, words({"Two.Resize", "Two.Activate"}));
  }

  void theFormBelowASheetIsActivatedAgainWhenTheSheetHasGone() {
    Stage stage;
    stage.show(kOne);
    TrialForm& sheet = stage.show(kTwo);
    stage.log.clear();
    sheet.First.onClick([&] { stage.runtime->forms().unload(sheet); });
    stage.click(sheet.First);
    QCoreApplication::processEvents();
    QCOMPARE(stage.currentName(), QStringLiteral("One"));
    QCOMPARE(stage.log.count(QStringLiteral("One.Activate")), 1);
    QVERIFY(stage.current().page()->isVisible());
  }

  void thatActivationComesAfterTheHandlerThatClosedTheSheetHasReturned() {
    Stage stage;
    TrialForm& one = stage.show(kOne);
    stage.show(kTwo);
    stage.log.clear();
    one.run([&] {
      stage.runtime->forms().unload(stage.current());
      one.letEventsRun();
      one.wait(1);
      one.write(QStringLiteral("returns"));
    });
    QCoreApplication::processEvents();
    stage.log.removeAll(QStringLiteral("One.Resize"));
    QCOMPARE(stage.log, words({"Two.Unload", "returns", "One.Activate"}));
  }

  void aSheetThatIsShownAgainAtOnceLeavesNoActivationBehind() {
    Stage stage;
    TrialForm& one = stage.show(kOne);
    stage.show(kTwo);
    stage.log.clear();
    one.run([&] {
      stage.runtime->forms().unload(stage.current());
      stage.runtime->forms().show(kTwo.name);
    });
    QCoreApplication::processEvents();
    QCOMPARE(stage.log.count(QStringLiteral("One.Activate")), 0);
    QCOMPARE(stage.currentName(), QStringLiteral("Two"));
  }

  void aFormThatIsBeingLeftIsNotActivatedAgain() {
    Stage stage;
    TrialForm& one = stage.show(kOne);
    stage.prepare["Two"] = [](TrialForm& two) { two.loading = [&two] { two.letEventsRun(); }; };
    stage.log.clear();
    one.run([&] { stage.runtime->forms().activateAgain(); });
    one.run([&] { stage.runtime->forms().pass(one, kTwo.name); });
    QCoreApplication::processEvents();
    QCOMPARE(stage.log.count(QStringLiteral("One.Activate")), 0);
    QCOMPARE(stage.currentName(), QStringLiteral("Two"));
  }

  void readingAFormThatIsNotLoadedLoadsItHidden() {
    Stage stage;
    stage.show(kOne);
    stage.log.clear();
    const platform::Form& two = stage.runtime->forms().loaded(kTwo.name);
    QCoreApplication::processEvents();
    QCOMPARE(stage.log, words({"Two.Load"}));
    QVERIFY(!two.page()->isVisible());
    QCOMPARE(stage.currentName(), QStringLiteral("One"));
    const auto all = stage.runtime->forms().all();
    QCOMPARE(all.size(), std::size_t(2));
    QCOMPARE(all[0]->name(), QStringLiteral("One"));
    QCOMPARE(all[1].get(), &two);
    QCOMPARE(&stage.runtime->forms().loaded(kTwo.name), &two);
  }

  void aHiddenFormNeverKeepsTheProgramAlive() {
    Stage stage;
    stage.show(kOne);
    const platform::Form& hidden = stage.runtime->forms().loaded(kTwo.name);
    QVERIFY(!hidden.page()->isWindow());
    stage.runtime->window().close();
    QCOMPARE(stage.end.stato, std::optional(0));
    QVERIFY(!stage.log.contains(QStringLiteral("Two.Unload")));
  }

  void closingTheWindowUnloadsTheFormAndEndsTheProgram() {
    Stage stage;
    stage.show(kOne);
    stage.log.clear();
    stage.runtime->window().close();
    QCOMPARE(stage.log, words({"One.Unload"}));
    QCOMPARE(stage.end.stato, std::optional(0));
  }

  void closingTheWindowInTheLoadOfAFormEndsTheProgramToo() {
    Stage stage;
    TrialForm& one = leading(stage, [&](TrialForm& two) {
      stage.time.after(0.1, [&] { stage.runtime->window().close(); });
      two.wait(1);
      two.write(QStringLiteral("never"));
    });
    stage.click(one.First);
    QCOMPARE(stage.log, words({"Two.Load", "One.Unload"}));
    QCOMPARE(stage.end.stato, std::optional(0));
  }

  void aSuccessorThatGoesStraightBackGetsAFreshForm() {
    Stage stage;
    TrialForm& one = leading(stage, [](TrialForm&) {});
    const std::weak_ptr<platform::Form> old = one.weak_from_this();
    const auto prepared = stage.prepare["Two"];
    stage.prepare["Two"] = [&stage, prepared](TrialForm& two) {
      prepared(two);
      two.activating = [&stage, &two] { stage.runtime->forms().pass(two, kOne.name); };
    };
    stage.click(one.First);
    QCoreApplication::processEvents();
    QCOMPARE(stage.currentName(), QStringLiteral("One"));
    QCOMPARE(stage.log.count(QStringLiteral("One.Load")), 1);
    QVERIFY(old.expired());
    QVERIFY(stage.current().page()->isVisible());
    QCOMPARE(stage.runtime->forms().all().size(), std::size_t(1));
  }

  void messageBoxesMenusAndOtherProgramsBringNoActivation() {
    Stage stage;
    TrialForm& one = stage.show(kOne);
    stage.log.clear();
    one.First.onClick([&] { stage.runtime->showBox({.text = QStringLiteral("Look")}); });
    stage.click(one.First);
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    QVERIFY(!stage.runtime->window().isActiveWindow());
    stage.runtime->window().activateWindow();
    QCoreApplication::processEvents();
    QVERIFY(stage.runtime->window().isActiveWindow());
    stage.tap(Qt::Key_M, Qt::AltModifier, QStringLiteral("m"));
    QWidget* menu = QApplication::activePopupWidget();
    QVERIFY(menu != nullptr);
    menu->close();
    QCoreApplication::processEvents();
    QCOMPARE(stage.log, QStringList());
  }

  void anOpenMenuGoesWithItsForm() {
    Stage stage;
    stage.show(kOne);
    TrialForm& two = stage.show(kTwo);
    stage.tap(Qt::Key_M, Qt::AltModifier, QStringLiteral("m"));
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    stage.runtime->forms().unload(two);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCoreApplication::processEvents();
    stage.click(stage.current().First);
    QVERIFY(stage.current().First.widget()->hasFocus());
  }

  void theWindowKeepsItsSizeFromFormToForm() {
    Stage stage({901, 703});
    TrialForm& one = leading(stage, [](TrialForm&) {});
    stage.click(one.First);
    QCOMPARE(stage.runtime->window().size(), QSize(901, 703));
    QCOMPARE(stage.current().page()->size(), QSize(901, 703));
  }

  void theWindowOpensMaximisedAndStaysSo() {
    Stage stage{QSize()};
    stage.prepare["One"] = [&](TrialForm& one) {
      one.First.onClick([&] { stage.runtime->forms().pass(one, kTwo.name); });
    };
    TrialForm& one = stage.show(kOne);
    QVERIFY(stage.runtime->window().isMaximized());
    const QSize size = stage.runtime->window().size();
    QCOMPARE(one.page()->size(), size);
    stage.click(one.First);
    QVERIFY(stage.runtime->window().isMaximized());
    QCOMPARE(stage.runtime->window().size(), size);
  }

  void aWindowMadeSmallStaysSmall() {
    Stage stage{QSize()};
    TrialForm& one = stage.show(kOne);
    stage.runtime->window().showNormal();
    QCoreApplication::processEvents();
    one.run([&] { stage.runtime->forms().pass(one, kTwo.name); });
    QVERIFY(!stage.runtime->window().isMaximized());
  }

  void theWindowBearsCaptionAndIconOfItsForm() {
    Stage stage;
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    stage.prepare["Two"] = [&](TrialForm& two) {
      two.loading = [&two, &picture] { two.setIcon(QIcon(picture)); };
    };
    stage.show(kOne);
    QCOMPARE(stage.runtime->window().windowTitle(), QStringLiteral("The first form"));
    QVERIFY(stage.runtime->window().windowIcon().isNull());
    TrialForm& two = stage.show(kTwo);
    QCOMPARE(stage.runtime->window().windowTitle(), QStringLiteral("The second form"));
    QCOMPARE(stage.runtime->window().windowIcon().cacheKey(), two.icon().cacheKey());
    two.setCaption(QStringLiteral("Another"));
    QCOMPARE(stage.runtime->window().windowTitle(), QStringLiteral("Another"));
    // A form that is not on the screen changes nothing there.
    stage.runtime->forms().loaded(kOne.name).setCaption(QStringLiteral("Hidden"));
    QCOMPARE(stage.runtime->window().windowTitle(), QStringLiteral("Another"));
    stage.runtime->forms().unload(two);
    QCOMPARE(stage.runtime->window().windowTitle(), QStringLiteral("Hidden"));
  }

  void anUnloadedFormLeavesTheScreenAtOnce() {
    Stage stage;
    TrialForm& one = stage.show(kOne);
    TrialForm& sheet = stage.show(kTwo);
    sheet.run([&] {
      stage.runtime->forms().unload(sheet);
      QVERIFY(!sheet.page()->isVisible());
      QVERIFY(one.page()->isVisible());
      QVERIFY(sheet.isUnloaded());
    });
  }

  void unloadingTwiceIsUnloadingOnce() {
    Stage stage;
    stage.show(kOne);
    TrialForm& sheet = stage.show(kTwo);
    sheet.run([&] {
      stage.runtime->forms().unload(sheet);
      stage.runtime->forms().unload(sheet);
    });
    QCOMPARE(stage.log.count(QStringLiteral("Two.Unload")), 1);
  }

  void aSheetBelowAnotherCanBeUnloadedWithoutAnythingToSee() {
    Stage stage;
    stage.show(kOne);
    TrialForm& two = stage.show(kTwo);
    stage.show(kThree);
    stage.log.clear();
    stage.runtime->forms().unload(two);
    QCoreApplication::processEvents();
    QCOMPARE(stage.currentName(), QStringLiteral("Three"));
    QCOMPARE(stage.log, words({"Two.Unload"}));
  }

  void aNameThatNoFormHasIsARunTimeError() {
    Stage stage;
    TrialForm& one = stage.show(kOne);
    one.First.onClick([&] { stage.runtime->forms().show("Nobody"); });
    stage.click(one.First);
    QCOMPARE(stage.boxes.mostrati.size(), std::size_t(1));
    QVERIFY(stage.boxes.mostrati[0].text.startsWith(QStringLiteral("Errore di run-time '5':")));
    QCOMPARE(stage.end.stato, std::optional(1));
    QVERIFY(!stage.runtime->forms().isChanging());
  }
};

const prova::Iscrizione<FormsTest, QApplication> kIscritta;

}  // namespace forms_test

#include "forms_test.moc"
