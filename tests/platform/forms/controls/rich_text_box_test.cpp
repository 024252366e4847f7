#include "platform/forms/controls/rich_text_box.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "stage.h"
#include "support/iscrizione.h"

namespace rich_text_box_test {

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

QPlainTextEdit& editOf(const TrialForm& form) {
  return static_cast<QPlainTextEdit&>(*form.PanelText.widget());
}

}  // namespace

// The box that holds a record.
class RichTextBoxTest : public QObject {
  Q_OBJECT

  static TrialForm& opened(Stage& stage) {
    TrialForm& form = stage.show(kOne);
    form.PanelText.setText(QStringLiteral("\r\n     Title\r\n\r\n"));
    form.Panel.cover();
    QCoreApplication::processEvents();
    return form;
  }

 private Q_SLOTS:
  void thePointerOverTheTextIsTheOneThatIsSet() {
    Stage stage;
    TrialForm& form = opened(stage);
    const QWidget& viewport = *editOf(form).viewport();
    // Where the mouse goes, too: the toolkit changes its pointer as it moves.
    const auto moved = [&] {
      for (const int x : {10, 60}) {
        stage.moveMouse(viewport.mapTo(&stage.runtime->window(), QPoint(x, 20)));
      }
      return viewport.cursor();
    };
    form.PanelText.setMousePointer(0);
    QCOMPARE(moved().shape(), Qt::ArrowCursor);
    form.PanelText.setMousePointer(99);
    QCOMPARE(moved().shape(), Qt::BitmapCursor);
    QCOMPARE(viewport.cursor().hotSpot(), stage.runtime->pointer().hotSpot());
    form.PanelText.append(QStringLiteral("one more\r\n"));
    QCOMPARE(moved().shape(), Qt::BitmapCursor);
  }

  void theTextIsKeptAsItWasGiven() {
    Stage stage;
    TrialForm& form = opened(stage);
    form.PanelText.append(QStringLiteral("    1 +  2 =  3\r\n"));
    QCOMPARE(form.PanelText.text(), QStringLiteral("\r\n     Title\r\n\r\n    1 +  2 =  3\r\n"));
    QCOMPARE(editOf(form).toPlainText(), QStringLiteral("\n     Title\n\n    1 +  2 =  3\n"));
    form.PanelText.setText(QStringLiteral("new"));
    QCOMPARE(form.PanelText.text(), QStringLiteral("new"));
    QCOMPARE(editOf(form).toPlainText(), QStringLiteral("new"));
  }

  void theTextKeepsClearOfThePapersEdge() {
    Stage stage;
    TrialForm& form = opened(stage);
    form.PanelText.setText(QStringLiteral("HHH"));
    for (const QSize window : {QSize(800, 600), QSize(1920, 1440)}) {
      stage.resize(window);
      const QImage paper = editOf(form).viewport()->grab().toImage();
      int left = paper.width();
      int top = paper.height();
      for (int y = 0; y < paper.height(); ++y) {
        for (int x = 0; x < paper.width(); ++x) {
          if (paper.pixelColor(x, y).lightness() >= 128) continue;
          left = std::min(left, x);
          top = std::min(top, y);
        }
      }
      const int letters = editOf(form).font().pixelSize();
      QVERIFY(letters > 8);
      QVERIFY2(left * 3 >= letters * 2, qPrintable(QString::number(left)));
      QVERIFY2(top * 3 >= letters * 2, qPrintable(QString::number(top)));
    }
  }

  void aLineIsAddedAtTheEndAndNothingIsRebuilt() {
    Stage stage;
    TrialForm& form = opened(stage);
    int removed = 0;
    int smallest = INT_MAX;
    connect(editOf(form).document(), &QTextDocument::contentsChange, this,
            [&](int position, int gone, int) {
              removed += gone;
              smallest = std::min(smallest, position);
            });
    const int end = editOf(form).document()->characterCount() - 1;
    for (int i = 0; i < 50; ++i) form.PanelText.append(QStringLiteral("    a line\r\n"));
    QCOMPARE(removed, 0);
    QCOMPARE(smallest, end);
  }

  void theLastLineIsInSight() {
    Stage stage;
    TrialForm& form = opened(stage);
    for (int i = 0; i < 200; ++i) form.PanelText.append(QStringLiteral("    a line\r\n"));
    const QScrollBar* bar = editOf(form).verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
  }

  void itsTextCanBeSelectedWithMouseAndKeyboardAndStaysSelected() {
    Stage stage;
    TrialForm& form = opened(stage);
    form.PanelText.setFocus();
    QVERIFY(form.PanelText.hasFocus());
    stage.tap(Qt::Key_A, Qt::ControlModifier);
    QVERIFY(editOf(form).textCursor().hasSelection());
    const QString selected = editOf(form).textCursor().selectedText();
    form.PanelText.append(QStringLiteral("more"));
    QCOMPARE(editOf(form).textCursor().selectedText(), selected);

    const QPoint from = stage.centre(form.PanelText) - QPoint(100, 0);
    editOf(form).setTextCursor(QTextCursor(editOf(form).document()));
    QTest::mousePress(stage.window(), Qt::LeftButton, {},
                      editOf(form).mapTo(&stage.runtime->window(), QPoint(5, 5)));
    stage.moveMouse(from + QPoint(150, 50));
    stage.releaseMouse(from + QPoint(150, 50));
    QVERIFY(editOf(form).textCursor().hasSelection());
  }

  void nothingCanBeWrittenIntoIt() {
    Stage stage;
    TrialForm& form = opened(stage);
    form.PanelText.setFocus();
    const QString before = editOf(form).toPlainText();
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return}) {
      stage.tap(key, {}, QStringLiteral("x"));
    }
    stage.tap(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(editOf(form).isReadOnly());
    QCOMPARE(editOf(form).toPlainText(), before);
  }

  void tabLeavesIt() {
    Stage stage;
    TrialForm& form = opened(stage);
    form.PanelText.setFocus();
    stage.tap(Qt::Key_Tab);
    QVERIFY(form.PanelSecond.hasFocus());
  }
};

const prova::Iscrizione<RichTextBoxTest, QApplication> kIscritta;

}  // namespace rich_text_box_test

#include "rich_text_box_test.moc"
