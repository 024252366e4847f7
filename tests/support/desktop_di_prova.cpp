#include "support/desktop_di_prova.h"

#include <QMetaEnum>
#include <QStringList>
#include <utility>

namespace prova {

namespace {

bool siAscolta = false;
std::vector<Udito> uditi;
std::function<void(const QAccessibleEvent&)> orecchioDiOra;

int messaggiDi(const QAccessibleEvent& evento) {
  switch (evento.type()) {
    case QAccessible::StateChanged: {
      const auto quali = static_cast<const QAccessibleStateChangeEvent&>(evento).changedStates();
      if (quali.disabled) return 2;  // enabled, and sensitive
      return quali.checked || quali.active || quali.focused ? 1 : 0;
    }
    case QAccessible::Focus:        // lost, and come
    case QAccessible::TextUpdated:  // deleted, and inserted
      return 2;
    case QAccessible::ObjectCreated:
    case QAccessible::ObjectDestroyed:
    case QAccessible::SoundPlayed:
      return 0;
    default:
      return 1;
  }
}

}  // namespace

DesktopDiProva::DesktopDiProva() {
  uditi.clear();
  siAscolta = true;
}

DesktopDiProva::~DesktopDiProva() {
  siAscolta = false;
  orecchioDiOra = nullptr;
}

void DesktopDiProva::chiama(std::function<void(const QAccessibleEvent&)> orecchio) {
  orecchioDiOra = std::move(orecchio);
}

void DesktopDiProva::ascolta(bool ascolta) {
  siAscolta = ascolta;
}

std::vector<Udito> DesktopDiProva::nuovi() {
  return std::exchange(uditi, {});
}

QString InUnaRiga(const std::vector<Udito>& uditi) {
  QStringList parole;
  for (const Udito& udito : uditi) {
    parole += QStringLiteral("%1 (%2)").arg(
        QLatin1String(QMetaEnum::fromType<QAccessible::Event>().valueToKey(udito.evento)),
        udito.nome);
  }
  return parole.join(QStringLiteral("; "));
}

int Messaggi(const std::vector<Udito>& uditi) {
  int somma = 0;
  for (const Udito& udito : uditi) somma += udito.messaggi;
  return somma;
}

}  // namespace prova

// These stand in the place of the toolkit's own, for the libraries of the toolkit, too.
bool QAccessible::isActive() {
  return prova::siAscolta;
}

// What a program's own handler does not keep back reaches the desktop.
void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  if (!isActive()) return;
  const UpdateHandler programma = installUpdateHandler(nullptr);
  installUpdateHandler(programma);
  if (programma != nullptr) {
    programma(event);
    return;
  }
  if (prova::orecchioDiOra) {
    prova::orecchioDiOra(*event);
    return;
  }
  QAccessibleInterface* di = event->accessibleInterface();
  prova::uditi.push_back({event->type(), di == nullptr ? QString() : di->text(Name),
                          event->object(), prova::messaggiDi(*event)});
}
