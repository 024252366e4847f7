#pragma once

#include "app/shared/colori.h"
#include "input/tastiera_scansione.h"

namespace somme::inline ingresso {

// The scanning keyboard of place values: in which column to act, the bin, confirm. The keys at its
// left end can be hidden; the scan then begins further to the right.
class TastieraHDUScansione final : public TastieraScansione {
 public:
  static constexpr std::string_view kIdentificativo = "Somme.TastieraHDUScansione";
  enum Tasti : qint16 {
    kMigliaia = 0,
    kCentinaia = 1,
    kDecine = 2,
    kUnita = 3,
    kCestino = 4,
    kConferma = 5,
  };
  static constexpr int kPulsanti = 6;

  explicit TastieraHDUScansione(platform::ControlHost& ospite);

  platform::ControlArray<platform::Button> Pulsante{*this};

  // Forms may write it.
  using TastieraScansione::PulsanteCorrente;

  // The persisted properties, in the order of the store.
  platform::Property<double, qint32> ColoreSfondo{*this, QStringLiteral("ColoreSfondo"),
                                                  colori::InNumero(colori::kGrigio)};
  platform::Property<double, qint32> ColoreScansione{*this, QStringLiteral("ColoreScansione"),
                                                     colori::InNumero(colori::kRosso)};
  platform::Property<bool> KVisibile{*this, QStringLiteral("KVisibile"), true};
  platform::Property<bool> HVisibile{*this, QStringLiteral("HVisibile"), true};
  platform::Property<bool> ScansioneAutomatica{*this, QStringLiteral("ScansioneAutomatica"), false};
  platform::Property<qint16> TempoScansione{*this, QStringLiteral("TempoScansione"), 4};

  // 0, or 1 without thousands, or 2 without hundreds, whatever the thousands are.
  [[nodiscard]] qint16 PrimoPulsante() const override;

 protected:
  void MostraPulsanti() override;
};

}  // namespace somme::inline ingresso
