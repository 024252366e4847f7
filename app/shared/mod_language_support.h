#pragma once

#include <QString>
#include <string_view>

namespace platform::inline forms {
class Form;
struct ButtonWords;
}

namespace somme::inline condiviso {

class Ambiente;

// The language files (file_lingua.h) in the program's folder: a section for each form, and the
// section "Strings" for what the code composes.

// A value of a profile file; empty where the key is absent. Throws RunTimeError(FileNotFound) for a
// file that does not exist.
[[nodiscard]] QString LeggiChiave(Ambiente& ambiente, const QString& file, const QString& sezione,
                                  const QString& chiave);
// Writes a value. Does nothing where the folder cannot be written.
void ScriviChiave(const QString& file, const QString& sezione, const QString& chiave,
                  const QString& valore);

// The text of a key of section "Strings" (cases/chiavi.h) in the current language; empty after any
// failure. Reads the chosen language first where none is set yet.
[[nodiscard]] QString TestoLingua(Ambiente& ambiente, std::string_view chiave);

// Puts the current language on a form and all its controls: captions, tool tips and tags. A failing
// read leaves its text as it is. Lets events run after each control; where another language is
// chosen in them, that one has been put on the form meanwhile, and no more is done here.
void ApplicaLingua(Ambiente& ambiente, platform::Form& form);

// The language written in LangSetting.ini. Where the one in the program's folder cannot be written,
// the user's own copy comes first, as far as it names a language. Throws RunTimeError(FileNotFound)
// without the program's own file, when that is the one to read.
[[nodiscard]] QString LinguaScelta(Ambiente& ambiente);
// Keeps the choice for the next run: in the program's folder or, where that cannot be written, for
// this user alone. Where neither can, the choice lasts until the main menu is loaded again.
void ScriviLinguaScelta(Ambiente& ambiente, const QString& lingua);

// A text of the ground's own dialogs in the current language, or the Italian one where the language
// file has none.
[[nodiscard]] QString ParolaLingua(Ambiente& ambiente, const QString& sezione, const char* chiave,
                                   const QString& italiana);

// The words on the buttons of message boxes: from section "MessageBox", or the Italian ones.
[[nodiscard]] platform::ButtonWords ParoleMessaggi(Ambiente& ambiente);

}  // namespace somme::inline condiviso
