#include "platform/forms/user_control.h"

#include <QWidget>
#include <algorithm>

#include "platform/base/run_time_error.h"

namespace platform::inline forms {

UserControl::UserControl(ControlHost& host, std::span<const InnerRow> rows)
    : Control(host), rows_(rows) {}

QWidget* UserControl::create(QWidget* parent) {
  auto* room = new QWidget(parent);
  for (const InnerRow& row : rows_) {
    Control& control = row.control(*this, row.index);
    control.build(room, QString::fromUtf8(row.name.data(), qsizetype(row.name.size())), row.index,
                  {}, row.look);
    inner_.push_back(&control);
    // The pointer of the whole holds over its parts.
    if (control.widget() != nullptr) control.widget()->unsetCursor();
  }
  readProperties(PropertyBag(look().stored));
  return room;
}

PropertyBase& UserControl::property(QStringView name) const {
  const auto found =
      std::find_if(properties_.begin(), properties_.end(),
                   [name](const PropertyBase* property) { return property->name() == name; });
  if (found == properties_.end()) throw RunTimeError(RunTimeError::InvalidCall);
  return **found;
}

void UserControl::readProperties(const PropertyBag& bag) {
  for (PropertyBase* property : properties_) {
    property->load(bag.read(property->name(), property->fallback()));
  }
}

void UserControl::writeProperties(PropertyBag& bag) const {
  for (const PropertyBase* property : properties_) {
    bag.write(property->name(), property->value(), property->fallback());
  }
}

void UserControl::propertyChanged(const PropertyBase& property, bool laysOut) {
  if (!changed_.contains(property.name())) changed_.append(property.name());
  propertySet(property);
  if (laysOut && isBuilt()) layOut();
}

void UserControl::placeChanged() {
  Control::placeChanged();
  if (isBuilt()) layOut();
}

void UserControl::applyScale() {
  Control::applyScale();
  for (Control* control : inner_) control->applyScale();
  layOut();
}

void UserControl::setFocus() {
  if (!isVisible()) return;
  for (Control* control : inner_) {
    const QWidget* widget = control->widget();
    if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
    if (!control->isVisible() || !control->isEnabled()) continue;
    control->setFocus();
    return;
  }
}

bool UserControl::hasFocus() const {
  return std::any_of(inner_.begin(), inner_.end(),
                     [](const Control* control) { return control->hasFocus(); });
}

std::vector<QWidget*> UserControl::tabStops() const {
  std::vector<QWidget*> stops;
  for (const Control* control : inner_) {
    const std::vector<QWidget*> theirs = control->tabStops();
    stops.insert(stops.end(), theirs.begin(), theirs.end());
  }
  return stops;
}

void UserControl::keysLetGo() {
  for (Control* control : inner_) control->keysLetGo();
}

}  // namespace platform::inline forms
