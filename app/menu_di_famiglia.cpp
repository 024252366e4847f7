#include "app/menu_di_famiglia.h"

#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"

namespace somme::inline programma {

MenuDiFamiglia::MenuDiFamiglia(Ambiente& ambiente, const platform::FormDesign& disegno)
    : Forma(ambiente, disegno) {}

void MenuDiFamiglia::onLoad() {
  Forma::onLoad();
  stato().ContaEsatti = 0;
  stato().ContaErrati = 0;
  ImpostaCursoreSistema();
}

void MenuDiFamiglia::onActivate() {
  paintGradient();
}

void MenuDiFamiglia::Apre(platform::Button& pulsante, Famiglia famiglia,
                          std::function<void()> scelta, const platform::Label* fascia) {
  pulsante.shareCaptionSize(scritte_);
  livelli_.add(pulsante, fascia);
  pulsante.onClick([this, famiglia, scelta = std::move(scelta)] {
    scelta();
    VaiA(Strada(this->ambiente().forme, famiglia, ModoDi(stato().ModalitaInput)));
  });
}

void MenuDiFamiglia::ApreTitolato(platform::Button& pulsante, const platform::Label& fascia,
                                  const VoceTitolata& voce) {
  const auto scelta = [this, tipo = voce.tipo, gruppo = voce.gruppo, &parole = voce.parole] {
    stato().TipoEsercizio = tipo;
    stato().TitoloEsercizio += TestoLingua(ambiente(), gruppo);
    stato().TitoloEsercizio += parole.caption();
  };
  Apre(pulsante, voce.famiglia, scelta, &fascia);
}

void MenuDiFamiglia::TornaAlMenu() {
  VaiA(forme::kFormMenu);
}

}  // namespace somme::inline programma
