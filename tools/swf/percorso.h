#pragma once

#include <vector>

#include "tools/swf/geometria.h"

namespace somme::swf {

// A line drawn without lifting the pencil, or several of them: straight pieces and curves with one
// control point each, the only curves that the format knows. Says where, not in which colour.
class Percorso {
 public:
  struct Passo {
    enum class Tipo { Vai, Linea, Curva };
    Tipo tipo = Tipo::Vai;
    Punto controllo;  // of a curve
    Punto fine;
  };

  // Lifts the pencil and puts it down at the point.
  Percorso& vai(Punto dove);
  Percorso& linea(Punto fino);
  Percorso& curva(Punto controllo, Punto fino);
  // Draws back to where the pencil was last put down.
  Percorso& chiudi();

  Percorso& rettangolo(const Rettangolo& r);
  Percorso& rettangoloTondo(const Rettangolo& r, double raggio);
  Percorso& ellisse(Punto centro, double raggioX, double raggioY);
  Percorso& cerchio(Punto centro, double raggio) { return ellisse(centro, raggio, raggio); }
  // Another path's pieces, each point first multiplied by `scala`, then moved by `di`.
  Percorso& aggiungi(const Percorso& altro, Punto di = {}, double scala = 1);

  [[nodiscard]] const std::vector<Passo>& passi() const { return passi_; }
  [[nodiscard]] bool vuoto() const { return passi_.empty(); }
  // The smallest upright rectangle with every end and control point.
  [[nodiscard]] Rettangolo ingombro() const;

 private:
  Percorso& arco(Punto centro, double raggioX, double raggioY, double daGradi, double aGradi);

  std::vector<Passo> passi_;
  Punto inizio_;
};

}  // namespace somme::swf
