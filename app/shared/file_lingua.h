#pragma once

#include <QString>
#include <QStringList>

// The files of languages in a folder: profile files "<language>.lng", and LangSetting.ini, which
// names the chosen one. ".lng" in any case of letters.
namespace somme::inline condiviso {

// The languages that there are, by the names of their files, sorted without case; each once.
[[nodiscard]] QStringList LingueNellaCartella(const QString& cartella);

// The file of a language; where there is none, as it would be called.
[[nodiscard]] QString FileLingua(QString cartella, const QString& lingua);

[[nodiscard]] QString FileImpostazioni(const QString& cartella);

}  // namespace somme::inline condiviso
