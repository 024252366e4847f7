#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the measurements tell bench/misura, and what it asks of them.
namespace bench {

// How far a figure may go.
struct Limite {
  std::string_view come;  // "at most", or "under", where the limit itself falls short
  double quanto;          // in the unit of the figure
};
[[nodiscard]] constexpr Limite alPiu(double quanto) {
  return {"at most", quanto};
}
[[nodiscard]] constexpr Limite sotto(double quanto) {
  return {"under", quanto};
}

// One thing measured. Figures of one name are one line of the table, where the worst of them
// stands.
struct Figura {
  std::string_view nome;  // what is measured
  std::string_view di;    // on what, where there are several: a form, a movie; may be empty
  double valore;
  std::string_view unita;  // of the value; may be empty
  Limite limite;
};

// The line, without its end, that bench/misura takes a figure from: the word "figure" and the
// fields of Figura in their order, with tabs between them.
[[nodiscard]] std::string riga(const Figura& figura);

// Prints that line and all that waits to be printed. Whether a figure falls short is for
// bench/misura to say; a measurement fails only where it could not measure.
void stampa(const Figura& figura);

// Whether the short form is wanted, as bench/misura says by MISURA_BREVE in the environment.
[[nodiscard]] bool inBreve();

// How often a thing is done, or for how many seconds: `intera`, or `breve` in the short form.
template <class Quanti>
[[nodiscard]] Quanti quanti(Quanti intera, Quanti breve) {
  return inBreve() ? breve : intera;
}

// The value that `parte` of the values (0 to 1) stay under; there must be one. The median is that
// of half of them.
[[nodiscard]] double quantile(std::vector<double> valori, double parte);
[[nodiscard]] double mediana(std::vector<double> valori);

// Seconds of the processor that all threads of this process have had.
[[nodiscard]] double processore();

}  // namespace bench
