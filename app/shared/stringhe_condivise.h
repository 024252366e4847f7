#pragma once

#include <QString>
#include <map>
#include <string_view>

namespace somme::inline condiviso {

class Ambiente;

// What `Spazio` holds, for who needs it as a character: no language changes it.
inline constexpr QChar kSpazio = u' ';

// The shared strings. They are read once, at the start, and keep the language of the start even if
// the pupil changes it later.
struct StringheCondivise {
  QString TestoErrati;
  QString TestoEsatti;
  QString Spazio;
  QString MessaggioHelpiKeys;
  QString TitoloBarre;
  QString Trattino;
  QString TitoloFinoAl10;
  QString TitoloFinoAl20;
  QString TitoloPLUEntro999;
  QString TipoSenzaCambio;
  QString TipoUnCambio;
  QString TipoDueCambi;
  QString TipoConESenzaCambi;
  QString TitoloPLUEntro99;
  QString TipoSoloUnita;
  QString TipoConCambio;
  QString TipoSoloDecine;
  QString TipoSoloCentinaia;
  QString TipoCambioUnita;
  QString TipoCambioDecine;
  QString SegnoPiu;
  QString SegnoUguale;
  QString FormatoNumeri;
  QString DomandaStampaTastiera;
  QString ConsegnaBarre1;
  QString ConsegnaBarre2;
  QString ConsegnaBarre3;
  // The names that levels bear on the record and that are none of the above, by their keys.
  std::map<std::string_view, QString> AltriTipi;

  // The name of a level on the record, by the key that its row gives; empty for any other key.
  [[nodiscard]] QString NomeDelLivello(std::string_view chiave) const;
};

// Reads them all, in their order; the first key read also loads `LinguaCorrente`.
void CaricaStringhe(Ambiente& ambiente);

}  // namespace somme::inline condiviso
