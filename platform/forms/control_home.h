#pragma once

#include <functional>
#include <vector>

namespace platform::inline forms {

class Control;
class Ground;
class Page;
struct FormDesign;

// What a form is to its controls.
class ControlHome {
 public:
  virtual ~ControlHome() = default;

  [[nodiscard]] virtual Ground& ground() const = 0;
  [[nodiscard]] virtual const FormDesign& design() const = 0;
  // What stands on the screen of the form, from its building on.
  [[nodiscard]] virtual Page* page() const = 0;
  // Every control in the order of the design rows, then what was made at run time.
  [[nodiscard]] virtual const std::vector<Control*>& controls() const = 0;
  [[nodiscard]] virtual bool isUnloaded() const = 0;

  // Runs a handler through the gate; a wait in it ends with its case. False when it did not come to
  // its end.
  virtual bool raise(const std::function<void()>& handler) = 0;
  // Lets queued events run once. Does not return when the form or its case has gone meanwhile.
  virtual void letEventsRun() = 0;

  // Shows `panel` over everything: only what is in it takes mouse, Tab and access keys, until it is
  // hidden. The focus goes to its first button and comes back afterwards.
  virtual void cover(Control& panel) = 0;
  virtual void uncover(Control& panel) = 0;
  // Whether the control can be reached now, or lies under a covering panel.
  [[nodiscard]] virtual bool isCovered(const Control& control) const = 0;
  // Remembers a focus that was given to a covered control.
  virtual void setFocusBelow(Control& control) = 0;
  // Takes the focus from what has been hidden where nothing else could take it: what is not on the
  // screen hears no keys.
  virtual void dropHiddenFocus() = 0;

  // A control has been made at run time, or is about to be destroyed.
  virtual void adopt(Control& control) = 0;
  virtual void release(const Control& control) = 0;
};

}  // namespace platform::inline forms
