#pragma once

#include <QAccessible>
#include <QObject>
#include <optional>

#include "scimmia/caso_di_scimmia.h"
#include "support/desktop_di_prova.h"

namespace prova {

// Walks the accessible tree below a node and asks each of its nodes all that a screen reader asks;
// how many there are. Throws Guasto for a tree that does not hang together.
int PercorriAlbero(QAccessibleInterface* nodo);

// A screen reader that asks for everything: at each event for what the event is about, as the
// toolkit's bridge does at once, and for the whole tree as soon as events run.
class Lettore {
 public:
  void accendi();
  // What it has found that must never be, once.
  [[nodiscard]] std::optional<Guasto> preso() { return std::exchange(preso_, std::nullopt); }
  // Whether it is on and has heard nothing so far.
  [[nodiscard]] bool sordo() const { return desktop_.has_value() && uditi_ == 0; }

 private:
  void chiedi(const QAccessibleEvent& evento);
  void chiediTutto();

  std::optional<DesktopDiProva> desktop_;
  QObject finoAllaFine_;
  int uditi_ = 0;
  std::optional<Guasto> preso_;
  bool chiesto_ = false;  // a walk is in the queue
  bool cammina_ = false;
};

}  // namespace prova
