#pragma once

#include <string_view>

// The names of the program's forms, so that a form can say which one to show without knowing it.
namespace somme::forme {

inline constexpr std::string_view kFormAvvio = "FormAvvio";
inline constexpr std::string_view kFormInfo = "FormInfo";
inline constexpr std::string_view kFormMenu = "FormMenu";
inline constexpr std::string_view kFormMenuNumeri = "FormMenuNumeri";
inline constexpr std::string_view kFormMenuBarre = "FormMenuBarre";
inline constexpr std::string_view kFormNumeriTotale = "FormNumeriTotale";
inline constexpr std::string_view kFormNumeriAddendo = "FormNumeriAddendo";
inline constexpr std::string_view kFormBarre10 = "FormBarre10";
inline constexpr std::string_view kFormBarre10Tastiera = "FormBarre10Tastiera";
inline constexpr std::string_view kFormBarre20 = "FormBarre20";

}  // namespace somme::forme
