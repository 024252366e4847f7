#include "support/rete_di_prova.h"

#include <QCoreApplication>

namespace prova {

struct ReteDiProva::Filo {
  std::function<void()> arrivato;
  QByteArray daLeggere;
  bool aperto = false;
  bool inArrivo = false;
  bool inCoda = false;
};

class ReteDiProva::Presa final : public platform::Connection {
 public:
  Presa(ReteDiProva& rete, std::function<void()> arrivato)
      : rete_(rete), filo_(std::make_shared<Filo>()) {
    filo_->arrivato = std::move(arrivato);
  }
  ~Presa() override { filo_->arrivato = {}; }

  void open(quint16 port) override {
    rete_.porte.push_back(port);
    rete_.filo_ = filo_;
    filo_->daLeggere.clear();
    filo_->aperto = rete_.accoglienza == Accoglienza::Accetta;
    filo_->inArrivo = rete_.accoglienza == Accoglienza::Tace;
  }
  [[nodiscard]] bool isOpening() const override { return filo_->inArrivo; }
  [[nodiscard]] bool isOpen() const override { return filo_->aperto; }
  void send(const QByteArray& bytes) override {
    rete_.ricevuti.append(bytes);
    if (bytes == "02#REQ-TOUCH" && !rete_.aOgniRichiesta.isEmpty()) {
      rete_.accoda(rete_.aOgniRichiesta);
    }
  }
  [[nodiscard]] QByteArray take() override { return std::exchange(filo_->daLeggere, {}); }
  void close() override {
    if (filo_->aperto) ++rete_.chiusure;
    filo_->aperto = false;
    filo_->inArrivo = false;
    filo_->daLeggere.clear();
  }

 private:
  ReteDiProva& rete_;
  std::shared_ptr<Filo> filo_;
};

std::unique_ptr<platform::Connection> ReteDiProva::makeConnection(std::function<void()> arrived) {
  if (vera != nullptr) return vera->makeConnection(std::move(arrived));
  return std::make_unique<Presa>(*this, std::move(arrived));
}

void ReteDiProva::accoda(const QByteArray& byte) {
  if (!collegata()) return;
  filo_->daLeggere += byte;
  if (std::exchange(filo_->inCoda, true)) return;
  QMetaObject::invokeMethod(
      QCoreApplication::instance(),
      [filo = filo_] {
        filo->inCoda = false;
        if (filo->arrivato && !filo->daLeggere.isEmpty()) filo->arrivato();
      },
      Qt::QueuedConnection);
}

void ReteDiProva::manda(const QByteArray& byte) {
  accoda(byte);
  QCoreApplication::processEvents();
}

void ReteDiProva::accettaOra() {
  filo_->aperto = true;
  filo_->inArrivo = false;
}

void ReteDiProva::stacca() {
  filo_->aperto = false;
}

bool ReteDiProva::collegata() const {
  return filo_ && filo_->aperto;
}

}  // namespace prova
