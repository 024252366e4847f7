#pragma once

#include <QString>
#include <functional>
#include <utility>

#include "platform/forms/property_bag.h"

namespace platform::inline forms {

class UserControl;

// A persisted property of a reusable control, by its name. A control's properties are its members
// of this kind; the order in which they are declared is the order in which they are read from and
// written to a store, so that the declarations are the table of the store.
class PropertyBase {
 public:
  // Enters itself in the control's list.
  PropertyBase(UserControl& owner, QString name);
  virtual ~PropertyBase() = default;
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;

  [[nodiscard]] const QString& name() const { return name_; }
  // The value in the type of the store.
  [[nodiscard]] virtual PropertyValue value() const = 0;
  [[nodiscard]] virtual PropertyValue fallback() const = 0;
  // Sets the property as its owner's user does; throws what the conversion throws.
  virtual void setValue(const PropertyValue& value) = 0;
  // Takes the value from a store, without marking it as changed and without the layout.
  virtual void load(const PropertyValue& value) = 0;

 protected:
  void changed(bool laysOut);

 private:
  UserControl& owner_;
  QString name_;
};

// Setting it keeps the value, marks the property as changed and runs the control's layout.
// Stored: its type in the store, where that is another one.
template <class T, class Stored = T>
class Property : public PropertyBase {
 public:
  Property(UserControl& owner, QString name, Stored fallback)
      : PropertyBase(owner, std::move(name)),
        fallback_(std::move(fallback)),
        value_(convertedTo<T>(fallback_)) {}

  [[nodiscard]] const T& get() const { return value_; }
  void set(T value) {
    value_ = std::move(value);
    changed(true);
  }

  [[nodiscard]] PropertyValue value() const override { return convertedTo<Stored>(value_); }
  [[nodiscard]] PropertyValue fallback() const override { return fallback_; }
  void setValue(const PropertyValue& value) override { set(convertedTo<T>(value)); }
  void load(const PropertyValue& value) override { value_ = convertedTo<T>(value); }

 private:
  Stored fallback_;
  T value_;
};

// A property that one of the inner controls keeps: setting it marks it as changed, and the layout
// is left alone.
template <class T>
class InnerProperty : public PropertyBase {
 public:
  InnerProperty(UserControl& owner, QString name, T fallback, std::function<T()> get,
                std::function<void(const T&)> put)
      : PropertyBase(owner, std::move(name)),
        fallback_(std::move(fallback)),
        get_(std::move(get)),
        put_(std::move(put)) {}

  [[nodiscard]] T get() const { return get_(); }
  void set(const T& value) {
    put_(value);
    changed(false);
  }

  [[nodiscard]] PropertyValue value() const override { return get(); }
  [[nodiscard]] PropertyValue fallback() const override { return fallback_; }
  void setValue(const PropertyValue& value) override { set(convertedTo<T>(value)); }
  void load(const PropertyValue& value) override { put_(convertedTo<T>(value)); }

 private:
  T fallback_;
  std::function<T()> get_;
  std::function<void(const T&)> put_;
};

}  // namespace platform::inline forms
