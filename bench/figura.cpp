#include "figura.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace bench {

namespace {

std::string cifre(double valore) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%.9g", valore);
  return testo;
}

}  // namespace

std::string riga(const Figura& figura) {
  std::string tutta = "figure";
  const std::string valore = cifre(figura.valore);
  const std::string limite = cifre(figura.limite.quanto);
  for (const std::string_view campo :
       {figura.nome, figura.di, std::string_view(valore), figura.unita, figura.limite.come,
        std::string_view(limite)}) {
    tutta += '\t';
    tutta += campo;
  }
  return tutta;
}

void stampa(const Figura& figura) {
  std::puts(riga(figura).c_str());
  std::fflush(stdout);
}

bool inBreve() {
  return std::getenv("MISURA_BREVE") != nullptr;
}

double quantile(std::vector<double> valori, double parte) {
  std::sort(valori.begin(), valori.end());
  const auto posto = static_cast<std::size_t>(static_cast<double>(valori.size()) * parte);
  return valori[std::min(posto, valori.size() - 1)];
}

double mediana(std::vector<double> valori) {
  return quantile(std::move(valori), 0.5);
}

double processore() {
  timespec tempo{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &tempo);
  return static_cast<double>(tempo.tv_sec) + static_cast<double>(tempo.tv_nsec) / 1e9;
}

}  // namespace bench
