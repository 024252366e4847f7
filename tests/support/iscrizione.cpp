#include "support/iscrizione.h"

#include <cstdio>

namespace prova {
namespace {
// Set before any constructor runs.
constinit const Iscritta* prima = nullptr;
}  // namespace

Iscritta::Iscritta(Corsa quale, const std::source_location& dove)
    : corsa(quale), file(dove.file_name()), seguente(prima) {
  prima = this;
}

std::string_view Iscritta::Nome() const {
  constexpr std::string_view kFine = "_test.cpp";
  const std::string_view nome = file.substr(file.rfind('/') + 1);
  return nome.substr(0, nome.ends_with(kFine) ? nome.size() - kFine.size() : nome.size());
}

const Iscritta* Iscritta::Di(std::string_view nome) {
  const Iscritta* iscritta = prima;
  while (iscritta != nullptr && iscritta->Nome() != nome) iscritta = iscritta->seguente;
  return iscritta;
}

void Iscritta::ElencaTutte() {
  for (const Iscritta* iscritta = prima; iscritta != nullptr; iscritta = iscritta->seguente) {
    const std::string_view nome = iscritta->Nome();
    std::fprintf(stderr, "  %.*s\n", static_cast<int>(nome.size()), nome.data());
  }
}

}  // namespace prova
