#include "platform/flash/stage.h"

#include <algorithm>
#include <utility>

#include "platform/flash/limits.h"
#include "platform/flash/timeline.h"

namespace platform::flash {

namespace {

// Nanoseconds.
constexpr std::int64_t kPlaceWork = 2000;  // with what removing it will take
constexpr std::int64_t kVisitWork = 200;
constexpr std::int64_t kRecordWork = 50;
constexpr std::int64_t kQueueWork = 50;
constexpr std::size_t kPlaceMemory = 600;  // bytes
constexpr std::uint32_t kRootId = 1;

}  // namespace

Stage::Stage(std::shared_ptr<const Movie> movie, Budget& budget)
    : movie_(std::move(movie)),
      budget_(budget),
      root_(std::make_unique<Clip>(kRootId, nullptr, movie_->timeline)) {
  containers_.emplace(root_->id, root_.get());
}

Container* Stage::find(std::uint32_t id) const {
  const auto found = containers_.find(id);
  return found == containers_.end() ? nullptr : found->second;
}

Container* Stage::findRemoved(std::uint32_t id) const {
  if (Container* there = find(id)) {
    return there;
  }
  const auto found = removed_.find(id);
  return found == removed_.end() ? nullptr : found->second;
}

void Stage::eachClip(const std::function<void(Clip&)>& visit) const {
  std::vector<std::uint32_t> ids;
  for (auto at = containers_.rbegin(); at != containers_.rend(); ++at) {
    ids.push_back(at->first);
  }
  for (const std::uint32_t id : ids) {
    if (Clip* clip = asClip(find(id)); clip != nullptr && budget_.spend(kVisitWork)) {
      visit(*clip);
    }
  }
}

std::unique_ptr<Instance> Stage::make(const Character& character) {
  const std::uint32_t id = lastId_ + 1;
  std::unique_ptr<Instance> made;
  if (const auto* sprite = character.as<Sprite>()) {
    made = std::make_unique<Clip>(id, &character, sprite->timeline);
  } else if (const auto* button = character.as<Button>()) {
    made = std::make_unique<ButtonInstance>(id, &character, *button);
  } else if (character.as<Font>() == nullptr) {
    made = std::make_unique<Instance>(Instance::Kind::Graphic, id, &character);
  }
  if (made != nullptr) {
    ++lastId_;
    ++instances_;
  }
  return made;
}

Instance* Stage::place(Container& parent, const Placement& placement) {
  const Character* character = movie_->character(placement.character);
  if (parent.removed) {
    return nullptr;
  }
  remove(parent, placement.depth);
  // A stage that is full ends the step.
  if (character != nullptr && instances_ >= limits::kInstances) budget_.exhaust();
  if (character == nullptr || !budget_.spend(kPlaceWork) || !budget_.hold(kPlaceMemory)) {
    return nullptr;
  }
  std::unique_ptr<Instance> made = make(*character);
  if (made == nullptr) {
    return nullptr;
  }
  made->depth = placement.depth;
  made->clipDepth = placement.clipDepth;
  made->matrix = placement.matrix;
  made->color = placement.color;
  made->name = placement.name;
  made->placeFrame = placement.frame;
  made->placeIndex = placement.index;
  if (Clip* clip = asClip(made.get())) {
    clip->handlers = placement.handlers;
  }
  Instance* instance = made.get();
  enter(parent, std::move(made));
  return instance;
}

void Stage::enter(Container& parent, std::unique_ptr<Instance> instance) {
  Instance& placed = *instance;
  placed.parent = &parent;
  parent.children[placed.depth] = std::move(instance);
  Container* container = asContainer(&placed);
  if (container == nullptr) {
    return;
  }
  containers_.emplace(placed.id, container);
  if (placed.name.isEmpty()) {
    placed.name = QStringLiteral("instance%1").arg(++lastInstanceName_);
  }
  memory_.name(placed.name);
  if (Clip* clip = asClip(&placed)) {
    raise(*clip, ClipEvent::Initialize);
    raise(*clip, ClipEvent::Construct);
    raise(*clip, ClipEvent::Load);
    workOffFrame(*this, *clip);
  } else {
    setState(static_cast<ButtonInstance&>(placed), ButtonState::Up);
  }
}

void Stage::bury(Instance& instance) {
  instance.removed = true;
  --instances_;
  Container* container = asContainer(&instance);
  if (container == nullptr) {
    return;
  }
  if (Clip* clip = asClip(&instance)) {
    raise(*clip, ClipEvent::Unload, true);
  }
  containers_.erase(instance.id);
  removed_.emplace(instance.id, container);
  for (const auto& [depth, child] : container->children) {
    bury(*child);
  }
}

void Stage::forget(const Instance& instance) {
  const Container* container = asContainer(&instance);
  if (container == nullptr) {
    return;
  }
  memory_.unname(instance.name);
  for (auto at = container->variables.cbegin(); at != container->variables.cend(); ++at) {
    memory_.forget(at.key(), at.value());
  }
  for (const auto& [depth, child] : container->children) {
    forget(*child);
  }
}

void Stage::remove(Container& parent, int depth) {
  const auto found = parent.children.find(depth);
  if (found == parent.children.end() || parent.removed) {
    return;
  }
  bury(*found->second);
  graveyard_.push_back(std::move(found->second));
  parent.children.erase(found);
}

void Stage::setState(ButtonInstance& button, ButtonState state) {
  button.state = state;
  const auto shows = [state](const ButtonRecord& record) {
    return (record.states & static_cast<unsigned>(state)) != 0;
  };
  const std::vector<ButtonRecord>& records = button.button.records;
  budget_.spend(kRecordWork * static_cast<std::int64_t>(records.size() + button.children.size()));
  std::vector<int> leaving;
  for (const auto& [depth, child] : button.children) {
    if (!shows(records[static_cast<std::size_t>(child->placeIndex)])) {
      leaving.push_back(depth);
    }
  }
  for (const int depth : leaving) {
    remove(button, depth);
  }
  for (std::size_t i = 0; i < records.size(); ++i) {
    const ButtonRecord& record = records[i];
    const int index = static_cast<int>(i);
    const auto there = button.children.find(record.depth);
    const bool stays = there != button.children.end() && there->second->placeIndex == index;
    if (shows(record) && !stays) {
      place(
          button,
          {record.character, record.depth, record.matrix, record.color, {}, 0, nullptr, 0, index});
    }
  }
}

void Stage::enqueue(QueuedScript script) {
  budget_.spend(kQueueWork);
  if (queue_.size() < std::size_t(limits::kQueuedBlocks)) {
    queue_.push_back(std::move(script));
  }
}

void Stage::enqueueInit(CharacterId sprite, Clip& clip, ActionBlock block) {
  if (initialized_.insert(sprite).second) {
    initQueue_.push_back({clip.id, block, nullptr, false});
  }
}

bool Stage::nextScript(QueuedScript& script) {
  while (!initQueue_.empty() || !queue_.empty()) {
    std::deque<QueuedScript>& from = initQueue_.empty() ? queue_ : initQueue_;
    script = std::move(from.front());
    from.pop_front();
    if (script.whenRemoved || find(script.clip) != nullptr) {
      return true;
    }
  }
  return false;
}

void Stage::beginEntry() {
  gotosLeft_ = limits::kGotosPerTick;
  commandsLeft_ = limits::kCommandsPerTick;
}

void Stage::endEntry() {
  queue_.clear();
  initQueue_.clear();
  for (const std::unique_ptr<Instance>& buried : graveyard_) {
    forget(*buried);
  }
  removed_.clear();
  graveyard_.clear();
}

void Stage::store(Container& owner, const QString& name, Value value) {
  budget_.spend(kLookUpWork);
  const QString key = movie_->folded(name);
  const auto found = owner.variables.find(key);
  const bool isNew = found == owner.variables.end();
  if (!memory_.replace(key, isNew ? nullptr : &found.value(), value)) {
    return;
  }
  if (isNew) {
    owner.variables.insert(key, value);
  } else {
    found.value() = std::move(value);
  }
}

void Stage::rename(Container& clip, QString name) {
  if (memory_.rename(clip.name, name)) {
    clip.name = std::move(name);
  }
}

}  // namespace platform::flash
