#include "platform/forms/accessible_labels.h"

#include <QPointer>
#include <QVariant>

namespace platform::inline forms {

namespace {

using Widgets = QList<QPointer<QWidget>>;

// What a widget is bound to, kept by the widget itself; the relation is as the toolkit names it:
// what the others are to the widget.
struct Bond {
  const char* property;
  QAccessible::RelationFlag relation;
};
constexpr Bond kLabels{"accessibleLabels", QAccessible::Label};
constexpr Bond kBoxes{"accessibleBoxes", QAccessible::Labelled};

Widgets boundTo(const QWidget& widget, const Bond& bond) {
  return widget.property(bond.property).value<Widgets>();
}

QList<QAccessibleInterface*> shownBoundTo(const QWidget& widget, const Bond& bond) {
  QList<QAccessibleInterface*> shown;
  for (const QPointer<QWidget>& other : boundTo(widget, bond)) {
    if (other && !other->isHidden()) shown += QAccessible::queryAccessibleInterface(other);
  }
  return shown;
}

void add(QWidget& widget, const Bond& bond, QWidget& other) {
  widget.setProperty(bond.property, QVariant::fromValue(boundTo(widget, bond) << &other));
}

}  // namespace

QString labelsTogether(const QWidget& box) {
  const QList<QAccessibleInterface*> labels = shownBoundTo(box, kLabels);
  if (labels.size() < 2) return {};
  QStringList words;
  for (const QAccessibleInterface* label : labels) {
    const QString name = label->text(QAccessible::Name).simplified();
    words += name.isEmpty() ? QStringLiteral("?") : name;
  }
  return words.join(u' ');
}

void bindLabel(QWidget& label, QWidget& box) {
  add(box, kLabels, label);
  add(label, kBoxes, box);
}

Relations labelRelations(const QWidget& widget, QAccessible::Relation match) {
  Relations relations;
  for (const Bond* bond : {&kLabels, &kBoxes}) {
    if (!match.testFlag(bond->relation)) continue;
    const QList<QAccessibleInterface*> others = shownBoundTo(widget, *bond);
    if (bond == &kLabels && others.size() > 1) continue;
    for (QAccessibleInterface* other : others) relations.append({other, bond->relation});
  }
  return relations;
}

}  // namespace platform::inline forms
