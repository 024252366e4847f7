#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <optional>

#include "scimmia/gesti.h"
#include "scimmia/lettore.h"
#include "scimmia/verifiche.h"

namespace prova {

// A monkey at the program: one life of it goes from the opening of a form over some hundreds of
// events to the end of the program, or until the monkey is tired. Events come one after the other,
// and inside of whatever waits: the scripted clock calls the monkey wherever it moves.
class Scimmia {
 public:
  // forma: the form that it keeps to; from others it comes back. seme: of this life.
  Scimmia(const QByteArray& forma, std::uint64_t seme, bool racconta);
  ~Scimmia();

  // Plays so many events, or fewer where the program ends or `basta` says so, which is asked before
  // each. Throws Guasto.
  void vivi(int eventi, const std::function<bool()>& basta);

  [[nodiscard]] int eventi() const { return eventi_; }       // so far, of all kinds
  [[nodiscard]] int nelleAttese() const { return dentro_; }  // of them, inside of a wait
  [[nodiscard]] int profonda() const { return profonda_; }   // the most on the stack at once
  [[nodiscard]] QString racconto() const { return racconto_.ultime(); }
  // Whether the program drew for a case that it can never find.
  [[nodiscard]] bool giravaAVuoto() const { return gira_; }

 private:
  void prepara();
  void apri();
  void torna();
  void ronza();
  void ronzaNeiCicli();
  void evento();
  void verifica();
  void nelRiquadro();
  void mentreLaStampanteRisponde();
  void giraLaSorte();
  void scegli();
  [[nodiscard]] bool finita() const;

  QByteArray nome_;
  somme::SchedaForma scheda_;  // of that form
  Dadi dadi_;
  Racconto racconto_;
  Disturbi disturbi_;
  std::unique_ptr<Verifiche> verifiche_;
  Banco banco_;
  Gesti gesti_;
  QObject finoAllaFine_;
  Lettore lettore_;
  std::optional<Guasto> guasto_;
  int restano_ = 0;
  int eventi_ = 0;
  int dentro_ = 0;
  int profondita_ = 0;
  int profonda_ = 0;
  int fuori_ = 0;         // events since the monkey's own form was left
  QStringList riquadri_;  // the message boxes now open
  bool chiede_ = false;   // a printer is being asked
  int tiri_ = 0;          // draws since the last event
  bool gira_ = false;
  bool chiamata_ = false;  // an event of the monkey's is on its way into a loop of Qt's
};

}  // namespace prova
