#pragma once

#include <QPointF>

#include "platform/flash/instance.h"

namespace platform::flash {

class Stage;

// The mouse over a stage: turns its moves and presses into the events of buttons and clips and
// into the looks of buttons. The scripts only wait afterwards; the player runs them.
class Pointer {
 public:
  explicit Pointer(Stage& stage) : stage_(stage) {}

  // Positions in twips of the stage.
  void moveTo(QPointF point);
  void press(QPointF point);
  void release(QPointF point);
  // Off the stage, where nothing lies.
  void releaseOutside();
  // The mouse has left the stage; a button that is pressed stays so.
  void leave();
  // Looks again at what lies under the mouse, since the stage has changed.
  void update();

  // Whether the hand should be shown.
  [[nodiscard]] bool isOverInteractive() const;

 private:
  enum class Event { RollOver, RollOut, Press, Release, DragOut, DragOver, ReleaseOutside };

  void letGo();
  void look();
  void follow();
  void raise(std::uint32_t id, Event event);
  [[nodiscard]] bool isMenu(std::uint32_t id) const;
  void raiseEverywhere(ClipEvent event);

  Stage& stage_;
  QPointF at_;
  bool inside_ = false;  // of the stage
  bool down_ = false;
  std::uint32_t under_ = 0;    // what lies under the mouse now; 0: nothing
  std::uint32_t over_ = 0;     // what has been told that the mouse is over it
  std::uint32_t pressed_ = 0;  // what was pressed and not yet let go
};

}  // namespace platform::flash
