#include "support/servizi_di_prova.h"

#include <QTest>

#include "immagini/immagini.h"
#include "platform/forms/pictures.h"

namespace prova {

platform::Pictures& disegni() {
  // It stays: what it holds may not outlive Qt, and the end of a program comes later.
  static auto& disegni = *new platform::Pictures(somme::CartellaImmagini());
  return disegni;
}

float SorteDiProva::fraction() {
  if (alTiro) alTiro();
  if (coda_.empty()) {
    if (finita_) throw SorteEsaurita();
    return libera_.fraction();
  }
  const float prossima = coda_.front();
  coda_.pop_front();
  return prossima;
}

void SorteDiProva::scrivi(const std::vector<Estrazione>& estrazioni) {
  for (const Estrazione& e : estrazioni) {
    // The middle of the k-th of n equal parts.
    coda_.push_back(static_cast<float>((e.k + 0.5) / e.n));
  }
}

platform::BoxAnswer MessaggiDiProva::show(const platform::MessageBox& box) {
  mostrati.push_back(box);
  if (mentreAperto) mentreAperto();
  if (box.buttons == platform::BoxButtons::Ok) return platform::BoxAnswer::Ok;
  if (risposte.empty()) {
    QTest::qFail("a message box came that the test does not answer", __FILE__, __LINE__);
    return platform::BoxAnswer::No;
  }
  const platform::BoxAnswer risposta = risposte.front();
  risposte.pop_front();
  return risposta;
}

}  // namespace prova
