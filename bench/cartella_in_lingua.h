#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

namespace bench {

// The program's folder as it is, but for a language file of a given size, in which sections of
// others stand before the program's own; as long as it is where that is more.
class CartellaInLingua {
 public:
  CartellaInLingua(const QString& vera, qsizetype byte) {
    for (const QFileInfo& voce :
         QDir(vera).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
      const QString qui = cartella_.filePath(voce.fileName());
      if (voce.fileName() != kLingua) QFile::link(voce.absoluteFilePath(), qui);
    }
    QFile vero(vera + u'/' + kLingua);
    if (!vero.open(QIODevice::ReadOnly)) qFatal("no language file");
    const QByteArray proprie = vero.readAll();
    const QByteArray testo = altrui(byte - proprie.size()) + proprie;
    QFile file(cartella_.filePath(kLingua));
    if (!file.open(QIODevice::WriteOnly) || file.write(testo) != testo.size()) {
      qFatal("cannot write the language file");
    }
  }

  [[nodiscard]] QString percorso() const { return cartella_.path(); }

 private:
  static inline const QString kLingua = QStringLiteral("Italiano.lng");

  static QByteArray altrui(qsizetype byte) {
    QByteArray testo;
    for (int sezione = 0; testo.size() < byte; ++sezione) {
      testo += "[Altro" + QByteArray::number(sezione) + "]\r\n";
      for (int i = 0; i < 20; ++i) {
        testo += "Label" + QByteArray::number(i) + ".Caption=\"Un testo di un'altra forma\"\r\n";
      }
    }
    return byte > 2 ? testo.left(byte - 2) + "\r\n" : QByteArray();
  }

  QTemporaryDir cartella_;
};

}  // namespace bench
