#pragma once

#include <QByteArray>
#include <QString>

#include "tools/swf/filmato.h"

namespace prova {

// A movie as another artist may draw it: plain squares in rows, each row with the names of one kind
// of clip, and frames that take them away and bring them back as that artist likes. It keeps to
// what the forms ask of a movie and to nothing else that this program's own movies do.
class FilmatoAltrui {
 public:
  static constexpr int kFrequenza = 25;  // frames a second

  FilmatoAltrui() : filmato_({600, 300, kFrequenza}) {
    somme::swf::Forma quadro;
    quadro.dipingi(somme::swf::Percorso().rettangolo({0, 0, kLato, kLato}),
                   somme::swf::Riempimento::tinta({200, 80, 0}));
    quadro_ = filmato_.definisci(quadro);
    somme::swf::LineaTempo clip;
    clip.poni(1, quadro_).mostra();
    clip_ = filmato_.definisci(clip);
  }

  // Another thing for the rows to be made of.
  void falliDi(somme::swf::Carattere cosa) { clip_ = cosa; }
  [[nodiscard]] somme::swf::Carattere quadro() const { return quadro_; }
  [[nodiscard]] somme::swf::Filmato& filmato() { return filmato_; }
  [[nodiscard]] somme::swf::LineaTempo& scena() { return filmato_.scena(); }

  // Clips `prefisso` + da to `prefisso` + a, in row number `fila`, each at a depth of its own.
  FilmatoAltrui& poni(const char* prefisso, int fila, int da, int a) {
    for (int i = da; i <= a; ++i) {
      scena().poni(profondita(fila, i), clip_,
                   {.matrice = somme::swf::Matrice{.tx = i * (kLato + 5.0), .ty = fila * 50.0},
                    .nome = prefisso + std::to_string(i)});
    }
    return *this;
  }
  FilmatoAltrui& togli(int fila, int da, int a) {
    for (int i = da; i <= a; ++i) scena().togli(profondita(fila, i));
    return *this;
  }
  FilmatoAltrui& ferma() {
    scena().esegui(somme::swf::Azioni().ferma());
    return *this;
  }
  FilmatoAltrui& di(const char* parola) {
    scena().esegui(somme::swf::Azioni().comando("movie", parola));
    return *this;
  }
  // So many frames go by.
  FilmatoAltrui& mostra(int volte = 1) {
    scena().mostra(volte);
    return *this;
  }
  // Frames go by up to the one with this number, which is then in the making.
  FilmatoAltrui& finoA(int fotogramma) { return mostra(fotogramma - scena().fotogramma()); }

  [[nodiscard]] QByteArray byte() const {
    const std::vector<std::uint8_t> tutti = filmato_.byte();
    return {reinterpret_cast<const char*>(tutti.data()), qsizetype(tutti.size())};
  }

 private:
  static constexpr int kLato = 20;

  static int profondita(int fila, int numero) { return 100 * (fila + 1) + numero; }

  somme::swf::Filmato filmato_;
  somme::swf::Carattere quadro_;
  somme::swf::Carattere clip_;
};

}  // namespace prova
