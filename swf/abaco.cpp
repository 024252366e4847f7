#include "swf/abaco.h"

#include <array>
#include <string>

#include "swf/lettere.h"

namespace somme::filmati {
namespace {

using swf::Azioni;
using swf::Colore;
using swf::Filmato;
using swf::Forma;
using swf::LineaTempo;
using swf::Percorso;
using swf::Pulsante;
using swf::Punto;
using swf::Riempimento;

// One place of the number: its spike, its beads and the words that their clicks say.
struct Ordine {
  const char* segno;     // at the foot of the spike; also the name of the beads on it
  const char* inAttesa;  // the name of the waiting beads
  const char* parolaInserita;
  const char* parolaInAttesa;
  Colore luce, piena, ombra;
};

constexpr std::array<Ordine, 4> kOrdini{{
    {"k",
     "ka",
     "migliaioinserito",
     "migliaioinattesa",
     {240, 222, 255},
     {150, 70, 225},
     {76, 10, 140}},
    {"h",
     "ha",
     "centinaioinserito",
     "centinaioinattesa",
     {215, 255, 205},
     {40, 225, 40},
     {0, 130, 10}},
    {"da", "daa", "decinainserita", "decinainattesa", {255, 205, 195}, {245, 30, 30}, {140, 0, 0}},
    {"u", "ua", "unitainserita", "unitainattesa", {200, 215, 255}, {45, 75, 250}, {0, 5, 130}},
}};

// Pixels of the stage. In the smallest window the abacus is shown at 0.8 of its size; the place
// where a bead feels the mouse is still 24 by 24 pixels there.
constexpr double kZonaLarga = 32;
constexpr double kZonaAlta = 30;
constexpr double kRaggioX = 15;
constexpr double kRaggioY = 14.2;

constexpr double kColonna = 129;    // from spike to spike
constexpr double kPrimoFerro = 30;  // the first spike's middle
constexpr double kPiano = 318;      // where the lowest bead rests
constexpr double kCima = 7;
constexpr int kPalline = 10;
constexpr double kPrimaInAttesa = 42;  // from a spike to its nearer column of waiting beads

double ferro(std::size_t ordine) {
  return kPrimoFerro + kColonna * static_cast<double>(ordine);
}

double altezza(int riga) {
  return kPiano - kZonaAlta * (riga + 0.5);
}

// Waiting beads stand in two columns of five. Number 0 is on top of the far one, as it is the
// first to be taken where beads go by number, and the one that never shows among the thousands.
Punto postoInAttesa(std::size_t ordine, int i) {
  const int daSotto = kPalline - 1 - i;
  const int colonna = daSotto / 5;
  return {ferro(ordine) + kPrimaInAttesa + kZonaLarga * colonna, altezza(daSotto % 5)};
}

Punto postoSulFerro(std::size_t ordine, int i) {
  return {ferro(ordine), altezza(i)};
}

// A shiny ball round the origin. It bears no sign: its place and its colour say what it counts.
Forma pallina(const Ordine& ordine) {
  Forma forma;
  forma.dipingi(
      Percorso().ellisse({0, 0}, kRaggioX, kRaggioY),
      Riempimento::radiale({-kRaggioX * 0.35, -kRaggioY * 0.45}, kRaggioX * 1.5, kRaggioY * 1.5,
                           {{0, ordine.luce}, {0.42, ordine.piena}, {1, ordine.ombra}}),
      swf::Penna{1, ordine.ombra});
  return forma;
}

// The ring round a bead that is pointed at.
Forma alone() {
  const Percorso giro = Percorso().ellisse({0, 0}, kRaggioX - 0.5, kRaggioY - 0.5);
  Forma forma;
  forma.traccia(giro, {3.5, {40, 40, 40}});
  forma.traccia(giro, {1.8, {255, 255, 120}});
  return forma;
}

// Says the name of the clip that holds the button, and the word.
Azioni annuncio(const char* parola) {
  Azioni azioni;
  azioni.spingi("FSCommand:").spingi("this").leggiVariabile().spingi("_name").leggiMembro();
  azioni.unisciTesti().spingi(parola).comandoCalcolato();
  return azioni;
}

// What all beads have in common.
struct Parti {
  swf::Carattere alone, zona;
};

LineaTempo pallinaDaToccare(Filmato& filmato, swf::Carattere palla, const Parti& parti,
                            const char* parola) {
  Pulsante pulsante;
  pulsante.mostra(Pulsante::Fermo, 1, palla)
      .mostra(Pulsante::Puntato, 1, palla, {.colore = swf::schiarito(0.18)})
      .mostra(Pulsante::Premuto, 1, palla, {.matrice = swf::scalato(0.9)})
      .mostra(Pulsante::Puntato | Pulsante::Premuto, 2, parti.alone)
      .mostra(Pulsante::Sensibile, 3, parti.zona)
      .alRilascio(annuncio(parola));
  LineaTempo clip;
  clip.poni(1, filmato.definisci(pulsante)).mostra();
  return clip;
}

Riempimento legno(double alto, double basso) {
  return Riempimento::lineare({0, alto}, {0, basso},
                              {{0, {240, 205, 150}}, {0.25, {222, 176, 112}}, {1, {178, 124, 66}}});
}

// The wooden stand: trays for the waiting beads, spikes and the base with the signs.
Forma telaio() {
  constexpr Colore kOrloLegno{112, 70, 28};
  Forma forma;
  for (std::size_t o = 0; o < kOrdini.size(); ++o) {
    const double x = ferro(o);
    const double sinistra = x + kPrimaInAttesa - kZonaLarga / 2 - 3;
    forma.dipingi(
        Percorso().rettangoloTondo(
            {sinistra, kPiano - 5 * kZonaAlta - 5, 2 * kZonaLarga + 6, 5 * kZonaAlta + 12}, 7),
        Riempimento::tinta({246, 232, 208}), swf::Penna{1.5, {190, 150, 100}});
    forma.dipingi(
        Percorso().rettangoloTondo({x - 3, kCima, 6, kPiano - kCima + 6}, 3),
        Riempimento::lineare({x - 3, 0}, {x + 3, 0},
                             {{0, {150, 150, 160}}, {0.4, {240, 240, 248}}, {1, {110, 110, 122}}}),
        swf::Penna{0.8, {80, 80, 90}});
  }
  forma.dipingi(Percorso().rettangoloTondo({3, kPiano, 515, 38}, 8), legno(kPiano, kPiano + 38),
                swf::Penna{1.5, kOrloLegno});
  for (std::size_t o = 0; o < kOrdini.size(); ++o) {
    const Punto centro{ferro(o), kPiano + 19.5};
    forma.dipingi(Percorso().rettangoloTondo({centro.x - 24, centro.y - 16, 48, 32}, 6),
                  Riempimento::tinta({255, 255, 250}), swf::Penna{2, kOrdini[o].ombra});
    forma.traccia(scritta(kOrdini[o].segno, 15, {centro.x, centro.y + 3.5}), {3, kOrdini[o].ombra});
  }
  return forma;
}

}  // namespace

Filmato abaco() {
  // Nothing on it moves by itself: its frames are left time to be drawn.
  constexpr double kCadenza = 20;
  Filmato filmato({521, 361, kCadenza, {255, 252, 244}});
  LineaTempo& scena = filmato.scena();
  int profondita = 1;
  scena.poni(profondita++, filmato.definisci(telaio()));
  Forma zona;
  zona.dipingi(Percorso().rettangolo({-kZonaLarga / 2, -kZonaAlta / 2, kZonaLarga, kZonaAlta}),
               Riempimento::tinta({0, 0, 0}));
  const Parti parti{filmato.definisci(alone()), filmato.definisci(zona)};
  for (std::size_t o = 0; o < kOrdini.size(); ++o) {
    const Ordine& ordine = kOrdini[o];
    const auto palla = filmato.definisci(pallina(ordine));
    const auto inserita =
        filmato.definisci(pallinaDaToccare(filmato, palla, parti, ordine.parolaInserita));
    const auto inAttesa =
        filmato.definisci(pallinaDaToccare(filmato, palla, parti, ordine.parolaInAttesa));
    for (int i = 0; i < kPalline; ++i) {
      const std::string numero = std::to_string(i);
      scena.poni(profondita++, inserita,
                 {.matrice = swf::spostato(postoSulFerro(o, i)), .nome = ordine.segno + numero});
      scena.poni(profondita++, inAttesa,
                 {.matrice = swf::spostato(postoInAttesa(o, i)), .nome = ordine.inAttesa + numero});
    }
  }
  scena.esegui(Azioni().ferma()).mostra();
  return filmato;
}

}  // namespace somme::filmati
