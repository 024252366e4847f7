#pragma once

#include "cases/livelli.h"
#include "exercises/core/forma_esercizio.h"

namespace somme {

class FormaNumeri;

// In what the form that asks for the sum and the one that asks for an addend differ; in nothing
// else.
struct EsercizioNumeri {
  Livelli livelli;  // of `TipoEsercizio`
  QString (FormaNumeri::*domanda)() const;
  qint16 Caso::*cercato;  // what the answer is compared with
  // What the operation shows after a right answer, which was written so.
  QString (FormaNumeri::*risolta)(const QString& risposta) const;
  // The two last steps of a right answer in their order: the box is disabled, `PulsanteAvanti`
  // takes the focus.
  enum class Finale { DisabilitaPoiFuoco, FuocoPoiDisabilita } finale;
};

// The number exercises: an operation with one number to find, at the level that the menu chose.
// Through which box the answer comes is left to the forms.
class FormaNumeri : public FormaEsercizio {
 public:
  FormaNumeri(Ambiente& ambiente, const platform::FormDesign& disegno,
              const EsercizioNumeri& esercizio);

  platform::Label EtOperazione{*this};

  // The choices of `EsercizioNumeri`.
  [[nodiscard]] QString ChiediTotale() const;
  [[nodiscard]] QString ChiediAddendo() const;
  [[nodiscard]] QString AccodaRisposta(const QString& risposta) const;
  [[nodiscard]] QString RicomponiSomma(const QString& risposta) const;

 protected:
  // Draws a case of the level; the level, or null for a `TipoEsercizio` without one, which leaves
  // the case as it was.
  const Livello* GeneraCaso();
  void ScriviDomanda();
  [[nodiscard]] qint16 Cercato() const { return stato().*esercizio_.cercato; }
  // The solved operation, on the form and in the record.
  void ScriviRisolta(const QString& operazione);
  [[nodiscard]] const EsercizioNumeri& esercizio() const { return esercizio_; }

 private:
  const EsercizioNumeri& esercizio_;
};

// The sum is to be found, or the second addend.
inline constexpr EsercizioNumeri kTrovaTotale{
    .livelli = LivelliNumeriTotale,
    .domanda = &FormaNumeri::ChiediTotale,
    .cercato = &Caso::Totale,
    .risolta = &FormaNumeri::AccodaRisposta,
    .finale = EsercizioNumeri::Finale::DisabilitaPoiFuoco,
};
inline constexpr EsercizioNumeri kTrovaAddendo{
    .livelli = LivelliNumeriAddendo,
    .domanda = &FormaNumeri::ChiediAddendo,
    .cercato = &Caso::Addendo2,
    .risolta = &FormaNumeri::RicomponiSomma,
    .finale = EsercizioNumeri::Finale::FuocoPoiDisabilita,
};

}  // namespace somme
