#include "app/strade.h"

#include <array>

#include "app/shared/ambiente.h"
#include "app/shared/nomi_forme.h"

namespace somme {

namespace {

// Both ways of scanning are one form's business.
struct Strade {
  std::string_view mouseTastiera;
  std::string_view scansione;
  std::string_view helpiKeys;
};

// In the order of Famiglia.
constexpr auto kStrade = std::to_array<Strade>({
    {forme::kFormNumeriTotale, forme::kFormNumeriTotaleScansione, forme::kFormNumeriTotaleHK},
    {forme::kFormNumeriAddendo, forme::kFormNumeriAddendoScansione, forme::kFormNumeriAddendoHK},
    {forme::kFormAbaco, forme::kFormAbacoScansione, forme::kFormAbacoHK},
    {forme::kFormLU, forme::kFormLUScansione, forme::kFormLUHK},
    {forme::kFormHLU, forme::kFormHLUScansione, forme::kFormHLUHK},
    {forme::kFormBarre10, forme::kFormBarre10Scansione, forme::kFormBarre10HK},
    {forme::kFormBarre20, forme::kFormBarre20Scansione, forme::kFormBarre20HK},
    {forme::kFormTabella, forme::kFormTabella, forme::kFormTabella},
});

}  // namespace

std::string_view Strada(Famiglia famiglia, qint16 ModalitaInput) {
  const Strade& strade = kStrade.at(static_cast<std::size_t>(famiglia));
  switch (ModalitaInput) {
    case kScansioneManuale:
    case kScansioneAutomatica:
      return strade.scansione;
    case kHelpiKeys:
      return strade.helpiKeys;
    default:
      return strade.mouseTastiera;
  }
}

}  // namespace somme
