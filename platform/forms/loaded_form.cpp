#include "platform/forms/loaded_form.h"

namespace platform::inline forms {

bool LoadedForm::runLoad() {
  return form_.run([this] { form_.onLoad(); }, Gate::Cases::DoNotMatter);
}

bool LoadedForm::runActivate() {
  return form_.run([this] { form_.onActivate(); }, Gate::Cases::DoNotMatter);
}

bool LoadedForm::runUnload() {
  return form_.run([this] { form_.onUnload(); }, Gate::Cases::DoNotMatter);
}

bool LoadedForm::runClose() {
  return form_.run([this] { form_.onClose(); });
}

}  // namespace platform::inline forms
