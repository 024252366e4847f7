#include "platform/forms/controls/focus_keeper.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "platform/forms/controls/button.h"
#include "platform/forms/controls/frame.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"
#include "support/iscrizione.h"

namespace focus_keeper_test {

using platform::FocusKeeper;

namespace {

// A panel of keys, what keeps the focus there, and what else can have it.
class KeptForm final : public platform::Form {
 public:
  explicit KeptForm(platform::Runtime& runtime);

  platform::KeyPanel Panel{*this};
  FocusKeeper Keeper{*this, Panel};
  platform::TextBox Box{*this};
  platform::TextBox Other{*this};
  platform::Frame Cover{*this};
  platform::Button Close{*this};

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRows = std::to_array<platform::Row>({
    platform::row<&KeptForm::Keeper>({}, {.disabled = true}),
    platform::row<&KeptForm::Panel>({0, 0, 3000, 300}, {.toolTip = "Keys"}),
    platform::row<&KeptForm::Box>({0, 600, 3000, 600}, {.toolTip = "Box"}),
    platform::row<&KeptForm::Other>({0, 1500, 3000, 600}, {.toolTip = "Other"}),
    platform::row<&KeptForm::Cover>({0, 0, 9000, 6000}, {.hidden = true}),
    platform::row<&KeptForm::Close>({0, 0, 1500, 600}, {.caption = "x", .in = "Cover"}),
});
constexpr std::array<std::span<const platform::Row>, 1> kTables{kRows};

KeptForm::KeptForm(platform::Runtime& runtime)
    : Form(runtime,
           {.name = "Prova", .caption = "", .width = 9000, .height = 6000, .tables = kTables}) {}

struct Ground : prova::FondoDiProva<KeptForm> {
  Ground() : form(forma()) {
    form.Keeper.setInterval(10);
    form.Keeper.setEnabled(true);
    pass(0.02);
  }
  void pass(double seconds) {
    tempo.advance(seconds);
    QCoreApplication::processEvents();
  }
  // Whether the focus is back in the time that it has, and nothing runs after that.
  [[nodiscard]] bool isBack() {
    pass(0.0101);
    return form.Panel.hasFocus() && !tempo.anyTicker();
  }

  KeptForm& form;
};

}  // namespace

// What keeps the keyboard focus on a panel of keys, and sleeps while it is there.
class FocusKeeperTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void nothingRunsWhileTheFocusIsWhereItBelongs() {
    Ground ground;
    QVERIFY(ground.form.Panel.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
  }

  void theFocusIsBackWithinTheIntervalFromWhereverItWent() {
    Ground ground;
    for (int i = 0; i < 3; ++i) {
      ground.form.Box.setFocus();
      QVERIFY(!ground.form.Panel.hasFocus());
      QVERIFY(ground.isBack());
      ground.clicca(ground.form.Other);
      QVERIFY(ground.form.Other.hasFocus());
      QVERIFY(ground.isBack());
      ground.form.Panel.widget()->clearFocus();
      QVERIFY(ground.isBack());
    }
  }

  void whereTheFocusGoesFromHandToHandItIsBackAllTheSame() {
    Ground ground;
    for (int i = 0; i < 20 && !(i > 2 && ground.form.Panel.hasFocus()); ++i) {
      (i % 2 == 0 ? ground.form.Box : ground.form.Other).setFocus();
      ground.pass(0.001);
      QVERIFY(i < 12);
    }
  }

