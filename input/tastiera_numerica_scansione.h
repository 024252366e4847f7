#pragma once

#include "app/shared/colori.h"
#include "input/tastiera_scansione.h"

namespace somme::inline ingresso {

// The scanning keyboard of digits: ten of them, the bin, help where the form has it, confirm, and
// the way on, which is open only after a right answer and is then the only choice.
class TastieraNumericaScansione final : public TastieraScansione {
 public:
  static constexpr std::string_view kIdentificativo = "Somme.TastieraNumericaScansione";
  // The buttons after the digits.
  enum Tasti : qint16 { kCestino = 10, kAiuto = 11, kConferma = 12, kAvanti = 13 };
  static constexpr int kPulsanti = 14;

  explicit TastieraNumericaScansione(platform::ControlHost& ospite);

  platform::ControlArray<platform::Button> PulsanteNumero{*this};

  // The persisted properties, in the order of the store.
  platform::Property<double, qint32> ColoreSfondo{*this, QStringLiteral("ColoreSfondo"),
                                                  colori::InNumero(colori::kGrigio)};
  platform::Property<double, qint32> ColoreScansione{*this, QStringLiteral("ColoreScansione"),
                                                     colori::InNumero(colori::kRosso)};
  platform::Property<bool> AiutoVisibile{*this, QStringLiteral("AiutoVisibile"), true};
  platform::Property<bool> ScansioneAutomatica{*this, QStringLiteral("ScansioneAutomatica"), false};
  platform::Property<qint16> TempoScansione{*this, QStringLiteral("TempoScansione"), 4};
  platform::Property<bool> AvantiAttivo{*this, QStringLiteral("AvantiAttivo"), true};

  // Opens the way on: the light rests on it until it is chosen.
  void AttivaAvanti();
  // Closes it; the light goes back to the first button.
  void DisattivaAvanti();
  // Puts the light on the bin; scanning goes on from there.
  void SelezionaCestino();

 protected:
  [[nodiscard]] bool Fermo() const override { return AvantiAttivo.get(); }
  void MostraPulsanti() override;
};

}  // namespace somme::inline ingresso
