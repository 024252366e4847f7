#include "app/shared/file_lingua.h"

#include <QFile>
#include <algorithm>

#include "platform/base/files_in_folder.h"

namespace somme::inline condiviso {

namespace {

const QString kEstensione = QStringLiteral(".lng");

}  // namespace

QStringList LingueNellaCartella(const QString& cartella) {
  QStringList lingue = platform::filesInFolder(cartella, kEstensione);
  for (QString& lingua : lingue) lingua.chop(kEstensione.size());
  lingue.removeDuplicates();
  return lingue;
}

QString FileLingua(QString cartella, const QString& lingua) {
  if (!cartella.endsWith(u'/')) cartella += u'/';
  QString usuale = cartella + lingua + kEstensione;
  if (QFile::exists(usuale)) return usuale;
  // ".LNG", as disks from elsewhere have it.
  const QStringList file = platform::filesInFolder(cartella, kEstensione);
  const auto trovato = std::find_if(file.begin(), file.end(), [&](const QString& nome) {
    return nome.chopped(kEstensione.size()) == lingua;
  });
  return trovato == file.end() ? usuale : cartella + *trovato;
}

QString FileImpostazioni(const QString& cartella) {
  return cartella + QStringLiteral("/LangSetting.ini");
}

}  // namespace somme::inline condiviso
