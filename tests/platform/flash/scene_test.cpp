#include "platform/flash/scene.h"

#include <QTest>

#include "hand_made.h"
#include "platform/flash/player.h"
#include "support/iscrizione.h"

namespace scene_test {

using namespace hand_made;
using namespace platform::flash;
using platform::flash::Property;

namespace {

// Three clips, each a square of 10 pixels, at 0, 20 and 40 pixels.
QByteArray threeClips() {
  return square(1, 10, 0xFF0000) + sprite(2, place(1, 1) + showFrame()) + place(1, 2, 0, 0, "a") +
         place(2, 2, 20, 0, "b") + place(3, 2, 40, 0, "c") + showFrame();
}

QRectF square10(int x, int y) {
  return {x * 20.0, y * 20.0, 200, 200};
}

}  // namespace

class SceneTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<Player> player_;

  // Where the picture changes by a call.
  template <typename Call>
  std::vector<QRectF> changedBy(Call call) {
    const Scene before = player_->scene();
    call(*player_);
    return differences(before, player_->scene());
  }

 private Q_SLOTS:
  void init() {
    player_ = std::make_unique<Player>(movie(file(threeClips())), [](auto&&...) {});
  }

  void theSceneListsWhatIsVisibleFromTheBackToTheFront() {
    const Scene scene = player_->scene();
    QCOMPARE(scene.items.size(), std::size_t(3));
    QCOMPARE(scene.items[0].bounds, square10(0, 0));
    QCOMPARE(scene.items[1].bounds, square10(20, 0));
    QCOMPARE(scene.items[2].bounds, square10(40, 0));
  }

  void nothingDiffersWhereNothingHasChanged() {
    QVERIFY(changedBy([](Player& player) { player.tick(); }).empty());
  }

  void hidingDiffersInThePlaceOfTheClipOnly() {
    const auto places = changedBy([](Player& player) {
      player.setProperty(QStringLiteral("b"), Property::Visible, QStringLiteral("0"));
    });
    QCOMPARE(places, std::vector{square10(20, 0)});
  }

  void fadingDiffersInThePlaceOfTheClipOnly() {
    const auto places = changedBy([](Player& player) {
      player.setProperty(QStringLiteral("c"), Property::Alpha, QStringLiteral("30"));
    });
    for (const QRectF& place : places) {
      QCOMPARE(place, square10(40, 0));
    }
    QVERIFY(!places.empty());
  }

  void movingDiffersInTheOldAndTheNewPlace() {
    const auto places = changedBy([](Player& player) {
      player.setProperty(QStringLiteral("a"), Property::Y, QStringLiteral("50"));
    });
    QCOMPARE(places, (std::vector{square10(0, 0), square10(0, 50)}));
  }

  void severalChangesDifferInTheirOwnPlaces() {
    const auto places = changedBy([](Player& player) {
      player.setProperty(QStringLiteral("a"), Property::Visible, QStringLiteral("0"));
      player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    });
    QCOMPARE(places, (std::vector{square10(0, 0), square10(40, 0)}));
  }

  void aMaskThatMovesDiffersWhereWhatItMasksStands() {
    const QByteArray mask = tag(26, u8(0x66) + u16(1) + u16(2) + shift(0, 0) + text("m") + u16(5));
    Player masked(movie(file(square(1, 10, 0) + sprite(2, place(1, 1) + showFrame()) + mask +
                             place(2, 1) + place(7, 1, 50, 0) + showFrame())),
                  [](auto&&...) {});
    const Scene before = masked.scene();
    masked.setProperty(QStringLiteral("m"), Property::X, QStringLiteral("3"));
    for (const QRectF& place : differences(before, masked.scene())) {
      QCOMPARE(place, square10(0, 0));
    }
    QVERIFY(!differences(before, masked.scene()).empty());
  }

  void clipsThatChangePlacesInDepthDiffer() {
    // The order of painting as a list of instances; the same items the other way round.
    const Scene before = player_->scene();
    Scene after = before;
    std::swap(after.items[0], after.items[1]);
    QVERIFY(!differences(before, after).empty());
  }
};

const prova::Iscrizione<SceneTest> kIscritta;

}  // namespace scene_test

#include "scene_test.moc"
