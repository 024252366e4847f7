#pragma once

#include "exercises/core/forma_esercizio.h"
#include "games/partita_numeri.h"

namespace somme::inline numeri {

class FormaNumeri;

// In what the forms that ask for the sum and those that ask for an addend differ; in nothing else.
struct EsercizioNumeri {
  const RegoleNumeri& regole;
  QString (FormaNumeri::*domanda)() const;
  // What the operation shows after a right answer that was typed or scanned, and written so.
  QString (FormaNumeri::*risolta)(const QString& risposta) const;
  // Where the answer is typed, the two last steps of a right one in their order: the box is
  // disabled, `PulsanteAvanti` takes the focus.
  enum class Finale { DisabilitaPoiFuoco, FuocoPoiDisabilita } finale;
  // Where it is touched, how a case begins: whether the box is enabled and events run before
  // anything else.
  enum class InizioHK { AbilitaCasella, Subito } inizioHK;
};

// The number exercises: an operation with one number to find, at the level that the menu chose. The
// rules are the game's; how the answer comes is left to the forms.
class FormaNumeri : public FormaEsercizio {
 public:
  // nome: the form's name in the table of forms; tavole: its design's rows.
  FormaNumeri(Ambiente& ambiente, std::string_view nome, const EsercizioNumeri& esercizio,
              std::span<const std::span<const platform::Row>> tavole,
              PartitaNumeri::Zero zero = PartitaNumeri::Zero::SiGiudica);

  platform::Label EtOperazione{*this};

  // The choices of `EsercizioNumeri`.
  [[nodiscard]] QString ChiediTotale() const;
  [[nodiscard]] QString ChiediAddendo() const;
  [[nodiscard]] QString AccodaRisposta(const QString& risposta) const;
  [[nodiscard]] QString RicomponiSomma(const QString& risposta) const;

 protected:
  void onLoad() override;
  void IniziaAttivazione() override;
  // Between the record's heading, with a yield, and the first case of an activation.
  virtual void MostraRisposta() {}

  [[nodiscard]] const PartitaNumeri& partita() const { return partita_; }
  // Draws a case of the level: how many digits its answer may have; none for a `TipoEsercizio`
  // without one, which leaves the case as it was.
  std::optional<qint16> GeneraCaso();
  void ScriviDomanda();
  // Judges an answer and shows what became of it.
  void Giudica(double numero);
  virtual void RispostaGiusta() = 0;
  // The solved operation, on the form and in the record.
  void ScriviRisolta(const QString& operazione);
  // The same with the answer as it was typed or scanned.
  void ScriviConRisposta(const QString& risposta);
  [[nodiscard]] const EsercizioNumeri& esercizio() const { return esercizio_; }

 private:
  const EsercizioNumeri& esercizio_;
  PartitaNumeri partita_;
};

// The sum is to be found, or the second addend.
inline constexpr EsercizioNumeri kTrovaTotale{
    .regole = kRegoleTotale,
    .domanda = &FormaNumeri::ChiediTotale,
    .risolta = &FormaNumeri::AccodaRisposta,
    .finale = EsercizioNumeri::Finale::DisabilitaPoiFuoco,
    .inizioHK = EsercizioNumeri::InizioHK::Subito,
};
inline constexpr EsercizioNumeri kTrovaAddendo{
    .regole = kRegoleAddendo,
    .domanda = &FormaNumeri::ChiediAddendo,
    .risolta = &FormaNumeri::RicomponiSomma,
    .finale = EsercizioNumeri::Finale::FuocoPoiDisabilita,
    .inizioHK = EsercizioNumeri::InizioHK::AbilitaCasella,
};

}  // namespace somme::inline numeri
