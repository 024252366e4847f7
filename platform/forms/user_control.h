#pragma once

#include <QStringList>
#include <span>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/property.h"
#include "platform/forms/property_bag.h"

namespace platform::inline forms {

// One inner control of a reusable control, as a design row is one control of a form.
struct InnerRow {
  std::string_view name;
  int index;  // in a control array; -1 outside of one
  Control& (*control)(UserControl& owner, int index);
  Look look;
};

// A row for a member of the reusable control.
template <auto Member>
constexpr InnerRow inner(Look look = {}) {
  using Owner = typename design::MemberOf<decltype(Member)>::Class;
  return {nameOf<Member>, -1,
          [](UserControl& owner, int) -> Control& { return static_cast<Owner&>(owner).*Member; },
          look};
}
// A row for element `index` of a control array.
template <auto Member>
  requires design::IsArray<typename design::MemberOf<decltype(Member)>::Kind>
constexpr InnerRow inner(int index, Look look = {}) {
  using Owner = typename design::MemberOf<decltype(Member)>::Class;
  return {nameOf<Member>, index,
          [](UserControl& owner, int i) -> Control& {
            return (static_cast<Owner&>(owner).*Member).element(i);
          },
          look};
}

// The base of reusable controls: a control of a form that is made of controls itself and has
// properties that a store keeps. The inner controls belong to it alone: the form does not list
// them, so that the language does not reach them. Their places are twips of the page, counted from
// the corner of the reusable control; its own layout sets them, at each resize and each change of a
// property.
class UserControl : public Control, public ControlHost {
 public:
  // rows: the inner controls in the order of their making, which is also that of Tab.
  UserControl(ControlHost& host, std::span<const InnerRow> rows);

  // The persisted properties, in the order of the store.
  [[nodiscard]] std::span<PropertyBase* const> properties() const { return properties_; }
  // A property by its name; throws RunTimeError(InvalidCall) for a name that it does not have.
  [[nodiscard]] PropertyBase& property(QStringView name) const;
  void readProperties(const PropertyBag& bag);
  void writeProperties(PropertyBag& bag) const;
  // The names of the properties that have been set since the control was made, each once.
  [[nodiscard]] const QStringList& changedProperties() const { return changed_; }

  // ControlHost
  [[nodiscard]] ControlHome& home() override { return Control::home(); }
  [[nodiscard]] const Scale& scale() const override { return Control::scale(); }
  void declare(Control& /*control*/) override {}

  // Control
  // Goes to the first inner control that can take the focus.
  void setFocus() override;
  [[nodiscard]] bool hasFocus() const override;
  void applyScale() override;
  [[nodiscard]] std::vector<QWidget*> tabStops() const override;
  void keysLetGo() override;

 protected:
  // Puts the inner controls where they belong.
  virtual void layOut() = 0;
  // A property has been set; the layout, where it runs one, comes after this.
  virtual void propertySet(const PropertyBase& /*property*/) {}

  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void placeChanged() override;

 private:
  friend class PropertyBase;
  void propertyChanged(const PropertyBase& property, bool laysOut);

  std::span<const InnerRow> rows_;
  std::vector<Control*> inner_;
  std::vector<PropertyBase*> properties_;
  QStringList changed_;
};

}  // namespace platform::inline forms
