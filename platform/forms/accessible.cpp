#include "platform/forms/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <algorithm>
#include <array>

#include "platform/forms/controls/button_widget.h"
#include "platform/forms/controls/image_widget.h"
#include "platform/forms/controls/key_panel_widget.h"
#include "platform/forms/controls/panel_widget.h"
#include "platform/forms/keys/key_codes.h"

namespace platform {

namespace {

// How many changes of many states are going on; widgets live on one thread only.
int statesToldLater = 0;

// Qt's own interface of a button clicks 100 ms after the action, also a button that was disabled
// meanwhile; this one posts the click.
class AccessibleButton final : public QAccessibleWidget {
 public:
  explicit AccessibleButton(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Button) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (widget() == focusSpoken()) state.focused = true;
    return state;
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    // A button that is for show alone cannot be pressed.
    if (widget()->focusPolicy() == Qt::NoFocus) return names;
    if (widget()->isEnabled() && !names.contains(pressAction())) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& action) override {
    if (action != pressAction()) {
      QAccessibleWidget::doAction(action);
      return;
    }
    auto* button = static_cast<ButtonWidget*>(widget());
    QMetaObject::invokeMethod(
        button, [button] { button->press(); }, Qt::QueuedConnection);
  }
};

// The keys of those who have one or two, as assistive technology calls and taps them.
struct SwitchKey {
  QLatin1String name;
  int keyCode;
};
constexpr auto kSwitchKeys = std::to_array<SwitchKey>({
    {QLatin1String("Space"), kKeySpace},
    {QLatin1String("Enter"), kKeyEnter},
});

// The keys that it holds act on what it points at, which is what has the focus for whoever listens.
// Who has no key at all taps them by its actions.
class AccessibleKeyPanel final : public QAccessibleWidget {
 public:
  explicit AccessibleKeyPanel(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Grouping) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (widget() != focusSpoken()) state.focused = false;
    return state;
  }

  [[nodiscard]] QAccessibleInterface* focusChild() const override {
    QWidget* spoken = focusSpoken();
    return widget()->hasFocus() ? QAccessible::queryAccessibleInterface(spoken) : nullptr;
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names;
    for (const SwitchKey& key : kSwitchKeys) names.append(key.name);
    return names + QAccessibleWidget::actionNames();
  }

  void doAction(const QString& action) override {
    const auto named = [&action](const SwitchKey& key) { return key.name == action; };
    const auto* key = std::find_if(kSwitchKeys.begin(), kSwitchKeys.end(), named);
    if (key == kSwitchKeys.end()) {
      QAccessibleWidget::doAction(action);
      return;
    }
    auto* panel = static_cast<KeyPanelWidget*>(widget());
    QMetaObject::invokeMethod(
        panel, [panel, code = key->keyCode] { panel->tap(code); }, Qt::QueuedConnection);
  }
};

QAccessibleInterface* interfaceFor(const QString& className, QObject* object) {
  if (className == QLatin1String("platform::ButtonWidget")) {
    return new AccessibleButton(static_cast<QWidget*>(object));
  }
  if (className == QLatin1String("platform::ImageWidget") ||
      className == QLatin1String("platform::LineWidget")) {
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
  }
  if (className == QLatin1String("platform::KeyPanelWidget")) {
    return new AccessibleKeyPanel(static_cast<QWidget*>(object));
  }
  if (className == QLatin1String("platform::PanelWidget")) {
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
  }
  return nullptr;
}

}  // namespace

QWidget* focusSpoken() {
  QWidget* focus = QApplication::focusWidget();
  const auto* panel = qobject_cast<KeyPanelWidget*>(focus);
  return panel != nullptr && panel->pointed() != nullptr ? panel->pointed() : focus;
}

StatesToldLater::StatesToldLater() {
  ++statesToldLater;
}

StatesToldLater::~StatesToldLater() {
  --statesToldLater;
}

bool StatesToldLater::holds() {
  return statesToldLater > 0;
}

void installAccessibility() {
  QAccessible::installFactory(interfaceFor);
}

}  // namespace platform
