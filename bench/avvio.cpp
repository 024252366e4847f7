#include <cstdio>
#include <exception>

#include "figura.h"
#include "schermo.h"

// Start and rest of the program, against an empty program of Qt's on the same display: time from
// exec to the first picture, memory after the start, wake-ups at rest.
//
//   avvio PROGRAM EMPTY
namespace {

constexpr double kSettled = 2.0;  // seconds after the first picture

double risvegliAlSecondo(const bench::Programma& programma) {
  const double rest = bench::quanti(10.0, 3.0);  // seconds that are watched
  const long before = programma.risvegli();
  bench::dormi(rest);
  return static_cast<double>(programma.risvegli() - before) / rest;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: avvio PROGRAM EMPTY\n");
    return 2;
  }
  try {
    const int runs = bench::quanti(15, 4);
    std::vector<double> own;
    std::vector<double> empty;
    for (int i = 0; i <= runs; ++i) {
      bench::Programma a(argv[1]);
      const double first = a.attendiDipinto();
      bench::Programma b(argv[2]);
      const double second = b.attendiDipinto();
      a.deveVivere();
      b.deveVivere();
      if (i == 0) continue;  // the first of each warms the disk's cache
      own.push_back(first);
      empty.push_back(second);
    }
    const double mine = bench::mediana(own);
    const double plain = bench::mediana(empty);
    std::printf("exec to first picture: %.0f ms, empty program %.0f ms\n", mine, plain);
    bench::stampa(
        {"exec to first picture", "", mine / plain, "times an empty program's", bench::alPiu(1.5)});

    bench::Programma a(argv[1]);
    (void)a.attendiDipinto();
    bench::dormi(kSettled);
    bench::stampa({"at rest on the splash form", "", risvegliAlSecondo(a), "wake-ups a second",
                   bench::sotto(1)});
    const long alone = a.pss();
    bench::Programma b(argv[2]);
    (void)b.attendiDipinto();
    bench::dormi(kSettled);
    // Both run while each is measured, so that what they share is shared in both figures.
    const long both = a.pss();
    const long other = b.pss();
    std::printf("proportional set size: %ld KB, empty program %ld KB; alone %ld KB\n", both, other,
                alone);
    bench::stampa({"proportional set size", "",
                   static_cast<double>(both) / static_cast<double>(other),
                   "times an empty program's", bench::alPiu(2)});
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "avvio: %s\n", error.what());
    return 1;
  }
}