  void stoppedItTakesNothingAndStartedItTakesTheFocusAtOnce() {
    Ground ground;
    ground.form.Box.setFocus();
    ground.form.Keeper.setEnabled(false);
    QVERIFY(!ground.form.Keeper.isEnabled());
    ground.pass(1);
    ground.form.Other.setFocus();
    ground.pass(1);
    QVERIFY(ground.form.Other.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
    ground.form.Keeper.setEnabled(true);
    QVERIFY(ground.isBack());
  }

  void withoutAnIntervalNothingIsTaken() {
    Ground ground;
    ground.form.Keeper.setInterval(0);
    QCOMPARE(ground.form.Keeper.interval(), 0);
    ground.form.Box.setFocus();
    ground.pass(1);
    QVERIFY(ground.form.Box.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
  }

  void anOpenMenuKeepsTheKeyboardAndGivesItBackWhenItCloses() {
    Ground ground;
    QMenu menu(&ground.fondo().window());
    menu.addAction(QStringLiteral("item"));
    menu.addMenu(QStringLiteral("more"))->addAction(QStringLiteral("inner"));
    menu.popup({0, 0});
    QCoreApplication::processEvents();
    ground.form.Box.setFocus();
    ground.pass(1);
    QVERIFY(menu.isVisible());
    QVERIFY(!ground.form.Panel.hasFocus());
    // It sleeps while the menu is open.
    QVERIFY(!ground.tempo.anyTicker());
    menu.close();
    QVERIFY(ground.isBack());
  }

  void aMenuThatOpensOutOfAnotherIsWaitedForToo() {
    Ground ground;
    QMenu outer(&ground.fondo().window());
    outer.addAction(QStringLiteral("item"));
    outer.popup({0, 0});
    ground.form.Box.setFocus();
    ground.pass(0.02);
    QMenu inner(&ground.fondo().window());
    inner.addAction(QStringLiteral("inner"));
    inner.popup({10, 10});
    outer.hide();
    ground.pass(0.02);
    QVERIFY(!ground.form.Panel.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
    inner.close();
    QVERIFY(ground.isBack());
  }

  void theMenuBarKeepsTheKeyboardAndGivesItBackWhenItIsLeft() {
    Ground ground;
    QMenuBar bar(&ground.fondo().window());
    bar.addMenu(QStringLiteral("items"));
    bar.setFocusPolicy(Qt::StrongFocus);
    bar.show();
    bar.setFocus();
    ground.pass(1);
    QVERIFY(bar.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
    ground.form.Box.setFocus();
    QVERIFY(ground.isBack());
  }

  void anotherWindowKeepsTheKeyboardUntilOursIsInUseAgain() {
    Ground ground;
    ground.form.Box.setFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    ground.pass(1);
    QVERIFY(!ground.fondo().window().isActiveWindow());
    QVERIFY(!ground.form.Panel.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
    other.hide();
    ground.fondo().window().activateWindow();
    QCoreApplication::processEvents();
    QVERIFY(ground.isBack());
  }

  void aPanelThatIsHiddenOrDisabledTakesTheFocusWhenItCan() {
    Ground ground;
    ground.form.Panel.setVisible(false);
    ground.form.Box.setFocus();
    ground.pass(1);
    QVERIFY(ground.form.Box.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
    ground.form.Panel.setVisible(true);
    QVERIFY(ground.isBack());
    ground.form.Panel.setEnabled(false);
    ground.form.Box.setFocus();
    ground.pass(1);
    QVERIFY(ground.form.Box.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
    ground.form.Panel.setEnabled(true);
    QVERIFY(ground.isBack());
  }

  void underACoveringPanelTheFocusComesWhenThatHasGone() {
    Ground ground;
    ground.form.cover(ground.form.Cover);
    ground.pass(1);
    QVERIFY(ground.form.Close.hasFocus());
    QVERIFY(!ground.tempo.anyTicker());
    ground.form.uncover(ground.form.Cover);
    ground.form.Cover.setVisible(false);
    QVERIFY(ground.isBack());
  }

  void twoThatBothWantTheFocusDoNotKeepTheProgramBusy() {
    // One form has two panels of keys only by mistake; each looks at most every five milliseconds.
    Ground ground;
    int moved = 0;
    const auto count = QObject::connect(qApp, &QApplication::focusChanged, [&] { ++moved; });
    ground.form.Box.setFocus();
    const auto greedy = QObject::connect(
        qApp, &QApplication::focusChanged, &ground.fondo().window(),
        [&](QWidget*, QWidget*) { ground.form.Box.setFocus(); }, Qt::QueuedConnection);
    ground.pass(1);
    QObject::disconnect(greedy);
    QObject::disconnect(count);
    QVERIFY2(moved > 100 && moved < 500, qPrintable(QString::number(moved)));
  }

  void aFormThatHasGoneTakesNothing() {
    Ground ground;
    ground.form.Box.setFocus();
    const auto alive = ground.form.shared_from_this();
    ground.form.run([&] { ground.fondo().forms().unload(ground.form); });
    QVERIFY(!ground.tempo.anyTicker());
    ground.form.Keeper.setEnabled(true);
    ground.pass(1);
    QVERIFY(!ground.tempo.anyTicker());
  }
};

const prova::Iscrizione<FocusKeeperTest, QApplication> kIscritta;

}  // namespace focus_keeper_test

#include "focus_keeper_test.moc"
