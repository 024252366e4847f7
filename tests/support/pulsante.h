#pragma once

#include <algorithm>
#include <stdexcept>

#include "platform/forms/controls/button.h"
#include "platform/forms/form.h"

namespace prova {

// The button of a form that bears a name, with its index in an array: "Command2" or "Command1(5)".
// Throws std::out_of_range where there is none.
inline platform::Button& pulsante(const platform::Form& forma, const QString& nome) {
  const auto suo = [&nome](const platform::Control* c) { return c->name() == nome; };
  const auto& controlli = forma.controls();
  const auto trovato = std::ranges::find_if(controlli, suo);
  auto* bottone = trovato == controlli.end() ? nullptr : dynamic_cast<platform::Button*>(*trovato);
  if (bottone == nullptr) throw std::out_of_range("no button " + nome.toStdString());
  return *bottone;
}
inline platform::Button& pulsante(const platform::Form& forma, const char* nome) {
  return pulsante(forma, QString::fromLatin1(nome));
}

}  // namespace prova
