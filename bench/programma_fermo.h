#pragma once

#include <QString>
#include <functional>

#include "app/shared/ambiente.h"
#include "immagini/immagini.h"
#include "platform/devices/qt_time_source.h"
#include "servizi_fermi.h"
#include "tools/tavoletta/tavoletta.h"

// The program as a measurement has it: started over the real clock, a chance that always draws the
// same, and services that do nothing.
namespace bench {

// The services that a measurement brings itself, each of which must outlive the program; nullptr:
// one that does nothing.
struct Propri {
  platform::Sound* suono = nullptr;
  platform::Announcer* annunci = nullptr;
  platform::Printers* stampanti = nullptr;
  platform::Network* rete = nullptr;
  quint16 porta = 0;  // where the touch surface listens; 0: the usual port
};

// Has the stand-in of the touch surface listen at a port of its own, which is answered. Ends the
// process where there is none.
[[nodiscard]] quint16 siMetteInAscolto(somme::tavoletta::Tavoletta& tavoletta);

class ProgrammaFermo {
  // Before the program, which refers to them.
  platform::QtTimeSource tempo_;
  platform::SeededChance sorte_{1};
  Muto suono_;
  Zitto messaggi_;
  Tacito annunci_;
  platform::Pictures immagini_{somme::CartellaImmagini()};
  Chiuso documenti_;
  Uscita fine_;
  Solo istanza_;
  SenzaStampanti stampanti_;
  SenzaPagina pagina_;
  ReteSorda rete_;

 public:
  // cartella: the program's folder.
  explicit ProgrammaFermo(const QString& cartella, const Propri& propri = {});

  somme::Ambiente ambiente;

 private:
  [[nodiscard]] somme::Servizi servizi(const QString& cartella, const Propri& propri);
};

// What the main() of a measurement does: an application as the program has it, and `lavoro` in it
// with the program's folder, the one argument that the command takes; `lavoro` says whether all
// went well. Ends the process with 0 or 1; answers only where the command is wrong, with 2.
[[nodiscard]] int misuraConCartella(int argc, char* argv[],
                                    const std::function<bool(const QString& cartella)>& lavoro);

}  // namespace bench
