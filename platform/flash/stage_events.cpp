// The part of the stage that knows who hears an event.
#include <algorithm>
#include <array>
#include <utility>

#include "platform/flash/stage.h"

namespace platform::flash {

namespace {

// Nanoseconds.
constexpr std::int64_t kHandlerWork = 3;

struct NamedEvent {
  ClipEvent event;
  const char16_t* name;
};

// The members in which scripts keep their handlers.
constexpr std::array kNamedEvents{
    NamedEvent{ClipEvent::Load, u"onLoad"},
    NamedEvent{ClipEvent::EnterFrame, u"onEnterFrame"},
    NamedEvent{ClipEvent::Unload, u"onUnload"},
    NamedEvent{ClipEvent::MouseMove, u"onMouseMove"},
    NamedEvent{ClipEvent::MouseDown, u"onMouseDown"},
    NamedEvent{ClipEvent::MouseUp, u"onMouseUp"},
    NamedEvent{ClipEvent::Press, u"onPress"},
    NamedEvent{ClipEvent::Release, u"onRelease"},
    NamedEvent{ClipEvent::ReleaseOutside, u"onReleaseOutside"},
    NamedEvent{ClipEvent::RollOver, u"onRollOver"},
    NamedEvent{ClipEvent::RollOut, u"onRollOut"},
    NamedEvent{ClipEvent::DragOver, u"onDragOver"},
    NamedEvent{ClipEvent::DragOut, u"onDragOut"},
};

}  // namespace

bool Stage::raise(Clip& clip, ClipEvent event, bool whenRemoved) {
  bool any = false;
  if (clip.handlers != nullptr) {
    budget_.spend(kHandlerWork * static_cast<std::int64_t>(clip.handlers->size()));
    for (const ClipHandler& handler : *clip.handlers) {
      if (handler.takes(event)) {
        enqueue({clip.id, handler.actions, nullptr, whenRemoved});
        any = true;
      }
    }
  }
  return raiseMember(clip, event, whenRemoved) || any;
}

bool Stage::raiseMember(Container& owner, ClipEvent event, bool whenRemoved) {
  if (owner.variables.isEmpty()) {
    return false;
  }
  const auto named = std::find_if(kNamedEvents.begin(), kNamedEvents.end(),
                                  [event](const NamedEvent& row) { return row.event == event; });
  if (named == kNamedEvents.end()) {
    return false;
  }
  FunctionRef function = memberFunction(owner, QString::fromUtf16(named->name));
  if (function == nullptr) {
    return false;
  }
  enqueue({owner.id, {}, std::move(function), whenRemoved});
  return true;
}

void Stage::raiseButton(ButtonInstance& button, ButtonEvent event, ClipEvent clipEvent) {
  // A button within a button has no clip of its own; the scripts run for the next one outwards.
  Container* clip = button.parent;
  while (clip != nullptr && asClip(clip) == nullptr) {
    clip = clip->parent;
  }
  budget_.spend(kHandlerWork * static_cast<std::int64_t>(button.button.handlers.size()));
  for (const ButtonHandler& handler : button.button.handlers) {
    if ((handler.events & static_cast<unsigned>(event)) != 0 && clip != nullptr) {
      enqueue({clip->id, handler.actions, nullptr, false});
    }
  }
  raiseMember(button, clipEvent, false);
}

bool Stage::listens(const Container& owner, std::uint32_t events) const {
  if (const Clip* clip = asClip(&owner); clip != nullptr && clip->handlers != nullptr) {
    budget_.spend(kHandlerWork * static_cast<std::int64_t>(clip->handlers->size()));
    for (const ClipHandler& handler : *clip->handlers) {
      if ((handler.events & events) != 0) {
        return true;
      }
    }
  }
  if (owner.variables.isEmpty()) {
    return false;
  }
  for (const NamedEvent& named : kNamedEvents) {
    if ((static_cast<std::uint32_t>(named.event) & events) != 0 &&
        memberFunction(owner, QString::fromUtf16(named.name)) != nullptr) {
      return true;
    }
  }
  return false;
}

FunctionRef Stage::memberFunction(const Container& owner, const QString& name) const {
  budget_.spend(kLookUpWork);
  const Value value = owner.variables.value(movie_->folded(name));
  const auto* function = std::get_if<FunctionRef>(&value);
  return function == nullptr ? nullptr : *function;
}

}  // namespace platform::flash
