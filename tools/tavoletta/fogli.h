#pragma once

#include <array>
#include <span>
#include <string_view>

#include "input/mappa_tasti.h"

namespace somme::tavoletta {

// One kind of keyboard sheet: its keys, and what stands on them. A key without words does nothing
// in any exercise.
struct Foglio {
  std::string_view nome;  // in a script
  std::u16string_view titolo;
  const MappaTasti& mappa;
  std::span<const std::u16string_view> tasti;
};

inline constexpr std::array<std::u16string_view, 16> kTastiCifre{
    u"0", u"1", u"2", u"3", u"4",       u"5",     u"6",        u"7",
    u"8", u"9", u"",  u"",  u"cestino", u"aiuto", u"conferma", u"avanti"};
inline constexpr std::array<std::u16string_view, 9> kTastiBlocchi{
    u"h", u"da", u"u", u"", u"da → h", u"u → da", u"cestino", u"conferma", u"avanti"};
inline constexpr std::array<std::u16string_view, 12> kTastiAbaco{
    u"k",      u"h",      u"da", u"u",       u"",         u"h → k",
    u"da → h", u"u → da", u"",   u"cestino", u"conferma", u"avanti"};

inline constexpr std::array<Foglio, 3> kFogli{{
    {"cifre", u"Barre e numeri", kMappaCifre, kTastiCifre},
    {"blocchi", u"Piatti, lunghi, unità", kMappaBlocchi, kTastiBlocchi},
    {"abaco", u"Abaco", kMappaAbaco, kTastiAbaco},
}};

}  // namespace somme::tavoletta
