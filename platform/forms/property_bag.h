#pragma once

#include <QString>
#include <QStringView>
#include <concepts>
#include <span>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "platform/base/numbers.h"
#include "platform/base/run_time_error.h"
#include "platform/forms/design.h"

namespace platform::inline forms {

// What a property can hold in a store.
using PropertyValue = std::variant<bool, qint16, qint32, double, QString>;

// The value as another type. Numbers become numbers, true is -1 and every number but 0 is true.
// Throws RunTimeError: Overflow for a number that the type cannot hold, InvalidCall between texts
// and numbers.
template <class T>
[[nodiscard]] T convertedTo(const PropertyValue& value) {
  return std::visit(
      [](const auto& held) -> T {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::same_as<T, Held>) {
          return held;
        } else if constexpr (std::same_as<T, QString> || std::same_as<Held, QString>) {
          throw RunTimeError(RunTimeError::InvalidCall);
        } else if constexpr (std::same_as<T, bool>) {
          return held != 0;
        } else if constexpr (std::same_as<Held, bool>) {
          return T(held ? -1 : 0);
        } else if constexpr (std::same_as<T, qint16>) {
          return toInt16(held);
        } else if constexpr (std::same_as<T, qint32>) {
          return toInt32(held);
        } else {
          return held;
        }
      },
      value);
}

// The stored properties of one reusable control: typed values under names, in the order in which
// they were written. It knows nothing of controls, and of defaults only what it is told.
class PropertyBag {
 public:
  struct Entry {
    QString name;
    PropertyValue value;

    friend bool operator==(const Entry&, const Entry&) = default;
  };

  PropertyBag() = default;
  // What the design keeps of an instance.
  explicit PropertyBag(std::span<const StoredProperty> stored);

  // A value that equals its default is not kept. One that is written again stays at its place.
  void write(QStringView name, const PropertyValue& value, const PropertyValue& fallback);
  // The value of the name, or the default where the bag has none.
  [[nodiscard]] PropertyValue read(QStringView name, const PropertyValue& fallback) const;

  [[nodiscard]] std::span<const Entry> entries() const { return entries_; }

 private:
  std::vector<Entry> entries_;
};

}  // namespace platform::inline forms
