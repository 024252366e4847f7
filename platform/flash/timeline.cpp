#include "platform/flash/timeline.h"

#include <algorithm>
#include <map>
#include <vector>

#include "platform/flash/stage.h"

namespace platform::flash {

namespace {

// Nanoseconds.
constexpr std::int64_t kFrameWork = 20;
constexpr std::int64_t kCommandWork = 300;
constexpr std::int64_t kKeepWork = 50;

// What a command puts on a depth that holds nothing it could take over.
Placement placementOf(const PlaceCommand& command, int frame, int index) {
  Placement placement;
  placement.character = command.character;
  placement.depth = command.depth;
  placement.matrix = command.matrix.value_or(QTransform());
  placement.color = command.color.value_or(ColorTransform());
  placement.name = command.name.value_or(QString());
  placement.clipDepth = command.clipDepth.value_or(0);
  placement.handlers = command.handlers.empty() ? nullptr : &command.handlers;
  placement.frame = frame;
  placement.index = index;
  return placement;
}

// For both a thing on the stage and one that is only planned.
template <typename Placed>
void change(Placed& placed, const PlaceCommand& command) {
  placed.matrix = command.matrix.value_or(placed.matrix);
  placed.color = command.color.value_or(placed.color);
  placed.clipDepth = command.clipDepth.value_or(placed.clipDepth);
}

// A new character takes over what the command does not say.
template <typename Placed>
Placement replaced(const Placed& old, const PlaceCommand& command, int frame, int index) {
  Placement placement = placementOf(command, frame, index);
  placement.matrix = command.matrix.value_or(old.matrix);
  placement.color = command.color.value_or(old.color);
  placement.name = command.name.value_or(old.name);
  placement.clipDepth = command.clipDepth.value_or(old.clipDepth);
  return placement;
}

void place(Stage& stage, Clip& clip, const PlaceCommand& command, int index) {
  const auto found = clip.children.find(command.depth);
  Instance* there = found == clip.children.end() ? nullptr : found->second.get();
  if (command.mode == PlaceCommand::Mode::Move) {
    if (there != nullptr && !there->steered) {
      change(*there, command);
    }
  } else if (command.mode == PlaceCommand::Mode::Replace && there != nullptr) {
    stage.place(clip, replaced(*there, command, clip.frame, index));
  } else {
    stage.place(clip, placementOf(command, clip.frame, index));
  }
}

void queueScript(Stage& stage, Clip& clip, const Command& command) {
  if (const auto* script = std::get_if<DoActionCommand>(&command)) {
    stage.enqueue({clip.id, script->actions, nullptr, false});
  } else if (const auto* init = std::get_if<InitActionCommand>(&command)) {
    stage.enqueueInit(init->sprite, clip, init->actions);
  }
}

using Plan = std::map<int, Placement>;

// What stands on each depth after all commands up to a frame, this one included; empty when that
// takes more work than is allowed.
std::optional<Plan> planOf(Stage& stage, const Timeline& timeline, int frame) {
  Plan plan;
  for (int f = 0; f <= frame; ++f) {
    const std::vector<Command>& commands = timeline.frames[std::size_t(f)].commands;
    if (!stage.budget().spend(kFrameWork + kCommandWork * std::int64_t(commands.size()))) {
      return std::nullopt;
    }
    for (std::size_t i = 0; i < commands.size(); ++i) {
      if (const auto* removal = std::get_if<RemoveCommand>(&commands[i])) {
        plan.erase(removal->depth);
        continue;
      }
      const auto* command = std::get_if<PlaceCommand>(&commands[i]);
      if (command == nullptr) {
        continue;
      }
      const auto there = plan.find(command->depth);
      const int index = static_cast<int>(i);
      if (command->mode == PlaceCommand::Mode::Move) {
        if (there != plan.end()) {
          change(there->second, *command);
        }
      } else if (command->mode == PlaceCommand::Mode::Replace && there != plan.end()) {
        there->second = replaced(there->second, *command, f, index);
      } else {
        plan.insert_or_assign(command->depth, placementOf(*command, f, index));
      }
    }
  }
  return plan;
}

bool isSame(const Instance& instance, const Placement& placement) {
  return instance.placeFrame == placement.frame && instance.placeIndex == placement.index;
}

// Takes away what the plan does not know and brings what stays into its place.
void keepCommon(Stage& stage, Clip& clip, const Plan& plan) {
  stage.budget().spend(kKeepWork * std::int64_t(clip.children.size()));
  std::vector<int> leaving;
  for (const auto& [depth, child] : clip.children) {
    const auto planned = plan.find(depth);
    if (planned == plan.end() || !isSame(*child, planned->second)) {
      leaving.push_back(depth);
    } else if (!child->steered) {
      child->matrix = planned->second.matrix;
      child->color = planned->second.color;
      child->clipDepth = planned->second.clipDepth;
    }
  }
  for (const int depth : leaving) {
    stage.remove(clip, depth);
  }
}

void showFrame(Stage& stage, Clip& clip, int frame, bool withScripts) {
  const std::optional<Plan> plan = planOf(stage, clip.timeline, frame);
  if (!plan) {
    return;
  }
  clip.frame = frame;
  keepCommon(stage, clip, *plan);
  const auto bring = [&](const Placement& placement) {
    if (!clip.children.contains(placement.depth)) {
      stage.place(clip, placement);
    }
  };
  for (const auto& [depth, placement] : *plan) {
    if (placement.frame < frame) {
      bring(placement);
    }
  }
  // What this frame itself places comes between its scripts, in the order of the tags.
  const std::vector<Command>& commands = clip.timeline.frames[std::size_t(frame)].commands;
  for (std::size_t i = 0; i < commands.size(); ++i) {
    if (const auto* command = std::get_if<PlaceCommand>(&commands[i])) {
      const auto planned = plan->find(command->depth);
      if (planned != plan->end() && planned->second.frame == frame &&
          planned->second.index == static_cast<int>(i)) {
        bring(planned->second);
      }
    } else if (withScripts) {
      queueScript(stage, clip, commands[i]);
    }
  }
}

}  // namespace

void workOffFrame(Stage& stage, Clip& clip) {
  const std::vector<Command>& commands = clip.timeline.frames[std::size_t(clip.frame)].commands;
  for (std::size_t i = 0; i < commands.size() && stage.budget().spend(kCommandWork); ++i) {
    if (const auto* command = std::get_if<PlaceCommand>(&commands[i])) {
      place(stage, clip, *command, static_cast<int>(i));
    } else if (const auto* removal = std::get_if<RemoveCommand>(&commands[i])) {
      stage.remove(clip, removal->depth);
    } else {
      queueScript(stage, clip, commands[i]);
    }
  }
}

void advance(Stage& stage, Clip& clip) {
  const int count = clip.timeline.frameCount();
  if (!clip.playing || count <= 1) {
    return;
  }
  if (clip.frame + 1 < count) {
    ++clip.frame;
    workOffFrame(stage, clip);
  } else {
    showFrame(stage, clip, 0, true);
  }
}

void gotoFrame(Stage& stage, Clip& clip, int frame, bool play) {
  if (clip.removed) {
    return;  // a script that runs upon removal
  }
  clip.playing = play;
  const int last = clip.timeline.frameCount() - 1;
  const bool beyond = frame > last;
  frame = std::clamp(frame, 0, last);
  if (frame != clip.frame && stage.spendGoto()) {
    showFrame(stage, clip, frame, !beyond);
  }
}

std::optional<int> frameOfLabel(const Stage& stage, const Clip& clip, const QString& label) {
  constexpr std::int64_t kLabelWork = 100;
  constexpr std::int64_t kCharacterWork = 5;
  stage.budget().spend(kLabelWork + kCharacterWork * label.size());
  const auto found = clip.timeline.labels.constFind(stage.movie().folded(label));
  if (found == clip.timeline.labels.constEnd()) {
    return std::nullopt;
  }
  return std::min(*found, clip.timeline.frameCount() - 1);
}

}  // namespace platform::flash
