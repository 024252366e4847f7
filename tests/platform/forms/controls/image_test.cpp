#include "platform/forms/controls/image.h"

#include <QApplication>
#include <QImage>

#include "platform/forms/controls/label.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace image_test {

using platform::Pop;
using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

QImage pictureOf(const platform::Control& control) {
  return control.widget()->grab().toImage();
}

// The smallest part of a picture outside of which nothing differs from its corner.
QRect inkOf(const QImage& picture) {
  QRect ink;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != picture.pixel(0, 0)) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

}  // namespace

// What moves for show: a picture that pops up, a label that lights up.
class ImageTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aPictureThatPopsBeginsSmallAndEndsAsItWas_data() {
    QTest::addColumn<bool>("burst");
    QTest::newRow("with parts that fly") << true;
    QTest::newRow("shaken") << false;
  }
  void aPictureThatPopsBeginsSmallAndEndsAsItWas() {
    QFETCH(bool, burst);
    Stage stage;
    stage.motion.voluto = true;
    TrialForm& form = stage.show(kOne);
    const QImage before = pictureOf(form.Sign);
    form.Sign.pop(burst ? Pop::Burst : Pop::Shake);
    const QImage first = pictureOf(form.Sign);
    // It is seen from its first picture on.
    QVERIFY(inkOf(first).width() > before.width() / 3);
    QVERIFY(inkOf(first).width() < inkOf(before).width() * 3 / 4);
    stage.time.advance(0.12);
    const QImage middle = pictureOf(form.Sign);
    QVERIFY(inkOf(middle).width() > inkOf(first).width());
    QVERIFY(middle != before);
    stage.time.advance(0.14);
    QCOMPARE(pictureOf(form.Sign), before);
    QVERIFY(!stage.time.anyTicker());
  }

  void aShakenPictureGoesToBothSidesAndIsNeverCutOff() {
    Stage stage;
    stage.motion.voluto = true;
    TrialForm& form = stage.show(kOne);
    const QRect whole = inkOf(pictureOf(form.Sign));
    int left = 0;
    int right = 0;
    form.Sign.pop(Pop::Shake);
    for (int i = 0; i < 15; ++i) {
      const QRect now = inkOf(pictureOf(form.Sign));
      QVERIFY(form.Sign.widget()->rect().adjusted(1, 1, -1, -1).contains(now));
      left = std::min(left, now.center().x() - whole.center().x());
      right = std::max(right, now.center().x() - whole.center().x());
      stage.time.advance(0.016);
    }
    QVERIFY(left <= -3);
    QVERIFY(right >= 3);
  }

  void aSecondPopBeginsAnew() {
    Stage stage;
    stage.motion.voluto = true;
    TrialForm& form = stage.show(kOne);
    form.Sign.pop(Pop::Burst);
    const QImage first = pictureOf(form.Sign);
    stage.time.advance(0.2);
    QVERIFY(pictureOf(form.Sign) != first);
    form.Sign.pop(Pop::Burst);
    QCOMPARE(pictureOf(form.Sign), first);
    stage.time.advance(0.2);
    QVERIFY(stage.time.anyTicker());
  }

  void hidingAPictureEndsItsMovement() {
    Stage stage;
    stage.motion.voluto = true;
    TrialForm& form = stage.show(kOne);
    const QImage before = pictureOf(form.Sign);
    form.Sign.pop(Pop::Burst);
    form.Sign.setVisible(false);
    QVERIFY(!stage.time.anyTicker());
    form.Sign.setVisible(true);
    QCOMPARE(pictureOf(form.Sign), before);
  }

  void whereNothingMayMoveAPictureStandsAndALabelStaysDark() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    const QImage sign = pictureOf(form.Sign);
    const QImage words = pictureOf(form.Words);
    form.Sign.pop(Pop::Burst);
    form.Words.glow();
    QCOMPARE(pictureOf(form.Sign), sign);
    QCOMPARE(pictureOf(form.Words), words);
    QVERIFY(!stage.time.anyTicker());
  }

  void aLabelLightsUpForHalfASecondWithoutAFlash() {
    Stage stage;
    stage.motion.voluto = true;
    TrialForm& form = stage.show(kOne);
    for (platform::Label* label : {&form.Words, &form.Square[0]}) {
      const QImage before = pictureOf(*label);
      label->glow();
      const QImage lit = pictureOf(*label);
      const QColor ground = lit.pixelColor(lit.width() - 8, lit.height() / 2);
      QCOMPARE(ground, QColor(255, 212, 59));
      QVERIFY(platform::contrast(ground, toColor(label->foreColor())) >= 4.5);
      QVERIFY(platform::contrast(ground, lit.pixelColor(0, 0)) >= 3);
      // It stands, and then fades in steps that are no flash.
      QColor last = ground;
      for (int i = 0; i < 33; ++i) {
        const QColor now = pictureOf(*label).pixelColor(lit.width() - 8, lit.height() / 2);
        if (i < 18) QCOMPARE(now, ground);
        QVERIFY(platform::contrast(now, last) < 1.15);
        last = now;
        stage.time.advance(0.016);
      }
      QCOMPARE(pictureOf(*label), before);
      QVERIFY(!stage.time.anyTicker());
    }
  }

  void aMovementEndsWithItsForm() {
    Stage stage;
    stage.motion.voluto = true;
    TrialForm& form = stage.show(kOne);
    form.Sign.pop(Pop::Burst);
    form.Words.glow();
    const std::shared_ptr<platform::Form> kept = form.shared_from_this();
    stage.runtime->unload(form);
    QVERIFY(kept->isUnloaded());
    QVERIFY(!stage.time.anyTicker());
  }
};

const prova::Iscrizione<ImageTest, QApplication> kIscritta;

}  // namespace image_test

#include "image_test.moc"
