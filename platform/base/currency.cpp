#include "platform/base/currency.h"

#include "platform/base/numbers.h"

namespace platform::inline base {

Currency Currency::fromDouble(double value) {
  Currency result;
  result.tenThousandths_ = roundHalfEven(value * kScale);
  return result;
}

}  // namespace platform::inline base
