#include "app/shared/mod_language_support.h"

#include <QDir>

#include "app/shared/ambiente.h"
#include "app/shared/file_lingua.h"
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

QString FileCorrente(const Ambiente& ambiente) {
  return FileLingua(ambiente.servizi.cartella, ambiente.stato.LinguaCorrente);
}

// The settings' file of the program, and of the user alone.
QString FileDelProgramma(const Ambiente& ambiente) {
  return FileImpostazioni(ambiente.servizi.cartella);
}
QString FileUtente(const Ambiente& ambiente) {
  return FileImpostazioni(ambiente.servizi.cartellaUtente);
}

// The language that a settings file names. Throws RunTimeError(FileNotFound) without that file.
QString LinguaNelFile(Ambiente& ambiente, const QString& file) {
  return LeggiChiave(ambiente, file, QStringLiteral("Language"), QStringLiteral("CurrentLanguage"));
}

void ApplicaAlControllo(Ambiente& ambiente, const QString& file, platform::Form& form,
                        platform::Control& controllo) {
  const auto metti = [&](const char* proprieta, const auto& imposta) {
    IgnoraErrori([&] {
      const QString testo =
          LeggiChiave(ambiente, file, form.name(),
                      controllo.name() + QLatin1Char('.') + QLatin1String(proprieta));
      if (!testo.isEmpty()) imposta(testo);
    });
  };
  metti("Caption", [&](const QString& testo) {
    if (controllo.hasCaption()) controllo.setCaption(testo);
  });
  metti("ToolTipText", [&](const QString& testo) { controllo.setToolTip(testo); });
  metti("Tag", [&](const QString& testo) { controllo.setTag(testo); });
}

}  // namespace

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
  if (!platform::isProfileWritable(FileDelProgramma(ambiente))) {
    IgnoraErrori([&] { lingua = LinguaNelFile(ambiente, FileUtente(ambiente)); });
  }
  return lingua.isEmpty() ? LinguaNelFile(ambiente, FileDelProgramma(ambiente)) : lingua;
}

void ScriviLinguaScelta(Ambiente& ambiente, const QString& lingua) {
  QString file = FileDelProgramma(ambiente);
  if (!platform::isProfileWritable(file)) {
    file = FileUtente(ambiente);
    QDir().mkpath(ambiente.servizi.cartellaUtente);
  }
  ScriviChiave(file, QStringLiteral("Language"), QStringLiteral("CurrentLanguage"), lingua);
}

QString TestoLingua(Ambiente& ambiente, std::string_view chiave) {
  QString testo;
  IgnoraErrori([&] {
    QString& lingua = ambiente.stato.LinguaCorrente;
    if (lingua.isEmpty()) lingua = LinguaScelta(ambiente);
    testo = LeggiChiave(ambiente, FileCorrente(ambiente), QStringLiteral("Strings"),
                        QString::fromLatin1(chiave.data(), qsizetype(chiave.size())));
  });
  return testo;
}

void ApplicaLingua(Ambiente& ambiente, platform::Form& form) {
  const QString lingua = ambiente.stato.LinguaCorrente;
  const QString file = FileCorrente(ambiente);
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
  IgnoraErrori([&] {
    testo = LeggiChiave(ambiente, FileCorrente(ambiente), sezione, QLatin1String(chiave));
  });
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
