#include "swf/lettere.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace somme::filmati {
namespace {

using swf::Percorso;

// Letters stand on y = 0 and reach y = -1 with their small part, in units of the height of that.
constexpr double kAsta = -1.55;
constexpr double kTraLettere = 0.42;

struct Lettera {
  char segno;
  double larghezza;
  void (*disegna)(Percorso&);
};

// The round of a and d, open to nothing, closed by the stem at its right.
void tondo(Percorso& p) {
  p.ellisse({0.40, -0.5}, 0.40, 0.5);
}

constexpr std::array<Lettera, 5> kLettere{{
    {'a', 0.80,
     [](Percorso& p) {
       tondo(p), p.vai({0.80, -1}).linea({0.80, 0});
     }},
    {'d', 0.80,
     [](Percorso& p) {
       tondo(p), p.vai({0.80, kAsta}).linea({0.80, 0});
     }},
    {'h', 0.72,
     [](Percorso& p) {
       p.vai({0, kAsta}).linea({0, 0});
       p.vai({0, -0.55}).curva({0.04, -1}, {0.38, -1}).curva({0.72, -1}, {0.72, -0.58});
       p.linea({0.72, 0});
     }},
    {'k', 0.70,
     [](Percorso& p) {
       p.vai({0, kAsta}).linea({0, 0});
       p.vai({0.64, -0.98}).linea({0.02, -0.40}).vai({0.26, -0.62}).linea({0.70, 0});
     }},
    {'u', 0.74,
     [](Percorso& p) {
       p.vai({0, -1}).linea({0, -0.42}).curva({0, 0}, {0.34, 0}).curva({0.70, 0}, {0.74, -0.45});
       p.vai({0.74, -1}).linea({0.74, 0});
     }},
}};

const Lettera& lettera(char segno) {
  const auto trovata = std::ranges::find(kLettere, segno, &Lettera::segno);
  if (trovata == kLettere.end()) throw std::out_of_range("a letter that no sign has");
  return *trovata;
}

}  // namespace

Percorso scritta(std::string_view parola, double corpo, swf::Punto centro) {
  Percorso riga;
  double x = 0;
  for (const char segno : parola) {
    Percorso una;
    lettera(segno).disegna(una);
    riga.aggiungi(una, {x, 0});
    x += lettera(segno).larghezza + kTraLettere;
  }
  const double larghezza = x - kTraLettere;
  Percorso esito;
  return esito.aggiungi(riga, {centro.x - larghezza * corpo / 2, centro.y + corpo / 2}, corpo);
}

}  // namespace somme::filmati
