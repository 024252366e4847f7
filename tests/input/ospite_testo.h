#pragma once

#include "input/testo_input_numerico.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"

// The control for numbers on a form of the tests' own.
namespace prova {

// A form with the control and a button after it; it writes down what the control tells.
class OspiteTesto : public platform::Form {
 public:
  explicit OspiteTesto(platform::Runtime& runtime) : Form(runtime, disegno()) {
    TestoInput.onKeyDown([this] { eventi.append(QStringLiteral("KeyDown")); });
    TestoInput.onKeyPress([this](qint16& tasto) {
      eventi.append(QStringLiteral("KeyPress %1").arg(tasto));
      if (cambiaTasto) cambiaTasto(tasto);
    });
    TestoInput.onConfermato([this] { eventi.append(QStringLiteral("Confermato")); });
    TestoInput.onResize([this] { ++disposizioni; });
    TestoInput.onChange(
        [this] { eventi.append(QStringLiteral("Change '%1'").arg(TestoInput.Text.get())); });
  }

  somme::TestoInputNumerico TestoInput{*this};
  platform::Button Altro{*this};

  QStringList eventi;
  int disposizioni = 0;
  std::function<void(qint16&)> cambiaTasto;

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  static const platform::FormDesign& disegno();

  platform::ProportionalLayout layout_{*this};
};

inline constexpr auto kRigheTesto = std::to_array<platform::Row>({
    platform::row<&OspiteTesto::TestoInput>({1500, 1500, 4500, 1200}, {.toolTip = "Scrivi qui"}),
    platform::row<&OspiteTesto::Altro>({1500, 4500, 3000, 900}, {.caption = "altro"}),
});
inline constexpr std::array<std::span<const platform::Row>, 1> kTavoleTesto{kRigheTesto};
inline constexpr platform::FormDesign kDisegnoTesto{
    .name = "Prova", .caption = "Prova", .width = 15000, .height = 10500, .tables = kTavoleTesto};

inline const platform::FormDesign& OspiteTesto::disegno() {
  return kDisegnoTesto;
}

// The ground with the control ready for typing.
class FondoTesto : public prova::FondoDiProva<OspiteTesto> {
 public:
  FondoTesto() : controllo(forma().TestoInput) {
    controllo.Reimposta();
    forma().eventi.clear();
  }

  // Types the text and confirms it.
  void conferma(const QString& testo) {
    scrivi(testo);
    batti(Qt::Key_Return);
  }
  [[nodiscard]] bool inserisce() const {
    return controllo.TestoInput.isVisible() && !controllo.TestoOutput.isVisible();
  }
  [[nodiscard]] bool confermato() const {
    return !controllo.TestoInput.isVisible() && controllo.TestoOutput.isVisible();
  }

  somme::TestoInputNumerico& controllo;
};

}  // namespace prova
