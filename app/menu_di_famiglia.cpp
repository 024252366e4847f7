#include "app/menu_di_famiglia.h"

#include "app/disegno_menu.h"
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

void MenuDiFamiglia::Apre(platform::Button& pulsante, Famiglia famiglia, std::function<void()> scelta) {
  pulsante.shareCaptionSize(scritte_);
  livelli_.add(pulsante, FasciaDi(pulsante));
  pulsante.onClick([this, famiglia, scelta = std::move(scelta)] {
    scelta();
    VaiA(Strada(this->ambiente().forme, famiglia, ModoDi(stato().ModalitaInput)));
  });
}

// In the designs a band comes before the levels that stand under it.
const platform::Label* MenuDiFamiglia::FasciaDi(const platform::Button& voce) const {
  const platform::Label* fascia = nullptr;
  for (const platform::Control* controllo : controls()) {
    if (controllo == &voce) return fascia;
    const auto* etichetta = dynamic_cast<const platform::Label*>(controllo);
    if (etichetta != nullptr && etichetta->look().back == disegno::kFascia) fascia = etichetta;
  }
  return nullptr;
}

void MenuDiFamiglia::ApreTitolato(platform::Button& pulsante, Famiglia famiglia, qint16 tipo,
                             std::string_view chiave, const platform::Button& voce) {
  Apre(pulsante, famiglia, [this, tipo, chiave, &voce] {
    stato().TipoEsercizio = tipo;
    stato().TitoloEsercizio += TestoLingua(ambiente(), chiave);
    stato().TitoloEsercizio += voce.caption();
  });
}

void MenuDiFamiglia::TornaAlMenu() {
  VaiA(forme::kFormMenu);
}

}  // namespace somme::inline programma
