#include "platform/forms/window_system.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace platform::inline forms {

namespace {

// Without it there is no window. What the program is linked with the system itself looks for and
// names; this it does not know of.
constexpr wchar_t kNeeded[] = L"platforms\\qwindows.dll";

struct Words {
  WORD language = LANG_ENGLISH;
  const wchar_t* text = L"";
};
// The first are for everybody else.
constexpr std::array<Words, 5> kWords{{
    {LANG_ENGLISH, L"The program cannot start. This file is missing:"},
    {LANG_ITALIAN, L"Il programma non può partire. Manca il file:"},
    {LANG_FRENCH, L"Le programme ne peut pas démarrer. Il manque le fichier :"},
    {LANG_GERMAN, L"Das Programm kann nicht starten. Es fehlt die Datei:"},
    {LANG_SPANISH, L"El programa no puede arrancar. Falta el archivo:"},
}};

const wchar_t* words() {
  const WORD language = PRIMARYLANGID(::GetUserDefaultUILanguage());
  const auto known = std::ranges::find(kWords, language, &Words::language);
  return known == kWords.end() ? kWords.front().text : known->text;
}

std::filesystem::path ownFolder() {
  constexpr DWORD kLongest = 32768;  // letters of a path
  std::wstring name(kLongest, L'\0');
  name.resize(::GetModuleFileNameW(nullptr, name.data(), kLongest));
  return std::filesystem::path(name).parent_path();
}

}  // namespace

// There is one; but the part of the toolkit that knows it is a file that may have got lost.
void onBestWindowSystem(const std::function<void()>& make) {
  const std::filesystem::path needed = ownFolder() / kNeeded;
  std::error_code none;
  if (!std::filesystem::exists(needed, none)) {
    const std::wstring text = std::wstring(words()) + L"\n\n" + needed.wstring();
    ::MessageBoxW(nullptr, text.c_str(), nullptr, MB_OK | MB_ICONERROR);
    std::exit(1);
  }
  make();
}

}  // namespace platform::inline forms
