#include "exercises/core/input_scansione.h"

#include "exercises/core/forma_esercizio.h"
#include "exercises/core/scansione.h"

namespace somme::inline nucleo {

InputScansione::InputScansione(FormaEsercizio& forma, TastieraNumericaScansione& cifre,
                               AzioniCifre azioni)
    : forma_(forma), tasti_(forma, std::move(azioni)), cifre_(cifre) {
  cifre_.onComunicaPulsante([this](qint16 tasto) { TastoNumerico(tasto); });
}

InputScansione::InputScansione(FormaEsercizio& forma, TastieraNumericaScansione& cifre,
                               AzioniCifre azioni, TastieraHDUScansione& hdu, AzioniValori valori)
    : InputScansione(forma, cifre, std::move(azioni)) {
  hdu_ = &hdu;
  valori_ = std::move(valori);
  hdu_->onComunicaPulsante([this](qint16 tasto) { TastoHDU(tasto); });
}

void InputScansione::AlCaricamento() {
  NominaTasti(forma_.ambiente(), cifre_);
  if (hdu_ != nullptr) NominaTasti(forma_.ambiente(), *hdu_);
}

void InputScansione::AlPannelloStampa() {
  if (hdu_ != nullptr) hdu_->Disattiva();
  cifre_.Disattiva();
}

void InputScansione::TastoNumerico(qint16 tasto) {
  switch (tasto) {
    case TastieraNumericaScansione::kCestino:
      tasti_.Cestino();
      break;
    case TastieraNumericaScansione::kAiuto:
      tasti_.Aiuto();
      break;
    case TastieraNumericaScansione::kConferma:
      tasti_.Conferma();
      break;
    case TastieraNumericaScansione::kAvanti:
      tasti_.Avanti();
      break;
    default:
      tasti_.Cifra(tasto);
      break;
  }
}

void InputScansione::TastoHDU(qint16 tasto) const {
  switch (tasto) {
    case TastieraHDUScansione::kMigliaia:
      valori_.metti(Posto::Migliaia);
      break;
    case TastieraHDUScansione::kCentinaia:
      valori_.metti(Posto::Centinaia);
      break;
    case TastieraHDUScansione::kDecine:
      valori_.metti(Posto::Decine);
      break;
    case TastieraHDUScansione::kUnita:
      valori_.metti(Posto::Unita);
      break;
    case TastieraHDUScansione::kCestino:
      valori_.cestino();
      break;
    default:
      valori_.conferma();
      break;
  }
}

}  // namespace somme::inline nucleo
