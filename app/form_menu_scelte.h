#pragma once

#include <optional>

#include "app/menu_di_famiglia.h"
#include "platform/forms/control_array.h"

namespace somme::inline programma {

// A large button of a menu and the exercise that it opens.
struct Scelta {
  std::string_view pulsante;  // its name, by which the language files know it
  int indice = -1;            // of several with one name
  std::string_view parole;    // UTF-8
  std::string_view immagine;  // a drawing of the program's, by its name
  Famiglia famiglia;
  // The `TipoEsercizio` that it writes. Without one it writes how far the family goes, into
  // `LimiteEsercizio`.
  std::optional<qint16> tipo = {};
};

// A menu of a few large buttons with pictures, three to a column. Lengths are twips.
struct MenuDiScelte {
  std::string_view nome;
  std::string_view intestazione;
  platform::Rgb tinta;
  std::span<const Scelta> scelte;
  double sinistra;  // of the first column
  double larghezza;
  double altezza;  // of the form
  platform::TwipsRect indietro;
};

class FormMenuScelte final : public MenuDiFamiglia {
 public:
  // menu and disegno, which lays it out, outlive the form.
  FormMenuScelte(Ambiente& ambiente, const MenuDiScelte& menu, const platform::FormDesign& disegno);

  platform::Button Command1{*this};  // the way back

  // The button of a choice, counted from 0.
  [[nodiscard]] platform::Button& Voce(int scelta) { return voci_.element(scelta); }

 protected:
  void onLoad() override;

 private:
  const MenuDiScelte& menu_;
  platform::ControlArray<platform::Button> voci_{*this};
};

}  // namespace somme::inline programma
