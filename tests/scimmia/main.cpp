#include <sys/time.h>
#include <unistd.h>
#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <string_view>
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

#include "app/tabella_forme.h"
#include "scimmia/scimmia.h"
#include "support/schede_di_prova.h"

// A monkey at every form: `scimmia [--seme N] [--eventi N] [--secondi N] [--racconta] [FORM...]`;
// with
// `--elenco` it names the exercise forms and plays none; with names beside it, it ends with 1
// unless they are those, in their order. FORM: the beginning of a form's name; without one, all
// forms of the program. It plays so many events a form, in no more than so many seconds in all. The
// seed that it prints plays the same again; that of one life is printed with what went wrong there.
namespace {

constexpr int kEventiPerVita = 500;
// Seconds that no life takes: it hangs. Of the processor's time, and of the wall's.
constexpr int kBlocco = 100;
constexpr unsigned kBloccoAllOrologio = 900;

char vita[128] = "";  // the life that is being lived, for the alarm and the sanitizers

void scriviLaVita(std::string_view prima) {
  (void)!::write(STDERR_FILENO, prima.data(), prima.size());
  (void)!::write(STDERR_FILENO, vita, strlen(vita));
}

extern "C" void bloccata(int /*segnale*/) {
  scriviLaVita("\nHANG in the life: ");
  std::abort();
}

#if defined(__SANITIZE_ADDRESS__)
extern "C" void trovato() {
  scriviLaVita("\nFOUND in the life: ");
}
#endif

void carica() {
  const itimerval limite{{0, 0}, {kBlocco, 0}};
  ::setitimer(ITIMER_PROF, &limite, nullptr);
  ::alarm(kBloccoAllOrologio);
}

struct Giro {
  int eventi = 0;
  int nelleAttese = 0;
  int profonda = 0;
  int vite = 0;
  int aVuoto = 0;
  bool guasto = false;
};

Giro gioca(const QByteArray& forma, quint64 seme, int eventi, double secondi, bool racconta) {
  Giro giro;
  QElapsedTimer orologio;
  orologio.start();
  const auto scaduto = [&] {
    return secondi > 0 && static_cast<double>(orologio.elapsed()) > secondi * 1000;
  };
  while (giro.eventi < eventi && !scaduto()) {
    const quint64 suo = seme + static_cast<quint64>(giro.vite++);
    std::snprintf(vita, sizeof vita, "%s --seme %llu\n", forma.constData(),
                  static_cast<unsigned long long>(suo));
    carica();
    prova::Scimmia scimmia(forma, suo, racconta);
    try {
      scimmia.vivi(std::min(kEventiPerVita, eventi - giro.eventi), scaduto);
    } catch (const std::exception& guasto) {
      std::printf("FOUND %s\n  again with: --seme %llu --eventi %d %s\n%s\n", guasto.what(),
                  static_cast<unsigned long long>(suo), kEventiPerVita, forma.constData(),
                  qPrintable(scimmia.racconto()));
      giro.guasto = true;
    }
    giro.eventi += std::max(1, scimmia.eventi());
    giro.nelleAttese += scimmia.nelleAttese();
    giro.profonda = std::max(giro.profonda, scimmia.profonda());
    giro.aVuoto += scimmia.giravaAVuoto() ? 1 : 0;
    if (giro.guasto) break;
  }
  std::printf(
      "%s: %d events, %d of them in waits (%d deep), %d lives, %d ended in a level that "
      "draws for ever, %.1f s\n",
      forma.constData(), giro.eventi, giro.nelleAttese, giro.profonda, giro.vite, giro.aVuoto,
      static_cast<double>(orologio.elapsed()) / 1000);
  std::fflush(stdout);
  return giro;
}

bool intera(const QString& nome) {
  const std::vector<std::string_view> nomi = somme::NomiDelleForme();
  return std::find(nomi.begin(), nomi.end(), nome.toStdString()) != nomi.end();
}

// A whole name means that form alone.
std::vector<QByteArray> scelte(const QStringList& chieste) {
  std::vector<QByteArray> forme;
  for (const std::string_view nome : somme::NomiDelleForme()) {
    const QByteArray forma(nome.data(), qsizetype(nome.size()));
    const auto comincia = [&](const QString& inizio) {
      return forma.startsWith(inizio.toUtf8()) && !intera(inizio);
    };
    if (chieste.isEmpty() || chieste.contains(QString::fromUtf8(forma)) ||
        std::any_of(chieste.begin(), chieste.end(), comincia)) {
      forme.push_back(forma);
    }
  }
  return forme;
}

// The names of the exercise forms, a line each. Whether they are those that were expected, where
// some were.
bool scriviElenco(const QStringList& attesi) {
  QStringList nomi;
  for (const somme::SchedaForma& scheda : somme::LeForme()) {
    if (scheda.genere == somme::Genere::Esercizio) nomi.append(QLatin1String(scheda.nome));
  }
  std::puts(qPrintable(nomi.join(u'\n')));
  return attesi.isEmpty() || attesi == nomi;
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication programma(argc, argv);
  QCommandLineParser riga;
  const QCommandLineOption seme(QStringLiteral("seme"), {}, QStringLiteral("N"));
  const QCommandLineOption eventi(QStringLiteral("eventi"), {}, QStringLiteral("N"),
                                  QStringLiteral("100000"));
  const QCommandLineOption secondi(QStringLiteral("secondi"), {}, QStringLiteral("N"),
                                   QStringLiteral("0"));
  const QCommandLineOption racconta(QStringLiteral("racconta"));
  const QCommandLineOption elenco(QStringLiteral("elenco"));
  riga.addOptions({seme, eventi, secondi, racconta, elenco});
  riga.process(programma);
  if (riga.isSet(elenco)) {
    return scriviElenco(riga.positionalArguments()) ? 0 : 1;
  }

  const std::vector<QByteArray> forme = scelte(riga.positionalArguments());
  if (forme.empty()) {
    std::fprintf(stderr, "no form of that name\n");
    return 2;
  }
  const quint64 suo =
      riga.isSet(seme) ? riga.value(seme).toULongLong() : static_cast<quint64>(std::time(nullptr));
  std::printf("seed %llu\n", static_cast<unsigned long long>(suo));
  std::fflush(stdout);
  std::signal(SIGALRM, bloccata);
  std::signal(SIGPROF, bloccata);
#if defined(__SANITIZE_ADDRESS__)
  __sanitizer_set_death_callback(trovato);
#endif
  bool guasto = false;
  for (const QByteArray& forma : forme) {
    const double suoi = riga.value(secondi).toDouble() / static_cast<double>(forme.size());
    guasto =
        gioca(forma, suo, riga.value(eventi).toInt(), suoi, riga.isSet(racconta)).guasto || guasto;
  }
  return guasto ? 1 : 0;
}
