#pragma once

#include <QAccessible>
#include <QWidget>

namespace platform {

// The label asks for what goes into the box: assistive technology reads the two together. A box may
// have several labels, which are read in the order of the calls, and a label several boxes.
void bindLabel(QWidget& label, QWidget& box);

using Relations = QList<std::pair<QAccessibleInterface*, QAccessible::Relation>>;
// What a box or a label is bound to and is not hidden, of the kinds asked for.
[[nodiscard]] Relations labelRelations(const QWidget& widget, QAccessible::Relation match);

}  // namespace platform
