#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "platform/flash/budget.h"
#include "platform/flash/instance.h"
#include "platform/flash/script_memory.h"

namespace platform::flash {

// What is to be placed, and by which command.
struct Placement {
  CharacterId character = 0;
  int depth = 0;
  QTransform matrix;
  ColorTransform color;
  QString name;
  int clipDepth = 0;
  const std::vector<ClipHandler>* handlers = nullptr;
  int frame = 0;
  int index = 0;
};

// A piece of script that waits for its turn.
struct QueuedScript {
  std::uint32_t clip = 0;
  ActionBlock block;         // either this
  FunctionRef function;      // or this
  bool whenRemoved = false;  // runs although its clip has gone
};

// Everything that stands on the stage of one running movie, and the scripts that wait. It keeps the
// books; frames are worked off by timeline.h, scripts run in the Interpreter, both on the Player's
// word.
class Stage {
 public:
  // budget: what the present step may still cost; it must outlive the stage.
  Stage(std::shared_ptr<const Movie> movie, Budget& budget);

  [[nodiscard]] const Movie& movie() const { return *movie_; }
  // Also those who only look have to pay for it.
  [[nodiscard]] Budget& budget() const { return budget_; }
  [[nodiscard]] Clip& root() { return *root_; }
  [[nodiscard]] const Clip& root() const { return *root_; }
  // The clip or button of that number; null once it has been removed.
  [[nodiscard]] Container* find(std::uint32_t id) const;
  // The same, but for what has been removed since the step began, too, which scripts that run upon
  // removal still know.
  [[nodiscard]] Container* findRemoved(std::uint32_t id) const;
  // Calls visit for each clip, the newest first, those that come meanwhile not.
  void eachClip(const std::function<void(Clip&)>& visit) const;

  // Makes the thing and hands it to the parent, where it takes the depth from what was there. A
  // sprite's first frame is worked off at once, its scripts wait their turn. Null when the
  // character cannot be shown or a limit is reached.
  Instance* place(Container& parent, const Placement& placement);
  void remove(Container& parent, int depth);
  // Shows what the button shows in a state; what it shows in both states stays.
  void setState(ButtonInstance& button, ButtonState state);

  // Lets the handlers of a clip for an event wait their turn. True when there is one.
  bool raise(Clip& clip, ClipEvent event, bool whenRemoved = false);
  // The same for a button, whose handlers run on behalf of the clip that it lies in. clipEvent:
  // what the event is called where a script has put a function for it into the button.
  void raiseButton(ButtonInstance& button, ButtonEvent event, ClipEvent clipEvent);
  // Whether a clip has a handler for one of the events.
  [[nodiscard]] bool listens(const Container& clip, std::uint32_t events) const;
  // The function that a script has put into the member of that name (onPress, ...), if any.
  [[nodiscard]] FunctionRef memberFunction(const Container& owner, const QString& name) const;

  void enqueue(QueuedScript script);
  // Before all others, once for each sprite.
  void enqueueInit(CharacterId sprite, Clip& clip, ActionBlock block);
  // The next script whose clip is still there; false when none is left.
  bool nextScript(QueuedScript& script);

  // Begins a tick or the handling of one call from outside.
  void beginEntry();
  // Ends it: what was removed is destroyed, what still waits is dropped.
  void endEntry();
  bool spendGoto() { return --gotosLeft_ >= 0; }
  bool spendCommand() { return --commandsLeft_ >= 0; }
  // Stores a variable; it is left out where scripts hold too much already.
  void store(Container& owner, const QString& name, Value value);
  // The same for the name of a clip.
  void rename(Container& clip, QString name);

 private:
  // Nanoseconds to look a variable up, whose name may be written in capitals.
  static constexpr std::int64_t kLookUpWork = 200;

  std::unique_ptr<Instance> make(const Character& character);
  void enter(Container& parent, std::unique_ptr<Instance> instance);
  void bury(Instance& instance);
  // Gives back what variables and names of something that is destroyed have taken.
  void forget(const Instance& instance);
  bool raiseMember(Container& owner, ClipEvent event, bool whenRemoved);

  std::shared_ptr<const Movie> movie_;
  Budget& budget_;
  std::map<std::uint32_t, Container*> containers_;  // by number, so by age
  std::map<std::uint32_t, Container*> removed_;     // those in the graveyard
  std::vector<std::unique_ptr<Instance>> graveyard_;
  std::unique_ptr<Clip> root_;
  std::deque<QueuedScript> queue_;
  std::deque<QueuedScript> initQueue_;
  std::set<CharacterId> initialized_;
  std::uint32_t lastId_ = 1;  // the root's
  int lastInstanceName_ = 0;
  int instances_ = 0;
  int gotosLeft_ = 0;
  int commandsLeft_ = 0;
  ScriptMemory memory_;
};

}  // namespace platform::flash
