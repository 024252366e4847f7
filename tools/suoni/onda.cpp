#include "onda.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace suoni {

namespace {

constexpr double kPiGreco = 3.14159265358979323846;
// Seconds of the soft start of a note, and of the soft end of the whole sound.
constexpr double kAttacco = 0.020;
constexpr double kCoda = 0.090;
// The right channel is tuned higher by this factor, less than anyone hears as out of tune: the two
// channels beat slowly, which sounds warmer than twice the same.
constexpr double kScordatura = 1.0016;

// Sine of an angle in whole turns.
double Seno(double giri) {
  double t = giri - std::floor(giri);  // 0 to 1
  if (t > 0.75) {
    t -= 1.0;
  } else if (t > 0.25) {
    t = 0.5 - t;
  }
  // Between a quarter turn on either side of 0 the series is good to 1e-9 after seven terms.
  const double x = 2.0 * kPiGreco * t;
  double termine = x;
  double somma = x;
  for (int n = 2; n <= 12; n += 2) {
    termine *= -x * x / (n * (n + 1));
    somma += termine;
  }
  return somma;
}

// 0 at the start, 1 at the end of a ramp, level at both; progresso outside of 0 to 1 is held.
double Rampa(double progresso) {
  return 0.5 - 0.5 * Seno(std::clamp(progresso, 0.0, 1.0) * 0.5 + 0.25);
}

// The factor by which a level falls from one sample to the next.
double PassoSmorzamento(double secondi) {
  const double d = 1.0 / (secondi * kFrequenza);
  return 1.0 - d + d * d / 2.0 - d * d * d / 6.0;
}

void Aggiungi(std::vector<double>& canale, const Nota& nota, std::span<const double> armonici,
              double intonazione) {
  const auto primo = std::size_t(nota.inizio * kFrequenza);
  for (std::size_t k = 0; k < armonici.size(); ++k) {
    const double ordine = double(k + 1);
    const double passo = nota.hertz * intonazione * ordine / kFrequenza;
    // Overtones die sooner than the fundamental, as on a struck bar of wood.
    const double calo = PassoSmorzamento(nota.smorzamento / ordine);
    double livello = nota.forza * armonici[k];
    for (std::size_t i = primo; i < canale.size(); ++i) {
      const double n = double(i - primo);
      canale[i] += livello * Rampa(n / (kAttacco * kFrequenza)) * Seno(passo * n);
      livello *= calo;
    }
  }
}

void Sfuma(std::vector<double>& canale) {
  const auto fine = double(canale.size() - 1);
  for (std::size_t i = 0; i < canale.size(); ++i) {
    canale[i] *= Rampa((fine - double(i)) / (kCoda * kFrequenza));
  }
}

double Massimo(const std::vector<double>& canale) {
  double massimo = 0.0;
  for (const double valore : canale) massimo = std::max(massimo, std::abs(valore));
  return massimo;
}

}  // namespace

std::vector<std::int16_t> Componi(const Suono& suono) {
  const auto campioni = std::size_t(suono.durata * kFrequenza);
  std::vector<double> sinistro(campioni);
  std::vector<double> destro(campioni);
  for (const Nota& nota : suono.note) {
    Aggiungi(sinistro, nota, suono.armonici, 1.0);
    Aggiungi(destro, nota, suono.armonici, kScordatura);
  }
  Sfuma(sinistro);
  Sfuma(destro);

  const double fattore = suono.picco * 32767.0 / std::max(Massimo(sinistro), Massimo(destro));
  std::vector<std::int16_t> risultato;
  risultato.reserve(2 * campioni);
  for (std::size_t i = 0; i < campioni; ++i) {
    risultato.push_back(std::int16_t(std::floor(sinistro[i] * fattore + 0.5)));
    risultato.push_back(std::int16_t(std::floor(destro[i] * fattore + 0.5)));
  }
  return risultato;
}

}  // namespace suoni
