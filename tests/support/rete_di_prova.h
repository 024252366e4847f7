#pragma once

#include <QByteArrayList>
#include <memory>
#include <vector>

#include "platform/base/network.h"

namespace prova {

// The program on the other end of the touch link, as a test writes it down. At the start it takes
// every connection and says nothing.
class ReteDiProva final : public platform::Network {
 public:
  [[nodiscard]] std::unique_ptr<platform::Connection> makeConnection(
      std::function<void()> arrived) override;

  // How it meets the next connection.
  enum class Accoglienza { Accetta, Rifiuta, Tace } accoglienza = Accoglienza::Accetta;
  QByteArray aOgniRichiesta;  // its answer to each "02#REQ-TOUCH"; empty for none

  // Sends to the program, and lets it take what has come.
  void manda(const QByteArray& byte);
  // The same, but what has come waits in the queue.
  void accoda(const QByteArray& byte);
  // Takes a connection that it has left waiting.
  void accettaOra();
  // Ends the connection from its side.
  void stacca();

  [[nodiscard]] bool collegata() const;
  QByteArrayList ricevuti;            // what the program has sent, message by message
  std::vector<quint16> porte;         // of all connections that the program has tried
  int chiusure = 0;                   // connections that the program has closed
  platform::Network* vera = nullptr;  // where a test asks for real sockets, these are used

 private:
  class Presa;
  struct Filo;
  std::shared_ptr<Filo> filo_;  // the last connection
};

}  // namespace prova
