#pragma once

#include <string_view>

// The names of the program's forms, so that a form can say which one to show without knowing it.
namespace somme::inline condiviso::forme {

inline constexpr std::string_view kFormAvvio = "FormAvvio";
inline constexpr std::string_view kFormInfo = "FormInfo";

inline constexpr std::string_view kFormMenu = "FormMenu";
inline constexpr std::string_view kFormMenuNumeri = "FormMenuNumeri";
inline constexpr std::string_view kFormMenuAbaco = "FormMenuAbaco";
inline constexpr std::string_view kFormMenuPLU = "FormMenuPLU";
inline constexpr std::string_view kFormMenuBarre = "FormMenuBarre";
inline constexpr std::string_view kFormMenuTabella = "FormMenuTabella";

inline constexpr std::string_view kFormNumeriTotale = "FormNumeriTotale";
inline constexpr std::string_view kFormNumeriTotaleScansione = "FormNumeriTotaleScansione";
inline constexpr std::string_view kFormNumeriTotaleHK = "FormNumeriTotaleHK";
inline constexpr std::string_view kFormNumeriAddendo = "FormNumeriAddendo";
inline constexpr std::string_view kFormNumeriAddendoScansione = "FormNumeriAddendoScansione";
inline constexpr std::string_view kFormNumeriAddendoHK = "FormNumeriAddendoHK";

inline constexpr std::string_view kFormBarre10 = "FormBarre10";
inline constexpr std::string_view kFormBarre10Tastiera = "FormBarre10Tastiera";
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

// Keyboard sheets for the touch surface.
inline constexpr std::string_view kFormStampaFoglioNumeri = "FormStampaFoglioNumeri";
inline constexpr std::string_view kFormStampaFoglioNumeri2 = "FormStampaFoglioNumeri2";
inline constexpr std::string_view kFormStampaLU = "FormStampaLU";
inline constexpr std::string_view kFormStampaPLU = "FormStampaPLU";
inline constexpr std::string_view kFormStampaAbaco = "FormStampaAbaco";

// Sheets to adjust the touch surface by; nothing in the program leads to them.
inline constexpr std::string_view kFormStampaFoglio4 = "FormStampaFoglio4";
inline constexpr std::string_view kFormStampaFoglio1 = "FormStampaFoglio1";

inline constexpr std::string_view kFrmAvviaStampa = "frmAvviaStampa";

}  // namespace somme::inline condiviso::forme
