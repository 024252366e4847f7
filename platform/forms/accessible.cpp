#include "platform/forms/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "platform/forms/controls/button_widget.h"
#include "platform/forms/controls/image_widget.h"
#include "platform/forms/controls/panel_widget.h"

namespace platform {

namespace {

// Qt's own interface of a button clicks 100 ms after the action, also a button that was disabled
// meanwhile; this one posts the click.
class AccessibleButton final : public QAccessibleWidget {
 public:
  explicit AccessibleButton(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Button) {}

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
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

QAccessibleInterface* interfaceFor(const QString& className, QObject* object) {
  if (className == QLatin1String("platform::ButtonWidget")) {
    return new AccessibleButton(static_cast<QWidget*>(object));
  }
  if (className == QLatin1String("platform::ImageWidget") ||
      className == QLatin1String("platform::LineWidget")) {
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
  }
  if (className == QLatin1String("platform::PanelWidget")) {
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
  }
  return nullptr;
}

}  // namespace

void installAccessibility() {
  QAccessible::installFactory(interfaceFor);
}

}  // namespace platform
