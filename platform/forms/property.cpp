#include "platform/forms/property.h"

#include "platform/forms/user_control.h"

namespace platform::inline forms {

PropertyBase::PropertyBase(UserControl& owner, QString name)
    : owner_(owner), name_(std::move(name)) {
  owner_.properties_.push_back(this);
}

void PropertyBase::changed(bool laysOut) {
  owner_.propertyChanged(*this, laysOut);
}

}  // namespace platform::inline forms
