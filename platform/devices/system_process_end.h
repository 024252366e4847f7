#pragma once

#include "platform/base/services.h"

namespace platform::inline devices {

// Ends the process on the spot. What was written to the standard streams reaches them; nothing
// else is tidied up and no thread is waited for, so that a sound server that hangs cannot hold the
// end up.
class SystemProcessEnd final : public ProcessEnd {
 public:
  // Does not return.
  [[noreturn]] void end(int status) override;
};

}  // namespace platform::inline devices
