#pragma once

#include <QByteArray>
#include <functional>

#include "app/shared/foglio_tasti.h"
#include "input/segnali_helpikeys.h"
#include "platform/forms/control_array.h"
#include "platform/forms/controls/socket.h"

namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline ingresso {

// A form's link with HelpiKeys, the outside program that turns a touch surface into a keyboard: the
// connection, what is asked of the other side, what it answers, and which key of the sheet a touch
// falls on. What a key does is the form's business.
//
// Nobody looks whether the outside program exists: a form that is activated without a connection
// ends with the run-time's box.
class CollegamentoHelpiKeys {
 public:
  using Prese = platform::ControlArray<platform::Socket>;
  using Azione = std::function<void(int tasto)>;

  // prese: `ControlloConnessione` of the form. Element 0 stands on it and is not used; element 1
  // is made by `Apri` and carries everything. tastiera: kept by reference. interpreta: what the
  // places of the sheet do; never called with 0.
  CollegamentoHelpiKeys(Ambiente& ambiente, Prese& prese, const Tastiera& tastiera,
                        Azione interpreta);

  // The steps of the form's Load. A connection that does not come about passes silently.
  void Apri();
  // The first step of every activation. Throws RunTimeError(ConnectionState) without a connection.
  void Richiedi();
  // When the form is left for its menu. Throws as `Richiedi` does.
  void Lascia();

  [[nodiscard]] bool HelpiKeysConnesso() const { return segnali_.HelpiKeysConnesso; }
  // The place of the sheet under a cell of the surface, or 0.
  [[nodiscard]] int DecodificaSegnali(int colonna, int riga) const {
    return tastiera_.Posto(colonna, riga);
  }

 private:
  platform::Socket& CreaPresa();
  void Manda(const QByteArray& richiesta);
  void Arrivo();
  void DiciPronta();

  Ambiente& ambiente_;
  Prese& prese_;
  const Tastiera& tastiera_;
  Azione interpreta_;
  SegnaliHelpiKeys segnali_;
  bool detta_ = false;  // while the box of an "OK" stands
};

}  // namespace somme::inline ingresso
