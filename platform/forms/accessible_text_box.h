#pragma once

#include <QAccessibleWidget>

#include "platform/forms/accessible_labels.h"

namespace platform::inline forms {

class TextBoxWidget;

// A text box to assistive technology: what stands in it can be read and, where the user may write,
// written; a press confirms it, as Enter does, or is the click on a box that is locked.
class AccessibleTextBox final : public QAccessibleWidget,
                                public QAccessibleTextInterface,
                                public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleTextBox(TextBoxWidget& box);

  void* interface_cast(QAccessible::InterfaceType type) override;
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text kind, const QString& text) override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] Relations relations(QAccessible::Relation match) const override;
  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& action) override;

  // QAccessibleTextInterface; offsets count from 0, the end of a range does not belong to it.
  void selection(int index, int* start, int* end) const override;
  [[nodiscard]] int selectionCount() const override;
  void addSelection(int start, int end) override;
  void removeSelection(int index) override;
  void setSelection(int index, int start, int end) override;
  [[nodiscard]] int cursorPosition() const override;
  void setCursorPosition(int position) override;
  [[nodiscard]] QString text(int start, int end) const override;
  [[nodiscard]] int characterCount() const override;
  [[nodiscard]] QRect characterRect(int offset) const override;
  [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;
  [[nodiscard]] QString attributes(int offset, int* start, int* end) const override;

  // QAccessibleEditableTextInterface
  void deleteText(int start, int end) override;
  void insertText(int offset, const QString& text) override;
  void replaceText(int start, int end, const QString& text) override;

 private:
  [[nodiscard]] TextBoxWidget& box() const;
};

}  // namespace platform::inline forms
