// Writes the boards of the exercises into a folder, as movies:
//
//     compila_filmati folder
//
// Status 0 when all are written, 1 when one could not be, 2 for wrong arguments.

#include <array>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "swf/abaco.h"
#include "swf/tavole_dei_blocchi.h"

namespace {

namespace filmati = somme::filmati;

struct Opera {
  const char* file;
  somme::swf::Filmato (*disegna)();
};

constexpr std::array<Opera, 5> kOpere{{{"dau.swf", filmati::dau},
                                       {"unione.swf", filmati::unione},
                                       {"hdau.swf", filmati::hdau},
                                       {"unionehdau.swf", filmati::unionehdau},
                                       {"abaco.swf", filmati::abaco}}};

void scrivi(const std::filesystem::path& file, const std::vector<std::uint8_t>& byte) {
  std::ofstream uscita;
  uscita.exceptions(std::ios::failbit | std::ios::badbit);
  uscita.open(file, std::ios::binary | std::ios::trunc);
  uscita.write(reinterpret_cast<const char*>(byte.data()),
               static_cast<std::streamsize>(byte.size()));
  uscita.close();
}

}  // namespace

int main(int quanti, char** argomenti) {
  if (quanti != 2) {
    std::cerr << "usage: compila_filmati folder\n";
    return 2;
  }
  try {
    const std::filesystem::path cartella = argomenti[1];
    std::filesystem::create_directories(cartella);
    for (const auto& opera : kOpere) scrivi(cartella / opera.file, opera.disegna().byte());
  } catch (const std::exception& guasto) {
    std::cerr << "compila_filmati: " << guasto.what() << '\n';
    return 1;
  }
  return 0;
}
