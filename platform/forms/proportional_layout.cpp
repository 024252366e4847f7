#include "platform/forms/proportional_layout.h"

#include "platform/forms/loaded_form.h"

namespace platform::inline forms {

void ProportionalLayout::start() {
  LoadedForm(form_).layOut();
}

void ProportionalLayout::resize() {
  LoadedForm(form_).layOut();
}

}  // namespace platform::inline forms
