#pragma once

#include <optional>

#include "exercises/blocks/tavola_unita.h"
#include "exercises/core/forma_esercizio.h"
#include "platform/forms/controls/shape.h"

namespace somme {

// The blocks exercises: the pupil builds each addend on a board of its own and has it judged, sees
// the boards joined on a third, carries wherever there are ten of a kind, and only then gives the
// result. Which blocks there are, the movies and the carries come as data. With what the pupil puts
// blocks, and how the result comes, is left to the forms.
class FormaBlocchi : public FormaEsercizio {
 public:
  FormaBlocchi(Ambiente& ambiente, const platform::FormDesign& disegno,
               const EsercizioBlocchi& esercizio);

  platform::Label Label1{*this};  // hidden: the places of the three boards
  platform::Label Label2{*this};
  platform::Label Label3{*this};
  platform::Board ShockwaveFlash1{*this};
  platform::Board ShockwaveFlash2{*this};
  platform::Board ShockwaveFlash3{*this};
  platform::Shape Shape1{*this};
  platform::Label EtOperazione{*this};

 protected:
  void onLoad() override;
  void onActivate() override;
  void NuovoCaso() override;

  // The steps in which the forms differ.
  // At an activation, once the movies are loaded: places for keyboards.
  virtual void PosaTastiere() {}
  // The way to the next case closes.
  virtual void ChiudiAvanti() = 0;
  // Hides where the result will stand, empty.
  virtual void NascondiRisultato() = 0;
  // Puts what blocks are put with below a board.
  virtual void MettiComandi(const platform::Label& ancora) = 0;
  // A right board: the commands go to the other one.
  virtual void SpostaComandi(const platform::Label& ancora) = 0;
  virtual void TogliComandi() = 0;
  // The numbers of the new case are made, and nothing of it is on the screen.
  virtual void CasoFatto() {}
  // The new case is on the screen.
  virtual void CasoPronto() {}
  // The button of a carry, by the carry's place among those of the exercise.
  [[nodiscard]] virtual platform::Button& PulsanteDelCambio(std::size_t quale) = 0;
  // Shows it, and has it heard.
  virtual void MostraCambio(platform::Button& pulsante);
  // While nothing of the case can be pressed, the focus rests on the question.
  void RiposaIlFuoco();
  // Boards and carries are done: the result can be given.
  virtual void ChiediRisultato() = 0;
  // The result is right: the way to the next case opens.
  virtual void ApriAvanti() = 0;

  [[nodiscard]] const EsercizioBlocchi& esercizio() const { return esercizio_; }

  // What the pupil does, on the board in use.
  void MettiBlocco(const SpecieBlocchi& specie);
  void Svuota();
  void GiudicaTavola();
  void Cambia(std::size_t quale);
  // The steps of a right result up to the record.
  void SegnaRisolto();

 private:
  // A board of an addend.
  struct Tavola {
    platform::Board& filmato;
    const platform::Label& ancora;
    Quantita& blocchi;
    qint16 Caso::*addendo;
  };
  // The board that is being built; none once they are joined.
  [[nodiscard]] std::optional<Tavola> InUso();
  void PosaTavole();
  void CaricaFilmati();
  void IniziaElencoDelLivello();
  // Takes all blocks off the board of an addend.
  void Sgombra(platform::Board& filmato);
  void EliminaNumeroSW1();
  void EliminaNumeroSW2();
  void Incornicia(const platform::Label& ancora);
  void UnisciTavole();
  // The first carry, from `quale` on, that ten of a kind ask for; else the result.
  void ChiediCambioDa(std::size_t quale);
  void ComandoDelFilmato(const QString& args);
  [[nodiscard]] int SuEntrambe(const SpecieBlocchi& specie) const;
  // Tells assistive technology what stands on each board.
  void Racconta();

  const EsercizioBlocchi& esercizio_;
  // How many blocks the pupil has put on boards 1 and 2, 0 to 9 of each kind. A carry changes the
  // joined board alone.
  Quantita SW1;
  Quantita SW2;
  TavolaUnita unita_{ShockwaveFlash3, esercizio_};
  qint16 Fase = 1;  // 1 the first addend, 2 the second, 3 the boards are joined
};

}  // namespace somme
