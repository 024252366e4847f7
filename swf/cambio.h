#pragma once

#include <string>

#include "swf/tavola.h"

namespace somme::filmati {

// The change of ten blocks into one of the next kind, as a stretch of a scene: the first ten
// blocks of a row fly, one after the other, to the free place where the new block is going to
// stand, close up into its shape, take its colour, and the movie says its word. That picture then
// stays until the host has shown the new block there and hidden the ten, when they go back to
// their places unseen.
//
// Where the free place is, the movie reads off the board when the stretch begins: it is the one
// after the last block of the next kind that is visible. All movement is done by actions that set
// the ten clips' places: a clip moved so no longer follows the timeline, so nothing else moves
// them.
class Cambio {
 public:
  // How long each act lasts, in frames.
  struct Tempi {
    int volo = 0;        // of one block, from its place to the new one
    int intervallo = 0;  // from the start of one block to the start of the next
    int colore = 0;      // until the ten have the new colour
    int sosta = 0;       // that the finished picture stands before the word is said
  };

  struct Copione {
    Fila pezzi;         // the row whose first ten change
    Fila nuovi;         // the row of the next kind
    swf::Punto primo;   // from the corner of the new block to its first piece
    swf::Punto passo;   // from each piece of the new block to the next one
    double salita = 0;  // pixels that a flight rises above the straight line, in its middle
    Tempi tempi;
    std::string parola;
  };

  explicit Cambio(Copione copione) : c_(std::move(copione)) {}

  // Frames of the whole stretch, the last of which says the word.
  [[nodiscard]] int durata() const { return coloreDa() + c_.tempi.colore + c_.tempi.sosta; }

  // For the scene's first frame: puts the clip down that waits for the ten to be hidden.
  void prepara(swf::Filmato& filmato, int profondita) const;
  // Lets the ten stand in their places, in their own colour, whatever went on.
  void rimetti(swf::Azioni& azioni) const;
  // Writes the stretch on the scene's next frames.
  void recita(swf::LineaTempo& scena) const;

 private:
  static constexpr int kPezzi = 10;

  // The frame of the stretch, from 0, on which the ten, all arrived, start to take colour.
  [[nodiscard]] int coloreDa() const {
    return c_.tempi.intervallo * (kPezzi - 1) + c_.tempi.volo + 1;
  }
  [[nodiscard]] double avanzamento(int pezzo, int fotogramma) const;
  [[nodiscard]] std::string custode() const { return "custode" + c_.pezzi.prefisso; }
  void cercaPostoLibero(swf::Azioni& azioni) const;
  void porta(swf::Azioni& azioni, int pezzo, double parte) const;
  void vola(swf::Azioni& azioni, int fotogramma) const;

  Copione c_;
};

}  // namespace somme::filmati
