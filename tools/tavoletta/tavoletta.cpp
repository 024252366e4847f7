#include "tools/tavoletta/tavoletta.h"

namespace somme::tavoletta {

namespace {

constexpr char kPrimaDellaGriglia = 64;
const QByteArray kChiede = QByteArrayLiteral("02#REQ-TOUCH");
const QByteArray kRende = QByteArrayLiteral("02#REQ-DEFAULT");

}  // namespace

Tavoletta::Tavoletta(QObject* parent) : QObject(parent) {
  connect(&server_, &QTcpServer::newConnection, this, &Tavoletta::Accogli);
}

// The server takes its sockets with it, and these tell of their end.
Tavoletta::~Tavoletta() {
  if (presa_) presa_->disconnect(this);
}

bool Tavoletta::Ascolta(quint16 porta) {
  return server_.listen(QHostAddress::LocalHost, porta);
}

void Tavoletta::Passa(Stato stato) {
  if (stato_ == stato) return;
  stato_ = stato;
  Q_EMIT cambiata();
}

void Tavoletta::Accogli() {
  while (QTcpSocket* nuova = server_.nextPendingConnection()) {
    Stacca();
    presa_ = nuova;
    presa_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    letti_.clear();
    connect(nuova, &QTcpSocket::readyRead, this, &Tavoletta::Leggi);
    connect(nuova, &QTcpSocket::disconnected, this, [this, nuova] {
      if (presa_ == nuova) Stacca();
    });
    Passa(Stato::Collegata);
    Leggi();
  }
}

// Requests have no end of their own: what has come is searched for the two that there are.
void Tavoletta::Leggi() {
  if (!presa_) return;
  letti_ += presa_->readAll();
  while (letti_.size() >= kChiede.size()) {
    if (letti_.startsWith(kChiede)) {
      letti_.remove(0, kChiede.size());
      Q_EMIT ricevuto(kChiede);
      if (risponde_) Manda(QByteArrayLiteral("OK"));
      Passa(Stato::Tocchi);
    } else if (letti_.startsWith(kRende)) {
      letti_.remove(0, kRende.size());
      Q_EMIT ricevuto(kRende);
      Passa(Stato::Collegata);
    } else if (kRende.startsWith(letti_)) {
      return;
    } else {
      letti_.remove(0, 1);
    }
  }
}

void Tavoletta::Manda(const QByteArray& byte) {
  if (!presa_) return;
  presa_->write(byte);
  presa_->flush();
  Q_EMIT mandato(byte);
}

void Tavoletta::Tocca(int colonna, int riga, char statoTocco) {
  const char rapporto[] = {static_cast<char>(kPrimaDellaGriglia + colonna),
                           static_cast<char>(kPrimaDellaGriglia + riga), statoTocco};
  Manda(QByteArray(rapporto, sizeof rapporto));
}

void Tavoletta::Stacca() {
  if (!presa_) return;
  QTcpSocket* vecchia = presa_;
  presa_.clear();
  vecchia->disconnect(this);
  vecchia->disconnectFromHost();
  vecchia->deleteLater();
  Passa(Stato::Attende);
}

}  // namespace somme::tavoletta
