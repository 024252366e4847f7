#pragma once

#include <string_view>

#include "app/shared/colori.h"
#include "platform/forms/design.h"

// The keys of the scanning keyboards.
namespace somme::inline ingresso {

// What a key looks like before the light first comes to it, with words or a picture on it. The
// layout sets the size of the letters.
constexpr platform::Look TastoScritto(std::string_view testo) {
  return {.caption = testo,
          .font = {.face = platform::Face::Arial, .bold = true},
          .back = colori::kGrigio};
}
// chiuso: the key cannot be chosen until the form says so.
constexpr platform::Look TastoDisegnato(std::string_view immagine, bool chiuso = false) {
  platform::Look tasto = TastoScritto({});
  tasto.disabled = chiuso;
  tasto.picture = immagine;
  return tasto;
}

}  // namespace somme::inline ingresso
