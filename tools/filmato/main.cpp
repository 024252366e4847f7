// Plays a movie's file through a script, without a window or a display:
//
//   filmato movie.swf steps.json outdir name
//
// It prints one JSON object a line. Exit status: 0 played, 1 not a movie that can be played (or a
// picture could not be written), 2 wrong arguments or steps.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QStringList>
#include <cstdio>

#include "platform/flash/movie_file.h"
#include "tools/filmato/rappresentazione.h"

namespace {

constexpr int kRifiutato = 1;
constexpr int kArgomentiErrati = 2;

void stampa(const QJsonObject& record) {
  const QByteArray riga = QJsonDocument(record).toJson(QJsonDocument::Compact);
  std::printf("%s\n", riga.constData());
  std::fflush(stdout);
}

int lamenta(const QString& perche) {
  std::fprintf(stderr, "filmato: %s\n", qUtf8Printable(perche));
  return kArgomentiErrati;
}

int recita(const QStringList& argomenti) {
  using namespace somme::filmato;
  QFile passi(argomenti[2]);
  if (!passi.open(QIODevice::ReadOnly)) {
    return lamenta(QStringLiteral("cannot open %1").arg(argomenti[2]));
  }
  QString errore;
  const auto copione = leggiCopione(passi.readAll(), errore);
  if (!copione) {
    return lamenta(QStringLiteral("%1: %2").arg(argomenti[2], errore));
  }
  if (!QDir().mkpath(argomenti[3])) {
    return lamenta(QStringLiteral("cannot make the folder %1").arg(argomenti[3]));
  }
  try {
    const bool riuscita = Rappresentazione(argomenti[3], argomenti[4], stampa)
                              .esegui(platform::flash::loadMovie(argomenti[1]), *copione);
    stampa({{QStringLiteral("ev"), QStringLiteral("done")}, {QStringLiteral("ok"), riuscita}});
    return riuscita ? 0 : kRifiutato;
  } catch (const platform::flash::MovieError& fallo) {
    stampa({{QStringLiteral("ev"), QStringLiteral("rejected")},
            {QStringLiteral("why"), QString::fromUtf8(fallo.what())}});
    return kRifiutato;
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication programma(argc, argv);
  const QStringList argomenti = QCoreApplication::arguments();
  if (argomenti.size() != 5) {
    return lamenta(QStringLiteral("usage: filmato movie.swf steps.json outdir name"));
  }
  return recita(argomenti);
}
