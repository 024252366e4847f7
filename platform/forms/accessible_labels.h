#pragma once

#include <QAccessible>
#include <QWidget>

namespace platform::inline forms {

// The label asks for what goes into the box: assistive technology reads the two together. A box may
// have several labels, and a label several boxes.
void bindLabel(QWidget& label, QWidget& box);

using Relations = QList<std::pair<QAccessibleInterface*, QAccessible::Relation>>;
// What several labels that are not hidden say together, in the order of the calls, "?" where one
// says nothing; empty where a box has less than two. A screen reader reads no more than one label
// with its box: such a box bears their words as its name.
[[nodiscard]] QString labelsTogether(const QWidget& box);

// What a box or a label is bound to and is not hidden, of the kinds asked for; not the labels of a
// box that has several.
[[nodiscard]] Relations labelRelations(const QWidget& widget, QAccessible::Relation match);

}  // namespace platform::inline forms
