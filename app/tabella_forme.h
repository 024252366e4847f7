#pragma once

#include <memory>
#include <string_view>
#include <vector>

namespace platform {
class Form;
}

namespace somme {

class Ambiente;

// Makes a form of the program from its name; null for a name that the program does not have.
[[nodiscard]] std::shared_ptr<platform::Form> CreaForma(Ambiente& ambiente, std::string_view nome);

// The names of all forms that the program has.
[[nodiscard]] std::vector<std::string_view> NomiDelleForme();

}  // namespace somme
