#pragma once

#include "app/shared/nomi_forme.h"

// The names that the program says in its table of forms alone, for tests, measurements and
// pictures.
namespace somme::inline condiviso::forme {

inline constexpr std::string_view kFormMenuBarre = "FormMenuBarre";
inline constexpr std::string_view kFormMenuTabella = "FormMenuTabella";
inline constexpr std::string_view kFormNumeriTotale = "FormNumeriTotale";
inline constexpr std::string_view kFormNumeriTotaleScansione = "FormNumeriTotaleScansione";
inline constexpr std::string_view kFormNumeriTotaleHK = "FormNumeriTotaleHK";
inline constexpr std::string_view kFormNumeriAddendo = "FormNumeriAddendo";
inline constexpr std::string_view kFormNumeriAddendoScansione = "FormNumeriAddendoScansione";
inline constexpr std::string_view kFormNumeriAddendoHK = "FormNumeriAddendoHK";
inline constexpr std::string_view kFormBarre10 = "FormBarre10";
inline constexpr std::string_view kFormBarre10Scansione = "FormBarre10Scansione";
inline constexpr std::string_view kFormBarre10HK = "FormBarre10HK";
inline constexpr std::string_view kFormBarre20 = "FormBarre20";
inline constexpr std::string_view kFormBarre20Scansione = "FormBarre20Scansione";
inline constexpr std::string_view kFormBarre20HK = "FormBarre20HK";
inline constexpr std::string_view kFormLU = "FormLU";
inline constexpr std::string_view kFormLUScansione = "FormLUScansione";
inline constexpr std::string_view kFormLUHK = "FormLUHK";
inline constexpr std::string_view kFormHLU = "FormHLU";
inline constexpr std::string_view kFormHLUScansione = "FormHLUScansione";
inline constexpr std::string_view kFormHLUHK = "FormHLUHK";
inline constexpr std::string_view kFormAbaco = "FormAbaco";
inline constexpr std::string_view kFormAbacoScansione = "FormAbacoScansione";
inline constexpr std::string_view kFormAbacoHK = "FormAbacoHK";
inline constexpr std::string_view kFormTabella = "FormTabella";

}  // namespace somme::inline condiviso::forme
