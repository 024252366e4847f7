// Movies that are small and ask for much: none of their steps holds whoever plays them.

#include <QImage>
#include <QTest>
#include <optional>

#include "costly.h"
#include "platform/flash/player.h"
#include "platform/flash/renderer.h"
#include "step_cost.h"
#include "support/iscrizione.h"

namespace costly_movies_test {

using namespace platform::flash;
using platform::flash::Property;
using step_cost::costOf;

class CostlyMoviesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyStepIsBoundedInTimeAndMemory_data() {
    QTest::addColumn<int>("movie");
    for (std::size_t i = 0; i < movies_.size(); ++i) {
      QTest::newRow(movies_[i].name) << int(i);
    }
  }

  void everyStepIsBoundedInTimeAndMemory() {
    QFETCH(int, movie);
    const QByteArray& bytes = movies_[std::size_t(movie)].bytes;
    std::optional<Player> player;
    Renderer renderer;
    Scene shown;
    check("loading", [&] { player.emplace(hand_made::movie(bytes), [](auto&&...) {}); });
    picture("the first picture", *player, renderer, shown);
    for (int i = 0; i < 3; ++i) {
      check("a tick", [&] {
        player->tick();
        (void)player->canChange();
      });
      picture("a picture", *player, renderer, shown);
    }
    check("a click", [&] { player->mousePress({50, 50}); });
    check("a question", [&] { (void)player->property(QStringLiteral("c"), Property::Width); });
    check("a goto", [&] { player->gotoFrame(2); });
    check("the end", [&] { player.reset(); });
  }

  void namesThatScriptsGiveCountAsWhatTheyKeep() {
    Player player(hand_made::movie(costly::longNames()), [](auto&&...) {});
    const auto cost = costOf([&] {
      for (int i = 0; i < 100; ++i) player.tick();
    });
    QVERIFY2(cost.megabytes <= step_cost::kMost, qPrintable(QString::number(cost.megabytes)));
  }

 private:
  template <typename Step>
  void check(const char* what, Step step) {
    const step_cost::Cost cost = costOf(step);
    qInfo("%s: %ld ms, %ld MB", what, cost.milliseconds, cost.megabytes);
    if (!cost.isBounded()) {
      QTest::qFail(qPrintable(QStringLiteral("%1 takes %2 ms and %3 MB")
                                  .arg(QString::fromLatin1(what))
                                  .arg(cost.milliseconds)
                                  .arg(cost.megabytes)),
                   __FILE__, __LINE__);
    }
  }

  // As a window of 1920 by 1080 shows it: what is there now, where it differs, the whole drawn.
  void picture(const char* what, const Player& player, Renderer& renderer, Scene& shown) {
    QImage image(1920, 1080, QImage::Format_RGB32);
    image.fill(0);
    check(what, [&] {
      Scene now = player.scene();
      (void)differences(shown, now);
      (void)player.showsHand();
      const QRectF stage = player.movie().stage;
      renderer.paint(now, QTransform::fromScale(1920 / stage.width(), 1080 / stage.height()),
                     player.movie().background, image);
      shown = std::move(now);
    });
  }

  const std::vector<costly::Movie> movies_ = costly::movies();
};

const prova::Iscrizione<CostlyMoviesTest> kIscritta;

}  // namespace costly_movies_test

#include "costly_movies_test.moc"
