#pragma once

#include <string_view>

// The names of forms that others say, so that a form can say which one to show without knowing it.
// What only the table of forms says stands there.
namespace somme::inline condiviso::forme {

inline constexpr std::string_view kFormAvvio = "FormAvvio";
inline constexpr std::string_view kFormInfo = "FormInfo";

inline constexpr std::string_view kFormMenu = "FormMenu";
inline constexpr std::string_view kFormMenuNumeri = "FormMenuNumeri";
inline constexpr std::string_view kFormMenuAbaco = "FormMenuAbaco";
inline constexpr std::string_view kFormMenuPLU = "FormMenuPLU";

inline constexpr std::string_view kFormBarre10Tastiera = "FormBarre10Tastiera";

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
