#include <cstdio>
#include <exception>

#include "schermo.h"

// Start and rest of the program, against an empty program of Qt's on the same display: time from
// exec to the first picture, memory after the start, wake-ups at rest.
//
//   avvio PROGRAM EMPTY
namespace {

constexpr int kRuns = 15;
constexpr double kSettled = 2.0;  // seconds after the first picture
constexpr double kRest = 10.0;    // seconds of rest that are watched

double risvegliAlSecondo(const bench::Programma& programma) {
  const long before = programma.risvegli();
  bench::dormi(kRest);
  return static_cast<double>(programma.risvegli() - before) / kRest;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: avvio PROGRAM EMPTY\n");
    return 2;
  }
  try {
    std::vector<double> own;
    std::vector<double> empty;
    for (int i = 0; i <= kRuns; ++i) {
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
    std::printf("exec to first picture: %.0f ms, empty program %.0f ms: %.2f times (at most 1.5)\n",
                mine, plain, mine / plain);

    bench::Programma a(argv[1]);
    (void)a.attendiDipinto();
    bench::dormi(kSettled);
    std::printf("at rest on the splash form: %.2f wake-ups a second (under 1)\n",
                risvegliAlSecondo(a));
    const long alone = a.pss();
    bench::Programma b(argv[2]);
    (void)b.attendiDipinto();
    bench::dormi(kSettled);
    // Both run while each is measured, so that what they share is shared in both figures.
    std::printf("proportional set size: %ld KB, empty program %ld KB: %.2f times (at most 2)\n",
                a.pss(), b.pss(), static_cast<double>(a.pss()) / static_cast<double>(b.pss()));
    std::printf("  (alone %ld KB)\n", alone);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "avvio: %s\n", error.what());
    return 1;
  }
}
