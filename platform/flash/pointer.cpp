#include "platform/flash/pointer.h"

#include <array>
#include <utility>

#include "platform/flash/hit_test.h"
#include "platform/flash/stage.h"

namespace platform::flash {

namespace {

// What an event is to a button and to a clip, and how a button looks after it.
struct EventRow {
  ButtonEvent button;
  ClipEvent clip;
  ButtonState look;
};

constexpr std::array kEventRows{
    EventRow{ButtonEvent::RollOver, ClipEvent::RollOver, ButtonState::Over},
    EventRow{ButtonEvent::RollOut, ClipEvent::RollOut, ButtonState::Up},
    EventRow{ButtonEvent::Press, ClipEvent::Press, ButtonState::Down},
    EventRow{ButtonEvent::Release, ClipEvent::Release, ButtonState::Over},
    EventRow{ButtonEvent::DragOut, ClipEvent::DragOut, ButtonState::Over},
    EventRow{ButtonEvent::DragOver, ClipEvent::DragOver, ButtonState::Down},
    EventRow{ButtonEvent::ReleaseOutside, ClipEvent::ReleaseOutside, ButtonState::Up},
};

}  // namespace

bool Pointer::isMenu(std::uint32_t id) const {
  const Container* found = stage_.find(id);
  return found != nullptr && found->kind == Instance::Kind::Button &&
         static_cast<const ButtonInstance*>(found)->button.trackAsMenu;
}

void Pointer::raise(std::uint32_t id, Event event) {
  const EventRow& row = kEventRows[static_cast<std::size_t>(event)];
  Container* found = stage_.find(id);
  if (found == nullptr) {
    return;
  }
  if (Clip* clip = asClip(found)) {
    stage_.raise(*clip, row.clip);
    return;
  }
  auto& button = static_cast<ButtonInstance&>(*found);
  ButtonEvent transition = row.button;
  if (button.button.trackAsMenu && event == Event::DragOver) {
    transition = ButtonEvent::MenuDragOver;
  } else if (button.button.trackAsMenu && event == Event::DragOut) {
    transition = ButtonEvent::MenuDragOut;
  }
  stage_.raiseButton(button, transition, row.clip);
  const bool leavesMenu = button.button.trackAsMenu && event == Event::DragOut;
  stage_.setState(button, leavesMenu ? ButtonState::Up : row.look);
}

void Pointer::raiseEverywhere(ClipEvent event) {
  stage_.eachClip([&](Clip& clip) { stage_.raise(clip, event); });
}

void Pointer::look() {
  const Container* found = inside_ ? interactiveAt(stage_, at_) : nullptr;
  under_ = found == nullptr ? 0 : found->id;
}

// Tells what the mouse has left and what it has come to, by the rules that hold while nothing, or
// something, is pressed.
void Pointer::follow() {
  look();
  if (stage_.find(pressed_) == nullptr) {
    pressed_ = 0;
  }
  if (pressed_ != 0 && isMenu(pressed_) && under_ != pressed_) {
    raise(std::exchange(pressed_, 0), Event::DragOut);
    over_ = 0;
  }
  if (pressed_ != 0) {
    const std::uint32_t now = under_ == pressed_ ? pressed_ : 0;
    if (now != over_) {
      raise(pressed_, now != 0 ? Event::DragOver : Event::DragOut);
      over_ = now;
    }
  } else if (down_ && isMenu(under_)) {
    pressed_ = over_ = under_;
    raise(pressed_, Event::DragOver);
  } else if (const std::uint32_t now = down_ && under_ != over_ ? 0 : under_; now != over_) {
    // A button does not open up to a mouse that was pressed elsewhere.
    raise(over_, Event::RollOut);
    over_ = now;
    raise(over_, Event::RollOver);
  }
}

void Pointer::update() {
  follow();
}

void Pointer::moveTo(QPointF point) {
  at_ = point;
  inside_ = true;
  raiseEverywhere(ClipEvent::MouseMove);
  follow();
}

void Pointer::leave() {
  inside_ = false;
  follow();
}

void Pointer::press(QPointF point) {
  if (down_) {
    releaseOutside();  // its release got lost
  }
  at_ = point;
  inside_ = true;
  follow();
  down_ = true;
  raiseEverywhere(ClipEvent::MouseDown);
  if (under_ != 0 && pressed_ == 0) {
    pressed_ = under_;
    raise(pressed_, Event::Press);
  }
}

void Pointer::release(QPointF point) {
  at_ = point;
  inside_ = true;
  letGo();
}

void Pointer::releaseOutside() {
  inside_ = false;
  if (down_) {
    letGo();
  }
  follow();
}

void Pointer::letGo() {
  follow();
  raiseEverywhere(ClipEvent::MouseUp);
  down_ = false;
  if (pressed_ != 0) {
    const bool within = under_ == pressed_;
    raise(std::exchange(pressed_, 0), within ? Event::Release : Event::ReleaseOutside);
  }
  follow();
}

bool Pointer::isOverInteractive() const {
  return pressed_ != 0 || (inside_ && interactiveAt(stage_, at_) != nullptr);
}

}  // namespace platform::flash
