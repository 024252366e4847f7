#include "platform/forms/qt_message_boxes.h"

#include <QAccessible>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <utility>

#include "platform/forms/appearance.h"
#include "support/iscrizione.h"

namespace qt_message_boxes_test {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using platform::ButtonWords;
using platform::MessageBox;
using platform::QtMessageBoxes;

namespace {

QMessageBox* openBox() {
  return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

QPushButton* buttonOf(const QMessageBox& box, const QString& words) {
  const QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
  for (QPushButton* button : buttons) {
    if (button->text() == words) return button;
  }
  return nullptr;
}

void tap(const QMessageBox& box, Qt::Key key) {
  QTest::keyClick(box.windowHandle(), key);
}

}  // namespace

// Message boxes in windows of their own.
class QtMessageBoxesTest : public QObject {
  Q_OBJECT

  ButtonWords words_{QStringLiteral("Va bene"), QStringLiteral("Certo"), QStringLiteral("Mai")};
  QtMessageBoxes boxes_{[this] { return words_; }, [] { return nullptr; }};

  // Shows a box and does something with it once it is open.
  BoxAnswer show(const MessageBox& box, const std::function<void(QMessageBox&)>& then) {
    QTimer::singleShot(0, this, [then] { then(*openBox()); });
    return boxes_.show(box);
  }

  static MessageBox question() {
    return {.text = QStringLiteral("Stampo?"),
            .title = QStringLiteral("Domanda"),
            .buttons = BoxButtons::YesNo};
  }

 private Q_SLOTS:
  void initTestCase() { platform::applyAppearance(); }

  void lettersAndButtonsGrowWithTheWindowBelow() {
    QWidget window;
    QtMessageBoxes boxes([this] { return words_; }, [&window] { return &window; });
    const auto sizes = [&](int height) {
      window.resize(800, height);
      std::pair<int, int> found;
      QTimer::singleShot(0, this, [&] {
        found = {openBox()->font().pixelSize(), buttonOf(*openBox(), words_.ok)->height()};
        openBox()->accept();
      });
      boxes.show({.text = QStringLiteral("Fatto")});
      return found;
    };
    const auto [small, smallButton] = sizes(600);
    const auto [large, largeButton] = sizes(2160);
    QCOMPARE(small, 17);
    QCOMPARE(large, 45);
    QVERIFY(largeButton > 2 * smallButton);
  }

  void aBoxShowsItsTextTitleIconAndTheWordsOfTheMoment() {
    QString text;
    QString title;
    QStringList captions;
    QMessageBox::Icon icon{};
    const MessageBox box{.text = QStringLiteral("<b>Ciao</b>\n\nmondo"),
                         .title = QStringLiteral("Titolo"),
                         .icon = BoxIcon::Critical};
    const BoxAnswer answer = show(box, [&](QMessageBox& open) {
      text = open.text();
      title = open.windowTitle();
      icon = open.icon();
      QCOMPARE(open.textFormat(), Qt::PlainText);
      for (const QPushButton* button : open.findChildren<QPushButton*>()) {
        captions.append(button->text());
      }
      buttonOf(open, QStringLiteral("Va bene"))->click();
    });
    QCOMPARE(answer, BoxAnswer::Ok);
    QCOMPARE(text, box.text);
    QCOMPARE(title, box.title);
    QCOMPARE(icon, QMessageBox::Critical);
    QCOMPARE(captions, QStringList{QStringLiteral("Va bene")});
    words_.ok = QStringLiteral("Fine");
    show(box, [&](QMessageBox& open) {
      QPushButton* button = buttonOf(open, QStringLiteral("Fine"));
      QVERIFY(button != nullptr);
      button->click();
    });
  }

  void theIconIsTheOneThatIsAskedFor_data() {
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("shown");
    QTest::newRow("none") << int(BoxIcon::None) << int(QMessageBox::NoIcon);
    QTest::newRow("information") << int(BoxIcon::Information) << int(QMessageBox::Information);
    QTest::newRow("critical") << int(BoxIcon::Critical) << int(QMessageBox::Critical);
  }
  void theIconIsTheOneThatIsAskedFor() {
    QFETCH(int, asked);
    QFETCH(int, shown);
    int icon = -1;
    show({.text = QStringLiteral("x"), .icon = BoxIcon(asked)}, [&](QMessageBox& open) {
      icon = open.icon();
      open.close();
    });
    QCOMPARE(icon, shown);
  }

  void theButtonsAnswerYesAndNo() {
    QCOMPARE(
        show(question(), [](QMessageBox& box) { buttonOf(box, QStringLiteral("Certo"))->click(); }),
        BoxAnswer::Yes);
    QCOMPARE(
        show(question(), [](QMessageBox& box) { buttonOf(box, QStringLiteral("Mai"))->click(); }),
        BoxAnswer::No);
  }

  void aQuestionIsLeftOnlyByOneOfItsButtons() {
    bool afterEscape = false;
    bool afterClosing = false;
    bool afterReject = false;
    const BoxAnswer answer = show(question(), [&](QMessageBox& box) {
      tap(box, Qt::Key_Escape);
      afterEscape = box.isVisible();
      box.close();
      afterClosing = box.isVisible();
      box.reject();
      afterReject = box.isVisible();
      buttonOf(box, QStringLiteral("Mai"))->click();
    });
    QVERIFY(afterEscape);
    QVERIFY(afterClosing);
    QVERIFY(afterReject);
    QCOMPARE(answer, BoxAnswer::No);
  }

  void aMessageIsLeftByEscapeToo() {
    QCOMPARE(
        show({.text = QStringLiteral("x")}, [](QMessageBox& box) { tap(box, Qt::Key_Escape); }),
        BoxAnswer::Ok);
  }

  void enterTakesTheFirstButton() {
    QCOMPARE(show(question(), [](QMessageBox& box) { tap(box, Qt::Key_Return); }), BoxAnswer::Yes);
  }

  void theOtherButtonIsReachedByTheKeyboard() {
    QCOMPARE(show(question(),
                  [](QMessageBox& box) {
                    tap(box, Qt::Key_Tab);
                    tap(box, Qt::Key_Space);
                  }),
             BoxAnswer::No);
  }

  void whatIsPressedIsLargeAndSpoken() {
    QSize size;
    QString spoken;
    show(question(), [&](QMessageBox& box) {
      QPushButton* yes = buttonOf(box, QStringLiteral("Certo"));
      size = yes->size();
      spoken = QAccessible::queryAccessibleInterface(yes)->text(QAccessible::Name);
      yes->click();
    });
    QVERIFY(size.width() >= 60 && size.height() >= 60);
    QCOMPARE(spoken, QStringLiteral("Certo"));
  }

  void timersGoOnWhileABoxIsOpen() {
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
      if (++ticks == 3) openBox()->close();
    });
    timer.start(0);
    boxes_.show({.text = QStringLiteral("x")});
    QCOMPARE(ticks, 3);
  }
};

const prova::Iscrizione<QtMessageBoxesTest, QApplication> kIscritta;

}  // namespace qt_message_boxes_test

#include "qt_message_boxes_test.moc"
