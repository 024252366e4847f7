#include "platform/forms/property_bag.h"

#include <algorithm>

namespace platform::inline forms {

namespace {

PropertyValue valueOf(const StoredProperty& stored) {
  return std::visit(
      [](const auto& held) -> PropertyValue {
        if constexpr (std::same_as<std::decay_t<decltype(held)>, std::string_view>) {
          return QString::fromUtf8(held.data(), qsizetype(held.size()));
        } else {
          return held;
        }
      },
      stored.value);
}

}  // namespace

PropertyBag::PropertyBag(std::span<const StoredProperty> stored) {
  for (const StoredProperty& one : stored) {
    entries_.push_back(
        {QString::fromUtf8(one.name.data(), qsizetype(one.name.size())), valueOf(one)});
  }
}

void PropertyBag::write(QStringView name, const PropertyValue& value,
                        const PropertyValue& fallback) {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [name](const Entry& entry) { return entry.name == name; });
  if (value == fallback) {
    if (found != entries_.end()) entries_.erase(found);
  } else if (found != entries_.end()) {
    found->value = value;
  } else {
    entries_.push_back({name.toString(), value});
  }
}

PropertyValue PropertyBag::read(QStringView name, const PropertyValue& fallback) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [name](const Entry& entry) { return entry.name == name; });
  return found == entries_.end() ? fallback : found->value;
}

}  // namespace platform::inline forms
