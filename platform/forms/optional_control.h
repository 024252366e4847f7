#pragma once

#include <optional>

#include "platform/forms/control.h"

namespace platform::inline forms {

// A control that only some of the designs of a form's class have: the design's row makes it, and
// without a row there is none.
template <class T>
class OptionalControl {
 public:
  explicit OptionalControl(ControlHost& host) : host_(host) {}

  [[nodiscard]] explicit operator bool() const { return control_.has_value(); }
  // The control; asking for one that the design does not have is a mistake in the program.
  [[nodiscard]] T& operator*() { return control_.value(); }
  [[nodiscard]] const T& operator*() const { return control_.value(); }
  [[nodiscard]] T* operator->() { return &control_.value(); }
  [[nodiscard]] const T* operator->() const { return &control_.value(); }

  // The control, which is made first where it is missing: for the design rows.
  [[nodiscard]] T& element() { return control_ ? *control_ : control_.emplace(host_); }

 private:
  ControlHost& host_;
  std::optional<T> control_;
};

}  // namespace platform::inline forms
