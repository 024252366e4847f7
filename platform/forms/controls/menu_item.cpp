#include "platform/forms/controls/menu_item.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

#include "platform/forms/ground.h"
#include "platform/forms/menu_bar.h"
#include "platform/forms/page.h"

namespace platform::inline forms {

namespace {

// The toolkit closes the menus before an item acts, but not when assistive technology presses it.
void closeMenus() {
  while (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
    if (!menu->close()) return;
  }
}

}  // namespace

MenuItem::~MenuItem() {
  delete action_.data();
}

QWidget* MenuItem::create(QWidget* parent) {
  auto* menu = qobject_cast<QMenu*>(parent);
  inMenu_ = menu != nullptr;
  QWidget* owner = menu;
  if (menu == nullptr) owner = home().page()->menuBar();
  action_ = new QAction(owner);
  action_->setObjectName(name());
  owner->addAction(action_);
  if (!look().shortcut.empty()) {
    shortcut_ =
        QKeySequence(QString::fromUtf8(look().shortcut.data(), qsizetype(look().shortcut.size())));
  }
  setChecked(look().checked);
  action_->setVisible(!look().hidden);
  action_->setEnabled(!look().disabled);
  QObject::connect(action_, &QAction::triggered, action_, [this] {
    action_->setChecked(checked_);
    // Assistive technology triggers it past all events.
    if (!ground().mayAct(*home().page())) return;
    closeMenus();
    click();
  });
  return nullptr;
}

void MenuItem::click() {
  if (isEnabled() && isVisible() && !ground().isChanging()) raiseEvent(clicked_);
}

void MenuItem::setChecked(bool checked) {
  checked_ = checked;
  if (checked) action_->setCheckable(true);
  action_->setChecked(checked);
}

// The shortcut is shown, not given to the toolkit: the form works it, once for each hold.
void MenuItem::setCaption(const QString& caption) {
  caption_ = caption;
  if (!action_) return;
  const bool shown = inMenu_ && !shortcut_.isEmpty();
  action_->setText(
      shown ? QStringLiteral("%1\t%2").arg(caption, shortcut_.toString(QKeySequence::NativeText))
            : caption);
}

void MenuItem::setVisible(bool visible) {
  Control::setVisible(visible);
  if (action_) action_->setVisible(visible);
}

void MenuItem::setEnabled(bool enabled) {
  Control::setEnabled(enabled);
  if (action_) action_->setEnabled(enabled);
}

QWidget* MenuItem::surroundings() const {
  return qobject_cast<QWidget*>(action_->parent());
}

QWidget* MenuItem::container() const {
  if (!menu_ && action_) {
    menu_ = new QMenu(home().page());
    action_->setMenu(menu_);
  }
  return menu_;
}

}  // namespace platform::inline forms
