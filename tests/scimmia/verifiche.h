#pragma once

#include <memory>
#include <vector>

#include "support/banco.h"

namespace prova {

// What holds of the program after every event, whatever has been done to it. A breach throws
// Guasto.
class Verifiche {
 public:
  explicit Verifiche(Banco& banco) : banco_(banco) {}

  // A form of the program has been made: it is watched from now on.
  void nata(const std::shared_ptr<platform::Form>& forma) { nate_.push_back(forma); }

  // After any event, also inside of a wait.
  void sempre();
  // When nothing of the program is running.
  void aRiposo();
  // The same, for what takes longer.
  void aFondo();

 private:
  void conteggi();
  void unaSolaPagina() const;
  void etichette() const;
  void caso() const;
  void nessunFantasma();
  void fuoco() const;
  void alberoAccessibile() const;
  void tuttoNellaFinestra() const;

  Banco& banco_;
  std::vector<std::weak_ptr<platform::Form>> nate_;
  int esatti_ = 0;
  int errati_ = 0;
  int riposi_ = 0;
};

}  // namespace prova
