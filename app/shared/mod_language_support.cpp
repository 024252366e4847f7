#include "app/shared/mod_language_support.h"

#include <QDir>
#include <QFile>
#include <algorithm>

#include "app/shared/ambiente.h"
#include "platform/base/files_in_folder.h"
#include "platform/base/profile_file.h"
#include "platform/base/run_time_error.h"
#include "platform/forms/form.h"
#include "platform/forms/qt_message_boxes.h"

namespace somme::inline condiviso {

namespace {

using platform::RunTimeError;

// Runs a step whose failure is ignored by design.
template <class Passo>
void IgnoraErrori(const Passo& passo) {
  try {
    passo();
  } catch (const RunTimeError&) {
    // A text that cannot be read leaves things as they are.
  }
}

const QString kEstensione = QStringLiteral(".lng");

QString FileLingua(const Ambiente& ambiente) {
  QString cartella = ambiente.servizi.cartella;
  if (!cartella.endsWith(u'/')) cartella += u'/';
  QString usuale = cartella + ambiente.stato.LinguaCorrente + kEstensione;
  if (QFile::exists(usuale)) return usuale;
  // ".LNG", as disks from elsewhere have it.
  const QStringList file = platform::filesInFolder(cartella, kEstensione);
  const auto trovato = std::find_if(file.begin(), file.end(), [&](const QString& nome) {
    return nome.chopped(kEstensione.size()) == ambiente.stato.LinguaCorrente;
  });
  return trovato == file.end() ? usuale : cartella + *trovato;
}

const QString kFileImpostazioni = QStringLiteral("/LangSetting.ini");

QString FileImpostazioni(const Ambiente& ambiente) {
  return ambiente.servizi.cartella + kFileImpostazioni;
}

QString FileImpostazioniUtente(const Ambiente& ambiente) {
  return ambiente.servizi.cartellaUtente + kFileImpostazioni;
}

// The language that a settings file names. Throws RunTimeError(FileNotFound) without that file.
QString LinguaNelFile(Ambiente& ambiente, const QString& file) {
  return LeggiChiave(ambiente, file, QStringLiteral("Language"), QStringLiteral("CurrentLanguage"));
}

void ApplicaAlControllo(Ambiente& ambiente, const QString& file, platform::Form& form,
                        platform::Control& controllo) {
  const auto leggi = [&](const char* proprieta) {
    return LeggiChiave(ambiente, file, form.name(),
                       controllo.name() + QLatin1Char('.') + QLatin1String(proprieta));
  };
  IgnoraErrori([&] {
    const QString testo = leggi("Caption");
    if (!testo.isEmpty() && controllo.hasCaption()) controllo.setCaption(testo);
  });
  IgnoraErrori([&] {
    const QString testo = leggi("ToolTipText");
    if (!testo.isEmpty()) controllo.setToolTip(testo);
  });
  IgnoraErrori([&] {
    const QString testo = leggi("Tag");
    if (!testo.isEmpty()) controllo.setTag(testo);
  });
}

}  // namespace

QStringList LingueNellaCartella(const Ambiente& ambiente) {
  QStringList lingue = platform::filesInFolder(ambiente.servizi.cartella, kEstensione);
  for (QString& lingua : lingue) lingua.chop(kEstensione.size());
  lingue.removeDuplicates();
  return lingue;
}

QString LeggiChiave(Ambiente& ambiente, const QString& file, const QString& sezione,
                    const QString& chiave) {
  return ambiente.profili.read(file, sezione, chiave);
}

void ScriviChiave(const QString& file, const QString& sezione, const QString& chiave,
                  const QString& valore) {
  platform::writeProfileValue(file, sezione, chiave, valore);
}

QString LinguaScelta(Ambiente& ambiente) {
  QString lingua;
  if (!platform::isProfileWritable(FileImpostazioni(ambiente))) {
    IgnoraErrori([&] { lingua = LinguaNelFile(ambiente, FileImpostazioniUtente(ambiente)); });
  }
  return lingua.isEmpty() ? LinguaNelFile(ambiente, FileImpostazioni(ambiente)) : lingua;
}

void ScriviLinguaScelta(Ambiente& ambiente, const QString& lingua) {
  QString file = FileImpostazioni(ambiente);
  if (!platform::isProfileWritable(file)) {
    file = FileImpostazioniUtente(ambiente);
    QDir().mkpath(ambiente.servizi.cartellaUtente);
  }
  ScriviChiave(file, QStringLiteral("Language"), QStringLiteral("CurrentLanguage"), lingua);
}

QString TestoLingua(Ambiente& ambiente, const QString& chiave) {
  QString testo;
  IgnoraErrori([&] {
    QString& lingua = ambiente.stato.LinguaCorrente;
    if (lingua.isEmpty()) lingua = LinguaScelta(ambiente);
    testo = LeggiChiave(ambiente, FileLingua(ambiente), QStringLiteral("Strings"), chiave);
  });
  return testo;
}

void ApplicaLingua(Ambiente& ambiente, platform::Form& form) {
  const QString lingua = ambiente.stato.LinguaCorrente;
  const QString file = FileLingua(ambiente);
  // The caption and the tag are set also when the file has no text for them: it blanks them.
  if (!form.caption().isEmpty()) {
    IgnoraErrori([&] {
      form.setCaption(
          LeggiChiave(ambiente, file, form.name(), form.name() + QStringLiteral(".Caption")));
    });
  }
  IgnoraErrori([&] {
    form.setTag(LeggiChiave(ambiente, file, form.name(), form.name() + QStringLiteral(".Tag")));
  });
  // Only what the form has now: a control made meanwhile belongs to what made it.
  const std::vector<platform::Control*> controlli = form.controls();
  for (platform::Control* controllo : controlli) {
    ApplicaAlControllo(ambiente, file, form, *controllo);
    form.letEventsRun();
    if (ambiente.stato.LinguaCorrente != lingua) return;
  }
}

QString ParolaLingua(Ambiente& ambiente, const QString& sezione, const char* chiave,
                     const QString& italiana) {
  QString testo;
  IgnoraErrori(
      [&] { testo = LeggiChiave(ambiente, FileLingua(ambiente), sezione, QLatin1String(chiave)); });
  return testo.isEmpty() ? italiana : testo;
}

platform::ButtonWords ParoleMessaggi(Ambiente& ambiente) {
  const auto parola = [&ambiente](const char* chiave, const QString& italiana) {
    return ParolaLingua(ambiente, QStringLiteral("MessageBox"), chiave, italiana);
  };
  return {parola("Ok", QStringLiteral("OK")), parola("Si", QStringLiteral("Sì")),
          parola("No", QStringLiteral("No"))};
}

}  // namespace somme::inline condiviso
