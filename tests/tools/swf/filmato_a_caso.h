#pragma once

#include <QPointF>
#include <QStringList>
#include <random>

#include "tools/swf/filmato.h"

namespace prove {

// A movie made by chance with all that the writer can write, and beside it what was meant, in the
// words of raccontoDi. Lengths are whole twips and factors whole 65536ths, so that nothing is
// rounded on the way.
class FilmatoACaso {
 public:
  explicit FilmatoACaso(unsigned seme);

  [[nodiscard]] const somme::swf::Filmato& filmato() const { return filmato_; }
  [[nodiscard]] QStringList racconto() const;
  // What the scene tells the host, frame by frame, when it is played through once.
  [[nodiscard]] const QStringList& comandi() const { return comandi_; }
  // Where both ends of each gradient lie on its shape, in twips, in the order of the account.
  [[nodiscard]] const std::vector<std::pair<QPointF, QPointF>>& sfumature() const {
    return sfumature_;
  }

 private:
  struct Fatto {
    somme::swf::Carattere carattere;
    int annidato = 0;
  };

  [[nodiscard]] int fra(int minimo, int massimo);
  [[nodiscard]] bool caso(int suDieci) { return fra(1, 10) <= suDieci; }
  [[nodiscard]] QPoint punto();
  [[nodiscard]] somme::swf::Colore colore();
  [[nodiscard]] somme::swf::Posa posa(QString& detta, bool conNome);
  [[nodiscard]] const Fatto& unoFatto(int annidatoAlPiu);

  [[nodiscard]] somme::swf::Percorso percorso(bool chiuso, QStringList& pezzi);
  [[nodiscard]] somme::swf::Riempimento riempimento(QString& detto);
  void forma();
  void clip();
  void pulsante();
  // parla: whether it tells the host something. Gives how deep lies what is placed.
  int riempi(somme::swf::LineaTempo& linea, QStringList& detta, int annidatoAlPiu, bool parla);
  [[nodiscard]] somme::swf::Azioni azioni();
  [[nodiscard]] somme::swf::Azioni azioniCheParlano();

  std::mt19937 sorte_;
  QString testa_;  // made with the movie
  somme::swf::Filmato filmato_;
  std::vector<Fatto> fatti_;
  QStringList definizioni_;
  QStringList scena_;
  QStringList comandi_;
  std::vector<std::pair<QPointF, QPointF>> sfumature_;
};

}  // namespace prove
