#pragma once

#include <QByteArray>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

namespace somme::tavoletta {

// Stands in for the touch surface on the other end of the link: listens on the loopback address,
// answers "OK" to each request for touches, and reports touches. It holds one connection at a time,
// the last that came.
class Tavoletta final : public QObject {
  Q_OBJECT

 public:
  explicit Tavoletta(QObject* parent = nullptr);
  ~Tavoletta() override;
  Tavoletta(const Tavoletta&) = delete;
  Tavoletta& operator=(const Tavoletta&) = delete;

  // False when the port is taken; 0 takes any that is free.
  [[nodiscard]] bool Ascolta(quint16 porta);
  [[nodiscard]] quint16 Porta() const { return server_.serverPort(); }

  enum class Stato {
    Attende,    // nobody is connected
    Collegata,  // somebody is, and has asked for no touches or given them back
    Tocchi,     // touches have been asked for
  };
  [[nodiscard]] Stato stato() const { return stato_; }

  // Whether requests for touches are answered; at the start they are.
  void Rispondi(bool risponde) { risponde_ = risponde; }
  // Sends any bytes at once; nobody gets them while nobody is connected.
  void Manda(const QByteArray& byte);
  // Reports a touch on a cell of the grid, both counted from 1.
  void Tocca(int colonna, int riga, char statoTocco = '1');
  // Ends the connection; the listening goes on.
  void Stacca();

 Q_SIGNALS:
  void cambiata();  // the state
  void ricevuto(const QByteArray& richiesta);
  void mandato(const QByteArray& byte);

 private:
  void Accogli();
  void Leggi();
  void Passa(Stato stato);

  QTcpServer server_;
  QPointer<QTcpSocket> presa_;
  QByteArray letti_;
  Stato stato_ = Stato::Attende;
  bool risponde_ = true;
};

}  // namespace somme::tavoletta
