#include "input/collegamento_helpikeys.h"

#include <QScopeGuard>
#include <utility>

#include "app/shared/ambiente.h"

namespace somme::inline ingresso {

namespace {

constexpr int kPresa = 1;

}  // namespace

CollegamentoHelpiKeys::CollegamentoHelpiKeys(Ambiente& ambiente, Prese& prese,
                                             const Tastiera& tastiera, Azione interpreta)
    : ambiente_(ambiente), prese_(prese), tastiera_(tastiera), interpreta_(std::move(interpreta)) {}

platform::Socket& CollegamentoHelpiKeys::CreaPresa() {
  platform::Socket& presa = prese_.load(kPresa);
  presa.onDataArrival([this] { Arrivo(); });
  return presa;
}

void CollegamentoHelpiKeys::Apri() {
  segnali_.HelpiKeysConnesso = false;
  CreaPresa().close();
  prese_[0].home().letEventsRun();
  prese_.unload(kPresa);
  platform::Socket& presa = CreaPresa();
  presa.connectTo(ambiente_.servizi.porta);
  presa.letConnect();
}

void CollegamentoHelpiKeys::Manda(const QByteArray& richiesta) {
  prese_[kPresa].sendData(richiesta);
}

void CollegamentoHelpiKeys::Richiedi() {
  Manda(QByteArrayLiteral("02#REQ-TOUCH"));
  prese_[0].home().letEventsRun();
}

void CollegamentoHelpiKeys::Lascia() {
  Manda(QByteArrayLiteral("02#REQ-DEFAULT"));
  prese_[kPresa].close();
}

void CollegamentoHelpiKeys::Arrivo() {
  const SegnaliHelpiKeys::Segnale segnale = segnali_.Leggi(prese_[kPresa].getData());
  switch (segnale.tipo) {
    case SegnaliHelpiKeys::Tipo::Nulla:
      break;
    case SegnaliHelpiKeys::Tipo::Pronta:
      DiciPronta();
      break;
    case SegnaliHelpiKeys::Tipo::Tocco:
      if (const int tasto = DecodificaSegnali(segnale.cella.colonna, segnale.cella.riga)) {
        interpreta_(tasto);
      }
      break;
  }
}

// The other side may say OK as often as it likes: who has one box to close gets no second one.
void CollegamentoHelpiKeys::DiciPronta() {
  if (std::exchange(detta_, true)) return;
  const auto chiusa = qScopeGuard([this] { detta_ = false; });
  ambiente_.fondo.showBox({ambiente_.stringhe.MessaggioHelpiKeys, TitoloProgramma(),
                           platform::BoxIcon::Information, platform::BoxButtons::Ok});
}

}  // namespace somme::inline ingresso
