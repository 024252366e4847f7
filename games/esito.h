#pragma once

#include <cstdint>

namespace somme::inline giochi {

// What came of an answer. The forms show, count, sound and record it.
enum class Esito : std::uint8_t {
  Ignorato,     // it was no answer, or none is asked for now: nothing happens
  Sbagliato,    // wrong; the case stays, and there is no limit of tries
  PassoGiusto,  // a step on the way is right: nothing is counted
  Risolto,      // the case is solved
};

}  // namespace somme::inline giochi
