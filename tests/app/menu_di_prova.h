#pragma once

#include <QAction>
#include <QCoreApplication>

#include "app/form_menu.h"
#include "app/shared/nomi_forme.h"
#include "support/banco.h"

namespace prova {

// The main menu on the screen.
inline somme::FormMenu& apriMenu(Banco& banco) {
  return banco.apri<somme::FormMenu>(somme::forme::kFormMenu);
}
// Takes an entry of its menu bar.
inline void scegliVoce(const platform::MenuItem& voce) {
  voce.action()->trigger();
  QCoreApplication::processEvents();
}

}  // namespace prova
