#include "platform/forms/qt_page_setup.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <array>
#include <functional>

#include "platform/base/paper_codes.h"
#include "platform/forms/appearance.h"
#include "support/iscrizione.h"

namespace qt_page_setup_test {

using platform::ColorMode;
using platform::Orientation;
using platform::PageSetupWords;
using platform::Paper;
using platform::PrinterSettings;
using platform::PrinterTraits;
using platform::QtPageSetup;

namespace {

const Paper kA4{platform::kPaperA4, QStringLiteral("A4"), 210, 297, 3, 3};
const Paper kA3{platform::kPaperA3, QStringLiteral("A3"), 297, 420, 3, 3};

PrinterTraits printer() {
  PrinterTraits traits;
  traits.papers = {kA4, kA3};
  traits.printsColor = true;
  return traits;
}

PrinterSettings onA4() {
  PrinterSettings settings;
  settings.paper = kA4;
  settings.orientation = Orientation::Portrait;
  settings.color = ColorMode::Color;
  return settings;
}

// What stands open, and the hands of whoever uses it.
struct Open {
  QDialog& dialog;

  [[nodiscard]] QComboBox& papers() const { return *dialog.findChild<QComboBox*>(); }
  [[nodiscard]] QRadioButton& choice(const char* words) const {
    const QList<QRadioButton*> all = dialog.findChildren<QRadioButton*>();
    for (QRadioButton* button : all) {
      if (button->text() == QLatin1String(words)) return *button;
    }
    throw std::logic_error("no such choice");
  }
  void tap(Qt::Key key) const { QTest::keyClick(dialog.windowHandle(), key); }
};

}  // namespace

// The page set-up of a printer in a window of its own.
class QtPageSetupTest : public QObject {
  Q_OBJECT

  QtPageSetup setup_{[] {
                       return PageSetupWords{QStringLiteral("Set-up"), QStringLiteral("Paper"),
                                             QStringLiteral("Way"),    QStringLiteral("upright"),
                                             QStringLiteral("across"), QStringLiteral("Colours"),
                                             QStringLiteral("all"),    QStringLiteral("grey"),
                                             QStringLiteral("Fine"),   QStringLiteral("Cancel")};
                     },
                     [](const Paper& paper) { return paper.media; }, [] { return nullptr; }};

  // Opens the set-up and does something in it.
  bool choose(const PrinterTraits& traits, PrinterSettings& settings,
              const std::function<void(const Open&)>& then) {
    QTimer::singleShot(0, this, [then] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      QVERIFY(dialog != nullptr);
      then({*dialog});
      if (dialog->isVisible()) dialog->reject();
    });
    return setup_.choose(QStringLiteral("Printer"), traits, settings);
  }

 private Q_SLOTS:
  void initTestCase() { platform::applyAppearance(); }

  void itShowsTheSettingsAndEnterAtOnceKeepsThem() {
    PrinterSettings settings = onA4();
    settings.paper = kA3;
    settings.orientation = Orientation::Landscape;
    settings.color = ColorMode::Monochrome;
    const PrinterSettings before = settings;
    QVERIFY(choose(printer(), settings, [](const Open& open) {
      QCOMPARE(open.dialog.windowTitle(), QStringLiteral("Set-up - Printer"));
      QCOMPARE(open.papers().currentText(), QStringLiteral("A3"));
      QVERIFY(open.choice("across").isChecked());
      QVERIFY(open.choice("grey").isChecked());
      open.tap(Qt::Key_Return);
    }));
    QCOMPARE(settings, before);
  }

  void lettersRowsAndButtonsGrowWithTheWindowBelow() {
    QWidget window;
    // It stands over a dialog of that window, however small.
    QDialog over(&window);
    over.resize(300, 200);
    QtPageSetup setup([] { return PageSetupWords{.ok = QStringLiteral("Fine")}; },
                      [](const Paper& paper) { return paper.media; }, [&over] { return &over; });
    const auto sizes = [&](int height) {
      window.resize(800, height);
      std::array<int, 4> found{};
      QTimer::singleShot(0, this, [&found] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        found = {dialog->font().pixelSize(), dialog->findChild<QComboBox*>()->height(),
                 dialog->findChild<QRadioButton*>()->height(),
                 dialog->findChild<QPushButton*>()->height()};
        dialog->reject();
      });
      PrinterSettings settings = onA4();
      (void)setup.choose(QStringLiteral("Printer"), printer(), settings);
      return found;
    };
    const std::array<int, 4> small = sizes(600);
    const std::array<int, 4> large = sizes(2160);
    for (size_t i = 0; i < small.size(); ++i) QVERIFY(large.at(i) > 2.4 * small.at(i));
  }

  // A hand that misses one must not press the other.
  void itsButtonsStandApart() {
    PrinterSettings settings = onA4();
    QVERIFY(!choose(printer(), settings, [](const Open& open) {
      const QList<QPushButton*> buttons = open.dialog.findChildren<QPushButton*>();
      QCOMPARE(buttons.size(), 2);
      const QRect left = buttons[0]->geometry();
      const QRect right = buttons[1]->geometry();
      QVERIFY(left.top() == right.top() && right.left() - left.right() >= 10);
      QCOMPARE(left.size(), right.size());
    }));
  }

  void whatIsChosenIsTaken() {
    PrinterSettings settings = onA4();
    QVERIFY(choose(printer(), settings, [](const Open& open) {
      open.papers().setFocus();
      open.tap(Qt::Key_Down);
      open.choice("across").click();
      open.choice("grey").click();
      open.tap(Qt::Key_Return);
    }));
    QCOMPARE(settings.paper, kA3);
    QCOMPARE(settings.orientation, Orientation::Landscape);
    QCOMPARE(settings.color, ColorMode::Monochrome);
  }

  void givenUpItChangesNothing() {
    PrinterSettings settings = onA4();
    QVERIFY(!choose(printer(), settings, [](const Open& open) {
      open.papers().setCurrentIndex(1);
      open.choice("across").click();
      open.tap(Qt::Key_Escape);
    }));
    QCOMPARE(settings, onA4());
  }

  void aGrayPrinterOffersNoColors() {
    PrinterTraits gray = printer();
    gray.printsColor = false;
    PrinterSettings settings = onA4();
    settings.color = ColorMode::Monochrome;
    QVERIFY(choose(gray, settings, [](const Open& open) {
      QVERIFY(!open.choice("all").isEnabled());
      QVERIFY(open.choice("grey").isEnabled());
      open.tap(Qt::Key_Return);
    }));
    QCOMPARE(settings.color, ColorMode::Monochrome);
  }

  void aPaperThatTheListDoesNotHaveStaysUnlessAnotherIsChosen() {
    const Paper own{0, QStringLiteral("own"), 200, 250, 0, 0};
    PrinterSettings settings = onA4();
    settings.paper = own;
    QVERIFY(choose(printer(), settings, [](const Open& open) {
      open.choice("across").click();
      open.tap(Qt::Key_Return);
    }));
    QCOMPARE(settings.paper, own);
    QCOMPARE(settings.orientation, Orientation::Landscape);
    QVERIFY(choose(printer(), settings, [](const Open& open) {
      open.papers().setCurrentIndex(0);
      open.tap(Qt::Key_Return);
    }));
    QCOMPARE(settings.paper, kA4);
  }
};

const prova::Iscrizione<QtPageSetupTest, QApplication> kIscritta;

}  // namespace qt_page_setup_test

#include "qt_page_setup_test.moc"
