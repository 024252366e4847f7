#include "platform/forms/design.h"

#include <QApplication>
#include <QWidget>

#include "platform/forms/loaded_form.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace design_test {

using platform::Button;
using platform::ControlArray;
using platform::FormDesign;
using platform::Label;
using platform::nameOf;
using platform::PictureBox;
using platform::Row;
using platform::row;
using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

// A form whose design is put together of two tables, and which has a member too many.
class Patchwork final : public platform::Form {
 public:
  Patchwork(platform::Runtime& runtime, const FormDesign& design) : Form(runtime, design) {}

  Button Alpha{*this};
  Button Beta{*this};
  ControlArray<Button> Gamma{*this};
  PictureBox Box{*this};
  Label Inside{*this};
  Label Forgotten{*this};

  platform::ProportionalLayout layout{*this};

 protected:
  void onLoad() override { layout.start(); }
};

constexpr auto kShared = std::to_array<Row>({
    row<&Patchwork::Alpha>({0, 0, 1500, 750}, {.caption = "alpha"}),
    row<&Patchwork::Gamma>(0, {0, 1500, 1500, 750}, {.caption = "gamma 0"}),
    row<&Patchwork::Gamma>(1, {0, 3000, 1500, 750}, {.caption = "gamma 1"}),
    row<&Patchwork::Beta>({0, 4500, 1500, 750}, {.caption = "beta"}),
});

constexpr auto kOwn = std::to_array<Row>({
    row<&Patchwork::Gamma>(0, {3000, 1500, 2250, 900}, {.caption = "another", .disabled = true}),
    row<&Patchwork::Box>({4500, 3000, 3000, 3000}, {.toolTip = "box"}),
    row<&Patchwork::Inside>({150, 300, 1500, 750},
                            {.caption = "inside", .in = nameOf<&Patchwork::Box>}),
});

constexpr std::array<std::span<const Row>, 2> kTables{kShared, kOwn};
constexpr FormDesign kPatchwork{
    .name = "Patchwork", .caption = "Patchwork", .width = 12000, .height = 9000, .tables = kTables};

// The names are the members' own, known to the compiler.
static_assert(nameOf<&Patchwork::Alpha> == "Alpha");
static_assert(nameOf<&Patchwork::Gamma> == "Gamma");
static_assert(kShared[1].name == "Gamma" && kShared[1].index == 0);
static_assert(kShared[0].index == -1);

// Builds the form on the page of the stage, without showing it.
std::shared_ptr<Patchwork> build(Stage& stage) {
  auto form = std::make_shared<Patchwork>(*stage.runtime, kPatchwork);
  platform::LoadedForm(*form).build(stage.runtime->window().pages());
  form->page()->resize(800, 600);
  form->page()->arrange();
  platform::LoadedForm(*form).runLoad();
  return form;
}

QStringList namesOf(const platform::Form& form) {
  QStringList names;
  for (const platform::Control* control : form.controls()) names.append(control->name());
  return names;
}

}  // namespace

// What is made of the rows of a design.
class DesignTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aLaterRowTakesThePlaceOfAnEarlierOneInTheOrder() {
    Stage stage;
    const auto form = build(stage);
    QCOMPARE(namesOf(*form), QStringLiteral("Alpha Gamma(0) Gamma(1) Beta Box Inside").split(u' '));
    QCOMPARE(form->Gamma[0].caption(), QStringLiteral("another"));
    QVERIFY(!form->Gamma[0].isEnabled());
    QCOMPARE(form->Gamma[0].widget()->geometry(), QRect(200, 100, 150, 60));
    QCOMPARE(form->Gamma[1].caption(), QStringLiteral("gamma 1"));
    QCOMPARE(form->Gamma.count(), 2);
  }

  void aMemberWithoutARowIsFound() {
    Stage stage;
    const auto form = build(stage);
    QCOMPARE(form->withoutRow(), (std::vector<const platform::Control*>{&form->Forgotten}));
    QVERIFY(stage.show(kOne).withoutRow().empty());
  }

  void aRowWithAContainerIsMadeInIt() {
    Stage stage;
    const auto form = build(stage);
    QCOMPARE(form->Inside.widget()->parentWidget(), form->Box.widget());
    QCOMPARE(form->Inside.widget()->geometry(), QRect(10, 20, 100, 50));
    QCOMPARE(form->Box.widget()->parentWidget(), form->page()->canvas());
  }

  void theStateOfARowIsThatOfItsControl() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QVERIFY(!form.Panel.isVisible());
    QVERIFY(form.Panel.widget()->isHidden());
    QVERIFY(!form.PanelFirst.isEnabled());
    QVERIFY(form.MenuKeyed.isChecked());
    QVERIFY(!form.MenuPlain.isChecked());
    QCOMPARE(form.Sign.toolTip(), QStringLiteral("Right"));
    QCOMPARE(form.Words.caption(), QStringLiteral("Words"));
  }

  void visibleIsAControlsOwnFlagWhateverItsParentShows() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QVERIFY(form.PanelSecond.isVisible());
    QVERIFY(!form.PanelSecond.widget()->isVisible());
    form.PanelSecond.setVisible(false);
    form.Panel.setVisible(true);
    QVERIFY(!form.PanelSecond.isVisible());
    QVERIFY(!form.PanelSecond.widget()->isVisible());
    QVERIFY(form.PanelText.widget()->isVisible());
  }

  void theTabOrderIsThatOfTheRows() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    const std::vector<const platform::Control*> order = {
        &form.First, &form.Second, &form.Third, &form.Number[0], &form.Number[1], &form.Number[2]};
    form.First.setFocus();
    for (std::size_t i = 1; i <= order.size(); ++i) {
      stage.tap(Qt::Key_Tab);
      QVERIFY2(order[i % order.size()]->hasFocus(), QByteArray::number(qulonglong(i)));
    }
    for (std::size_t i = order.size(); i-- > 0;) {
      stage.tap(Qt::Key_Backtab, Qt::ShiftModifier);
      QVERIFY2(order[i]->hasFocus(), QByteArray::number(qulonglong(i)));
    }
  }

  void tabPassesOverWhatIsDisabledOrHidden() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.Second.setEnabled(false);
    form.Third.setVisible(false);
    form.First.setFocus();
    stage.tap(Qt::Key_Tab);
    QVERIFY(form.Number[0].hasFocus());
  }

  void theFirstTabGoesToTheFirstControl() {
    Stage stage;
    const TrialForm& form = stage.show(kOne);
    if (QWidget* focus = QApplication::focusWidget()) focus->clearFocus();
    stage.tap(Qt::Key_Tab);
    QVERIFY(form.First.hasFocus());
  }
};

const prova::Iscrizione<DesignTest, QApplication> kIscritta;

}  // namespace design_test

#include "design_test.moc"
