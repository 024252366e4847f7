#include "platform/forms/gate.h"

#include <algorithm>

#include "platform/base/run_time_error.h"

namespace platform::inline forms {

bool Gate::run(const std::shared_ptr<HandlerOwner>& form, const std::function<void()>& handler,
               Cases cases) {
  if (closed_ || form->isUnloaded()) return false;
  frames_.push_back({form, cases});
  bool finished = false;
  try {
    handler();
    finished = true;
  } catch (const Unwind&) {
    // The wait that threw it has told that there is nothing left to do here.
  } catch (const RunTimeError& error) {
    onError_(error);
  }
  leave();
  return finished;
}

void Gate::leave() {
  const Frame left = std::move(frames_.back());
  frames_.pop_back();
  if (left.form->isUnloaded() && !isRunning(*left.form)) onIdle_();
  for (const std::function<void()>& action : left.afterwards) action();
}

void Gate::afterHandler(std::function<void()> action) {
  if (frames_.empty()) {
    action();
  } else {
    frames_.back().afterwards.push_back(std::move(action));
  }
}

void Gate::wait(const std::function<void()>& work, Cases cases) {
  if (frames_.empty()) {
    work();
    return;
  }
  const std::shared_ptr<HandlerOwner> form = frames_.back().form;
  const int caseNumber = form->caseNumber();
  work();
  const bool matter = cases == Cases::Matter && frames_.back().cases == Cases::Matter;
  const bool replaced = matter && form->caseNumber() != caseNumber;
  if (closed_ || form->isUnloaded() || replaced) throw Unwind{};
}

bool Gate::isRunning(const HandlerOwner& form) const {
  return std::any_of(frames_.begin(), frames_.end(),
                     [&form](const Frame& frame) { return frame.form.get() == &form; });
}

Gate::AcrossCases::AcrossCases(Gate& gate)
    : gate_(gate), before_(gate.frames_.empty() ? Cases::Matter : gate.frames_.back().cases) {
  if (!gate_.frames_.empty()) gate_.frames_.back().cases = Cases::DoNotMatter;
}

Gate::AcrossCases::~AcrossCases() {
  if (!gate_.frames_.empty()) gate_.frames_.back().cases = before_;
}

}  // namespace platform::inline forms
