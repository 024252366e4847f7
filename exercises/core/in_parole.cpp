#include "exercises/core/in_parole.h"

#include <QStringList>
#include <array>

#include "app/shared/mod_language_support.h"

namespace somme::inline nucleo {

namespace {

// A kind, largest first: its keys in the language file with their Italian words, for one and for
// more.
struct ParoleDiGenere {
  int Quantita::*quanti;
  const char* chiaveUno;
  QStringView uno;
  const char* chiavePiu;
  QStringView piu;
};

constexpr std::array<ParoleDiGenere, 4> kGeneri{{
    {&Quantita::migliaia, "Migliaio", u"migliaio", "Migliaia", u"migliaia"},
    {&Quantita::centinaia, "Centinaio", u"centinaio", "Centinaia", u"centinaia"},
    {&Quantita::decine, "Decina", u"decina", "Decine", u"decine"},
    {&Quantita::unita, "UnaUnita", u"unità", "Unita", u"unità"},
}};

QString Parola(Ambiente& ambiente, const char* chiave, QStringView italiana) {
  return ParolaLingua(ambiente, QStringLiteral("Quantita"), chiave, italiana.toString());
}

}  // namespace

QString InParole(Ambiente& ambiente, const Quantita& quantita) {
  QStringList parti;
  for (const ParoleDiGenere& genere : kGeneri) {
    const int quanti = quantita.*genere.quanti;
    if (quanti == 0) continue;
    const QString parola = quanti == 1 ? Parola(ambiente, genere.chiaveUno, genere.uno)
                                       : Parola(ambiente, genere.chiavePiu, genere.piu);
    parti.append(QStringLiteral("%1 %2").arg(quanti).arg(parola));
  }
  if (parti.isEmpty()) return Parola(ambiente, "Vuoto", u"vuoto");
  return parti.join(QStringLiteral(", "));
}

}  // namespace somme::inline nucleo
