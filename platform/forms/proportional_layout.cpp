#include "platform/forms/proportional_layout.h"

#include "platform/forms/form.h"

namespace platform {

void ProportionalLayout::start() {
  form_.layOut();
}

void ProportionalLayout::resize() {
  form_.layOut();
}

}  // namespace platform
