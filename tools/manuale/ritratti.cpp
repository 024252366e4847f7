// Takes pictures of the program: those of the manual, or every form for whoever translates or
// draws.
//
//   ritratti FOLDER LANGUAGE               the manual's scenes, in a window of 800 by 560
//   ritratti FOLDER LANGUAGE film          ten units that become a long, picture by picture
//   ritratti FOLDER LANGUAGE WIDTHxHEIGHT  in a window of that size: every form at its start, a
//                                          keyboard sheet with the print dialog over it; every
//                                          exercise after a right and after a wrong answer; and
//                                          the manual's scenes
//
// Without a display: QT_QPA_PLATFORM=offscreen. QT_SCALE_FACTOR gives more pixels for each point.

#include <QApplication>
#include <QDir>
#include <cstdio>

#include "app/shared/nomi_forme.h"
#include "app/shared/stringhe_condivise.h"
#include "app/tabella_forme.h"
#include "support/come_dal_menu.h"
#include "support/risposta_giusta.h"
#include "tools/manuale/film.h"
#include "tools/manuale/scene.h"
#include "tools/manuale/scene_tocco.h"

namespace {

constexpr QSize kFinestra{800, 560};

void ScegliLingua(prova::Banco& banco, const QString& lingua) {
  banco.ambiente->stato.LinguaCorrente = lingua;
  banco.metti(QStringLiteral("LangSetting.ini"),
              "[Language]\nCurrentLanguage=" + lingua.toUtf8() + '\n');
  somme::CaricaStringhe(*banco.ambiente);
}

bool Salva(const QImage& ritratto, const QDir& cartella, const QString& nome) {
  const QString percorso = cartella.filePath(nome + QStringLiteral(".png"));
  if (ritratto.save(percorso)) return true;
  std::fprintf(stderr, "%s cannot be written\n", qPrintable(percorso));
  return false;
}

bool Vignette(const QDir& cartella, const QString& lingua, QSize lato) {
  for (const manuale::Scena& scena : manuale::Scene()) {
    prova::Banco banco(lato);
    ScegliLingua(banco, lingua);
    if (!Salva(scena.ritrai(banco), cartella, QLatin1String(scena.nome))) return false;
  }
  return true;
}

bool Film(const QDir& cartella, const QString& lingua) {
  prova::Banco banco(kFinestra);
  ScegliLingua(banco, lingua);
  int numero = 0;
  for (const QImage& quadro : manuale::FilmDelCambio(banco)) {
    const QString nome = QStringLiteral("cambio_%1").arg(numero++, 3, 10, QLatin1Char('0'));
    if (!Salva(quadro, cartella, nome)) return false;
  }
  return true;
}

// As a family menu would leave the state for each.
bool Forme(const QDir& cartella, const QString& lingua, QSize lato) {
  for (const somme::SchedaForma& scheda : somme::LeForme()) {
    prova::Banco banco(lato);
    ScegliLingua(banco, lingua);
    const std::string_view nome = scheda.nome;
    const QLatin1String scritto(nome.data(), qsizetype(nome.size()));
    prova::ComeDalMenu(*banco.ambiente, nome);
    QImage ritratto;
    if (scritto.startsWith(QLatin1String("FormStampa"))) {
      // What goes on paper: the window shows an empty page behind the dialog.
      manuale::ConIlFoglio(banco, nome,
                           [&](const auto& dialogo) { ritratto = dialogo.immagine().punti(); });
    } else if (scheda.genere == somme::Genere::Dialogo) {
      ritratto = manuale::StampaConAvviso(banco);  // by itself it shows no sheet and no printer
    } else {
      banco.mostra(nome);
      ritratto = manuale::Ritratto(banco);
    }
    if (!Salva(ritratto, cartella, scritto)) return false;
  }
  return true;
}

bool Risposte(const QDir& cartella, const QString& lingua, QSize lato) {
  constexpr double kVerdettoPassato = 1;  // seconds
  using prova::Risposta;
  for (const somme::SchedaForma& scheda : somme::LeForme()) {
    if (scheda.genere != somme::Genere::Esercizio) continue;
    for (const Risposta risposta : {Risposta::Giusta, Risposta::Sbagliata}) {
      prova::Banco banco(lato);
      ScegliLingua(banco, lingua);
      prova::FinoAllUltimoGesto(banco, scheda.nome, risposta)();
      banco.tempo.advance(kVerdettoPassato);
      const QString nome =
          QLatin1String(scheda.nome.data(), qsizetype(scheda.nome.size())) +
          (risposta == Risposta::Giusta ? QStringLiteral("_giusto") : QStringLiteral("_sbagliato"));
      if (!Salva(manuale::Ritratto(banco), cartella, nome)) return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QApplication programma(argc, argv);
  const QStringList argomenti = QCoreApplication::arguments();
  const QStringList misure = argomenti.value(3).split(u'x');
  const bool tutte = argomenti.size() == 4 && misure.size() == 2;
  const bool film = argomenti.size() == 4 && argomenti[3] == QLatin1String("film");
  if (argomenti.size() != 3 && !tutte && !film) {
    std::fprintf(stderr, "ritratti FOLDER LANGUAGE [film | WIDTHxHEIGHT]\n");
    return 2;
  }
  const QDir cartella(argomenti[1]);
  cartella.mkpath(QStringLiteral("."));
  const auto in = [&](auto serie, QSize lato) { return serie(cartella, argomenti[2], lato); };
  const QSize lato = tutte ? QSize(misure[0].toInt(), misure[1].toInt()) : kFinestra;
  try {
    const bool fatto =
        film ? Film(cartella, argomenti[2])
             : (!tutte || (in(Forme, lato) && in(Risposte, lato))) && in(Vignette, lato);
    return fatto ? 0 : 1;
  } catch (const std::exception& errore) {
    std::fprintf(stderr, "ritratti: %s\n", errore.what());
    return 1;
  }
}
