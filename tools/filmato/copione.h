#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <optional>
#include <variant>
#include <vector>

namespace somme::filmato {

// The script of a performance: what is done to the movie, step by step.

struct Attesa {
  int scatti = 0;  // frames
};
struct VaiA {
  int fotogramma = 1;
};
struct Avvia {};
struct Ferma {};
struct Imposta {
  QString bersaglio;
  int proprieta = 0;
  QString valore;
};
struct Leggi {
  QString bersaglio;
  int proprieta = 0;
};
struct Mouse {
  enum class Gesto { Sposta, Premi, Rilascia, Clic };
  Gesto gesto = Gesto::Sposta;
  QPointF punto;  // pixels of the stage
};
struct Scatto {
  QString nome;
};
// A step may also only ask for reports.
using Operazione =
    std::variant<std::monostate, Attesa, VaiA, Avvia, Ferma, Imposta, Leggi, Mouse, Scatto>;

struct Passo {
  Operazione operazione;
  bool diFotogramma = false;  // report the frame afterwards
  bool diCursore = false;     // report the pointer afterwards
};

using Copione = std::vector<Passo>;

// Reads the steps from JSON. Empty, with a sentence in errore, when it is no list of steps.
[[nodiscard]] std::optional<Copione> leggiCopione(const QByteArray& json, QString& errore);

}  // namespace somme::filmato
