#include "tools/swf/percorso.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace somme::swf {

Percorso& Percorso::vai(Punto dove) {
  passi_.push_back({Passo::Tipo::Vai, {}, dove});
  inizio_ = dove;
  return *this;
}

Percorso& Percorso::linea(Punto fino) {
  passi_.push_back({Passo::Tipo::Linea, {}, fino});
  return *this;
}

Percorso& Percorso::curva(Punto controllo, Punto fino) {
  passi_.push_back({Passo::Tipo::Curva, controllo, fino});
  return *this;
}

Percorso& Percorso::chiudi() {
  return linea(inizio_);
}

Percorso& Percorso::rettangolo(const Rettangolo& r) {
  return vai({r.sinistra, r.alto})
      .linea({r.sinistra + r.larghezza, r.alto})
      .linea({r.sinistra + r.larghezza, r.alto + r.altezza})
      .linea({r.sinistra, r.alto + r.altezza})
      .chiudi();
}

Percorso& Percorso::rettangoloTondo(const Rettangolo& r, double raggio) {
  const double destra = r.sinistra + r.larghezza;
  const double basso = r.alto + r.altezza;
  vai({r.sinistra + raggio, r.alto}).linea({destra - raggio, r.alto});
  arco({destra - raggio, r.alto + raggio}, raggio, raggio, -90, 0);
  linea({destra, basso - raggio});
  arco({destra - raggio, basso - raggio}, raggio, raggio, 0, 90);
  linea({r.sinistra + raggio, basso});
  arco({r.sinistra + raggio, basso - raggio}, raggio, raggio, 90, 180);
  linea({r.sinistra, r.alto + raggio});
  return arco({r.sinistra + raggio, r.alto + raggio}, raggio, raggio, 180, 270);
}

Percorso& Percorso::ellisse(Punto centro, double raggioX, double raggioY) {
  vai({centro.x + raggioX, centro.y});
  return arco(centro, raggioX, raggioY, 0, 360);
}

// Curves with one control point follow a circle to a third of a hundredth of its radius when
// none covers more than an eighth of it; the control point is where the tangents of both ends
// meet.
Percorso& Percorso::arco(Punto centro, double raggioX, double raggioY, double daGradi,
                         double aGradi) {
  constexpr double kRadianti = std::numbers::pi / 180;
  const int pezzi = static_cast<int>(std::ceil((aGradi - daGradi) / 45));
  const double mezzo = (aGradi - daGradi) * kRadianti / pezzi / 2;
  const double fuori = 1 / std::cos(mezzo);
  for (int i = 0; i < pezzi; ++i) {
    const double medio = daGradi * kRadianti + mezzo * (2 * i + 1);
    const double fine = medio + mezzo;
    curva({centro.x + raggioX * std::cos(medio) * fuori,
           centro.y + raggioY * std::sin(medio) * fuori},
          {centro.x + raggioX * std::cos(fine), centro.y + raggioY * std::sin(fine)});
  }
  return *this;
}

Percorso& Percorso::aggiungi(const Percorso& altro, Punto di, double scala) {
  for (const auto& passo : altro.passi_) {
    passi_.push_back({passo.tipo, passo.controllo * scala + di, passo.fine * scala + di});
    if (passo.tipo == Passo::Tipo::Vai) inizio_ = passi_.back().fine;
  }
  return *this;
}

Rettangolo Percorso::ingombro() const {
  if (passi_.empty()) return {};
  Punto minimo = passi_.front().fine;
  Punto massimo = minimo;
  const auto allarga = [&](Punto p) {
    minimo = {std::min(minimo.x, p.x), std::min(minimo.y, p.y)};
    massimo = {std::max(massimo.x, p.x), std::max(massimo.y, p.y)};
  };
  for (const auto& passo : passi_) {
    allarga(passo.fine);
    if (passo.tipo == Passo::Tipo::Curva) allarga(passo.controllo);
  }
  return {minimo.x, minimo.y, massimo.x - minimo.x, massimo.y - minimo.y};
}

}  // namespace somme::swf
