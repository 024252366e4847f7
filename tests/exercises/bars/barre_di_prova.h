#pragma once

#include "platform/forms/control_array.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/design.h"

// What the tests of the bars have in common.
namespace prova {

inline constexpr platform::Rgb kRosso{255, 0, 0};
inline constexpr platform::Rgb kVerdeScuro{0, 192, 0};
inline constexpr platform::Rgb kCiano{0, 255, 255};

inline int visibili(platform::ControlArray<platform::Label>& quadretti) {
  int quanti = 0;
  quadretti.forEach([&quanti](platform::Label& q) { quanti += q.isVisible() ? 1 : 0; });
  return quanti;
}

inline bool stannoSulPosto(const platform::Control& a, const platform::Control& b) {
  return a.widget()->geometry() == b.widget()->geometry();
}

}  // namespace prova
