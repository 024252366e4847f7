#include <QApplication>
#include <QDialog>

#include "platform/forms/controls/scroll_bar.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/controls/up_down.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"
#include "support/iscrizione.h"

namespace held_arrow_test {

namespace {

// A form whose arrows step as long as they are held.
class ArrowForm final : public platform::Form {
 public:
  explicit ArrowForm(platform::Runtime& runtime);

  platform::TextBox Number{*this};
  platform::UpDown Spinner{*this};
  platform::ScrollBar Bar{*this};

 protected:
  void onLoad() override {
    layout_.start();
    Spinner.bind(Number, 0, 100);
    Number.setText(QStringLiteral("5"));
    Bar.setValue(7);
  }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRows = std::to_array<platform::Row>({
    platform::row<&ArrowForm::Number>({0, 900, 1500, 600}, {.toolTip = "Number"}),
    platform::row<&ArrowForm::Spinner>({1500, 900, 900, 600}, {}),
    platform::row<&ArrowForm::Bar>({0, 2700, 6000, 600}, {.toolTip = "Bar"}),
});
constexpr std::array<std::span<const platform::Row>, 1> kTables{kRows};

ArrowForm::ArrowForm(platform::Runtime& runtime)
    : Form(runtime,
           {.name = "Prova", .caption = "", .width = 9000, .height = 6000, .tables = kTables}) {}

struct Ground : prova::FondoDiProva<ArrowForm> {
  Ground() : form(forma()) {}

  // Holds the arrow at the right end of a control.
  void hold(const platform::Control& control) {
    constexpr int kInside = 3;
    const QWidget* widget = control.widget();
    const QPoint end(widget->width() - kInside, widget->height() / 2);
    QTest::mousePress(finestra(), Qt::LeftButton, {}, widget->mapTo(&fondo().window(), end));
  }
  // Long enough for some steps of either.
  void wait() {
    tempo.advance(2);
    QTest::qWait(1000);
  }

  ArrowForm& form;
};

}  // namespace

// An arrow that is held when a box opens, under which no window hears of its release.
class HeldArrowTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aSpinnerStops() {
    Ground ground;
    stops(ground, ground.form.Spinner, [&ground] { return ground.form.Number.text().toInt(); });
  }

  void aScrollBarStops() {
    Ground ground;
    stops(ground, ground.form.Bar, [&ground] { return int(ground.form.Bar.value()); });
  }

 private:
  static void stops(Ground& ground, const platform::Control& control,
                    const std::function<int()>& value) {
    const int before = value();
    ground.hold(control);
    ground.wait();
    const int atOpening = value();
    QVERIFY2(atOpening > before + 1, qPrintable(QString::number(atOpening)));
    QDialog box(&ground.fondo().window());
    box.open();
    QTest::mouseRelease(ground.finestra(), Qt::LeftButton);
    ground.wait();
    QCOMPARE(value(), atOpening);
  }
};

const prova::Iscrizione<HeldArrowTest, QApplication> kIscritta;

}  // namespace held_arrow_test

#include "held_arrow_test.moc"
