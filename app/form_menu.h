#pragma once

#include "app/shared/forma.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/button_group.h"
#include "platform/forms/controls/caption_size.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/controls/picture_box.h"
#include "platform/forms/controls/scroll_bar.h"

namespace somme::inline programma {

// The hub of the program: the ways to the five families, and the settings in its menus. It keeps
// nothing of its own; what it shows comes from the shared state at each load.
class FormMenu final : public Forma {
 public:
  explicit FormMenu(Ambiente& ambiente);

  platform::Button Command1{*this};
  platform::Image Image1{*this};
  platform::Image Image2{*this};
  platform::PictureBox PictureTempoScansione{*this};
  platform::ScrollBar HScrollScansione{*this};
  platform::Label LabelTempoScansione{*this};
  platform::Button CommandConfermaTempoInput{*this};
  platform::MenuItem mnuImpostazioni{*this};
  platform::MenuItem MnuSuoni{*this};
  platform::MenuItem mnuUsaCursoreDiSistema{*this};
  platform::MenuItem mnuModInput{*this};
  platform::ControlArray<platform::MenuItem> mnuInput{*this};
  platform::MenuItem mnuLinea1{*this};
  platform::MenuItem mnuTempoScansione{*this};
  platform::MenuItem mnuInfo{*this};
  platform::MenuItem MnuDoc{*this};
  platform::MenuItem mnuAbout{*this};
  platform::MenuItem mnuLanguages{*this};
  platform::ControlArray<platform::MenuItem> mnuLanguage{*this};

  // The button of the family whose row is the `quale`th of `LeFamiglie()`, counted from 0.
  [[nodiscard]] platform::Button& Voce(int quale) { return famiglie_.element(quale); }

  // Fills the language menu with the languages found beside the program and marks the current one.
  // Says so in a box when there is none. Throws RunTimeError(FileNotFound) when there are languages
  // and no LangSetting.ini.
  void MLSFillMenuLanguages();

 protected:
  void onLoad() override;
  void onActivate() override;

 private:
  platform::ControlArray<platform::Button> famiglie_{*this};
  // Of the ways to the families: few, and all of one rank.
  platform::CaptionSize scritte_{platform::CaptionSize::Kind::Pair};
  platform::ButtonGroup strade_;

  void CollegaMenu();
  void InvertiSuoni();
  void InvertiCursore();
  void OffriFamiglie();
  void ScegliModalita(int indice);
  void ApriTempoScansione();
  void CambiaTempo();
  void ScriviTempo();
  void ScegliLingua(int indice);
};

}  // namespace somme::inline programma
