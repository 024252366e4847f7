#include "swf/cambio.h"

#include <algorithm>

namespace somme::filmati {
namespace {

using swf::Azioni;
using swf::LineaTempo;
using swf::Proprieta;

// Variables of the scene: the corner of the free place, in pixels.
constexpr const char* kPostoX = "postoX";
constexpr const char* kPostoY = "postoY";

// Starts slowly and comes to rest slowly: 0 to 0, 1 to 1.
double dolce(double parte) {
  return parte * parte * (3 - 2 * parte);
}

void assegna(Azioni& azioni, const char* variabile, double valore) {
  azioni.spingi(variabile).spingi(valore).scriviVariabile();
}

// Sets a property to fisso + parte · variable.
void imposta(Azioni& azioni, const std::string& clip, Proprieta proprieta, double fisso,
             double parte, const char* variabile) {
  azioni.spingi(clip).spingi(proprieta).spingi(fisso);
  if (parte != 0) azioni.spingi(variabile).leggiVariabile().spingi(parte).moltiplica().somma();
  azioni.scriviProprieta();
}

// From a clip's own inside the scene's clips are told from the root down.
std::string dallaScena(const std::string& clip) {
  return "/" + clip;
}

}  // namespace

double Cambio::avanzamento(int pezzo, int fotogramma) const {
  const int partito = fotogramma - c_.tempi.intervallo * (pezzo - 1);
  return std::clamp(static_cast<double>(partito) / c_.tempi.volo, 0.0, 1.0);
}

// Puts a piece as far on its way as told, from 0 (its own place) to 1 (its place in the new
// block).
void Cambio::porta(Azioni& azioni, int pezzo, double parte) const {
  const double via = dolce(parte);
  const swf::Punto casa = c_.pezzi.posto(pezzo);
  const swf::Punto fisso = casa * (1 - via) + (c_.primo + c_.passo * (pezzo - 1)) * via;
  const double salita = c_.salita * 4 * via * (1 - via);
  const std::string clip = dallaScena(c_.pezzi.nome(pezzo));
  imposta(azioni, clip, Proprieta::X, fisso.x, via, kPostoX);
  imposta(azioni, clip, Proprieta::Y, fisso.y - salita, via, kPostoY);
}

void Cambio::rimetti(Azioni& azioni) const {
  for (int pezzo = 1; pezzo <= kPezzi; ++pezzo) {
    porta(azioni, pezzo, 0);
    azioni.bersaglio(dallaScena(c_.pezzi.nome(pezzo))).vaiAFotogramma(1);
  }
  azioni.bersaglio(dallaScena(custode())).vaiAFotogramma(1).bersaglio("");
}

// The blocks of the new kind stand without gaps from the first on, so the last visible one settles
// it. A board that is full keeps its last place.
void Cambio::cercaPostoLibero(Azioni& azioni) const {
  assegna(azioni, kPostoX, c_.nuovi.posto(1).x);
  assegna(azioni, kPostoY, c_.nuovi.posto(1).y);
  for (int n = 1; n < c_.nuovi.quanti(); ++n) {
    const auto libero = azioni.nuovoSegno();
    azioni.spingi(c_.nuovi.nome(n)).spingi(Proprieta::Visibile).leggiProprieta().nega();
    azioni.saltaSe(libero);
    assegna(azioni, kPostoX, c_.nuovi.posto(n + 1).x);
    assegna(azioni, kPostoY, c_.nuovi.posto(n + 1).y);
    azioni.segna(libero);
  }
}

// The clip has nothing to show. At rest it stands on its first frame; played, it looks at every
// second tick whether the first of the ten is hidden, and then puts them back.
void Cambio::prepara(swf::Filmato& filmato, int profondita) const {
  LineaTempo clip;
  clip.esegui(Azioni().ferma()).mostra();
  const int guarda = clip.fotogramma();
  clip.mostra();
  Azioni sguardo;
  const auto nascosto = sguardo.nuovoSegno();
  const auto fine = sguardo.nuovoSegno();
  sguardo.spingi(dallaScena(c_.pezzi.nome(1))).spingi(Proprieta::Visibile).leggiProprieta().nega();
  sguardo.saltaSe(nascosto).vaiAFotogramma(guarda).riproduci().salta(fine).segna(nascosto);
  rimetti(sguardo);
  sguardo.segna(fine);
  clip.esegui(sguardo).mostra();
  filmato.scena().poni(profondita, filmato.definisci(clip), {.nome = custode()});
}

void Cambio::vola(Azioni& azioni, int fotogramma) const {
  for (int pezzo = 1; pezzo <= kPezzi; ++pezzo) {
    if (avanzamento(pezzo, fotogramma) != avanzamento(pezzo, fotogramma - 1)) {
      porta(azioni, pezzo, avanzamento(pezzo, fotogramma));
    }
  }
}

void Cambio::recita(LineaTempo& scena) const {
  Azioni inizio;
  rimetti(inizio);
  cercaPostoLibero(inizio);
  scena.nomina(c_.parola).esegui(inizio).mostra();
  for (int fotogramma = 1; fotogramma < coloreDa(); ++fotogramma) {
    Azioni volo;
    vola(volo, fotogramma);
    scena.esegui(volo).mostra();
  }
  Azioni colore;
  for (int pezzo = 1; pezzo <= kPezzi; ++pezzo) {
    colore.bersaglio(dallaScena(c_.pezzi.nome(pezzo))).vaiAFotogramma(2).riproduci();
  }
  scena.esegui(colore.bersaglio("")).mostra(c_.tempi.colore + c_.tempi.sosta - 1);
  Azioni fine;
  fine.ferma().bersaglio(dallaScena(custode())).vaiAFotogramma(2).riproduci().bersaglio("");
  scena.esegui(fine.comando(c_.parola, c_.parola)).mostra();
}

}  // namespace somme::filmati
