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
  // The buttons in the panel, in the order of the design.
  for (platform::Control* controllo : controls()) {
    auto* pulsante = dynamic_cast<platform::Button*>(controllo);
    const bool comando =
        pulsante != nullptr && pulsante->surroundings() == PicturePulsanti.container();
    if (comando) comandi_.add(*pulsante);
  }
  if (stato().CursoreDiSistema) ImpostaCursoreSistema();
}

void FormaBlocchiPulsanti::MettiComandi(const platform::Label& ancora) {
  PicturePulsanti.setLeft(ancora.left());
  PicturePulsanti.setVisible(true);
  // The button of the case before cannot be pressed any more.
  const bool perso = page()->canvas()->focusWidget() == nullptr || EtOperazione.hasFocus();
  if (perso) comandi_.focusFirst();
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
