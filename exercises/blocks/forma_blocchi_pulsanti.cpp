#include "exercises/blocks/forma_blocchi_pulsanti.h"

namespace somme {

FormaBlocchiPulsanti::FormaBlocchiPulsanti(Ambiente& ambiente, const platform::FormDesign& disegno,
                                           const EsercizioBlocchi& esercizio)
    : ConAvanti(ambiente, disegno, esercizio) {
  PulsanteDa.onClick([this] { ClicSpecie(PulsanteDa, blocchi::kLunghi); });
  PulsanteU.onClick([this] { ClicSpecie(PulsanteU, blocchi::kUnita); });
  PulsanteCestino.onClick([this] { ClicCestino(); });
  PulsanteConferma.onClick([this] { ClicConferma(); });
}

void FormaBlocchiPulsanti::onLoad() {
  ConAvanti::onLoad();
  PulsanteAvanti.setVisible(true);
  if (stato().CursoreDiSistema) ImpostaCursoreSistema();
}

void FormaBlocchiPulsanti::MettiComandi(const platform::Label& ancora) {
  PicturePulsanti.setLeft(ancora.left());
  PicturePulsanti.setVisible(true);
}

void FormaBlocchiPulsanti::SpostaComandi(const platform::Label& ancora) {
  PicturePulsanti.setLeft(ancora.left());
}

void FormaBlocchiPulsanti::TogliComandi() {
  PicturePulsanti.setVisible(false);
}

void FormaBlocchiPulsanti::ClicSpecie(const platform::Button& pulsante,
                                      const SpecieBlocchi& specie) {
  if (pulsante.isVisible()) MettiBlocco(specie);
}

void FormaBlocchiPulsanti::ClicCestino() {
  if (PulsanteCestino.isVisible()) Svuota();
}

void FormaBlocchiPulsanti::ClicConferma() {
  if (PulsanteConferma.isVisible()) GiudicaTavola();
}

}  // namespace somme
