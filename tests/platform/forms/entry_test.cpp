#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QSlider>

#include "platform/forms/accessible_labels.h"
#include "platform/forms/controls/combo_box.h"
#include "platform/forms/controls/frame.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/scroll_bar.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/controls/up_down.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"
#include "support/iscrizione.h"

namespace entry_test {

namespace {

// A form with all into which something can be entered.
class EntryForm final : public platform::Form {
 public:
  explicit EntryForm(platform::Runtime& runtime);

  platform::ControlArray<platform::Label> Asks{*this};
  platform::TextBox Box{*this};
  platform::TextBox Number{*this};
  platform::UpDown Spinner{*this};
  platform::ComboBox List{*this};
  platform::ScrollBar Bar{*this};
  platform::Frame Cover{*this};

 protected:
  void onLoad() override {
    layout_.start();
    Spinner.bind(Number, 0, 100);
    List.setItems({QStringLiteral("one"), QStringLiteral("two")});
    List.setListIndex(0);
    Bar.setValue(7);
    Box.setText(QStringLiteral("12"));
    Number.setText(QStringLiteral("5"));
  }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRows = std::to_array<platform::Row>({
    platform::row<&EntryForm::Asks>(0, {0, 0, 1500, 600}, {.caption = "3 +"}),
    platform::row<&EntryForm::Asks>(1, {1500, 0, 1500, 600}, {.caption = "4 ="}),
    platform::row<&EntryForm::Box>({3000, 0, 3000, 600},
                                   {.toolTip = "Box", .label = platform::nameOf<&EntryForm::Asks>}),
    platform::row<&EntryForm::Number>({0, 900, 1500, 600}, {.toolTip = "Number"}),
    platform::row<&EntryForm::Spinner>({1500, 900, 900, 600}, {}),
    platform::row<&EntryForm::List>({0, 1800, 3000, 600}, {.toolTip = "List"}),
    platform::row<&EntryForm::Bar>({0, 2700, 6000, 600}, {.toolTip = "Bar"}),
    platform::row<&EntryForm::Cover>({0, 0, 9000, 6000}, {.hidden = true}),
});
constexpr std::array<std::span<const platform::Row>, 1> kTables{kRows};

EntryForm::EntryForm(platform::Runtime& runtime)
    : Form(runtime,
           {.name = "Prova", .caption = "", .width = 9000, .height = 6000, .tables = kTables}) {}

QAccessibleInterface& spoken(const platform::Control& control) {
  return *QAccessible::queryAccessibleInterface(control.widget());
}

struct Ground : prova::FondoDiProva<EntryForm> {
  Ground() : form(forma()) {}

  // Enters something everywhere, past all events, and lets it come to its end.
  void enterAll() const {
    spoken(form.Box).editableTextInterface()->replaceText(0, 2, QStringLiteral("34"));
    spoken(form.Spinner).valueInterface()->setCurrentValue(9);
    static_cast<QComboBox*>(form.List.widget())->setCurrentIndex(1);
    spoken(form.Bar).valueInterface()->setCurrentValue(8);
    QCoreApplication::processEvents();
  }
  // What stands everywhere, and what assistive technology gets to know of it.
  [[nodiscard]] QString all() const {
    return QStringList{
        form.Box.text(),    spoken(form.Box).text(QAccessible::Value),
        form.Number.text(), spoken(form.Spinner).valueInterface()->currentValue().toString(),
        form.List.text(),   QString::number(form.Bar.value())}
        .join(u' ');
  }

  EntryForm& form;
};

const QString kBefore = QStringLiteral("12 12 5 5 one 7");
const QString kAfter = QStringLiteral("34 34 9 9 two 8");

}  // namespace

// What assistive technology enters obeys the rules of what a hand enters.
class EntryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itIsEntered() {
    const Ground ground;
    QCOMPARE(ground.all(), kBefore);
    ground.enterAll();
    QCOMPARE(ground.all(), kAfter);
  }

  void nothingIsEnteredWhileADeviceIsWaitedFor() {
    Ground ground;
    ground.form.run([&] { ground.fondo().waitDeaf([&] { ground.enterAll(); }); });
    QCoreApplication::processEvents();
    QCOMPARE(ground.all(), kBefore);
    ground.enterAll();
    QCOMPARE(ground.all(), kAfter);
  }

  void nothingIsEnteredBelowACoveringPanel() {
    Ground ground;
    ground.form.cover(ground.form.Cover);
    ground.enterAll();
    QCOMPARE(ground.all(), kBefore);
  }

  void nothingIsEnteredUnderADialog() {
    Ground ground;
    QWidget dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    ground.enterAll();
    QCOMPARE(ground.all(), kBefore);
    dialog.hide();
    ground.enterAll();
    QCOMPARE(ground.all(), kAfter);
  }

  void aListDoesNotOpenWhileADeviceIsWaitedFor() {
    Ground ground;
    auto* list = static_cast<QComboBox*>(ground.form.List.widget());
    bool open = true;
    ground.form.run([&] {
      ground.fondo().waitDeaf([&] {
        spoken(ground.form.List)
            .actionInterface()
            ->doAction(QAccessibleActionInterface::showMenuAction());
        QCoreApplication::processEvents();
        open = QApplication::activePopupWidget() != nullptr;
      });
    });
    QVERIFY(!open);
    list->showPopup();
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    list->hidePopup();
  }

  void theProgramItselfMayChooseAtAnyTime() {
    Ground ground;
    ground.form.run([&] {
      ground.fondo().waitDeaf([&] {
        ground.form.List.setListIndex(1);
        ground.form.Bar.setValue(8);
        ground.form.Box.setText(QStringLiteral("34"));
        ground.form.Number.setText(QStringLiteral("9"));
      });
    });
    QCOMPARE(ground.all(), kAfter);
  }

  void aBoxIsReadWithTheLabelsThatAskForWhatGoesIntoIt() {
    Ground ground;
    QCOMPARE(spoken(ground.form.Box).text(QAccessible::Name), QStringLiteral("3 + 4 ="));
    // Of labels that are told beside the name a reader would read one, in the name's place.
    QVERIFY(spoken(ground.form.Box).relations(QAccessible::Label).isEmpty());
    for (const int i : {0, 1}) {
      const auto boxes = spoken(ground.form.Asks[i]).relations(QAccessible::Labelled);
      QCOMPARE(boxes.size(), 1);
      QCOMPARE(boxes[0].first, &spoken(ground.form.Box));
      QVERIFY(spoken(ground.form.Asks[i]).relations(QAccessible::Label).isEmpty());
    }
    QVERIFY(spoken(ground.form.Number).relations(QAccessible::Label).isEmpty());
  }

  void aLabelThatSaysNothingIsReadAsWhatIsAskedFor() {
    Ground ground;
    ground.form.Asks[0].setCaption(QString());
    QCOMPARE(spoken(ground.form.Box).text(QAccessible::Name), QStringLiteral("? 4 ="));
  }

  void aLabelThatIsHiddenAsksForNothingAndTheOtherIsRead() {
    Ground ground;
    ground.form.Asks[1].setVisible(false);
    const auto labels = spoken(ground.form.Box).relations(QAccessible::Label);
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels[0].first, &spoken(ground.form.Asks[0]));
    QCOMPARE(labels[0].second, QAccessible::Relation(QAccessible::Label));
    QCOMPARE(spoken(ground.form.Box).text(QAccessible::Name), QStringLiteral("Box"));
  }
};

const prova::Iscrizione<EntryTest, QApplication> kIscritta;

}  // namespace entry_test

#include "entry_test.moc"
