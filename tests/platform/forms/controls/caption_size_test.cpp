#include "platform/forms/controls/caption_size.h"

#include <QApplication>
#include <QTest>

#include "platform/forms/controls/button_widget.h"
#include "platform/forms/pictures.h"
#include "support/iscrizione.h"

namespace caption_size_test {

using platform::ButtonWidget;
using platform::CaptionSize;

// Buttons of one kind speak in letters of one size.
class CaptionSizeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    parent = std::make_unique<QWidget>();
    parent->resize(400, 300);
    parent->show();
    shared = std::make_unique<CaptionSize>();
  }

  void theLongestCaptionSetsTheSizeOfAll() {
    ButtonWidget* brief = button(QStringLiteral("sì"));
    ButtonWidget* longer = button(QStringLiteral("aggiungi le une"));
    QVERIFY(longer->fittedCaption() < brief->fittedCaption());
    QCOMPARE(shared->pixelSize(), longer->fittedCaption());
  }

  void aCaptionFarTooLongKeepsItsSizeToItself() {
    ButtonWidget* brief = button(QStringLiteral("sì"));
    ButtonWidget* endless =
        button(QStringLiteral("aggiungi soltanto le unità e poi le decine e poi le centinaia"));
    QVERIFY(endless->fittedCaption() < brief->fittedCaption() / 2);
    QCOMPARE(shared->pixelSize(), brief->fittedCaption());
  }

  void anotherLanguageAnotherFontOrAnotherWindowSetsItAnew() {
    ButtonWidget* brief = button(QStringLiteral("sì"));
    ButtonWidget* longer = button(QStringLiteral("aggiungi le une"));
    const int before = shared->pixelSize();
    longer->setCaption(QStringLiteral("no"));
    QVERIFY(shared->pixelSize() > before);
    longer->setCaption(QStringLiteral("aggiungi le une"));
    QCOMPARE(shared->pixelSize(), before);
    longer->resize(300, 60);
    QCOMPARE(shared->pixelSize(), brief->fittedCaption());
    for (ButtonWidget* each : {brief, longer}) each->setFont(letters(12));
    QCOMPARE(shared->pixelSize(), 12);
  }

  void aButtonThatGoesNoLongerCounts() {
    ButtonWidget* brief = button(QStringLiteral("sì"));
    ButtonWidget* longer = button(QStringLiteral("aggiungi le une"));
    QVERIFY(shared->pixelSize() < brief->fittedCaption());
    delete longer;
    QCOMPARE(shared->pixelSize(), brief->fittedCaption());
  }

  void theButtonsOutliveWhatTheyShared() {
    ButtonWidget* brief = button(QStringLiteral("sì"));
    shared.reset();
    brief->resize(200, 50);
    brief->setCaption(QStringLiteral("no"));
    QVERIFY(!brief->grab().isNull());
  }

 private:
  // A face that is there wherever the program is built: which caption is too long depends on it.
  static QFont letters(int pixels) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(pixels);
    return font;
  }

  ButtonWidget* button(const QString& caption) {
    auto* widget = new ButtonWidget(parent.get(), pictures, [] {});
    widget->setFont(letters(30));
    widget->resize(200, 40);
    widget->setCaption(caption);
    shared->add(*widget);
    widget->show();
    return widget;
  }

  platform::Pictures pictures{QString()};
  std::unique_ptr<QWidget> parent;
  std::unique_ptr<CaptionSize> shared;
};

const prova::Iscrizione<CaptionSizeTest, QApplication> kIscritta;

}  // namespace caption_size_test

#include "caption_size_test.moc"
