#include "platform/forms/controls/scroll_bar.h"

#include "platform/forms/controls/scroll_bar_widget.h"
#include "platform/forms/form.h"

namespace platform::inline forms {

namespace {

constexpr int kMax = 100;
constexpr int kLargeChange = 10;

int stored(const Look& look, std::string_view name, int otherwise) {
  for (const StoredProperty& property : look.stored) {
    const auto* value = std::get_if<std::int16_t>(&property.value);
    if (property.name == name && value != nullptr) return *value;
  }
  return otherwise;
}

}  // namespace

QWidget* ScrollBar::create(QWidget* parent) {
  auto* bar = new ScrollBarWidget(parent, unit_, [this] { return mayAct(); });
  bar->setRange(stored(look(), "Min", 0), stored(look(), "Max", kMax));
  bar->setSingleStep(stored(look(), "SmallChange", 1));
  bar->setPageStep(stored(look(), "LargeChange", kLargeChange));
  QObject::connect(bar, &QSlider::valueChanged, bar, [this] { raiseEvent(changed_); });
  return bar;
}

void ScrollBar::applyLook() {
  widget()->setToolTip(toolTip());
  widget()->setAccessibleName(toolTip());
}

int ScrollBar::value() const {
  return static_cast<ScrollBarWidget*>(widget())->value();
}

void ScrollBar::setValue(int value) {
  static_cast<ScrollBarWidget*>(widget())->setValue(value);
}

int ScrollBar::minimum() const {
  return static_cast<ScrollBarWidget*>(widget())->minimum();
}

int ScrollBar::maximum() const {
  return static_cast<ScrollBarWidget*>(widget())->maximum();
}

}  // namespace platform::inline forms
