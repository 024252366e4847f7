#pragma once

#include <memory>

#include "platform/base/time_source.h"
#include "platform/forms/controls/key_panel.h"

namespace platform::inline forms {

// Holds the keyboard focus for a key panel while it is enabled: wherever the focus goes inside the
// panel's window, it is back within the interval. It is never taken from a menu, a box or another
// program; when these have gone it comes back as soon.
//
// It stands for a timer that looks all the time, and sleeps: it looks once after each thing that
// happens to the focus, to the windows, or to the panel. Without an interval it does nothing.
class FocusKeeper : public Control {
 public:
  // panel: built by the same host.
  FocusKeeper(ControlHost& host, KeyPanel& panel);
  ~FocusKeeper() override;

  // Milliseconds.
  void setInterval(int milliseconds);
  [[nodiscard]] int interval() const { return interval_; }
  void setEnabled(bool enabled) override;
  void formGone() override;

 protected:
  // No widget.
  [[nodiscard]] QWidget* create(QWidget* parent) override;

 private:
  class Watch;

  [[nodiscard]] bool isOn() const;
  void wake();
  void look();

  KeyPanel& panel_;
  std::unique_ptr<Watch> watch_;
  std::unique_ptr<Ticker> ticker_;
  int interval_ = 0;
};

}  // namespace platform::inline forms
