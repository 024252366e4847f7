#pragma once

#include <functional>

#include "app/shared/colori.h"
#include "platform/base/currency.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/user_control.h"

namespace somme::inline ingresso {

// The box into which a pupil types a number: `TestoInput`, where the digits are edited, and in its
// place, once Enter has been released, `TestoOutput` with the number as it was understood. It takes
// digits only, keeps the value and tells its form; what the number is good for is the form's
// business.
class TestoInputNumerico final : public platform::UserControl {
 public:
  static constexpr std::string_view kIdentificativo = "Somme.TestoInputNumerico";

  explicit TestoInputNumerico(platform::ControlHost& ospite);

  platform::Currency ValoreInserito;  // the value confirmed last; a new case does not clear it
  QString TestoFormattato;            // what `TestoOutput` showed after it

  // The inner controls, in their order on the Tab key.
  platform::TextBox TestoInput{*this};
  platform::TextBox TestoOutput{*this};

  // The persisted properties, in the order of the store.
  platform::Property<double> ColoreSfondo{*this, QStringLiteral("ColoreSfondo"),
                                          colori::InNumero(platform::kWhite)};
  platform::Property<double> ColoreTesto{*this, QStringLiteral("ColoreTesto"),
                                         colori::InNumero(platform::kBlack)};
  // Also take a blank, "." and "," while typing.
  platform::Property<bool> AccettaSeparatori{*this, QStringLiteral("AccettaSeparatori"), false};
  platform::Property<qint16> MaxLength{*this, QStringLiteral("MaxLength"), 0};  // 0: no limit
  platform::Property<QString> NomeFont{*this, QStringLiteral("NomeFont"), QStringLiteral("Tahoma")};
  // Points on the page as it is at the moment of setting; the text then grows with the page.
  platform::Property<qint16> DimensioneTesto{*this, QStringLiteral("DimensioneTesto"), 12};
  platform::Property<QString> FormatoNumericoIntero{*this, QStringLiteral("FormatoNumericoIntero"),
                                                    QStringLiteral("### ### ##0")};
  platform::Property<QString> FormatoNumericoDecimale{
      *this, QStringLiteral("FormatoNumericoDecimale"), QStringLiteral("### ### ##0.###")};
  // 0 left, 1 right, 2 centre.
  platform::Property<qint16> Allineamento{*this, QStringLiteral("Allineamento"), 2};
  // Whether the box can be used; the shown number stays as it is.
  platform::Property<bool> Enabled{*this, QStringLiteral("Enabled"), true};
  platform::InnerProperty<QString> Text{
      *this, QStringLiteral("Text"), QStringLiteral("Text1"), [this] { return TestoInput.text(); },
      [this](const QString& testo) { TestoInput.setText(testo); }};

  // Empties both boxes and goes back to editing.
  void Reimposta();
  // Back to editing: the input box is shown and takes the focus.
  void TestoPerInput();
  // Shows the input box, whatever its name says: kept (docs/oddities.md). It takes the focus where
  // the box of the result had it.
  void TestoPerOutput();
  // What opens the box again once a number has been confirmed. The confirmed number shows it as a
  // picture, and looks like any other box where nothing has to.
  enum class Riapre { Clic, Cestino, Niente };
  void RiapreCon(Riapre modo);
  // As if Enter had been released in the input box. Throws RunTimeError(Overflow) for a number that
  // a currency cannot hold.
  void TerminaInserimento();

  // The events of the control, in their declared order. The first is declared alone: nothing raises
  // it.
  void onKeyDown(const std::function<void()>& /*gestore*/) {}
  // After the filter, for each key typed; one that the filter dropped comes as 0.
  void onKeyPress(std::function<void(qint16& tasto)> gestore) {
    tastoPremuto_ = std::move(gestore);
  }
  // A number has been confirmed.
  void onConfermato(std::function<void()> gestore) { confermato_ = std::move(gestore); }
  // At the end of each layout.
  void onResize(std::function<void()> gestore) { disposto_ = std::move(gestore); }
  // The text being edited has changed, also when the program set it.
  void onChange(std::function<void()> gestore) { cambiato_ = std::move(gestore); }

  [[nodiscard]] bool isEnabled() const override { return Enabled.get(); }
  void setEnabled(bool abilitato) override { Enabled.set(abilitato); }

 protected:
  void layOut() override;
  void propertySet(const platform::PropertyBase& proprieta) override;
  void applyLook() override;

 private:
  void Filtra(int& tasto);
  void TornaAllInserimento();
  void Mostra(platform::TextBox& casella, platform::TextBox& invece);

  std::function<void(qint16&)> tastoPremuto_;
  std::function<void()> confermato_;
  std::function<void()> disposto_;
  std::function<void()> cambiato_;
  Riapre riapre_ = Riapre::Clic;
  double scalaDellaDimensione_ = 1;  // of the page's fonts when `DimensioneTesto` was set
};

}  // namespace somme::inline ingresso
