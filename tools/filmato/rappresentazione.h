#pragma once

#include <QJsonObject>
#include <QString>
#include <functional>
#include <memory>

#include "platform/flash/player.h"
#include "platform/flash/renderer.h"
#include "tools/filmato/copione.h"

namespace somme::filmato {

// Plays a movie by a script, without a window and without a clock, and tells what happens in
// records.
class Rappresentazione {
 public:
  using Racconta = std::function<void(const QJsonObject& record)>;

  // cartella, nome: pictures become files <cartella>/<nome>-<picture>.png.
  Rappresentazione(QString cartella, QString nome, Racconta racconta)
      : cartella_(std::move(cartella)), nome_(std::move(nome)), racconta_(std::move(racconta)) {}

  // Shows the first frame (as step -1), then goes through the script. False when a picture could
  // not be written.
  bool esegui(std::shared_ptr<const platform::flash::Movie> filmato, const Copione& copione);

 private:
  void raccontaFilmato(const platform::flash::Movie& filmato);
  void raccontaDopo(const Passo& passo);
  void compi(const Attesa& attesa);
  void compi(const VaiA& vai);
  void compi(const Avvia& avvia);
  void compi(const Ferma& ferma);
  void compi(const Imposta& imposta);
  void compi(const Leggi& leggi);
  void compi(const Mouse& mouse);
  void compi(const Scatto& scatto);
  void compi(std::monostate) {}

  QString cartella_;
  QString nome_;
  Racconta racconta_;
  std::unique_ptr<platform::flash::Player> lettore_;
  platform::flash::Renderer pittore_;
  int passo_ = -1;
  bool riuscita_ = true;
};

}  // namespace somme::filmato
