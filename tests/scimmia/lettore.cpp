#include "scimmia/lettore.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QWidget>

namespace prova {

namespace {

void interroga(QAccessibleInterface& nodo) {
  (void)nodo.role();
  (void)nodo.state();
  (void)nodo.rect();
  (void)nodo.text(QAccessible::Name);
  (void)nodo.text(QAccessible::Description);
  (void)nodo.relations();
  (void)nodo.focusChild();
  (void)nodo.childAt(nodo.rect().center().x(), nodo.rect().center().y());
  if (QAccessibleActionInterface* azioni = nodo.actionInterface()) {
    for (const QString& azione : azioni->actionNames()) {
      (void)azioni->localizedActionName(azione);
      (void)azioni->keyBindingsForAction(azione);
    }
  }
  if (QAccessibleValueInterface* valore = nodo.valueInterface()) {
    (void)valore->currentValue();
    (void)valore->minimumValue();
    (void)valore->maximumValue();
  }
  if (QAccessibleTextInterface* testo = nodo.textInterface()) {
    (void)testo->text(0, testo->characterCount());
    (void)testo->cursorPosition();
    (void)testo->selectionCount();
  }
}

int percorri(QAccessibleInterface* nodo, int profondita) {
  constexpr int kMassima = 40;
  if (nodo == nullptr || !nodo->isValid()) return 0;
  if (profondita > kMassima) throw Guasto(QStringLiteral("the accessible tree has no bottom"));
  interroga(*nodo);
  int nodi = 1;
  for (int i = 0; i < nodo->childCount(); ++i) {
    QAccessibleInterface* figlio = nodo->child(i);
    if (figlio == nullptr || !figlio->isValid()) continue;
    if (figlio->parent() == nullptr) {
      throw Guasto(QStringLiteral("an accessible child without a parent"));
    }
    nodi += percorri(figlio, profondita + 1);
  }
  return nodi;
}

}  // namespace

int PercorriAlbero(QAccessibleInterface* nodo) {
  return percorri(nodo, 0);
}

void Lettore::accendi() {
  desktop_.emplace();
  desktop_->chiama([this](const QAccessibleEvent& evento) { chiedi(evento); });
}

void Lettore::chiedi(const QAccessibleEvent& evento) {
  ++uditi_;
  // What is going away is not asked any more.
  if (evento.type() == QAccessible::ObjectDestroyed) return;
  if (QAccessibleInterface* nodo = evento.accessibleInterface()) {
    if (nodo->isValid()) {
      interroga(*nodo);
      QAccessibleInterface* padre = nodo->parent();
      if (padre != nullptr && padre->isValid()) (void)padre->indexOfChild(nodo);
    }
  }
  if (std::exchange(chiesto_, true)) return;
  QMetaObject::invokeMethod(
      &finoAllaFine_, [this] { chiediTutto(); }, Qt::QueuedConnection);
}

// An exception must not pass through the event loop that runs this.
void Lettore::chiediTutto() {
  chiesto_ = false;
  if (cammina_) return;
  const QScopedValueRollback inCammino(cammina_, true);
  try {
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      if (finestra->isVisible()) PercorriAlbero(QAccessible::queryAccessibleInterface(finestra));
    }
  } catch (const Guasto& guasto) {
    preso_ = guasto;
  }
}

}  // namespace prova
