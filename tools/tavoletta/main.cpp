// Stands in for the touch surface, for whoever wants to try the exercises by touch without one:
//
//   tavoletta                                    a window with the sheet; the mouse is the finger
//   tavoletta --senza-finestra [--porta NUMERO]  worked by lines of its input (see suggeritore.h)
//
// Start it before an exercise: the program looks for it when an exercise opens. Without a window it
// first says "in ascolto" and its port; port 0 is any that is free. Exit status: 0 the end of the
// input or "fine", 1 the port is taken, 2 wrong arguments.

#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>
#include <cstdio>
#include <vector>

#include "platform/forms/appearance.h"
#include "tools/tavoletta/finestra_tavoletta.h"
#include "tools/tavoletta/suggeritore.h"

namespace {

using somme::tavoletta::FinestraTavoletta;
using somme::tavoletta::Suggeritore;
using somme::tavoletta::Tavoletta;

constexpr quint16 kPortaHelpiKeys = 1050;

void Scrivi(const QString& riga) {
  std::printf("%s\n", qUtf8Printable(riga));
  std::fflush(stdout);
}

int SenzaFinestra(int argc, char* argv[], quint16 porta) {
  const QCoreApplication programma(argc, argv);
  Tavoletta tavoletta;
  if (!tavoletta.Ascolta(porta)) {
    std::fprintf(stderr, "tavoletta: la porta %d è occupata\n", porta);
    return 1;
  }
  bool finito = false;
  Suggeritore suggeritore(tavoletta, Scrivi, [&finito] {
    finito = true;
    QCoreApplication::quit();
  });
  const auto esegui = [&suggeritore](const QByteArray& scritta) {
    const QString riga = QString::fromUtf8(scritta);
    if (!suggeritore.Esegui(riga)) {
      std::fprintf(stderr, "tavoletta: non capisco: %s\n", qUtf8Printable(riga));
    }
  };
  QSocketNotifier ingresso(STDIN_FILENO, QSocketNotifier::Read);
  QByteArray letti;
  QObject::connect(&ingresso, &QSocketNotifier::activated, [&] {
    char pezzo[4096];
    const ssize_t quanti = read(STDIN_FILENO, pezzo, sizeof pezzo);
    if (quanti <= 0) {
      ingresso.setEnabled(false);
      // The last line may have no end of its own.
      if (!finito) esegui(letti);
      QCoreApplication::quit();
      return;
    }
    letti.append(pezzo, quanti);
    for (qsizetype fine = letti.indexOf('\n'); fine >= 0 && !finito; fine = letti.indexOf('\n')) {
      const QByteArray riga = letti.first(fine);
      letti.remove(0, fine + 1);
      esegui(riga);
    }
  });
  Scrivi(QStringLiteral("in ascolto %1").arg(tavoletta.Porta()));
  return QCoreApplication::exec();
}

int ConFinestra(int argc, char* argv[]) {
  const QApplication programma(argc, argv);
  platform::applyAppearance();
  Tavoletta tavoletta;
  FinestraTavoletta finestra(tavoletta);
  finestra.Apri(kPortaHelpiKeys);
  finestra.show();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::vector<QByteArray> argomenti(argv + 1, argv + argc);
  if (argomenti.empty()) return ConFinestra(argc, argv);
  bool numero = argomenti.size() == 1;
  quint16 porta = kPortaHelpiKeys;
  if (argomenti.size() == 3 && argomenti[1] == "--porta") porta = argomenti[2].toUShort(&numero);
  if (argomenti[0] != "--senza-finestra" || !numero) {
    std::fprintf(stderr, "uso: tavoletta [--senza-finestra [--porta NUMERO]]\n");
    return 2;
  }
  return SenzaFinestra(argc, argv, porta);
}
