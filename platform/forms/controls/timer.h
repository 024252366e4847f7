#pragma once

#include <functional>
#include <memory>

#include "platform/base/time_source.h"
#include "platform/forms/control.h"

namespace platform::inline forms {

// A timer of a form: its ticks run through the form's gate, and stop for ever when the form is
// unloaded.
class Timer : public Control {
 public:
  explicit Timer(ControlHost& host);
  ~Timer() override;

  void onTick(std::function<void()> handler) { tick_ = std::move(handler); }
  // Milliseconds; the count starts anew.
  void setInterval(int milliseconds);
  [[nodiscard]] int interval() const { return interval_; }
  void setEnabled(bool enabled) override;
  void formGone() override { update(); }

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;

 private:
  void update();

  std::function<void()> tick_;
  std::unique_ptr<Ticker> ticker_;
  int interval_ = 0;
};

}  // namespace platform::inline forms
