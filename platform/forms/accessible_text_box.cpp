#include "platform/forms/accessible_text_box.h"

#include <algorithm>

#include "platform/forms/controls/text_box_widget.h"
#include "platform/forms/press_event.h"

namespace platform::inline forms {

AccessibleTextBox::AccessibleTextBox(TextBoxWidget& box)
    : QAccessibleWidget(&box, QAccessible::EditableText) {}

TextBoxWidget& AccessibleTextBox::box() const {
  return *static_cast<TextBoxWidget*>(widget());
}

void* AccessibleTextBox::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface) {
    return static_cast<QAccessibleEditableTextInterface*>(this);
  }
  return QAccessibleWidget::interface_cast(type);
}

QString AccessibleTextBox::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Value) return box().text();
  const QString asked = kind == QAccessible::Name ? labelsTogether(box()) : QString();
  return asked.isEmpty() ? QAccessibleWidget::text(kind) : asked;
}

void AccessibleTextBox::setText(QAccessible::Text kind, const QString& text) {
  if (kind != QAccessible::Value) {
    QAccessibleWidget::setText(kind, text);
  } else if (box().isEnabled() && !box().isReadOnly()) {
    box().setText(text);
  }
}

QAccessible::State AccessibleTextBox::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.editable = true;
  state.readOnly = box().isReadOnly();
  state.selectableText = true;
  return state;
}

Relations AccessibleTextBox::relations(QAccessible::Relation match) const {
  return QAccessibleWidget::relations(match) + labelRelations(box(), match);
}

QStringList AccessibleTextBox::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (box().pressable()) names.append(pressAction());
  return names;
}

void AccessibleTextBox::doAction(const QString& action) {
  if (action == pressAction()) {
    postPress(box());
  } else {
    QAccessibleWidget::doAction(action);
  }
}

void AccessibleTextBox::selection(int index, int* start, int* end) const {
  const bool selected = index == 0 && box().hasSelectedText();
  *start = selected ? box().selectionStart() : 0;
  *end = selected ? box().selectionEnd() : 0;
}

int AccessibleTextBox::selectionCount() const {
  return box().hasSelectedText() ? 1 : 0;
}

void AccessibleTextBox::addSelection(int start, int end) {
  setSelection(0, start, end);
}

void AccessibleTextBox::removeSelection(int index) {
  if (index == 0) box().deselect();
}

void AccessibleTextBox::setSelection(int index, int start, int end) {
  if (index == 0) box().setSelection(start, end - start);
}

int AccessibleTextBox::cursorPosition() const {
  return box().cursorPosition();
}

void AccessibleTextBox::setCursorPosition(int position) {
  box().setCursorPosition(position);
}

QString AccessibleTextBox::text(int start, int end) const {
  return box().text().mid(start, std::max(0, end - start));
}

int AccessibleTextBox::characterCount() const {
  return int(box().text().size());
}

QRect AccessibleTextBox::characterRect(int offset) const {
  return box().placeOf(offset).translated(box().mapToGlobal(QPoint()));
}

int AccessibleTextBox::offsetAtPoint(const QPoint& point) const {
  const QPoint inside = box().mapFromGlobal(point);
  return box().rect().contains(inside) ? box().cursorPositionAt(inside) : -1;
}

void AccessibleTextBox::scrollToSubstring(int start, int end) {
  box().setCursorPosition(end);
  box().setCursorPosition(start);
}

// All of a box has one look.
QString AccessibleTextBox::attributes(int /*offset*/, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

void AccessibleTextBox::deleteText(int start, int end) {
  replaceText(start, end, {});
}

void AccessibleTextBox::insertText(int offset, const QString& text) {
  replaceText(offset, offset, text);
}

void AccessibleTextBox::replaceText(int start, int end, const QString& text) {
  QString all = box().text();
  setText(QAccessible::Value, all.replace(start, std::max(0, end - start), text));
}

}  // namespace platform::inline forms
