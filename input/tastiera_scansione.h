#pragma once

#include <functional>
#include <span>

#include "platform/forms/control_array.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/focus_keeper.h"
#include "platform/forms/controls/key_panel.h"
#include "platform/forms/controls/timer.h"
#include "platform/forms/user_control.h"

namespace platform::inline forms {
class RingWidget;
}

namespace somme::inline ingresso {

// The engine of the scanning keyboards: a row of square buttons, of which exactly one is lit, and
// one or two keys for those who cannot use more. In manual scanning Space moves the light and Enter
// chooses; in automatic scanning the light moves by itself, Space stops it and its release chooses.
// What was chosen goes to the form as an index; what that means is the form's business. The mouse
// does nothing here.
//
// Colours are painted when a step says so, and what a resize leaves painted stays until `Attiva`;
// the ring round the lit button always follows `PulsanteCorrente`, and so does the look of a button
// held down while a key is down whose release chooses it.
//
// A keyboard derives from this with its table of buttons and its properties, whose order in the
// store is its own.
class TastieraScansione : public platform::UserControl {
 public:
  // The index of the lit button.
  class Evidenza {
   public:
    explicit Evidenza(TastieraScansione& tastiera) : tastiera_(tastiera) {}
    [[nodiscard]] qint16 get() const { return indice_; }
    void set(qint16 indice);

   private:
    friend class TastieraScansione;
    TastieraScansione& tastiera_;
    qint16 indice_ = 0;
  };

  // The inner controls; rows make them in the keyboard's own order.
  platform::Timer TimerScansione{*this};                  // moves the light
  platform::KeyPanel PictureScansione{*this};             // holds the focus and hears the keys
  platform::FocusKeeper Timer1{*this, PictureScansione};  // gives the focus back to it

  // Milliseconds from step to step. Throws RunTimeError(Overflow) above 131 quarters of a second.
  [[nodiscard]] qint16 IntervalloScansione() const;

  // Clears the light, lights the first button and takes the keys from here on. `PulsanteCorrente`
  // stays as it is: a property that is set afterwards puts it on the first.
  void Attiva();
  // Gives the keys up. Automatic scanning goes on; it just cannot choose.
  void Disattiva();
  void AttivaAutomatica();
  void DisattivaAutomatica();

  // A button was chosen.
  void onComunicaPulsante(std::function<void(qint16 pulsante)> gestore) {
    comunicaPulsante_ = std::move(gestore);
  }

  // For everyone who draws or tests: the button that the ring is on.
  [[nodiscard]] qint16 pulsanteAcceso() const { return PulsanteCorrente.get(); }
  [[nodiscard]] int numeroPulsanti() const { return numero_; }
  // What assistive technology calls a button that has no words.
  void DaiNome(int indice, const QString& nome);

  void keysLetGo() override;

 protected:
  // The properties that every keyboard has, each declared by the keyboard at its place in the
  // store. Colours are numbers of 24 bits, red in the lowest eight.
  struct Comuni {
    platform::Property<double, qint32>& ColoreSfondo;
    platform::Property<double, qint32>& ColoreScansione;
    platform::Property<bool>& ScansioneAutomatica;
    platform::Property<qint16>& TempoScansione;  // quarters of a second
  };

  // pulsanti: the keyboard's buttons, `numero` of them, which `interni` has rows for.
  TastieraScansione(platform::ControlHost& ospite, std::span<const platform::InnerRow> interni,
                    platform::ControlArray<platform::Button>& pulsanti, int numero,
                    const Comuni& comuni);

  Evidenza PulsanteCorrente{*this};

  // Where the scan begins, and where it goes on after the last button.
  [[nodiscard]] virtual qint16 PrimoPulsante() const { return 0; }
  // Whether the light rests where it is.
  [[nodiscard]] virtual bool Fermo() const { return false; }
  // Shows and enables the buttons that a property governs.
  virtual void MostraPulsanti() = 0;

  void Accendi(qint16 indice);
  void Spegni(int indice);
  void SpegniTutti();

  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void placeChanged() override;
  void layOut() override;
  void applyLook() override;

 private:
  void Passo();
  void TastoPremuto(int tasto);
  void TastoLasciato(int tasto);
  void Comunica();
  [[nodiscard]] bool StaScegliendo() const;
  void Affonda();
  void Segna();
  void Posa();
  [[nodiscard]] QSize Misura() const;

  platform::ControlArray<platform::Button>& pulsanti_;
  int numero_;
  Comuni comuni_;
  std::function<void(qint16)> comunicaPulsante_;
  QWidget* dentro_ = nullptr;  // the row itself; round it the ring has room
  platform::RingWidget* anello_ = nullptr;
  QSize disposta_;           // whole twips at the last layout
  bool disponendo_ = false;  // the layout is setting the height
  bool comunicando_ = false;
  bool spazioPremuto_ = false;
  bool invioPremuto_ = false;
};

}  // namespace somme::inline ingresso
