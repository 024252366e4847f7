#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace platform::inline base {
class RunTimeError;
}

namespace platform::inline forms {

// Who handlers belong to: a form.
class HandlerOwner {
 public:
  virtual ~HandlerOwner() = default;
  [[nodiscard]] virtual bool isUnloaded() const = 0;
  // Goes up with each case that begins.
  [[nodiscard]] virtual int caseNumber() const = 0;
};

// Thrown by a wait that must not return into the handler that called it. Only gates catch it.
struct Unwind {};

// The gate that every handler of a form runs through. It keeps the form alive while a handler of it
// runs, takes what a wait throws when its form or its case has gone, and is the one place where a
// run-time error that nobody ignored is taken.
//
// It does not decide what a failed handler means for the program: it tells `onError`.
class Gate {
 public:
  // onError: called with the error that left a handler, before the gate returns.
  // onIdle: called when the last handler of an unloaded form has left the stack.
  Gate(std::function<void(const RunTimeError&)> onError, std::function<void()> onIdle)
      : onError_(std::move(onError)), onIdle_(std::move(onIdle)) {}

  enum class Cases { Matter, DoNotMatter };

  // Runs the handler, unless the program is ending or the form has gone. False when the handler did
  // not come to its end. cases: whether a wait in it ends with its case (see `Form::newCase`).
  bool run(const std::shared_ptr<HandlerOwner>& form, const std::function<void()>& handler,
           Cases cases = Cases::Matter);

  // Lets a wait or a yield of the running handler do its work and checks afterwards whether the
  // handler may go on; throws Unwind when it may not: its form was unloaded, its case was replaced,
  // or the program is ending. Outside of any handler it just lets it work. cases: whether the case
  // counts; what keeps the handler waiting for something else than its case says that it does not.
  void wait(const std::function<void()>& work, Cases cases = Cases::Matter);

  // Does something once the running handler has left the stack; at once outside of any.
  void afterHandler(std::function<void()> action);

  // From here on no handler starts and every wait unwinds.
  void close() { closed_ = true; }
  [[nodiscard]] bool isClosed() const { return closed_; }
  // Whether a handler of the form is on the stack.
  [[nodiscard]] bool isRunning(const HandlerOwner& form) const;

  // While one lives, the waits of the running handler go on although its case is replaced: for the
  // one action that is told to come to its end.
  class AcrossCases {
   public:
    explicit AcrossCases(Gate& gate);
    ~AcrossCases();
    AcrossCases(const AcrossCases&) = delete;
    AcrossCases& operator=(const AcrossCases&) = delete;

   private:
    Gate& gate_;
    Cases before_;
  };

 private:
  struct Frame {
    std::shared_ptr<HandlerOwner> form;
    Cases cases;
    std::vector<std::function<void()>> afterwards = {};
  };

  void leave();

  std::function<void(const RunTimeError&)> onError_;
  std::function<void()> onIdle_;
  std::vector<Frame> frames_;
  bool closed_ = false;
};

}  // namespace platform::inline forms
