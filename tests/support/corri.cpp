// The program of a folder's tests: runs the class that its first argument names.
#include <cstdio>

#include "support/iscrizione.h"

int main(int argc, char** argv) {
  const prova::Iscritta* scelta = argc > 1 ? prova::Iscritta::Di(argv[1]) : nullptr;
  if (scelta == nullptr) {
    std::fprintf(stderr, "Usage: %s CLASS [arguments of Qt Test]; CLASS is one of\n", argv[0]);
    prova::Iscritta::ElencaTutte();
    return 2;
  }
  // Qt Test sees its own arguments only.
  argv[1] = argv[0];
  return scelta->Corri(argc - 1, argv + 1);
}
