#pragma once

#include <functional>

#include "platform/base/message_boxes.h"

class QCursor;
class QWidget;

namespace platform::inline base {
class Announcer;
class Network;
class TimeSource;
}

namespace platform::inline forms {

class Form;
class Gate;
class Pictures;

// What forms and their controls have of the ground that they stand on, whoever holds it together.
class Ground {
 public:
  Ground() = default;
  virtual ~Ground() = default;
  Ground(const Ground&) = delete;
  Ground& operator=(const Ground&) = delete;

  [[nodiscard]] virtual TimeSource& time() = 0;
  [[nodiscard]] virtual Announcer& announcer() = 0;
  [[nodiscard]] virtual Network* network() = 0;  // null under forms without sockets
  [[nodiscard]] virtual Gate& gate() = 0;
  [[nodiscard]] virtual Pictures& pictures() = 0;
  // Whether something may move for show.
  [[nodiscard]] virtual bool mayMove() = 0;
  // The program's own pointer, 32 by 32 logical pixels.
  [[nodiscard]] virtual const QCursor& pointer() = 0;

  // Shows a box from a handler. Does not return into it when its form has gone meanwhile; a new
  // case does not matter.
  virtual BoxAnswer showBox(const MessageBox& box) = 0;
  // Lets a wait of the running handler work while every window of the program takes no mouse button
  // and no key: for a device that may keep the handler waiting for seconds. Does not return into it
  // when its form has gone meanwhile; a new case does not matter.
  virtual void waitDeaf(const std::function<void()>& work) = 0;
  [[nodiscard]] virtual bool isDeaf() const = 0;
  // Whether a form is being shown and the old page must not take input.
  [[nodiscard]] virtual bool isChanging() const = 0;
  // Whether a press in this widget acts now: nothing is waited for with deaf ears, its page is not
  // being left, and no box or dialog stands over its window.
  [[nodiscard]] virtual bool mayAct(const QWidget& widget) const = 0;

  // Caption, icon or height of a form have changed: the window that shows it follows.
  virtual void formChanged(Form& form) = 0;
  // Takes a form from the screen at once; it is destroyed when no handler of it is left on the
  // stack.
  virtual void unload(Form& form) = 0;
};

}  // namespace platform::inline forms
