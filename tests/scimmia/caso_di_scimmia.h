#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <deque>
#include <random>
#include <stdexcept>

namespace prova {

// Something that must never happen, with the words for it.
struct Guasto : std::runtime_error {
  explicit Guasto(const QString& parole) : std::runtime_error(parole.toStdString()) {}
};

// The dice of one run: the same seed throws the same.
class Dadi {
 public:
  explicit Dadi(std::uint64_t seme) : motore_(seme) {}

  // 0 to n - 1; n: above 0.
  int fino(int n) { return static_cast<int>(motore_() % static_cast<std::uint64_t>(n)); }
  int tra(int da, int a) { return da + fino(a - da + 1); }
  bool unoSu(int n) { return fino(n) == 0; }
  template <class Elenco>
  const auto& uno(const Elenco& elenco) {
    return elenco[static_cast<std::size_t>(fino(static_cast<int>(std::size(elenco))))];
  }

 private:
  std::mt19937_64 motore_;
};

// The last things that the monkey did, for whoever looks for the cause.
class Racconto {
 public:
  explicit Racconto(bool subito) : subito_(subito) {}

  void annota(int profondita, const QString& parole);
  [[nodiscard]] QString ultime() const { return QStringList(righe_).join(u'\n'); }

 private:
  QStringList righe_;
  bool subito_;
};

}  // namespace prova
