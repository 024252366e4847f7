#include "platform/flash/player.h"

#include <algorithm>
#include <utility>

#include "platform/flash/bounds.h"
#include "platform/flash/hit_test.h"
#include "platform/flash/limits.h"
#include "platform/flash/properties.h"
#include "platform/flash/targets.h"
#include "platform/flash/timeline.h"
#include "platform/flash/units.h"

namespace platform::flash {

Player::Player(std::shared_ptr<const Movie> movie, CommandSink onCommand, Budget::Clock clock)
    : budget_(std::move(clock)),
      stage_(std::move(movie), budget_),
      interpreter_(stage_, std::move(onCommand)),
      pointer_(stage_) {
  enter([this] { workOffFrame(stage_, stage_.root()); });
  cutOff_ = cutOff_ || stage_.movie().cutOff;
}

template <typename Call>
void Player::enter(Call call) {
  budget_.begin(limits::kPlaying);
  stage_.beginEntry();
  call();
  runScripts();
  cutOff_ = cutOff_ || budget_.isSpent();
  stage_.endEntry();
}

template <typename Look>
auto Player::ask(Look look) const {
  budget_.begin(limits::kAsking);
  return look();
}

void Player::runScripts() {
  constexpr std::int64_t kScriptWork = 500;
  QueuedScript script;
  while (!cutOff_ && budget_.spend(kScriptWork) && stage_.nextScript(script)) {
    interpreter_.run(script);
  }
}

void Player::tick() {
  if (cutOff_) {
    return;
  }
  enter([this] {
    stage_.eachClip([this](Clip& clip) {
      stage_.raise(clip, ClipEvent::EnterFrame);
      advance(stage_, clip);
    });
    runScripts();
    pointer_.update();
  });
}

bool Player::canChange() const {
  return !cutOff_ && ask([this] {
    bool can = false;
    stage_.eachClip([&](const Clip& clip) {
      can = can || (clip.playing && clip.timeline.frameCount() > 1) ||
            stage_.listens(clip, static_cast<std::uint32_t>(ClipEvent::EnterFrame));
    });
    return can;
  });
}

void Player::gotoFrame(int frame) {
  enter([&] { platform::flash::gotoFrame(stage_, stage_.root(), std::max(frame, 1) - 1, false); });
}

void Player::play() {
  stage_.root().playing = true;
}

void Player::stop() {
  stage_.root().playing = false;
}

Scene Player::scene() const {
  return ask([this] { return sceneOf(stage_); });
}

bool Player::showsHand() const {
  return ask([this] { return pointer_.isOverInteractive(); });
}

void Player::setProperty(const QString& target, Property property, const QString& value) {
  budget_.begin(limits::kAsking);
  Container* of = resolveTarget(stage_, &stage_.root(), target);
  if (of != nullptr) {
    // A text that is no number is none to the host, whatever the movie's scripts make of it.
    constexpr int kStrict = 5;
    setPropertyOf(stage_, *of, property,
                  property == Property::Name ? Value(value) : Value(numberOf(value, kStrict)));
  }
}

QString Player::property(const QString& target, Property property) const {
  budget_.begin(limits::kAsking);
  const Container* root = &stage_.root();
  const Container* of = resolveTarget(stage_, const_cast<Container*>(root), target);
  if (of == nullptr) {
    return {};
  }
  const Value value = propertyOf(stage_, *of, property);
  if (const bool* truth = std::get_if<bool>(&value)) {
    return *truth ? QStringLiteral("1") : QStringLiteral("0");
  }
  return toText(value, 6);
}

QRectF Player::placeOf(const QString& name) const {
  return ask([&] {
    const Container* child = childNamed(stage_, stage_.root(), name);
    return child == nullptr ? QRectF()
                            : stage_.root().matrix.mapRect(boundsInParent(*child, budget_));
  });
}

std::optional<QPointF> Player::clickPoint(const QString& name) const {
  return ask([&]() -> std::optional<QPointF> {
    const Container* child = childNamed(stage_, stage_.root(), name);
    if (child == nullptr || !child->visible) return std::nullopt;
    const QPointF middle = stage_.root().matrix.mapRect(boundsInParent(*child, budget_)).center();
    const Container* hit = interactiveAt(stage_, middle);
    while (hit != nullptr && hit != child) hit = hit->parent;
    if (hit == nullptr) return std::nullopt;
    return (middle - movie().stage.topLeft()) / kPixel.count();
  });
}

QPointF Player::toStage(QPointF position) const {
  return position * kPixel.count() + movie().stage.topLeft();
}

void Player::mouseMove(QPointF position) {
  enter([&] { pointer_.moveTo(toStage(position)); });
}

void Player::mousePress(QPointF position) {
  enter([&] { pointer_.press(toStage(position)); });
}

void Player::mouseRelease(QPointF position) {
  enter([&] { pointer_.release(toStage(position)); });
}

void Player::mouseReleaseOutside() {
  enter([&] { pointer_.releaseOutside(); });
}

void Player::mouseLeave() {
  enter([&] { pointer_.leave(); });
}

}  // namespace platform::flash
