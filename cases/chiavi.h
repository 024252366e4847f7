#pragma once

#include <string_view>

// The keys of section "Strings" of the language files, in their order.
namespace somme::inline casi::chiavi {

inline constexpr std::string_view kGiaAperto = "0001";

inline constexpr std::string_view kErrati = "0002";
inline constexpr std::string_view kEsatti = "0003";
inline constexpr std::string_view kMessaggioHelpiKeys = "0004";

// The heading of a record, and the ranges in it.
inline constexpr std::string_view kTitoloBarre = "0005";
inline constexpr std::string_view kTitoloFinoAl10 = "0006";
inline constexpr std::string_view kTitoloFinoAl20 = "0007";
inline constexpr std::string_view kTitoloPLUEntro999 = "0008";
inline constexpr std::string_view kTitoloPLUEntro99 = "0013";

// The names of levels on a record.
inline constexpr std::string_view kTipoSenzaCambio = "0009";
inline constexpr std::string_view kTipoUnCambio = "0010";
inline constexpr std::string_view kTipoDueCambi = "0011";
inline constexpr std::string_view kTipoConESenzaCambi = "0012";
inline constexpr std::string_view kTipoSoloUnita = "0014";
inline constexpr std::string_view kTipoConCambio = "0015";
inline constexpr std::string_view kTipoSoloDecine = "0016";
inline constexpr std::string_view kTipoSoloCentinaia = "0017";
inline constexpr std::string_view kTipoCambioUnita = "0018";
inline constexpr std::string_view kTipoCambioDecine = "0019";

inline constexpr std::string_view kDomandaStampaTastiera = "0020";

// What is asked for: the red bar, the yellow one, the green one.
inline constexpr std::string_view kConsegnaBarre1 = "0021";
inline constexpr std::string_view kConsegnaBarre2 = "0022";
inline constexpr std::string_view kConsegnaBarre3 = "0023";

// A title, and the groups in it: those of a sum, and of an addend.
inline constexpr std::string_view kNumeriEntro10 = "0024";
inline constexpr std::string_view kNumeriEntro20 = "0025";
inline constexpr std::string_view kNumeriEntro99 = "0026";
inline constexpr std::string_view kNumeriEntro999 = "0027";
inline constexpr std::string_view kNumeriEntro9999 = "0028";
inline constexpr std::string_view kAddendoEntro10 = "0029";
inline constexpr std::string_view kAddendoEntro20 = "0030";
inline constexpr std::string_view kTitoloNumeri = "0031";

// The entry that turns the sounds on and off: as the menu comes up, and after a choice of it.
inline constexpr std::string_view kSuoniAttivi = "0032";
inline constexpr std::string_view kSuoniSpenti = "0033";
inline constexpr std::string_view kSuoniAttivati = "0034";
inline constexpr std::string_view kSuoniTolti = "0035";

inline constexpr std::string_view kAbacoEntro99 = "0036";
inline constexpr std::string_view kAbacoEntro999 = "0037";
inline constexpr std::string_view kAbacoEntro9999 = "0038";
inline constexpr std::string_view kTitoloAbaco = "0039";

inline constexpr std::string_view kTitoloTabella = "0040";

}  // namespace somme::inline casi::chiavi
