#include "platform/forms/house_style.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "immagini/immagini.h"
#include "platform/forms/appearance.h"
#include "platform/forms/controls/button_widget.h"
#include "platform/forms/fonts.h"
#include "platform/forms/pictures.h"
#include "platform/forms/qt_message_boxes.h"
#include "platform/forms/text_block.h"
#include "support/iscrizione.h"

namespace house_style_test {

using platform::BoxIcon;

namespace {

QImage pictureOf(QWidget& widget) {
  return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The outer pixels of a picture, `wide` from each edge.
QImage rim(QImage picture, int wide) {
  QPainter painter(&picture);
  painter.fillRect(picture.rect().adjusted(wide, wide, -wide, -wide), Qt::magenta);
  return picture;
}

// The greatest contrast of a picture's pixels to its ground.
double strongest(const QImage& picture, const QColor& ground) {
  double most = 1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      most = std::max(most, platform::contrast(picture.pixelColor(x, y), ground));
    }
  }
  return most;
}

}  // namespace

// What stands in boxes and dialogs, beside what stands on forms.
class HouseStyleTest : public QObject {
  Q_OBJECT

  static platform::ButtonWords words() {
    return {QStringLiteral("OK"), QStringLiteral("Yes"), QStringLiteral("No")};
  }

  // The drawing of a box over a window of some height, and the size of its letters.
  struct Shown {
    QImage drawing;
    int letters = 0;
  };
  Shown shown(BoxIcon icon, int height) {
    QWidget window;
    window.resize(800, height);
    platform::QtMessageBoxes boxes(words, [&window] { return &window; });
    Shown found;
    QTimer::singleShot(0, this, [&found] {
      auto* open = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      const auto* label = open->findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
      found = {label->pixmap(Qt::ReturnByValue).toImage(), open->font().pixelSize()};
      open->accept();
    });
    boxes.show({.text = QStringLiteral("Done"), .icon = icon});
    return found;
  }

  static platform::BoxDrawings drawings() {
    return {QStringLiteral(":/immagini"), QStringLiteral("informazione"),
            QStringLiteral("attenzione")};
  }

 private Q_SLOTS:
  void initTestCase() { somme::PreparaImmagini(); }
  void init() { platform::applyAppearance(drawings()); }

  void aButtonInABoxHasTheFaceOfOneOnAForm_data() {
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("focus");
    QTest::newRow("plain") << 600 << true << false;
    QTest::newRow("large") << 1600 << true << false;
    QTest::newRow("with the focus") << 600 << true << true;
    QTest::newRow("large with the focus") << 1600 << true << true;
  }
  void aButtonInABoxHasTheFaceOfOneOnAForm() {
    QFETCH(int, height);
    QFETCH(bool, enabled);
    QFETCH(bool, focus);
    QWidget window;
    window.resize(1000, height);
    platform::Pictures pictures(QStringLiteral(":/immagini"));
    platform::ButtonWidget ours(&window, pictures, [] {});
    QPushButton theirs(QStringLiteral("OK"), &window);
    ours.setCaption(QStringLiteral("OK"));
    for (QWidget* button : {static_cast<QWidget*>(&ours), static_cast<QWidget*>(&theirs)}) {
      button->setGeometry(40, 40, 200, 90);
      button->setEnabled(enabled);
    }
    window.show();
    const auto picture = [focus](QWidget& button) {
      button.raise();
      if (focus) button.setFocus();
      return rim(pictureOf(button), 16);
    };
    QCOMPARE(picture(theirs), picture(ours));
  }

