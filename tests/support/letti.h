#pragma once

#include <QAccessible>
#include <QStringList>

#include "platform/forms/control_array.h"
#include "platform/forms/controls/label.h"

namespace prova {

// What assistive technology reads of labels, in the order of their indices; nothing of those that
// are not there for it.
inline QStringList letti(platform::ControlArray<platform::Label>& etichette) {
  QStringList nomi;
  etichette.forEach([&nomi](const platform::Label& etichetta) {
    const QAccessibleInterface* nodo = QAccessible::queryAccessibleInterface(etichetta.widget());
    nomi += nodo->state().invisible ? QString() : nodo->text(QAccessible::Name);
  });
  return nomi;
}

}  // namespace prova
