#pragma once

#include "exercises/blocks/esercizio_blocchi.h"
#include "exercises/core/forma_esercizio.h"
#include "games/partita_blocchi.h"
#include "platform/forms/controls/shape.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/optional_control.h"

namespace somme::inline blocchi {

// What a class of blocks forms needs to make one of them.
struct VarianteBlocchi {
  const EsercizioBlocchi& esercizio;
  std::span<const std::span<const platform::Row>> tavole;  // the design's rows
  // What the pointers of the controls follow.
  enum class Puntatori { Impostazione, Disegno } puntatori = Puntatori::Impostazione;
};

// The blocks exercises on the screen: the boards of the addends, the joined one, the carries. With
// what the pupil puts blocks, and how the result comes, is left to the forms; the rules are the
// game's.
class FormaBlocchi : public FormaEsercizio {
 public:
  // nome: the form's name in the table of forms.
  FormaBlocchi(Ambiente& ambiente, std::string_view nome, const VarianteBlocchi& variante);

  platform::Label Label1{*this};  // hidden: the places of the three boards
  platform::Label Label2{*this};
  platform::Label Label3{*this};
  platform::Board ShockwaveFlash1{*this};
  platform::Board ShockwaveFlash2{*this};
  platform::Board ShockwaveFlash3{*this};
  platform::Shape Shape1{*this};
  platform::Label EtOperazione{*this};
  // The buttons of the carries: those that the exercise names.
  platform::OptionalControl<platform::Button> PulsanteCambio{*this};
  platform::OptionalControl<platform::Button> PulsanteCambioUDa{*this};
  platform::OptionalControl<platform::Button> PulsanteCambioDaH{*this};

  // What the pupil does, on the board in use.
  void MettiBlocco(Posto specie);
  void Svuota();
  void GiudicaTavola();
  // Ten of a kind become one of the next; nothing where the exercise has no such carry, or where
  // its button is not on the screen.
  void Cambia(Posto da);

  [[nodiscard]] const EsercizioBlocchi& esercizio() const { return variante_.esercizio; }

 protected:
  void onLoad() override;
  void IniziaAttivazione() override;
  void NuovoCaso() override;

  // The steps in which the forms differ.
  // At an activation, once the movies are loaded: places for keyboards.
  virtual void PosaTastiere() {}
  // The way to the next case closes.
  virtual void ChiudiAvanti() = 0;
  // Hides where the result will stand, empty.
  virtual void NascondiRisultato() = 0;
  // What blocks are put with. It stands below the board in use.
  [[nodiscard]] virtual platform::Control& Comandi() = 0;
  // It comes, below the first board; it goes.
  virtual void MettiComandi();
  virtual void TogliComandi();
  // The numbers of the new case are made, and nothing of it is on the screen.
  virtual void CasoFatto() {}
  // The new case is on the screen.
  virtual void CasoPronto() {}
  // Shows the button of a carry, and has it heard.
  virtual void MostraCambio(platform::Button& pulsante);
  // Boards and carries are done: the result can be given.
  virtual void ChiediRisultato() = 0;
  // The result is right: the way to the next case opens, before the record is written.
  virtual void ApriAvanti() = 0;
  // What a form does last when the result is right.
  virtual void RisultatoGiusto() {}

  // The result that the pupil gives; an empty box is no answer. Or it shows, and nobody gives it.
  void Rispondi(std::optional<double> numero) { Concludi(partita_.Rispondi(numero)); }
  void Risolvi() { Concludi(partita_.Risolvi()); }
  [[nodiscard]] const PartitaBlocchi& partita() const { return partita_; }
  // The box of the result: empty, hidden, and open.
  static void NascondiCasella(platform::TextBox& casella);

 private:
  void PosaTavole();
  void CaricaFilmati();
  void IniziaElencoDelLivello();
  [[nodiscard]] platform::Board& FilmatoDi(PartitaBlocchi::Tavola tavola);
  // Takes all blocks off the board of an addend.
  void Sgombra(PartitaBlocchi::Tavola tavola);
  [[nodiscard]] platform::Button& PulsanteDi(const CambioBlocchi& cambio);
  void Incornicia(const platform::Label& ancora);
  // While nothing of the case can be pressed, the focus rests on the question.
  void RiposaIlFuoco();
  void PassaAllaSeconda();
  void UnisciTavole();
  // The carry that the game asks for next; else the result.
  void Prosegui();
  void ComandoDelFilmato(const QString& args);
  void Concludi(Esito esito);
  // Tells assistive technology what stands on each board.
  void Racconta();

  const VarianteBlocchi& variante_;
  PartitaBlocchi partita_;
  TavolaUnita unita_{ShockwaveFlash3, esercizio().regole, partita_.Uniti()};
};

}  // namespace somme::inline blocchi
