#include "app/form_menu_scelte.h"

namespace somme::inline programma {

FormMenuScelte::FormMenuScelte(Ambiente& ambiente, const MenuDiScelte& menu,
                               const platform::FormDesign& disegno)
    : MenuDiFamiglia(ambiente, disegno), menu_(menu) {
  Command1.onClick([this] { TornaAlMenu(); });
}

void FormMenuScelte::onLoad() {
  MenuDiFamiglia::onLoad();
  for (int i = 0; const Scelta& scelta : menu_.scelte) {
    Apre(Voce(i++), scelta.famiglia, [this, &scelta] {
      if (scelta.tipo) {
        stato().TipoEsercizio = *scelta.tipo;
      } else {
        stato().LimiteEsercizio = Portata(ambiente().forme, scelta.famiglia);
      }
    });
  }
}

}  // namespace somme::inline programma
