#include "platform/forms/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <algorithm>
#include <array>

#include "platform/forms/accessible_events.h"
#include "platform/forms/accessible_labels.h"
#include "platform/forms/accessible_text_box.h"
#include "platform/forms/controls/button_widget.h"
#include "platform/forms/controls/image_widget.h"
#include "platform/forms/controls/key_panel_widget.h"
#include "platform/forms/controls/label_widget.h"
#include "platform/forms/controls/line_widget.h"
#include "platform/forms/controls/panel_widget.h"
#include "platform/forms/controls/scroll_bar_widget.h"
#include "platform/forms/controls/text_box_widget.h"
#include "platform/forms/controls/toggle_widget.h"
#include "platform/forms/keys/key_codes.h"
#include "platform/forms/press_event.h"

namespace platform::inline forms {

namespace {

// How many changes of many states are going on; widgets live on one thread only.
int statesToldLater = 0;

// A widget that assistive technology can press. Qt's own interface of a button clicks 100 ms after
// the action, also a button that was disabled meanwhile; this one posts the press as an event.
class Pressable : public QAccessibleWidget {
 public:
  // action: what the press is called.
  Pressable(QWidget* widget, QAccessible::Role role, QString action)
      : QAccessibleWidget(widget, role), action_(std::move(action)) {}

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    // What is for show alone cannot be pressed.
    if (widget()->focusPolicy() == Qt::NoFocus) return names;
    if (widget()->isEnabled() && !names.contains(action_)) names.prepend(action_);
    return names;
  }

  void doAction(const QString& action) override {
    if (action == action_) {
      postPress(*widget());
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  QString action_;
};

class AccessibleButton final : public Pressable {
 public:
  explicit AccessibleButton(QWidget* widget)
      : Pressable(widget, QAccessible::Button, pressAction()) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    QString own = QAccessibleWidget::text(kind);
    const QWidget* heading = static_cast<ButtonWidget*>(widget())->heading();
    if (kind != QAccessible::Name || heading == nullptr) return own;
    return QStringLiteral("%1, %2").arg(heading->accessibleName(), own);
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (widget() == focusSpoken()) state.focused = true;
    return state;
  }
};

// A check box or an option button.
class AccessibleToggle final : public Pressable {
 public:
  AccessibleToggle(QAbstractButton* button, QAccessible::Role role)
      : Pressable(button, role, toggleAction()) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = Pressable::state();
    state.checkable = true;
    state.checked = static_cast<QAbstractButton*>(widget())->isChecked();
    return state;
  }
};

// A scroll bar with its value in units of its form's.
class AccessibleScrollBar final : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit AccessibleScrollBar(ScrollBarWidget& bar)
      : QAccessibleWidget(&bar, QAccessible::Slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return QString::number(currentValue().toDouble());
    return QAccessibleWidget::text(kind);
  }

  [[nodiscard]] QVariant currentValue() const override { return bar().value() * bar().unit(); }
  void setCurrentValue(const QVariant& value) override {
    bar().enter(qRound(value.toDouble() / bar().unit()));
  }
  [[nodiscard]] QVariant maximumValue() const override { return bar().maximum() * bar().unit(); }
  [[nodiscard]] QVariant minimumValue() const override { return bar().minimum() * bar().unit(); }
  [[nodiscard]] QVariant minimumStepSize() const override {
    return bar().singleStep() * bar().unit();
  }

 private:
  [[nodiscard]] ScrollBarWidget& bar() const { return *static_cast<ScrollBarWidget*>(widget()); }
};

class AccessibleLabel final : public QAccessibleWidget {
 public:
  explicit AccessibleLabel(QWidget* label) : QAccessibleWidget(label, QAccessible::StaticText) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (static_cast<LabelWidget*>(widget())->isSilent()) state.invisible = true;
    return state;
  }

  [[nodiscard]] Relations relations(QAccessible::Relation match) const override {
    return QAccessibleWidget::relations(match) + labelRelations(*widget(), match);
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
    } else {
      postPress(*widget(), key->keyCode);
    }
  }
};

// Whether the class of this name, one of the object's own or of its bases, is Widget.
template <typename Widget>
bool named(const QString& className) {
  return className == QLatin1String(Widget::staticMetaObject.className());
}

QAccessibleInterface* interfaceFor(const QString& className, QObject* object) {
  if (named<ButtonWidget>(className)) {
    return new AccessibleButton(static_cast<QWidget*>(object));
  }
  if (named<ScrollBarWidget>(className)) {
    return new AccessibleScrollBar(static_cast<ScrollBarWidget&>(*object));
  }
  if (named<TextBoxWidget>(className)) {
    return new AccessibleTextBox(static_cast<TextBoxWidget&>(*object));
  }
  if (auto* box = dynamic_cast<CheckBoxWidget*>(object)) {
    return new AccessibleToggle(box, QAccessible::CheckBox);
  }
  if (auto* option = dynamic_cast<OptionButtonWidget*>(object)) {
    return new AccessibleToggle(option, QAccessible::RadioButton);
  }
  if (named<ImageWidget>(className) || named<LineWidget>(className)) {
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
  }
  if (className == QLatin1String("QStackedWidget")) {
    // The toolkit's own is a pane of layers, which a reader would name whenever a page comes up.
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Client);
  }
  if (named<LabelWidget>(className)) {
    return new AccessibleLabel(static_cast<QWidget*>(object));
  }
  if (named<KeyPanelWidget>(className)) {
    return new AccessibleKeyPanel(static_cast<QWidget*>(object));
  }
  if (named<PanelWidget>(className)) {
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
  installAccessibleEvents();
}

}  // namespace platform::inline forms
