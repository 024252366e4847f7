#pragma once

#include <QPointer>
#include <QWidget>

#include "scimmia/caso_di_scimmia.h"
#include "support/banco.h"

namespace prova {

// What has been done to the world around the program, so that a run-time error can be told from a
// defect: these are the answers that it owes.
struct Disturbi {
  bool rete = false;       // HelpiKeys refused, kept silent or went away
  bool stampante = false;  // a printer was missing or failed
  bool rapporto = false;   // a report of one character came
  bool lato = false;       // the window changed its size under the bars
  double lentezza = 0;     // seconds that a printer lets the program wait

  [[nodiscard]] bool spiega(const QString& riquadro) const;
};

// All that can happen to the program from outside, each by itself, drawn by the dice.
class Gesti {
 public:
  Gesti(Banco& banco, Dadi& dadi, Racconto& racconto, Disturbi& disturbi)
      : banco_(banco), dadi_(dadi), racconto_(racconto), disturbi_(disturbi) {}

  // One of them. profondita: how many events are on the stack below.
  void uno(int profondita);
  // One of those that reach the program also while a message box stands open.
  void daFuori(int profondita);
  // Lets go of the buttons of the mouse that an earlier life may have left down.
  void lasciaTutto();
  // What ends a window over the main one, or a menu: for when too much is open already.
  void chiudiQuelloSopra();

 private:
  [[nodiscard]] bool chiuso() const;
  [[nodiscard]] platform::Form* inUso() const;
  [[nodiscard]] QWindow* finestra();
  [[nodiscard]] bool libera() const;

  void gira(int profondita);
  void tasto(int profondita);
  void tieni(int profondita);
  void rispondi(int profondita);
  void toccaCifre(const QString& cifre);
  void mouse(int profondita);
  void controllo(int profondita);
  void menu(int profondita);
  void accessibile(int profondita);
  void rete(int profondita);
  void chiacchiera(int profondita);
  void orologio(int profondita);
  void lato(int profondita);
  void perdiIlFuoco(int profondita);
  void torna();
  void lingua(int profondita);
  void stampanti(int profondita);
  void chiudi(int profondita);

  void premi(QMouseEvent::Type tipo, QWindow* dove, QPoint punto, Qt::MouseButton bottone);

  Banco& banco_;
  Dadi& dadi_;
  Racconto& racconto_;
  Disturbi& disturbi_;
  QWidget altra_;  // a window of another program
};

}  // namespace prova