  // A menu that is wider than it need be shows all words.
  void noWordOfAMenuIsShortenedWhateverItsSize_data() {
    QTest::addColumn<int>("letters");
    for (const int letters : {12, 16, 21, 32, 64}) {
      QTest::addRow("%d pixels", letters) << letters;
    }
  }
  void noWordOfAMenuIsShortenedWhateverItsSize() {
    QFETCH(int, letters);
    const auto pictureOf = [letters](int wider) {
      QMenu menu;
      QFont font = menu.font();
      font.setPixelSize(letters);
      menu.setFont(font);
      for (const char* name : {"Deutsch", "English", "Français"}) {
        QAction* entry = menu.addAction(QString::fromUtf8(name));
        entry->setCheckable(true);
      }
      menu.setFixedSize(menu.sizeHint() + QSize(wider, 0));
      return menu.grab().toImage();
    };
    constexpr int kFrame = 2;
    const QImage menu = pictureOf(0);
    const QRect words = menu.rect().adjusted(kFrame, kFrame, -kFrame, -kFrame);
    QCOMPARE(menu.copy(words), pictureOf(4 * letters).copy(words));
  }

  void theDrawingOfABoxIsTheProgramsOwnAndGrowsWithItsLetters() {
    for (const BoxIcon icon : {BoxIcon::Information, BoxIcon::Critical}) {
      for (const int height : {600, 2160}) {
        const Shown box = shown(icon, height);
        QVERIFY(box.drawing.width() >= 2.4 * box.letters);
        QVERIFY(box.drawing.width() <= 2.6 * box.letters);
        platform::Pictures pictures(drawings().folder);
        const QString& name =
            icon == BoxIcon::Critical ? drawings().critical : drawings().information;
        QCOMPARE(box.drawing.convertToFormat(QImage::Format_ARGB32),
                 pictures.pixmap(name, box.drawing.size(), 1)
                     .toImage()
                     .convertToFormat(QImage::Format_ARGB32));
      }
    }
  }

  void aDrawingThatIsMissingLeavesItsPlace() {
    const QSize there = shown(BoxIcon::Critical, 600).drawing.size();
    platform::applyAppearance({drawings().folder, QStringLiteral("none"), QStringLiteral("none")});
    const QImage empty = shown(BoxIcon::Critical, 600).drawing;
    QCOMPARE(empty.size(), there);
    QCOMPARE(empty.pixelColor(empty.width() / 2, empty.height() / 2).alpha(), 0);
  }

  void theMarksOfOptionsAreAsLargeAsTheirLettersAndSeen() {
    QRadioButton option(QStringLiteral("A4"));
    option.setFont(platform::fontOf({}, 17));
    option.resize(option.sizeHint());
    const QImage free = pictureOf(option);
    option.setChecked(true);
    const QImage chosen = pictureOf(option);
    const QColor ground = option.palette().color(QPalette::Window);
    QVERIFY(strongest(free.copy(0, 0, 34, free.height()), ground) >= 3);
    // The dot alone tells which one holds.
    int dot = 0;
    for (int x = 0; x < free.width(); ++x) {
      dot += int(free.pixel(x, free.height() / 2) != chosen.pixel(x, free.height() / 2));
    }
    QVERIFY2(dot >= 8 && dot <= 14, qPrintable(QString::number(dot)));
    const int small = option.sizeHint().height();
    option.setFont(platform::fontOf({}, 45));
    QVERIFY(option.sizeHint().height() > 2 * small);
  }

  void aListHasAnArrowThatGrowsWithIt() {
    const auto inked = [](int height) {
      QComboBox list;
      list.resize(400, height);
      const QImage picture = pictureOf(list);
      int wide = 0;
      for (int y = 0; y < height; ++y) {
        int row = 0;
        for (int x = 400 - height; x < 396; ++x) row += int(qGray(picture.pixel(x, y)) < 80);
        wide = std::max(wide, y < 4 || y > height - 5 ? 0 : row);
      }
      return wide;
    };
    QVERIFY(inked(36) >= 10);
    QVERIFY(inked(72) >= 2 * inked(36) - 3);
  }
};

const prova::Iscrizione<HouseStyleTest, QApplication> kIscritta;

}  // namespace house_style_test

#include "house_style_test.moc"
