#include "platform/forms/controls/scroll_bar.h"

#include <QAccessible>
#include <QApplication>

#include "app/shared/forma.h"
#include "app/tabella_forme.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace scroll_bar_test {

using platform::ScrollBar;
using prova::Banco;

namespace {

constexpr auto kRange = std::to_array<platform::StoredProperty>({
    {"Min", std::int16_t{10}},
    {"Max", std::int16_t{50}},
    {"SmallChange", std::int16_t{2}},
    {"LargeChange", std::int16_t{8}},
});

class BarForm final : public somme::Forma {
 public:
  explicit BarForm(somme::Ambiente& ambiente);

  ScrollBar bar{*this};
  ScrollBar plain{*this};
  QList<int> told;
};

constexpr auto kRows = std::to_array<platform::Row>({
    platform::row<&BarForm::bar>({1000, 1000, 8000, 600}, {.toolTip = "Speed", .stored = kRange}),
    platform::row<&BarForm::plain>({1000, 3000, 8000, 600}),
});
constexpr std::array<std::span<const platform::Row>, 1> kTables{kRows};
constexpr platform::FormDesign kDesign{
    .name = "BarForm", .caption = "", .width = 10000, .height = 6000, .tables = kTables};

BarForm::BarForm(somme::Ambiente& ambiente) : Forma(ambiente, kDesign) {
  bar.onChange([this] { told.append(bar.value()); });
}

std::shared_ptr<platform::Form> makeForm(somme::Ambiente& ambiente, std::string_view name) {
  if (name == "BarForm") return std::make_shared<BarForm>(ambiente);
  return somme::CreaForma(ambiente, name);
}

}  // namespace

// The scroll bar under mouse and keys.
class ScrollBarTest : public QObject {
  Q_OBJECT

  static BarForm& open(Banco& banco) {
    auto& form = banco.apri<BarForm>("BarForm");
    form.bar.setFocus();
    return form;
  }
  // A point of the bar: so far from its left end, as a part of its width.
  static QPoint at(const Banco& banco, const ScrollBar& bar, double part) {
    const QWidget* widget = bar.widget();
    const QPoint inside(int(widget->width() * part), widget->height() / 2);
    return widget->mapTo(&banco.ambiente->fondo.window(), inside);
  }

 private Q_SLOTS:
  void theRangeComesFromTheStoredProperties() {
    Banco banco({1000, 600}, makeForm);
    const BarForm& form = open(banco);
    QCOMPARE(form.bar.minimum(), 10);
    QCOMPARE(form.bar.maximum(), 50);
    QCOMPARE(form.bar.value(), 10);
    QCOMPARE(form.plain.minimum(), 0);
    QCOMPARE(form.plain.maximum(), 100);
  }

  void settingTheValueKeepsItInTheRangeAndTellsOnlyOfChanges() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    form.bar.setValue(30);
    form.bar.setValue(30);
    form.bar.setValue(1000);
    form.bar.setValue(-1000);
    QCOMPARE(form.told, QList<int>({30, 50, 10}));
  }

  void arrowKeysGoBySmallStepsPageKeysByLargeOnesHomeAndEndToTheEnds() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_PageDown,
                          Qt::Key_PageUp, Qt::Key_End, Qt::Key_Right, Qt::Key_Home}) {
      banco.batti(key);
    }
    QCOMPARE(form.told, QList<int>({12, 14, 12, 20, 12, 50, 10}));
  }

  void downAndPageDownGoTheWayOfRightAndTheirOppositesBack() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    form.bar.setValue(30);
    form.told.clear();
    for (const int key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Up,
                          Qt::Key_Left}) {
      banco.batti(key);
    }
    QCOMPARE(form.told, QList<int>({32, 34, 42, 34, 32, 30}));
  }

  void aHeldKeyIsOneStep() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    banco.premi(Qt::Key_Right);
    banco.ripeti(Qt::Key_Right);
    banco.ripeti(Qt::Key_Right);
    banco.lascia(Qt::Key_Right);
    QCOMPARE(form.told, QList<int>({12}));
  }

  void theArrowsAtTheEndsAreOneStepEach() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    banco.cliccaIn(at(banco, form.bar, 0.98));
    banco.cliccaIn(at(banco, form.bar, 0.98));
    banco.cliccaIn(at(banco, form.bar, 0.02));
    QCOMPARE(form.told, QList<int>({12, 14, 12}));
  }

  void aPressOnTheWayBringsTheThumbThere() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    banco.cliccaIn(at(banco, form.bar, 0.5));
    QCOMPARE(form.told, QList<int>({30}));
  }

  void theThumbIsTakenWhereItIsHeldAndFollowsThePointer() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    form.bar.setValue(30);
    form.told.clear();
    const QPoint grip = at(banco, form.bar, 0.5) + QPoint(8, 0);
    QTest::mousePress(banco.finestra(), Qt::LeftButton, {}, grip);
    QCOMPARE(form.bar.value(), 30);
    QTest::mouseMove(banco.finestra(), grip + QPoint(150, 0));
    QCoreApplication::processEvents();
    const int far = form.bar.value();
    QVERIFY2(far > 35 && far < 50, qPrintable(QString::number(far)));
    QTest::mouseMove(banco.finestra(), grip);
    QCoreApplication::processEvents();
    QCOMPARE(form.bar.value(), 30);
    QTest::mouseMove(banco.finestra(), grip + QPoint(480, 0));
    QCoreApplication::processEvents();
    QCOMPARE(form.bar.value(), 50);
    QTest::mouseRelease(banco.finestra(), Qt::LeftButton, {}, grip + QPoint(480, 0));
    QTest::mouseMove(banco.finestra(), grip);
    QCoreApplication::processEvents();
    QCOMPARE(form.bar.value(), 50);
  }

  void assistiveTechnologyHearsANameAndAValueAndCanSetIt() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(form.bar.widget());
    QVERIFY(spoken != nullptr);
    QCOMPARE(spoken->role(), QAccessible::Slider);
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("Speed"));
    QVERIFY(spoken->valueInterface() != nullptr);
    QCOMPARE(spoken->valueInterface()->currentValue().toInt(), 10);
    spoken->valueInterface()->setCurrentValue(24);
    QCOMPARE(form.told, QList<int>({24}));
  }

  void theFocusIsSeen() {
    Banco banco({1000, 600}, makeForm);
    BarForm& form = open(banco);
    const QImage with = form.bar.widget()->grab().toImage();
    form.plain.setFocus();
    QVERIFY(!form.bar.hasFocus());
    QVERIFY(with != form.bar.widget()->grab().toImage());
  }
};

const prova::Iscrizione<ScrollBarTest, QApplication> kIscritta;

}  // namespace scroll_bar_test

#include "scroll_bar_test.moc"
