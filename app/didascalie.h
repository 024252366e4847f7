#pragma once

#include <QStringView>
#include <array>
#include <string_view>

// The captions of the level tables as the UTF-8 text that design rows hold, made at compile time.
namespace somme {

// Code units of UTF-8 for one of UTF-16; no caption leaves the basic plane.
constexpr std::size_t ByteDi(char16_t lettera) {
  if (lettera < 0x80) return 1;
  return lettera < 0x800 ? 2 : 3;
}

consteval std::size_t LunghezzaUtf8(QStringView testo) {
  std::size_t lunghezza = 0;
  for (qsizetype i = 0; i < testo.size(); ++i) lunghezza += ByteDi(testo.utf16()[i]);
  return lunghezza;
}

template <std::size_t lunghezza>
consteval std::array<char, lunghezza> Utf8(QStringView testo) {
  std::array<char, lunghezza> lettere{};
  std::size_t posto = 0;
  for (qsizetype i = 0; i < testo.size(); ++i) {
    const unsigned lettera = testo.utf16()[i];
    const std::size_t byte = ByteDi(testo.utf16()[i]);
    // The first byte tells how many there are; the others hold six bits each.
    constexpr std::array<unsigned, 4> kPrimo = {0, 0, 0xC0, 0xE0};
    lettere[posto++] = static_cast<char>(kPrimo[byte] | (lettera >> (6 * (byte - 1))));
    for (std::size_t resto = byte - 1; resto > 0; --resto) {
      lettere[posto++] = static_cast<char>(0x80U | ((lettera >> (6 * (resto - 1))) & 0x3FU));
    }
  }
  return lettere;
}

// The caption of row i of a level table.
template <const auto& Tabella, std::size_t i>
inline constexpr auto kLettere = Utf8<LunghezzaUtf8(Tabella[i].didascalia)>(Tabella[i].didascalia);
template <const auto& Tabella, std::size_t i>
constexpr std::string_view Didascalia() {
  return {kLettere<Tabella, i>.data(), kLettere<Tabella, i>.size()};
}

}  // namespace somme
